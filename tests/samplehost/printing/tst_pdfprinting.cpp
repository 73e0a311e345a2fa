// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/printing/printprogressdialog.h"
#include "samplehost/support/documentfixture.h"
#include "samplehost/support/hosttest.h"

#include <QtCore/QPointer>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QStatusBar>

using namespace SampleHost;
using Outcome = PrintJob::Outcome;

/** Prints documents by the widgets of "Preview and Print" and looks at what comes out. */
class TestPdfPrinting : public HostTest<DocumentFixture>
{
    Q_OBJECT

private Q_SLOTS:
    void printsTypedLists_data();
    void printsTypedLists();
    void refusesListsThatNameNothing_data();
    void refusesListsThatNameNothing();
    void printsTheCurrentPage_data();
    void printsTheCurrentPage();
    void printsAllPages_data();
    void printsAllPages();
    void printsCopies();
    void emptyListPrintsTheCurrentPage();
    void rotationTurnsThePage();
    void fitFillsThePaper();
    void formFillPrintsWhatIsFilled();
    void disablesThePrintButtonWhilePrinting();
    void cancelInTheMiddleLeavesNothing();
    void progressIsShownAndCancelledByTheUser();
    void closingTheHostLeavesNothing();
    void jobsOutliveTheirDocument();
    void documentIsNotOverwritten();
    void unwritableFolderIsExplained();

private:
    /** Opens a document of 300 pages, all of which are to be printed. */
    void chooseLongJob(int copies);
};

void TestPdfPrinting::printsTypedLists_data()
{
    addColumns<int, QString, QString>("pages", "list", "printed");

    addRow("1 page", 1, "1", "1");
    addRow("1 page twice", 1, "1,1", "1 1");
    addRow("12 pages", 12, "5-9,2", "5 6 7 8 9 2");
    addRow("12 pages, beyond the last", 12, "11-20,40,3", "11 12 3");
    addRow("12 pages, reversed range", 12, "4,9-7,6", "4 6");
    addRow("300 pages", 300, "299-300,150,1-2,150", "299 300 150 1 2 150");
}

void TestPdfPrinting::printsTypedLists()
{
    QFETCH(int, pages);
    QFETCH(QString, list);
    QVERIFY(m_host->openNumbered(pages));
    QVERIFY(m_host->showDialog());
    m_host->typePages(list);
    QCOMPARE(m_host->print(), Outcome::Completed);
    QTEST(m_host->printedPages(), "printed");
    const qsizetype count = PdfOutput::texts(m_host->outputPath()).size();
    QCOMPARE(m_host->message,
             count == 1
                 ? QStringLiteral("Printed 1 page to %1").arg(m_host->outputPath())
                 : QStringLiteral("Printed %1 pages to %2").arg(count).arg(m_host->outputPath()));
    QCOMPARE(m_host->window->statusBar()->currentMessage(), m_host->message);
    QCOMPARE(m_host->outputFiles(),
             (QStringList{QStringLiteral("in.pdf"), QStringLiteral("out.pdf")}));
}

void TestPdfPrinting::refusesListsThatNameNothing_data()
{
    addColumns<QString, QString>("list", "reason");

    addRow("reversed", "5-2",
           "The list \"5-2\" names none of the 12 pages: \"5-2\" runs backwards. Write 2-5. "
           "Nothing is printed.");
    addRow("unfinished", "4-",
           "The list \"4-\" cannot be read: \"4-\" is not a range of pages. Write numbers and "
           "ranges such as 1,4-5. Nothing is printed.");
}

void TestPdfPrinting::refusesListsThatNameNothing()
{
    QFETCH(QString, list);
    QVERIFY(m_host->openNumbered(12));
    QVERIFY(m_host->showDialog());
    m_host->typePages(list);
    QCOMPARE(m_host->print(), std::nullopt);
    QTEST(m_host->shownMessage(), "reason");
    QCOMPARE(m_host->outputFiles(), QStringList{QStringLiteral("in.pdf")});
    QVERIFY(m_host->widget("PrintButton")->isEnabled());
}

