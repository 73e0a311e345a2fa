// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/printing/labelpreview.h"
#include "samplehost/printing/printprogressdialog.h"
#include "samplehost/support/hostfixture.h"
#include "samplehost/support/hosttest.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QStatusBar>

#include <functional>

using namespace SampleHost;
using Outcome = PrintJob::Outcome;
using CloseDialog = std::function<void(PrintProgressDialog&)>;

Q_DECLARE_METATYPE(CloseDialog)

/** Drives the whole host by its widgets and looks at what it printed. */
class TestPrinting : public HostTest<HostFixture>
{
    Q_OBJECT

private Q_SLOTS:
    void printsTheTypedList();
    void printsCurrentRecord();
    void printsAllRecords();
    void printsCopies();
    void printsSheets_data();
    void printsSheets();
    void printsAnUnboundLabelOnce();
    void printsUserBackgroundOnlyIfChecked();
    void refusesListsThatNameNothing_data();
    void refusesListsThatNameNothing();
    void disablesButtonsWhilePrinting();
    void cancelLeavesNothing();
    void closingTheProgressCancels_data();
    void closingTheProgressCancels();
    void closingTheHostLeavesNothing();
    void unwritableFolderIsExplained();
    void unknownPrinterIsExplained();
    void printToFileIsHonoured();
    void menuPressesThePanelsButtons();
};

void TestPrinting::printsTheTypedList()
{
    m_host->typeList(QStringLiteral("1,4-5"));
    QCOMPARE(m_host->print(), Outcome::Completed);
    QCOMPARE(m_host->message, QStringLiteral("Printed 3 pages to %1")
                                  .arg(QDir::toNativeSeparators(m_host->outputPath())));
    QCOMPARE(m_host->window->statusBar()->currentMessage(), m_host->message);

    const QStringList names = m_host->productNames();
    const QStringList pages = pdfPages(m_host->outputPath());
    QCOMPARE(pages.size(), qsizetype(3));
    QVERIFY(pages.at(0).startsWith(names.at(0)));
    QVERIFY(pages.at(1).startsWith(names.at(3)));
    QVERIFY(pages.at(2).startsWith(names.at(4)));
    QCOMPARE(m_host->outputFiles(), QStringList{QStringLiteral("out.pdf")});
}

void TestPrinting::printsCurrentRecord()
{
    m_host->click("nextRecordButton");
    m_host->click("nextRecordButton");
    QCOMPARE(m_host->print(), Outcome::Completed);
    QCOMPARE(
        m_host->message,
        QStringLiteral("Printed 1 page to %1").arg(QDir::toNativeSeparators(m_host->outputPath())));
    const QStringList pages = pdfPages(m_host->outputPath());
    QCOMPARE(pages.size(), qsizetype(1));
    QVERIFY(pages.at(0).startsWith(m_host->productNames().at(2)));
}

void TestPrinting::printsAllRecords()
{
    m_host->click("allRecordsRadio");
    QCOMPARE(m_host->print(), Outcome::Completed);
    const QStringList names = m_host->productNames();
    const QStringList pages = pdfPages(m_host->outputPath());
    QVERIFY(names.size() >= 40);
    QCOMPARE(pages.size(), names.size());
    for (qsizetype i = 0; i < pages.size(); ++i) {
        QVERIFY2(pages.at(i).startsWith(names.at(i)), qPrintable(names.at(i)));
    }
}

void TestPrinting::printsCopies()
{
    m_host->typeList(QStringLiteral("2,1"));
    m_host->click("plusButton");
    QCOMPARE(m_host->panel().getNumberOfCopies(), 2);
    QCOMPARE(m_host->print(), Outcome::Completed);
    const QStringList names = m_host->productNames();
    const QStringList pages = pdfPages(m_host->outputPath());
    QCOMPARE(pages.size(), qsizetype(4));
    QVERIFY(pages.at(0).startsWith(names.at(1)));
    QVERIFY(pages.at(1).startsWith(names.at(1)));
    QVERIFY(pages.at(2).startsWith(names.at(0)));
    QVERIFY(pages.at(3).startsWith(names.at(0)));
}

