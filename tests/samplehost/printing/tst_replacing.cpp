// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/pages/catalogpage.h"
#include "samplehost/printing/labelpreview.h"
#include "samplehost/support/faultfixture.h"
#include "samplehost/support/hosttest.h"

#include <printpanels/printpreviewdialog.h>
#include <printpanels/quickprintwidget.h>

#include <QtGui/QAction>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QPushButton>

using namespace SampleHost;

Q_DECLARE_METATYPE(Printout)

namespace {

const QByteArray earlier = QByteArrayLiteral("from an earlier job");

/** A host whose output file exists already. */
class ReplacingFixture : public LabelFaultFixture
{
public:
    ReplacingFixture() : HostFixture(true)
    {
        writeEarlier(outputPath());
        window->settings().setReplacePolicy(ReplacePolicy::Ask);
    }

    static void writeEarlier(const QString& file)
    {
        QFile old(file);
        if (old.open(QIODevice::WriteOnly)) {
            old.write(earlier);
        }
    }

    /** Presses Print on the page of a printout. */
    void press(Printout printout)
    {
        if (printout == Printout::Item) {
            click(window->catalogPage().panel().findChild<QWidget*>(QStringLiteral("printButton")));
        } else {
            click("PrintButton");
        }
        QCoreApplication::processEvents();
    }

    /** The question that the host asks, or null. */
    QMessageBox* question() const
    {
        return window->findChild<QMessageBox*>(QStringLiteral("replaceQuestion"));
    }

    /** Answers the question with the button of that text. */
    void answer(const QString& text) const
    {
        const auto buttons = question()->buttons();
        for (QAbstractButton* button : buttons) {
            if (button->text().remove(QLatin1Char('&')) == text) {
                QTest::mouseClick(button, Qt::LeftButton);
                return;
            }
        }
        QFAIL(qPrintable(text));
    }

    QFileDialog* saveDialog() const
    {
        return window->findChild<QFileDialog*>(QStringLiteral("savePdfDialog"));
    }

    /** Chooses a path in the visible dialog and presses Save. */
    void saveAs(const QString& file) const
    {
        QFileDialog* dialog = saveDialog();
        dialog->selectFile(file);
        QTest::mouseClick(dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Save),
                          Qt::LeftButton);
        // Until it is deleted.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    /** Waits for the end of the jobs of the page of labels. */
    bool waitForJob() const
    {
        return QTest::qWaitFor([this] { return !labels().controller().isPrinting(); }, 30000);
    }

    QByteArray output() const { return contentsOf(outputPath()); }
};

} // namespace

/** Files of earlier jobs are replaced only if the user agrees. */
class TestReplacing : public HostTest<ReplacingFixture>
{
    Q_OBJECT

private Q_SLOTS:
    void asksFirst_data();
    void asksFirst();
    void cancelKeepsFileAndChoices();
    void escapeCancels();
    void saveAsPrintsToAnotherFile();
    void saveAsCanBeCancelled();
    void saveAsMayNameTheDatabase();
    void newFilesNeedNoQuestion();
    void testPrintsNeedNoQuestion();
    void printsFromThePreviewAfterTheQuestion();
    void fileThatAppearsMeanwhileIsKept();
    void menuChoosesTheFile();
    void windowMayGoMeanwhile();
};

void TestReplacing::asksFirst_data()
{
    QTest::addColumn<Printout>("printout");
    QTest::newRow("labels") << Printout::Labels;
    QTest::newRow("sheets") << Printout::Sheets;
    QTest::newRow("item") << Printout::Item;
}

void TestReplacing::asksFirst()
{
    QFETCH(Printout, printout);
    QVERIFY(m_host->choose(printout));
    m_host->press(printout);
    QMessageBox* question = m_host->question();
    QVERIFY(question != nullptr);
    QVERIFY(question->isVisible());
    QVERIFY(question->isModal());
    QVERIFY(question->text().contains(QDir::toNativeSeparators(m_host->outputPath())));
    QCOMPARE(question->defaultButton(), question->button(QMessageBox::Cancel));
    // Nothing is printed before the answer, and nothing asked twice.
    m_host->press(printout);
    QCOMPARE(m_host->window->findChildren<QMessageBox*>().size(), qsizetype(1));
    QCOMPARE(m_host->output(), earlier);

    m_host->answer(QStringLiteral("Replace"));
    QTRY_COMPARE(pdfPages(m_host->outputPath()).size(), LabelFaultFixture::pagesOf(printout));
    QTRY_VERIFY(m_host->question() == nullptr);
    QCOMPARE(m_host->shownMessage(), QString());
}

void TestReplacing::cancelKeepsFileAndChoices()
{
    QVERIFY(m_host->choose(Printout::Labels));
    auto* button = m_host->find<QPushButton>("PrintButton");
    button->setFocus();
    const QString choices = m_host->choices(Printout::Labels);
    m_host->press(Printout::Labels);
    m_host->answer(QStringLiteral("Cancel"));
    QTRY_VERIFY(m_host->question() == nullptr);
    QVERIFY(!m_host->labels().controller().isBusy());
    QCOMPARE(m_host->output(), earlier);
    QCOMPARE(m_host->choices(Printout::Labels), choices);
    QVERIFY(button->isEnabled());
    QCOMPARE(m_host->window->focusWidget(), button);
    // The next request is a new one.
    m_host->press(Printout::Labels);
    QVERIFY(m_host->question() != nullptr);
}

void TestReplacing::escapeCancels()
{
    m_host->press(Printout::Labels);
    QTest::keyClick(m_host->question(), Qt::Key_Escape);
    QTRY_VERIFY(m_host->question() == nullptr);
    QVERIFY(!m_host->labels().controller().isBusy());
    QCOMPARE(m_host->output(), earlier);
}