void TestPdfPrinting::printsTheCurrentPage_data()
{
    addColumns<int, int>("pages", "current");
    addRow("1 page", 1, 1);
    addRow("12 pages", 12, 8);
    addRow("300 pages", 300, 300);
}

void TestPdfPrinting::printsTheCurrentPage()
{
    QFETCH(int, pages);
    QFETCH(int, current);
    QVERIFY(m_host->openNumbered(pages));
    m_host->navigator().setCurrentIndex(current - 1);
    QVERIFY(m_host->showDialog());
    QCOMPARE(m_host->print(), Outcome::Completed);
    QCOMPARE(m_host->printedPages(), QString::number(current));
    const QSizeF size = PdfOutput::pageSize(m_host->outputPath());
    QVERIFY(qAbs(size.width() - PdfSamples::numberedSize(current - 1).width()) < 1);
    QVERIFY(qAbs(size.height() - PdfSamples::numberedSize(current - 1).height()) < 1);
}

void TestPdfPrinting::printsAllPages_data()
{
    QTest::addColumn<int>("pages");
    addRow("1 page", 1);
    addRow("12 pages", 12);
    addRow("300 pages", 300);
}

void TestPdfPrinting::printsAllPages()
{
    QFETCH(int, pages);
    QVERIFY(m_host->openNumbered(pages));
    QVERIFY(m_host->showDialog());
    m_host->press("allPagesRadio");
    QCOMPARE(m_host->print(), Outcome::Completed);
    QStringList numbers;
    for (int number = 1; number <= pages; ++number) {
        numbers.append(QString::number(number));
    }
    QCOMPARE(m_host->printedPages(), numbers.join(QLatin1Char(' ')));
}

void TestPdfPrinting::printsCopies()
{
    QVERIFY(m_host->openNumbered(12));
    QVERIFY(m_host->showDialog());
    m_host->typePages(QStringLiteral("3,1-2"));
    m_host->press("plusButton");
    m_host->press("plusButton");
    m_host->press("minusButton");
    QCOMPARE(m_host->print(), Outcome::Completed);
    QCOMPARE(m_host->printedPages(), QStringLiteral("3 1 2 3 1 2"));
}

void TestPdfPrinting::emptyListPrintsTheCurrentPage()
{
    QVERIFY(m_host->openNumbered(12));
    m_host->navigator().setCurrentIndex(3);
    QVERIFY(m_host->showDialog());
    m_host->press("selectionRadio");
    QCOMPARE(m_host->print(), Outcome::Completed);
    QCOMPARE(m_host->printedPages(), QStringLiteral("4"));
}

void TestPdfPrinting::rotationTurnsThePage()
{
    const PdfSamples::Page page{QSizeF(400, 600), PdfSamples::words("Corner", 20, 560), {}};
    QVERIFY(m_host->openBytes(PdfSamples::pages({page})));
    QVERIFY(m_host->showDialog());
    QCOMPARE(m_host->print(), Outcome::Completed);
    const QRectF upright = PdfOutput::ink(m_host->outputPath());
    QVERIFY(upright.right() < 200);
    QVERIFY(upright.bottom() < 100);
    m_host->press("orientationCheck");
    QCOMPARE(m_host->print(), Outcome::Completed);
    const QRectF turned = PdfOutput::ink(m_host->outputPath());
    const QRectF expected(400 - upright.right(), 600 - upright.bottom(), upright.width(),
                          upright.height());
    QVERIFY2(PdfOutput::agree(turned, expected), PdfOutput::described(turned).constData());
}