void TestPrinting::printsSheets_data()
{
    addColumns<QString, int, QList<int>>("mode", "pageCount", "labelsOfRecord1");

    addRow("sequencing", "sequencingRadio", 2, QList<int>{1, 0});
    addRow("replicating", "replicatingRadio", 5, QList<int>{4, 0, 0, 0, 0});
}

void TestPrinting::printsSheets()
{
    QFETCH(QString, mode);
    QFETCH(int, pageCount);
    QFETCH(QList<int>, labelsOfRecord1);

    auto* sheets = m_host->find<QComboBox>("nupCombo");
    QTest::keyClick(sheets, Qt::Key_End);
    while (m_host->window->settings().nup().text() != QLatin1String("2x2")) {
        QVERIFY(sheets->currentIndex() > 0);
        QTest::keyClick(sheets, Qt::Key_Up);
    }
    m_host->typeList(QStringLiteral("1-5"));
    m_host->click(qPrintable(mode));
    QCOMPARE(m_host->print(), Outcome::Completed);

    const QStringList pages = pdfPages(m_host->outputPath());
    QCOMPARE(pages.size(), qsizetype(pageCount));
    const QString heading = m_host->productNames().at(0) + QStringLiteral(" CAS ");
    for (int page = 0; page < pageCount; ++page) {
        QCOMPARE(pages.at(page).count(heading), qsizetype(labelsOfRecord1.at(page)));
    }
}

void TestPrinting::printsAnUnboundLabelOnce()
{
    m_host->click("nextRecordButton");
    m_host->click("allRecordsRadio");
    m_host->click("boundCheck");
    QCOMPARE(m_host->find<QWidget>("recordsFrame")->isEnabled(), false);
    QCOMPARE(m_host->print(), Outcome::Completed);
    const QStringList pages = pdfPages(m_host->outputPath());
    QCOMPARE(pages.size(), qsizetype(1));
    QVERIFY(pages.at(0).startsWith(m_host->productNames().at(1)));
}

void TestPrinting::printsUserBackgroundOnlyIfChecked()
{
    const auto printedSize = [this] {
        return m_host->print() == Outcome::Completed ? QFileInfo(m_host->outputPath()).size() : 0;
    };
    auto* print = m_host->find<QCheckBox>("userBackgroundCheck");
    QVERIFY(!print->isVisible());
    const qint64 plain = printedSize();
    QVERIFY(plain > 0);

    m_host->click("backgroundCheck");
    QVERIFY(print->isVisible());
    QVERIFY(print->isChecked());
    QVERIFY(printedSize() > plain);

    m_host->click("userBackgroundCheck");
    QVERIFY(!print->isChecked());
    QCOMPARE(printedSize(), plain);

    // A layer that is gone is not printed, whatever was checked.
    m_host->click("userBackgroundCheck");
    m_host->click("backgroundCheck");
    QVERIFY(!print->isVisible());
    QCOMPARE(printedSize(), plain);
}

void TestPrinting::refusesListsThatNameNothing_data()
{
    addColumns<QString, QString>("list", "reason");

    addRow("unfinished", "1,",
           "The list \"1,\" cannot be read: a record number is missing beside a comma. Write "
           "numbers and ranges such as 1,4-5. Nothing is printed.");
    addRow("unfinished range", "2,5-",
           "The list \"2,5-\" cannot be read: \"5-\" is not a range of records. Write numbers and "
           "ranges such as 1,4-5. Nothing is printed.");
    addRow("reversed", "5-4",
           "The list \"5-4\" names none of the %1 records: \"5-4\" runs backwards. Write 4-5. "
           "Nothing is printed.");
    addRow("beyond the last", "9998-9999",
           "The list \"9998-9999\" names none of the %1 records: there is no record 9998. Write "
           "numbers from 1 to %1. Nothing is printed.");
}

