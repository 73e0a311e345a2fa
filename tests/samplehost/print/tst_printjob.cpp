// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/print/printjob.h"
#include "samplehost/support/pdfpages.h"
#include "support/stricttest.h"

#include <QtCore/QDir>
#include <QtCore/QTemporaryDir>
#include <QtTest/QSignalSpy>

using namespace SampleHost;
using Outcome = PrintJob::Outcome;

namespace {

bool paintNumber(QPainter& painter, const QRectF& area, int record, QString& problem)
{
    Q_UNUSED(problem)
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(int(area.height() / 4));
    painter.setFont(font);
    painter.drawText(area, Qt::AlignCenter, QStringLiteral("Record %1").arg(record));
    return true;
}

PagePlan planOf(const QString& list, NupLayout nup = {}, NupMode mode = NupMode::Replicating)
{
    PrintRequest request;
    request.customRecordsList = list;
    request.nup = nup;
    request.nupMode = mode;
    return PagePlan::make(request, 9999);
}

} // namespace

class TestPrintJob : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;
    void printsOneLabelAPage();
    void printsSheets();
    void reportsProgress();
    void cancelLeavesNothing();
    void cancelLeavesAnOlderFileAlone();
    void cancelFromProgressTakesEffect();
    void destructionLeavesNothing();
    void unwritablePathIsExplained_data();
    void unwritablePathIsExplained();
    void failingLabelFailsTheJob();
    void emptyPlanFails();
    void unknownPrinterIsExplained();
    void runsOnce();

private:
    std::unique_ptr<PrintJob> makeJob(const PagePlan& plan, LabelPainter painter = paintNumber,
                                      const SheetGeometry& sheet = {});
    QStringList filesLeft() const;

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_path;
};

void TestPrintJob::init()
{
    StrictTest::init();
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
    m_path = m_folder->filePath(QStringLiteral("labels.pdf"));
}

std::unique_ptr<PrintJob> TestPrintJob::makeJob(const PagePlan& plan, LabelPainter painter,
                                                const SheetGeometry& sheet)
{
    return std::make_unique<PrintJob>(plan, sheet, std::move(painter),
                                      std::make_unique<PdfTarget>(m_path));
}

QStringList TestPrintJob::filesLeft() const
{
    return QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden);
}

void TestPrintJob::printsOneLabelAPage()
{
    const auto job = makeJob(planOf(QStringLiteral("1,4-5")), paintNumber,
                             SheetGeometry(QSizeF(101.6, 76.2), NupLayout{}));
    QSignalSpy finished(job.get(), &PrintJob::finished);
    job->start();
    QVERIFY(job->isRunning());
    QVERIFY(finished.wait());

    QCOMPARE(finished.at(0).at(0).value<Outcome>(), Outcome::Completed);
    QCOMPARE(finished.at(0).at(1).toString(), QString());
    QVERIFY(!job->isRunning());
    QCOMPARE(pdfPageSize(m_path), QSizeF(288, 216));
    QCOMPARE(pdfPages(m_path), (QStringList{QStringLiteral("Record 1"), QStringLiteral("Record 4"),
                                            QStringLiteral("Record 5")}));
    QCOMPARE(filesLeft(), QStringList{QStringLiteral("labels.pdf")});
}

void TestPrintJob::printsSheets()
{
    const NupLayout layout{2, 2};
    const auto plan = planOf(QStringLiteral("1-5"), layout, NupMode::Sequencing);
    const auto job = makeJob(plan, paintNumber, SheetGeometry(QSizeF(100, 75), layout));
    QSignalSpy finished(job.get(), &PrintJob::finished);
    job->start();
    QVERIFY(finished.wait());

    const QSizeF points = pdfPageSize(m_path);
    QVERIFY(qAbs(points.width() - 213.0 / 25.4 * 72.0) < 1.0);
    QVERIFY(qAbs(points.height() - 163.0 / 25.4 * 72.0) < 1.0);
    QCOMPARE(pdfPages(m_path), (QStringList{QStringLiteral("Record 1 Record 2 Record 3 Record 4"),
                                            QStringLiteral("Record 5")}));
}

void TestPrintJob::reportsProgress()
{
    const auto job = makeJob(planOf(QStringLiteral("1-300")));
    QSignalSpy progress(job.get(), &PrintJob::progressChanged);
    QSignalSpy finished(job.get(), &PrintJob::finished);
    job->start();
    QVERIFY(finished.wait(30000));
    QVERIFY(progress.size() >= 1);
    qint64 before = 0;
    for (const QList<QVariant>& step : progress) {
        QVERIFY(step.at(0).toLongLong() > before);
        QCOMPARE(step.at(1).toLongLong(), qint64(300));
        before = step.at(0).toLongLong();
    }
    QCOMPARE(before, qint64(300));
}

void TestPrintJob::cancelLeavesNothing()
{
    const auto job = makeJob(planOf(QStringLiteral("1-9999")));
    QSignalSpy progress(job.get(), &PrintJob::progressChanged);
    QSignalSpy finished(job.get(), &PrintJob::finished);
    job->start();
    QVERIFY(progress.wait());
    QVERIFY(finished.isEmpty());
    QVERIFY(job->isRunning());
    QVERIFY(!QFile::exists(m_path));

    job->cancel();
    QCOMPARE(finished.size(), qsizetype(1));
    QCOMPARE(finished.at(0).at(0).value<Outcome>(), Outcome::Cancelled);
    QVERIFY(!job->isRunning());
    QCOMPARE(filesLeft(), QStringList());

    const qsizetype steps = progress.size();
    QTest::qWait(50);
    QCOMPARE(progress.size(), steps);
    job->cancel();
    QCOMPARE(finished.size(), qsizetype(1));
}

