// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "cups/cupsfixture.h"
#include "cups/cupstest.h"
#include "samplehost/printing/printprogressdialog.h"

#include <QtCore/QDir>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>

using namespace SampleHost;
using Outcome = PrintJob::Outcome;

/** Prints labels to a queue by the host's widgets and looks at what the queue put out. */
class TestCupsPrinting : public CupsTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init() override;
    void cleanup() override;
    void theQueueIsFound();
    void printsRecords_data();
    void printsRecords();
    void printsSheets_data();
    void printsSheets();
    void cancelLeavesNothing();
    void closingTheHostLeavesNothing();
    void programPrintsToTheQueue();
    void programExplainsAMissingQueue();

private:
    /** The records, counted from 1, on the pages of the only file that the queue put out. */
    QString recordsPrinted();

    /** Runs the program; its exit code, or -1. What it said is in m_out and m_error. */
    int runProgram(const QStringList& arguments);

    /** Starts a job that is far from its end when some of its pages are painted. */
    void printHalfOfAJob();
    /** What a job may leave: in the queue, in its output and among the temporary files. */
    QStringList traces();

    QTemporaryDir m_temporary;
    std::unique_ptr<CupsFixture> m_host;
    QString m_out;
    QString m_error;
    QStringList m_names;
    QList<QImage> m_models;
};

// Every record on a page, as the host itself writes it to a PDF file, where the texts can be read.
void TestCupsPrinting::initTestCase()
{
    CupsTest::initTestCase();
    if (QTest::currentTestFailed() || !server().isRunning()) {
        return;
    }
    // Others leave their files in the system's folder of temporary files.
    QVERIFY(m_temporary.isValid());
    qputenv("TMPDIR", QFile::encodeName(m_temporary.path()));
    CupsFixture host;
    QVERIFY(host.choosePdfFile());
    host.click("allRecordsRadio");
    QCOMPARE(host.print(), Outcome::Completed);
    m_names = host.productNames();
    const QStringList texts = pdfPages(host.outputPath());
    QCOMPARE(texts.size(), m_names.size());
    for (qsizetype i = 0; i < texts.size(); ++i) {
        QVERIFY2(texts.at(i).startsWith(m_names.at(i)), qPrintable(m_names.at(i)));
    }
    m_models = PagePictures::of(host.outputPath());
    QCOMPARE(m_models.size(), m_names.size());
}

void TestCupsPrinting::init()
{
    CupsTest::init();
    server().clearOutputs();
    m_host = std::make_unique<CupsFixture>();
    QVERIFY(m_host->choosePrinter(queueName()));
}

void TestCupsPrinting::cleanup()
{
    m_host.reset();
}

QString TestCupsPrinting::recordsPrinted()
{
    if (!server().waitForJobs()) {
        return QStringLiteral("The jobs do not end: ") + QString::fromLocal8Bit(server().log());
    }
    const QStringList files = server().outputs();
    if (files.size() != 1) {
        return QStringLiteral("Printed %1 files: ").arg(files.size()) +
               QString::fromLocal8Bit(server().log());
    }
    QList<QImage> models = m_models;
    models.prepend(QImage());
    return PagePictures::recognised(PagePictures::of(files.at(0)), models);
}

void TestCupsPrinting::theQueueIsFound()
{
    QCOMPARE(m_host->offeredPrinters(), (QStringList{QStringLiteral("PDF file"), queueName()}));
    QCOMPARE(m_host->shownLocation(), QStringLiteral("Hall 3, left"));
    QCOMPARE(m_host->shownStatus(), QStringLiteral("Online"));
}

void TestCupsPrinting::printsRecords_data()
{
    addColumns<QString, int, QString>("choice", "copies", "records");

    addRow("current", "current", 1, "3");
    addRow("list", "1,4-5", 1, "1 4 5");
    addRow("typed order", "7,2-3,7", 1, "7 2 3 7");
    addRow("copies", "2,1", 3, "2 2 2 1 1 1");
    addRow("copies of current", "current", 2, "3 3");
    addRow("all", "all", 1, "all");
}

void TestCupsPrinting::printsRecords()
{
    QFETCH(QString, choice);
    QFETCH(int, copies);
    QFETCH(QString, records);

    m_host->click("nextRecordButton");
    m_host->click("nextRecordButton");
    if (choice == QLatin1String("current")) {
        m_host->click("currentRecordRadio");
    } else if (choice == QLatin1String("all")) {
        m_host->click("allRecordsRadio");
        QStringList all;
        for (qsizetype i = 1; i <= m_names.size(); ++i) {
            all.append(QString::number(i));
        }
        records = all.join(QLatin1Char(' '));
    } else {
        m_host->typeList(choice);
    }
    for (int copy = 1; copy < copies; ++copy) {
        m_host->click("plusButton");
    }
    QCOMPARE(m_host->print(), Outcome::Completed);
    const qsizetype pages = records.count(QLatin1Char(' ')) + 1;
    QCOMPARE(m_host->message, QStringLiteral("Printed %1 to printer \"Hall\"")
                                  .arg(pages == 1 ? QStringLiteral("1 page")
                                                  : QStringLiteral("%1 pages").arg(pages)));
    QCOMPARE(recordsPrinted(), records);
    QCOMPARE(m_host->outputFiles(), QStringList());
}