void TestPrinting::refusesListsThatNameNothing()
{
    QFETCH(QString, list);
    QFETCH(QString, reason);
    if (reason.contains(QStringLiteral("%1"))) {
        reason = reason.arg(m_host->productNames().size());
    }
    QSignalSpy refused(&m_host->labels().controller(), &PrintController::refused);
    m_host->typeList(list);
    QVERIFY(!m_host->print().has_value());
    QCOMPARE(refused.size(), qsizetype(1));
    QCOMPARE(refused.at(0).at(0).toString(), reason);
    QVERIFY(m_host->messageBox() != nullptr);
    QCOMPARE(m_host->messageBox()->text(), reason);
    QCOMPARE(m_host->outputFiles(), QStringList());

    m_host->click("PreviewButton");
    QCOMPARE(refused.size(), qsizetype(2));
    QVERIFY(m_host->labels().preview().popup() == nullptr);
}

void TestPrinting::disablesButtonsWhilePrinting()
{
    QSignalSpy ended(&m_host->labels().controller(), &PrintController::jobEnded);
    auto* button = m_host->find<QPushButton>("PrintButton");
    m_host->click("PrintButton");
    QVERIFY(m_host->labels().controller().isPrinting());
    QVERIFY(!button->isEnabled());
    QVERIFY(ended.wait());
    QVERIFY(button->isEnabled());
    QVERIFY(!m_host->labels().controller().isPrinting());
}

void TestPrinting::cancelLeavesNothing()
{
    m_host->click("allRecordsRadio");
    m_host->panel().setNumberOfCopies(999);
    QSignalSpy ended(&m_host->labels().controller(), &PrintController::jobEnded);
    m_host->click("PrintButton");
    auto* dialog = m_host->window->findChild<PrintProgressDialog*>();
    QVERIFY(dialog != nullptr);
    QVERIFY(!dialog->isVisible());
    QTRY_VERIFY(dialog->isVisible());
    QVERIFY(ended.isEmpty());
    QTest::mouseClick(dialog->findChild<QWidget*>(QStringLiteral("cancelPrintButton")),
                      Qt::LeftButton);
    QCOMPARE(ended.size(), qsizetype(1));
    QCOMPARE(ended.at(0).at(0).value<Outcome>(), Outcome::Cancelled);
    QCOMPARE(ended.at(0).at(1).toString(), QStringLiteral("Printing was cancelled."));
    QCOMPARE(m_host->outputFiles(), QStringList());
    QTRY_VERIFY(m_host->window->findChild<PrintProgressDialog*>() == nullptr);
    QVERIFY(m_host->find<QWidget>("PrintButton")->isEnabled());
}

void TestPrinting::closingTheProgressCancels_data()
{
    QTest::addColumn<CloseDialog>("close");
    QTest::newRow("close") << CloseDialog([](PrintProgressDialog& dialog) { dialog.close(); });
    QTest::newRow("reject") << CloseDialog([](PrintProgressDialog& dialog) { dialog.reject(); });
    // The shortcuts of an inactive window do nothing.
    for (const bool active : {false, true}) {
        QTest::newRow(active ? "Escape" : "Escape, inactive")
            << CloseDialog([active](PrintProgressDialog& dialog) {
                   QApplication::setActiveWindow(active ? &dialog : nullptr);
                   QTest::keyClick(&dialog, Qt::Key_Escape);
               });
    }
}