void TestPdfPrinting::fitFillsThePaper()
{
    // A quarter of the height and half of the width of the paper.
    const PdfSamples::Page page{QSizeF(306, 198), "0 0 306 198 re f", {}};
    m_host->window->settings().setPaper(Paper::Letter);
    QVERIFY(m_host->openBytes(PdfSamples::pages({page})));
    QVERIFY(m_host->showDialog());
    m_host->press("fitToPageCheck");
    QCOMPARE(m_host->print(), Outcome::Completed);
    const QSizeF sheet = PdfOutput::pageSize(m_host->outputPath());
    QVERIFY(sheet.width() > 780 && sheet.height() > 600);
    const QRectF plain = PdfOutput::ink(m_host->outputPath());
    QVERIFY2(qAbs(plain.width() - 306) < 1 && qAbs(plain.height() - 198) < 1,
             PdfOutput::described(plain).constData());
    m_host->press("fitToPageCheck");
    QCOMPARE(m_host->print(), Outcome::Completed);
    const QRectF fitted = PdfOutput::ink(m_host->outputPath());
    QVERIFY2(qAbs(fitted.width() - sheet.width()) < 2, PdfOutput::described(fitted).constData());
    QVERIFY(qAbs(fitted.width() / fitted.height() - 306.0 / 198.0) < 0.02);
}

void TestPdfPrinting::formFillPrintsWhatIsFilled()
{
    QVERIFY(m_host->openBytes(PdfSamples::form()));
    QVERIFY(m_host->showDialog());
    m_host->press("allPagesRadio");
    QCOMPARE(m_host->print(), Outcome::Completed);
    const QStringList whole = PdfOutput::texts(m_host->outputPath());
    QCOMPARE(whole.size(), qsizetype(3));
    QVERIFY2(whole.at(0).contains(QStringLiteral("Alice filled")), qPrintable(whole.at(0)));
    QVERIFY(!whole.at(1).isEmpty());
    m_host->press("formFillCheck");
    QCOMPARE(m_host->print(), Outcome::Completed);
    const QStringList filled = PdfOutput::texts(m_host->outputPath());
    QCOMPARE(filled.size(), qsizetype(3));
    QVERIFY2(filled.at(0).contains(QStringLiteral("Alice filled")), qPrintable(filled.at(0)));
    QVERIFY(filled.at(0).size() < whole.at(0).size());
    QCOMPARE(filled.at(1), QString());
    QCOMPARE(filled.at(2), QStringLiteral("Third filled"));
}

void TestPdfPrinting::chooseLongJob(int copies)
{
    // With copies several seconds of work, longer than a test takes to press the buttons.
    QVERIFY(m_host->openNumbered(copies > 1 ? 1500 : 300));
    QVERIFY(m_host->showDialog());
    m_host->press("allPagesRadio");
    m_host->documentPanel().setNumberOfCopies(copies);
}

void TestPdfPrinting::disablesThePrintButtonWhilePrinting()
{
    chooseLongJob(999);
    QSignalSpy ended(&m_host->page().controller(), &PdfPrintController::jobEnded);
    m_host->press("PrintButton");
    PrintJob* job = m_host->page().controller().job();
    QVERIFY(job != nullptr);
    QVERIFY(!m_host->widget("PrintButton")->isEnabled());
    // Another choice of pages must not enable it, and another request is not heard.
    m_host->press("lastRecordButton");
    m_host->press("currentPageRadio");
    QVERIFY(!m_host->widget("PrintButton")->isEnabled());
    m_host->documentPanel().printSlot();
    QCOMPARE(m_host->page().controller().job(), job);
    QVERIFY(ended.isEmpty());
    job->cancel();
    QCOMPARE(ended.size(), qsizetype(1));
    QVERIFY(m_host->widget("PrintButton")->isEnabled());
}

void TestPdfPrinting::cancelInTheMiddleLeavesNothing()
{
    chooseLongJob(1);
    QSignalSpy ended(&m_host->page().controller(), &PdfPrintController::jobEnded);
    m_host->press("PrintButton");
    auto* button = m_host->window->findChild<QAbstractButton*>(QStringLiteral("cancelPrintButton"));
    QVERIFY(button != nullptr);
    connect(m_host->page().controller().job(), &PrintJob::progressChanged, button,
            &QAbstractButton::click);
    QVERIFY(ended.wait(60000));
    QCOMPARE(ended.size(), qsizetype(1));
    QCOMPARE(ended.at(0).at(0).value<Outcome>(), Outcome::Cancelled);
    QCOMPARE(m_host->outputFiles(), QStringList{QStringLiteral("in.pdf")});
    QVERIFY(m_host->widget("PrintButton")->isEnabled());
}

