// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/pages/labelview.h"
#include "samplehost/support/documentfixture.h"
#include "samplehost/support/hosttest.h"

#include <QtCore/QMimeData>
#include <QtCore/QSettings>
#include <QtGui/QDropEvent>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QStatusBar>

using namespace SampleHost;

/** The page of documents: opening files and turning pages. */
class TestPdfPage : public HostTest<DocumentFixture>
{
    Q_OBJECT

private Q_SLOTS:
    void startsWithoutADocument();
    void opensADocument();
    void turnsPages();
    void bringsThePageToTheFront();
    void opensTheDocumentOfTheCommandLine();
    void keepsTheDocumentWhenAFileCannotBeOpened_data();
    void keepsTheDocumentWhenAFileCannotBeOpened();
    void encryptedFilesNeedNoPasswordToBeReadWithoutOne();
    void opensWhatTheUserChooses();
    void opensWhatIsDropped();
    void ignoresWhatCannotBeDropped_data();
    void ignoresWhatCannotBeDropped();
    void offersTheRecentDocument();
    void recentDocumentMayBeGone();
    void recentDocumentIsKeptForTheNextStart();
    void printMenuOpensThePrintWindow();

private:
    QMenu* fileMenu() const;
};

QMenu* TestPdfPage::fileMenu() const
{
    return m_host->window->menuBar()->actions().constFirst()->menu();
}

void TestPdfPage::startsWithoutADocument()
{
    m_host->window->setCurrentPage(m_host->page());
    QVERIFY(m_host->page().document() == nullptr);
    QCOMPARE(m_host->navigator().count(), 0);
    QVERIFY(!m_host->navigator().isEnabled());
    QVERIFY(!m_host->widget("documentPrintButton")->isEnabled());
    QVERIFY(!m_host->widget("documentView")->isVisible());
    m_host->page().showPrintWindow();
    QVERIFY(!m_host->dialog().isVisible());
}

void TestPdfPage::opensADocument()
{
    QSignalSpy opened(&m_host->page(), &PdfPage::opened);
    QVERIFY(m_host->openNumbered(12));
    QCOMPARE(opened.size(), qsizetype(1));
    QCOMPARE(opened.at(0).at(0).toString(), m_host->path("in.pdf"));
    QCOMPARE(m_host->page().problem(), QString());
    QCOMPARE(m_host->widget<QLabel>("documentNameLabel")->text(), QStringLiteral("in.pdf"));
    QCOMPARE(m_host->widget<QLabel>("documentNameLabel")->toolTip(), m_host->path("in.pdf"));
    QCOMPARE(m_host->widget<QLabel>("recordCountLabel")->text(), QStringLiteral("of 12"));
    QCOMPARE(m_host->navigator().currentIndex(), 0);
    QVERIFY(m_host->widget("documentPrintButton")->isEnabled());
    QCOMPARE(m_host->window->statusBar()->currentMessage(),
             QStringLiteral("Opened %1").arg(m_host->path("in.pdf")));
}

void TestPdfPage::turnsPages()
{
    QVERIFY(m_host->openNumbered(12));
    auto* view = m_host->widget<LabelView>("documentView");
    InputSimulation::processEvents();
    const QImage first = view->grab().toImage();
    const QSizeF paper = view->paperRect().size();
    QVERIFY(qAbs(paper.width() / paper.height() - 595.0 / 842.0) < 0.01);
    m_host->press("nextRecordButton");
    QCOMPARE(m_host->navigator().currentIndex(), 1);
    QVERIFY(view->grab().toImage() != first);
    m_host->press("lastRecordButton");
    QCOMPARE(m_host->navigator().currentIndex(), 11);
    QVERIFY(!m_host->widget("nextRecordButton")->isEnabled());
    m_host->press("previousRecordButton");
    QCOMPARE(m_host->widget<QSpinBox>("recordNumberBox")->value(), 11);
    // Page 11 lies on its side.
    QVERIFY(view->paperRect().width() > view->paperRect().height());
    m_host->press("firstRecordButton");
    QCOMPARE(view->grab().toImage(), first);
    QCOMPARE(m_host->widget("nextRecordButton")->toolTip(), QStringLiteral("Next page"));
}

void TestPdfPage::bringsThePageToTheFront()
{
    QVERIFY(!m_host->page().isVisible());
    QVERIFY(m_host->openNumbered(1));
    QVERIFY(m_host->page().isVisible());
}

void TestPdfPage::opensTheDocumentOfTheCommandLine()
{
    QVERIFY(PdfSamples::writeNumbered(m_host->path("in.pdf"), 3));
    HostOptions options;
    options.dataSource.databaseName = m_host->path("chemicals.db");
    options.document = m_host->path("in.pdf");
    MainWindow window(options);
    window.show();
    QVERIFY(window.pdfPage().isVisible());
    QCOMPARE(window.pdfPage().navigator().count(), 3);
}

void TestPdfPage::keepsTheDocumentWhenAFileCannotBeOpened_data()
{
    addColumns<QByteArray, QString>("contents", "problem");

    const QString broken = QStringLiteral(
        "The file \"%1\" is not a PDF document, or it is damaged. Open another file.");
    const QByteArray document = PdfSamples::form();
    addRow("missing", QByteArray(), "The file \"%1\" does not exist.");
    addRow("text", QByteArray("Not a document"), broken);
    addRow("cut off", document.left(300), broken);
    addRow("encrypted", PdfSamples::encrypted(document, "secret", true),
           "The file \"%1\" is protected by a password. Open a copy without one.");
}