void TestCupsPrinting::printsSheets_data()
{
    addColumns<QString, QString>("mode", "printed");

    addRow("sequencing", "sequencingRadio", "0 1");
    addRow("replicating", "replicatingRadio", "0 1 2 3 4");
}

// The models are the sheets of the same request in a PDF file.
void TestCupsPrinting::printsSheets()
{
    QFETCH(QString, mode);
    QFETCH(QString, printed);

    m_host->window->settings().setNup(NupLayout{2, 2});
    m_host->typeList(QStringLiteral("1-5"));
    m_host->click(qPrintable(mode));
    QVERIFY(m_host->choosePdfFile());
    QCOMPARE(m_host->print(), Outcome::Completed);
    const QList<QImage> models = PagePictures::of(m_host->outputPath());
    QVERIFY(m_host->choosePrinter(queueName()));
    QCOMPARE(m_host->print(), Outcome::Completed);
    QVERIFY(server().waitForJobs());
    QCOMPARE(server().outputs().size(), qsizetype(1));
    QCOMPARE(PagePictures::recognised(PagePictures::of(server().outputs().at(0)), models), printed);
}

QStringList TestCupsPrinting::traces()
{
    const auto all = QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot;
    return server().jobs() + server().endedJobs() + server().outputs() +
           QDir::temp().entryList(all);
}

void TestCupsPrinting::printHalfOfAJob()
{
    m_host->click("allRecordsRadio");
    m_host->panel().setNumberOfCopies(999);
    m_host->click("PrintButton");
    PrintJob* job = m_host->labels().controller().job();
    QVERIFY(job != nullptr);
    QSignalSpy progress(job, &PrintJob::progressChanged);
    QVERIFY(progress.wait());
}

void TestCupsPrinting::cancelLeavesNothing()
{
    const QStringList before = traces();
    QSignalSpy jobEnded(&m_host->labels().controller(), &PrintController::jobEnded);
    printHalfOfAJob();
    auto* dialog = m_host->window->findChild<PrintProgressDialog*>();
    QVERIFY(dialog != nullptr);
    QTRY_VERIFY(dialog->isVisible());
    QVERIFY(jobEnded.isEmpty());
    QVERIFY(traces() != before);
    QTest::mouseClick(dialog->findChild<QWidget*>(QStringLiteral("cancelPrintButton")),
                      Qt::LeftButton);
    QCOMPARE(jobEnded.size(), qsizetype(1));
    QCOMPARE(jobEnded.at(0).at(0).value<Outcome>(), Outcome::Cancelled);
    QCOMPARE(jobEnded.at(0).at(1).toString(), QStringLiteral("Printing was cancelled."));
    QCOMPARE(traces(), before);
}

void TestCupsPrinting::closingTheHostLeavesNothing()
{
    const QStringList before = traces();
    printHalfOfAJob();
    QVERIFY(traces() != before);
    m_host->window.reset();
    QCOMPARE(traces(), before);
}

int TestCupsPrinting::runProgram(const QStringList& arguments)
{
    QProcess process;
    process.start(QStringLiteral(SAMPLEHOST_PROGRAM),
                  QStringList{QStringLiteral("--database"),
                              m_host->folder.filePath(QStringLiteral("chemicals.db"))} +
                      arguments);
    const bool ended = process.waitForFinished(60000);
    m_out = QString::fromLocal8Bit(process.readAllStandardOutput());
    m_error = QString::fromLocal8Bit(process.readAllStandardError());
    return ended && process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
}

void TestCupsPrinting::programPrintsToTheQueue()
{
    QCOMPARE(
        runProgram({QStringLiteral("--print"), QStringLiteral("1,4-5"), QStringLiteral("--copies"),
                    QStringLiteral("2"), QStringLiteral("--printer"), queueName()}),
        0);
    QCOMPARE(m_error, QString());
    QCOMPARE(m_out, QStringLiteral("Printed 6 pages to printer \"Hall\"\n"));
    QCOMPARE(recordsPrinted(), QStringLiteral("1 1 4 4 5 5"));
}

void TestCupsPrinting::programExplainsAMissingQueue()
{
    QCOMPARE(runProgram({QStringLiteral("--print"), QStringLiteral("1"),
                         QStringLiteral("--printer"), QStringLiteral("Ramp")}),
             1);
    QCOMPARE(m_error,
             QStringLiteral("There is no printer \"Ramp\". Choose one that the panel lists.\n"));
    QCOMPARE(m_out, QString());
    QCOMPARE(server().outputs(), QStringList());
}

QTEST_MAIN(TestCupsPrinting)

#include "tst_cupsprinting.moc"