void TestPdfPrinting::progressIsShownAndCancelledByTheUser()
{
    chooseLongJob(999);
    QSignalSpy ended(&m_host->page().controller(), &PdfPrintController::jobEnded);
    m_host->press("PrintButton");
    const QPointer<PrintProgressDialog> dialog = m_host->window->findChild<PrintProgressDialog*>();
    QVERIFY(dialog != nullptr);
    QCOMPARE(dialog->parentWidget(), &m_host->dialog());
    QTRY_VERIFY(dialog.isNull() || dialog->isVisible());
    QVERIFY(ended.isEmpty());
    QTest::mouseClick(dialog->findChild<QWidget*>(QStringLiteral("cancelPrintButton")),
                      Qt::LeftButton);
    QCOMPARE(ended.size(), qsizetype(1));
    QCOMPARE(ended.at(0).at(0).value<Outcome>(), Outcome::Cancelled);
    QCOMPARE(ended.at(0).at(1).toString(), QStringLiteral("Printing was cancelled."));
    QCOMPARE(m_host->outputFiles(), QStringList{QStringLiteral("in.pdf")});
    QTRY_VERIFY(dialog.isNull());
    QVERIFY(m_host->widget("PrintButton")->isEnabled());
    QVERIFY(m_host->dialog().isVisible());
}

void TestPdfPrinting::closingTheHostLeavesNothing()
{
    chooseLongJob(999);
    m_host->press("PrintButton");
    QSignalSpy progress(m_host->page().controller().job(), &PrintJob::progressChanged);
    QVERIFY(progress.wait());
    m_host->window.reset();
    QCOMPARE(m_host->outputFiles(), QStringList{QStringLiteral("in.pdf")});
}

void TestPdfPrinting::jobsOutliveTheirDocument()
{
    chooseLongJob(1);
    QSignalSpy ended(&m_host->page().controller(), &PdfPrintController::jobEnded);
    m_host->press("PrintButton");
    QVERIFY(m_host->openNumbered(2, "other.pdf"));
    QVERIFY(!m_host->widget("PrintButton")->isEnabled());
    QVERIFY(ended.wait(60000));
    QCOMPARE(ended.at(0).at(0).value<Outcome>(), Outcome::Completed);
    QVERIFY(m_host->widget("PrintButton")->isEnabled());
    QCOMPARE(PdfOutput::texts(m_host->outputPath()).size(), qsizetype(300));
}

void TestPdfPrinting::documentIsNotOverwritten()
{
    QVERIFY(m_host->openNumbered(12));
    m_host->window->settings().setOutputPath(m_host->path("in.pdf"));
    QVERIFY(m_host->showDialog());
    QCOMPARE(m_host->print(), Outcome::Failed);
    QVERIFY(m_host->shownMessage().startsWith(
        QStringLiteral("Printing to \"%1\" would replace the document itself.")
            .arg(m_host->path("in.pdf"))));
    QCOMPARE(PdfOutput::texts(m_host->path("in.pdf")).size(), qsizetype(12));
    QVERIFY(m_host->widget("PrintButton")->isEnabled());
}

void TestPdfPrinting::unwritableFolderIsExplained()
{
    QVERIFY(m_host->openNumbered(12));
    m_host->window->settings().setOutputPath(m_host->path("missing/out.pdf"));
    QVERIFY(m_host->showDialog());
    QCOMPARE(m_host->print(), Outcome::Failed);
    QCOMPARE(m_host->shownMessage(),
             QStringLiteral("The folder \"%1\" does not exist. Choose another folder.")
                 .arg(m_host->path("missing")));
}

QTEST_MAIN(TestPdfPrinting)

#include "tst_pdfprinting.moc"