void TestReplacing::saveAsPrintsToAnotherFile()
{
    QVERIFY(m_host->choose(Printout::Labels));
    m_host->press(Printout::Labels);
    m_host->answer(QStringLiteral("Save As..."));
    QVERIFY(m_host->saveDialog() != nullptr);
    QVERIFY(m_host->labels().controller().isAsking());
    const QString other = m_host->path("sub/other");
    QVERIFY(QDir(m_host->folder.path()).mkdir(QStringLiteral("sub")));
    m_host->saveAs(other);
    QTRY_COMPARE(pdfPages(other + QStringLiteral(".pdf")).size(),
                 LabelFaultFixture::pagesOf(Printout::Labels));
    QCOMPARE(m_host->output(), earlier);
    // The folder is remembered.
    QCOMPARE(m_host->window->settings().outputPath(), other + QStringLiteral(".pdf"));
}

void TestReplacing::saveAsCanBeCancelled()
{
    m_host->press(Printout::Labels);
    m_host->answer(QStringLiteral("Save As..."));
    m_host->saveDialog()->reject();
    QVERIFY(!m_host->labels().controller().isBusy());
    QCOMPARE(m_host->output(), earlier);
    QCOMPARE(m_host->window->settings().outputPath(), m_host->outputPath());
}

void TestReplacing::saveAsMayNameTheDatabase()
{
    const QByteArray database = contentsOf(m_host->path("chemicals.db"));
    m_host->press(Printout::Labels);
    m_host->labels().controller().printToFile(m_host->path("chemicals.db"));
    QCOMPARE(contentsOf(m_host->path("chemicals.db")), database);
    QVERIFY2(m_host->shownMessage().contains(QStringLiteral("would replace the database")),
             qPrintable(m_host->shownMessage()));
}

void TestReplacing::newFilesNeedNoQuestion()
{
    QVERIFY(QFile::remove(m_host->outputPath()));
    m_host->press(Printout::Labels);
    QVERIFY(m_host->question() == nullptr);
    QVERIFY(m_host->waitForJob());
    QCOMPARE(pdfPages(m_host->outputPath()).size(), qsizetype(1));
}

void TestReplacing::testPrintsNeedNoQuestion()
{
    QVERIFY(m_host->choose(Printout::TestFile));
    for (int number = 1; number <= 2; ++number) {
        m_host->press(Printout::TestFile);
        QVERIFY(m_host->question() == nullptr);
        QVERIFY(m_host->waitForJob());
    }
    QCOMPARE(
        namesIn(m_host->path("guest/logs")),
        (QStringList{QStringLiteral("printTest_001.prn"), QStringLiteral("printTest_002.prn")}));
    QCOMPARE(m_host->output(), earlier);
}

void TestReplacing::printsFromThePreviewAfterTheQuestion()
{
    m_host->click("PreviewButton");
    PrintPreviewDialog* popup = m_host->labels().preview().popup();
    QVERIFY(popup != nullptr);
    HostFixture::click(popup->findChild<QWidget*>(QStringLiteral("printButton")));
    QTRY_VERIFY(m_host->question() != nullptr);
    QTRY_COMPARE(QApplication::activeWindow(), static_cast<QWidget*>(m_host->question()));
    m_host->answer(QStringLiteral("Replace"));
    QTRY_COMPARE(pdfPages(m_host->outputPath()).size(), qsizetype(1));
}

void TestReplacing::fileThatAppearsMeanwhileIsKept()
{
    QVERIFY(QFile::remove(m_host->outputPath()));
    QVERIFY(m_host->choose(Printout::Labels));
    JobController& controller = m_host->labels().controller();
    QObject::connect(&controller, &JobController::jobStarted, this, [this](PrintJob* job) {
        connect(job, &PrintJob::progressChanged, this,
                [this] { ReplacingFixture::writeEarlier(m_host->outputPath()); });
    });
    QCOMPARE(m_host->print(Printout::Labels), HostFixture::Outcome::Failed);
    QCOMPARE(m_host->output(), earlier);
    QVERIFY2(m_host->shown.contains(QStringLiteral("exists by now and is kept")),
             qPrintable(m_host->shown));
    QCOMPARE(m_host->outputFiles(), QStringList{QStringLiteral("out.pdf")});
}

void TestReplacing::menuChoosesTheFile()
{
    QVERIFY(m_host->choose(Printout::Labels));
    const QString other = m_host->path("chosen.pdf");
    for (int time = 0; time < 2; ++time) {
        m_host->window->findChild<QAction*>(QStringLiteral("savePdfAction"))->trigger();
        QVERIFY(m_host->saveDialog() != nullptr);
        // The dialog would ask on its own and wait for the answer.
        m_host->saveDialog()->setOption(QFileDialog::DontConfirmOverwrite);
        m_host->saveAs(other);
        QVERIFY(m_host->question() == nullptr);
        QVERIFY(m_host->waitForJob());
        QCOMPARE(pdfPages(other).size(), qsizetype(8));
    }
    // What the dialog asked about stands for one job only.
    m_host->press(Printout::Labels);
    QVERIFY(m_host->question() != nullptr);
}

void TestReplacing::windowMayGoMeanwhile()
{
    m_host->press(Printout::Labels);
    QVERIFY(m_host->question() != nullptr);
    m_host->window->close();
    QCoreApplication::processEvents();
    m_host->window.reset();
    QCOMPARE(m_host->output(), earlier);

    ReplacingFixture other;
    other.press(Printout::Labels);
    other.answer(QStringLiteral("Save As..."));
    QVERIFY(other.saveDialog() != nullptr);
    other.window.reset();
    QCOMPARE(other.output(), earlier);
}

QTEST_MAIN(TestReplacing)

#include "tst_replacing.moc"