void TestPrinting::closingTheProgressCancels()
{
    QFETCH(CloseDialog, close);
    m_host->click("allRecordsRadio");
    m_host->panel().setNumberOfCopies(999);
    QSignalSpy ended(&m_host->labels().controller(), &PrintController::jobEnded);
    m_host->click("PrintButton");
    const QPointer<PrintProgressDialog> dialog = m_host->window->findChild<PrintProgressDialog*>();
    QVERIFY(dialog != nullptr);
    QTRY_VERIFY(dialog->isVisible());
    close(*dialog);
    QCOMPARE(ended.size(), qsizetype(1));
    QCOMPARE(ended.at(0).at(0).value<Outcome>(), Outcome::Cancelled);
    QVERIFY(!dialog->isVisible());
    QTRY_VERIFY(dialog.isNull());
}

void TestPrinting::closingTheHostLeavesNothing()
{
    m_host->click("allRecordsRadio");
    m_host->panel().setNumberOfCopies(999);
    m_host->click("PrintButton");
    QSignalSpy progress(m_host->labels().controller().job(), &PrintJob::progressChanged);
    QVERIFY(progress.wait());
    m_host->window.reset();
    QCOMPARE(m_host->outputFiles(), QStringList());
}

void TestPrinting::unwritableFolderIsExplained()
{
    const QString missing = m_host->folder.filePath(QStringLiteral("missing"));
    m_host->window->settings().setOutputFolder(missing);
    QCOMPARE(m_host->print(), Outcome::Failed);
    QCOMPARE(m_host->message,
             QStringLiteral("The folder \"%1\" does not exist. Choose another folder.")
                 .arg(QDir::toNativeSeparators(missing)));
    QVERIFY(m_host->messageBox() != nullptr);
    QCOMPARE(m_host->messageBox()->text(), m_host->message);
    QVERIFY(m_host->find<QWidget>("PrintButton")->isEnabled());
}

void TestPrinting::unknownPrinterIsExplained()
{
    // A printer that the system had when the panel was filled, and has no more.
    m_host->panel().addPrinterToList(QStringLiteral("Gone"), false);
    auto* printers = m_host->find<QComboBox>("PrinterListCombo");
    QTest::keyClick(printers, Qt::Key_End);
    QCOMPARE(m_host->panel().getSelectedPrinter(), QStringLiteral("Gone"));
    QCOMPARE(m_host->find<QLabel>("statusLabel")->text(), QStringLiteral("Offline, Unavailable"));
    QCOMPARE(m_host->print(), Outcome::Failed);
    QCOMPARE(
        m_host->message,
        QStringLiteral("The printer \"Gone\" is not known to the system. Choose another printer."));
}

void TestPrinting::printToFileIsHonoured()
{
    m_host = std::make_unique<HostFixture>(true);
    m_host->click("printToFileCheck");
    m_host->typeList(QStringLiteral("3"));
    QCOMPARE(m_host->print(), Outcome::Completed);
    const QString first = m_host->folder.filePath(QStringLiteral("guest/logs/printTest_001.prn"));
    QCOMPARE(pdfPages(first).size(), qsizetype(1));
    QVERIFY(pdfPages(first).at(0).startsWith(m_host->productNames().at(2)));
    QVERIFY(!QFile::exists(m_host->outputPath()));

    QCOMPARE(m_host->print(), Outcome::Completed);
    QVERIFY(QFile::exists(m_host->folder.filePath(QStringLiteral("guest/logs/printTest_002.prn"))));

    m_host->click("printToFileCheck");
    QCOMPARE(m_host->print(), Outcome::Completed);
    QVERIFY(QFile::exists(m_host->outputPath()));
}

void TestPrinting::menuPressesThePanelsButtons()
{
    QSignalSpy requests(&m_host->panel(), &PrintWidget::widgetPrintSignal);
    QSignalSpy ended(&m_host->labels().controller(), &PrintController::jobEnded);
    m_host->window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_host->window.get()));
    QTest::keyClick(m_host->window.get(), Qt::Key_P, Qt::ControlModifier);
    QCOMPARE(requests.size(), qsizetype(1));
    QVERIFY(ended.wait());
}

QTEST_MAIN(TestPrinting)

#include "tst_printing.moc"
