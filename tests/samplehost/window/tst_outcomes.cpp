// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/pages/catalogpage.h"
#include "samplehost/support/hostfixture.h"
#include "samplehost/support/hosttest.h"
#include "samplehost/window/statusmessages.h"

#include <printpanels/quickprintwidget.h>

#include <QtCore/QUrl>
#include <QtGui/QDesktopServices>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QStatusBar>
#include <QtWidgets/QToolButton>

#include <functional>

using namespace SampleHost;

Q_DECLARE_METATYPE(std::function<void(HostFixture&)>)

/** Receives what would be opened by other programs. */
class UrlReceiver : public QObject
{
    Q_OBJECT

public:
    UrlReceiver() { QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "open"); }
    ~UrlReceiver() override { QDesktopServices::unsetUrlHandler(QStringLiteral("file")); }

public Q_SLOTS:
    void open(const QUrl& url) { opened.append(url.toLocalFile()); }

public:
    QStringList opened;
};

/** What the status bar says and offers after a job. */
class TestOutcomes : public HostTest<HostFixture, true>
{
    Q_OBJECT

private Q_SLOTS:
    void offersTheFile();
    void shortcutsOpenTheFile();
    void offersOnlyTheFolderOfATestPrint();
    void offerLeavesWithTheNextRequest();
    void fileThatIsGoneIsNotOpened();
    void nothingIsOfferedAfterAFailure();
    void errorLeaves_data();
    void errorLeaves();
    void sizeErrorLeavesWithItsCause();
    void pathStaysWholeFromRightToLeft();

private:
    QToolButton* open() const { return button("openFileButton"); }
    QToolButton* folder() const { return button("showInFolderButton"); }
    QToolButton* button(const char* name) const
    {
        return m_host->window->findChild<QToolButton*>(QString::fromLatin1(name));
    }
    QString status() const { return m_host->window->statusBar()->currentMessage(); }
    bool print() const { return m_host->print() == HostFixture::Outcome::Completed; }
};

void TestOutcomes::offersTheFile()
{
    UrlReceiver receiver;
    QVERIFY(!open()->isVisible());
    QVERIFY(!folder()->isVisible());
    QVERIFY(print());
    QVERIFY(open()->isVisible());
    QVERIFY(!open()->accessibleName().isEmpty());
    QVERIFY(!folder()->accessibleName().isEmpty());
    QVERIFY(open()->toolTip().contains(QDir::toNativeSeparators(m_host->outputPath())));
    HostFixture::click(open());
    HostFixture::click(folder());
    QCOMPARE(receiver.opened, (QStringList{m_host->outputPath(), m_host->folder.path()}));
}

void TestOutcomes::shortcutsOpenTheFile()
{
    UrlReceiver receiver;
    QVERIFY(print());
    m_host->window->activateWindow();
    QTRY_VERIFY(m_host->window->isActiveWindow());
    const auto press = [this](const QToolButton* pressed) {
        QTest::keySequence(m_host->window->windowHandle(), pressed->shortcut());
    };
    // A button that is pressed by its shortcut is released a moment later.
    press(open());
    QTRY_COMPARE(receiver.opened.size(), qsizetype(1));
    press(folder());
    QTRY_COMPARE(receiver.opened, (QStringList{m_host->outputPath(), m_host->folder.path()}));
}

void TestOutcomes::offersOnlyTheFolderOfATestPrint()
{
    UrlReceiver receiver;
    m_host->click("printToFileCheck");
    QVERIFY(print());
    QVERIFY(!open()->isVisible());
    HostFixture::click(folder());
    QCOMPARE(receiver.opened, QStringList{m_host->path("guest/logs")});
}

void TestOutcomes::offerLeavesWithTheNextRequest()
{
    QVERIFY(print());
    QVERIFY(open()->isVisible());
    m_host->typeList(QStringLiteral("5-"));
    m_host->click("PrintButton");
    QVERIFY(!open()->isVisible());
    QVERIFY(!folder()->isVisible());
}

