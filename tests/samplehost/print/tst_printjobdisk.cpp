// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/print/printjob.h"
#include "samplehost/support/fulldisk.h"
#include "support/stricttest.h"

#include <QtCore/QDir>
#include <QtCore/QTemporaryDir>
#include <QtGui/QPainter>
#include <QtTest/QSignalSpy>

using namespace SampleHost;
using Outcome = PrintJob::Outcome;

/** A job on a disk that gets full. */
class TestPrintJobDisk : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void fullDiskIsExplained();
};

void TestPrintJobDisk::fullDiskIsExplained()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("labels.pdf"));
    PrintRequest request;
    request.customRecordsList = QStringLiteral("1-9999");
    const auto paint = [](QPainter& painter, const QRectF& area, int record, QString&) {
        painter.drawText(area, QString::number(record));
        return true;
    };
    PrintJob job(PagePlan::make(request, 9999), SheetGeometry(), paint,
                 std::make_unique<PdfTarget>(path));
    QSignalSpy finished(&job, &PrintJob::finished);
    {
        const FileSizeLimit limit(64 * 1024);
        QVERIFY(limit.isSet());
        job.start();
        QVERIFY(finished.wait(30000));
    }
    QCOMPARE(finished.at(0).at(0).value<Outcome>(), Outcome::Failed);
    const QString said = finished.at(0).at(1).toString();
    QVERIFY2(said.startsWith(QStringLiteral("The file \"%1\" cannot be written: ").arg(path)),
             qPrintable(said));
    QVERIFY2(!said.contains(QStringLiteral("Unknown")), qPrintable(said));
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList());
}

QTEST_MAIN(TestPrintJobDisk)

#include "tst_printjobdisk.moc"