void TestPdfPage::keepsTheDocumentWhenAFileCannotBeOpened()
{
    QFETCH(QByteArray, contents);
    QFETCH(QString, problem);
    QVERIFY(m_host->openNumbered(12));
    m_host->press("nextRecordButton");
    const QString bad = m_host->path("bad.pdf");
    if (!contents.isEmpty()) {
        QVERIFY(PdfSamples::write(bad, contents));
    }
    QSignalSpy failed(&m_host->page(), &PdfPage::openFailed);
    QVERIFY(!m_host->page().open(bad));
    QCOMPARE(failed.size(), qsizetype(1));
    QCOMPARE(m_host->page().problem(), problem.arg(bad));
    QCOMPARE(m_host->shownMessage(), problem.arg(bad));
    // What was open is still there, page and all.
    QCOMPARE(m_host->widget<QLabel>("documentNameLabel")->text(), QStringLiteral("in.pdf"));
    QCOMPARE(m_host->navigator().currentIndex(), 1);
    QVERIFY(m_host->showDialog());
    QCOMPARE(m_host->print(), PrintJob::Outcome::Completed);
    QCOMPARE(m_host->printedPages(), QStringLiteral("2"));
}

void TestPdfPage::encryptedFilesNeedNoPasswordToBeReadWithoutOne()
{
    QVERIFY(m_host->openBytes(PdfSamples::encrypted(PdfSamples::form(), QByteArray(), true)));
    QCOMPARE(m_host->navigator().count(), 3);
}

void TestPdfPage::opensWhatTheUserChooses()
{
    QVERIFY(PdfSamples::writeNumbered(m_host->path("in.pdf"), 5));
    m_host->window->setCurrentPage(m_host->page());
    m_host->press("openDocumentButton");
    auto* dialog = m_host->widget<QFileDialog>("openDocumentDialog");
    QVERIFY(dialog != nullptr);
    auto* name = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    QVERIFY(name != nullptr);
    name->setText(m_host->path("in.pdf"));
    QTest::keyClick(name, Qt::Key_Return);
    QCOMPARE(m_host->navigator().count(), 5);
    QTRY_VERIFY(m_host->widget<QFileDialog>("openDocumentDialog") == nullptr);
}

void TestPdfPage::opensWhatIsDropped()
{
    QVERIFY(PdfSamples::writeNumbered(m_host->path("in.pdf"), 5));
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(m_host->path("in.pdf"))});
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&m_host->page(), &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&m_host->page(), &drop);
    QCOMPARE(m_host->navigator().count(), 5);
}

void TestPdfPage::ignoresWhatCannotBeDropped_data()
{
    QTest::addColumn<QList<QUrl>>("urls");

    addRow("nothing", QList<QUrl>());
    addRow("not a file", QList<QUrl>{QUrl(QStringLiteral("https://host/in.pdf"))});
    addRow("two files", QList<QUrl>{QUrl::fromLocalFile(QStringLiteral("/a.pdf")),
                                    QUrl::fromLocalFile(QStringLiteral("/b.pdf"))});
}

void TestPdfPage::ignoresWhatCannotBeDropped()
{
    QFETCH(QList<QUrl>, urls);
    QMimeData data;
    data.setUrls(urls);
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QCoreApplication::sendEvent(&m_host->page(), &enter);
    QVERIFY(!enter.isAccepted());
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&m_host->page(), &drop);
    QVERIFY(m_host->page().document() == nullptr);
    QCOMPARE(m_host->shownMessage(), QString());
}

void TestPdfPage::offersTheRecentDocument()
{
    auto* recent = fileMenu()->findChild<QAction*>(QStringLiteral("recentDocumentAction"));
    QVERIFY(recent != nullptr);
    QVERIFY(!recent->isEnabled());
    QVERIFY(m_host->openNumbered(4, "a&b.pdf"));
    QVERIFY(m_host->openNumbered(2, "later.pdf"));
    m_host->window->settings().setRecentDocument(m_host->path("a&b.pdf"));
    Q_EMIT fileMenu()->aboutToShow();
    QVERIFY(recent->isEnabled());
    QCOMPARE(recent->text(), QStringLiteral("Open &Recent: a&&b.pdf"));
    recent->trigger();
    QCOMPARE(m_host->navigator().count(), 4);
}

void TestPdfPage::recentDocumentMayBeGone()
{
    QVERIFY(m_host->openNumbered(2));
    QVERIFY(QFile::remove(m_host->path("in.pdf")));
    Q_EMIT fileMenu()->aboutToShow();
    fileMenu()->findChild<QAction*>(QStringLiteral("recentDocumentAction"))->trigger();
    QCOMPARE(m_host->shownMessage(),
             QStringLiteral("The file \"%1\" does not exist.").arg(m_host->path("in.pdf")));
    QCOMPARE(m_host->navigator().count(), 2);
}

void TestPdfPage::recentDocumentIsKeptForTheNextStart()
{
    QCoreApplication::setOrganizationName(QStringLiteral("printpanels-tests"));
    QCoreApplication::setApplicationName(QStringLiteral("tst_pdfpage"));
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_host->folder.path());
    QVERIFY(m_host->openNumbered(1));
    m_host->window->settings().save();
    HostSettings later;
    QCOMPARE(later.recentDocument(), QString());
    later.load();
    QCOMPARE(later.recentDocument(), m_host->path("in.pdf"));
}

void TestPdfPage::printMenuOpensThePrintWindow()
{
    QVERIFY(m_host->openNumbered(2));
    const QList<QAction*> actions = fileMenu()->actions();
    for (QAction* action : actions) {
        if (action->shortcut() == QKeySequence(QKeySequence::Print)) {
            action->trigger();
        }
    }
    QVERIFY(m_host->dialog().isVisible());
}

QTEST_MAIN(TestPdfPage)

#include "tst_pdfpage.moc"