void TestPrintJob::cancelLeavesAnOlderFileAlone()
{
    QFile older(m_path);
    QVERIFY(older.open(QIODevice::WriteOnly));
    older.write("older");
    older.close();

    const auto job = makeJob(planOf(QStringLiteral("1-9999")));
    QSignalSpy progress(job.get(), &PrintJob::progressChanged);
    job->start();
    QVERIFY(progress.wait());
    job->cancel();
    QVERIFY(older.open(QIODevice::ReadOnly));
    QCOMPARE(older.readAll(), QByteArray("older"));
    QCOMPARE(filesLeft(), QStringList{QStringLiteral("labels.pdf")});
}

void TestPrintJob::cancelFromProgressTakesEffect()
{
    const auto job = makeJob(planOf(QStringLiteral("1")));
    QSignalSpy finished(job.get(), &PrintJob::finished);
    connect(job.get(), &PrintJob::progressChanged, job.get(), &PrintJob::cancel);
    job->start();
    QVERIFY(finished.wait());
    // Even at the last page there is nothing yet that could be taken for the document.
    QCOMPARE(finished.at(0).at(0).value<Outcome>(), Outcome::Cancelled);
    QCOMPARE(filesLeft(), QStringList());
}

void TestPrintJob::destructionLeavesNothing()
{
    auto job = makeJob(planOf(QStringLiteral("1-9999")));
    QSignalSpy progress(job.get(), &PrintJob::progressChanged);
    job->start();
    QVERIFY(progress.wait());
    job.reset();
    QCOMPARE(filesLeft(), QStringList());
}

void TestPrintJob::unwritablePathIsExplained_data()
{
    addColumns<QString, QString>("path", "message");

    addRow("no such folder", "missing/labels.pdf",
           "The folder \"%1/missing\" does not exist. Choose another folder.");
    addRow("a folder", "taken.pdf", "The file \"%1/taken.pdf\" cannot be written: ");
}

void TestPrintJob::unwritablePathIsExplained()
{
    QFETCH(QString, path);
    QFETCH(QString, message);
    QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("taken.pdf")));
    m_path = m_folder->filePath(path);

    const auto job = makeJob(planOf(QStringLiteral("1")));
    QSignalSpy finished(job.get(), &PrintJob::finished);
    job->start();
    QVERIFY(finished.wait());
    QCOMPARE(finished.at(0).at(0).value<Outcome>(), Outcome::Failed);
    const QString said = finished.at(0).at(1).toString();
    QVERIFY2(said.startsWith(QDir::toNativeSeparators(message.arg(m_folder->path()))),
             qPrintable(said));
    QVERIFY(said.endsWith(QLatin1Char('.')));
    QCOMPARE(filesLeft(), QStringList());
}

void TestPrintJob::failingLabelFailsTheJob()
{
    const auto job =
        makeJob(planOf(QStringLiteral("1-3")),
                [](QPainter& painter, const QRectF& area, int record, QString& problem) {
                    if (record == 2) {
                        problem = QStringLiteral("Record 2 cannot be read.");
                        return false;
                    }
                    return paintNumber(painter, area, record, problem);
                });
    QSignalSpy finished(job.get(), &PrintJob::finished);
    job->start();
    QVERIFY(finished.wait());
    QCOMPARE(finished.at(0).at(0).value<Outcome>(), Outcome::Failed);
    QCOMPARE(finished.at(0).at(1).toString(), QStringLiteral("Record 2 cannot be read."));
    QCOMPARE(filesLeft(), QStringList());
}

void TestPrintJob::emptyPlanFails()
{
    const auto job = makeJob(PagePlan());
    QSignalSpy finished(job.get(), &PrintJob::finished);
    job->start();
    QVERIFY(finished.wait());
    QCOMPARE(finished.at(0).at(0).value<Outcome>(), Outcome::Failed);
    QCOMPARE(finished.at(0).at(1).toString(), QStringLiteral("There is nothing to print."));

    PrintJob blank(planOf(QStringLiteral("1")), SheetGeometry(), nullptr, nullptr);
    QSignalSpy blankFinished(&blank, &PrintJob::finished);
    QCOMPARE(blank.targetDescription(), QString());
    blank.start();
    QVERIFY(blankFinished.wait());
    QCOMPARE(blankFinished.at(0).at(0).value<Outcome>(), Outcome::Failed);
    QCOMPARE(filesLeft(), QStringList());
}

void TestPrintJob::unknownPrinterIsExplained()
{
    PrintJob job(planOf(QStringLiteral("1")), SheetGeometry(), paintNumber,
                 std::make_unique<PrinterTarget>(QStringLiteral("No such printer")));
    QSignalSpy finished(&job, &PrintJob::finished);
    job.start();
    QVERIFY(finished.wait());
    QCOMPARE(finished.at(0).at(0).value<Outcome>(), Outcome::Failed);
    QCOMPARE(
        finished.at(0).at(1).toString(),
        QStringLiteral(
            "The printer \"No such printer\" is not known to the system. Choose another printer."));
}

void TestPrintJob::runsOnce()
{
    const auto job = makeJob(planOf(QStringLiteral("1")));
    QSignalSpy finished(job.get(), &PrintJob::finished);
    job->cancel();
    QVERIFY(finished.isEmpty());
    job->start();
    job->start();
    QVERIFY(finished.wait());
    job->start();
    QVERIFY(!job->isRunning());
    QTest::qWait(20);
    QCOMPARE(finished.size(), qsizetype(1));
}

QTEST_MAIN(TestPrintJob)

#include "tst_printjob.moc"