void TestOutcomes::fileThatIsGoneIsNotOpened()
{
    UrlReceiver receiver;
    QVERIFY(print());
    QVERIFY(QFile::remove(m_host->outputPath()));
    HostFixture::click(open());
    QCOMPARE(receiver.opened, QStringList());
    QCOMPARE(m_host->shownMessage(), QStringLiteral("\"%1\" was moved or removed. Print it again.")
                                         .arg(QDir::toNativeSeparators(m_host->outputPath())));
    QVERIFY(!open()->isVisible());
}

void TestOutcomes::nothingIsOfferedAfterAFailure()
{
    m_host->window->settings().setOutputPath(m_host->path("gone/out.pdf"));
    QCOMPARE(m_host->print(), HostFixture::Outcome::Failed);
    QVERIFY(!open()->isVisible());
    QVERIFY(!folder()->isVisible());
}

void TestOutcomes::errorLeaves_data()
{
    QTest::addColumn<std::function<void(HostFixture&)>>("act");
    const auto add = [](const char* name, const std::function<void(HostFixture&)>& act) {
        QTest::newRow(name) << act;
    };
    add("new request", [](HostFixture& host) { host.click("PreviewButton"); });
    add("other page", [](HostFixture& host) { host.window->setCurrentPage(host.pipes()); });
    add("settings", [](HostFixture& host) { host.window->settings().setMetric(true); });
    add("printer",
        [](HostFixture& host) { host.window->settings().setPrinter(QStringLiteral("Another")); });
}

void TestOutcomes::errorLeaves()
{
    QFETCH(std::function<void(HostFixture&)>, act);
    m_host->typeList(QStringLiteral("5-"));
    m_host->click("PrintButton");
    QCOMPARE(status(), m_host->shownMessage());
    const QString error = status();
    QVERIFY(error.contains(QStringLiteral("cannot be read")));
    delete m_host->messageBox();
    // What is not an error stays.
    m_host->click("currentRecordRadio");
    act(*m_host);
    QVERIFY2(status() != error, qPrintable(status()));
    QVERIFY(print());
    const QString outcome = status();
    m_host->window->setCurrentPage(m_host->pipes());
    m_host->window->settings().setMetric(!m_host->window->settings().isMetric());
    QCOMPARE(status(), outcome);
}

void TestOutcomes::sizeErrorLeavesWithItsCause()
{
    CatalogPage& page = m_host->window->catalogPage();
    m_host->window->setCurrentPage(page);
    const auto resize = [&page](const char* length) {
        auto* edit = page.panel().findChild<QWidget*>(QStringLiteral("lengthEdit"));
        QVERIFY(InputSimulation::type(edit, QString::fromLatin1(length)));
        HostFixture::click(page.panel().findChild<QWidget*>(QStringLiteral("resizeButton")));
    };
    resize("999");
    QVERIFY(!page.message().isEmpty());
    QCOMPARE(status(), page.message());
    resize("10");
    QCOMPARE(page.message(), QString());
    QCOMPARE(status(), QString());
}

// What is isolated cannot lose a slash to the other end of the line.
void TestOutcomes::pathStaysWholeFromRightToLeft()
{
    const QString path = QStringLiteral("/labels/today.pdf");
    QStatusBar bar;
    StatusMessages messages(bar);
    messages.show(path);
    QCOMPARE(bar.currentMessage(), path);
    bar.setLayoutDirection(Qt::RightToLeft);
    messages.show(path);
    QCOMPARE(bar.currentMessage(), QChar(0x2068) + path + QChar(0x2069));
    messages.showError(path);
    QCOMPARE(bar.currentMessage(), QChar(0x2068) + path + QChar(0x2069));
    messages.clearError();
    QCOMPARE(bar.currentMessage(), QString());
}

QTEST_MAIN(TestOutcomes)

#include "tst_outcomes.moc"
