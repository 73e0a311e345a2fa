// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "cups/cupstest.h"
#include "cups/pagepictures.h"
#include "samplehost/print/printqueue.h"
#include "samplehost/support/pdfsamples.h"

#include <QtCore/QDir>
#include <QtCore/QFile>

using namespace SampleHost;

/** Submits a file to a queue as the engine does, with the options that the user has saved. */
class TestCupsSubmission : public CupsTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void savedOptionsApply_data();
    void savedOptionsApply();
    void rejectionHasTheServersReason();

private:
    QString path(const char* name) const { return m_folder.filePath(QString::fromLatin1(name)); }
    static bool write(const QString& path, const QByteArray& content);

    QTemporaryDir m_folder;
};

bool TestCupsSubmission::write(const QString& path, const QByteArray& content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

void TestCupsSubmission::initTestCase()
{
    QVERIFY(m_folder.isValid() && QDir(m_folder.path()).mkdir(QStringLiteral(".cups")));
    QVERIFY(write(path("job"), PdfSamples::pages(QList<PdfSamples::Page>(4))));
    qputenv("HOME", QFile::encodeName(m_folder.path()));
    CupsTest::initTestCase();
    // Adding the queue has removed its saved options.
    QVERIFY(write(path(".cups/lpoptions"), "Dest Hall number-up=2\nDest Hall/four number-up=4\n"));
}

void TestCupsSubmission::init()
{
    CupsTest::init();
    server().clearOutputs();
    QVERIFY(server().accept(queueName()));
}

void TestCupsSubmission::savedOptionsApply_data()
{
    addColumns<QString, qsizetype>("printer", "sheets");

    addRow("queue", queueName(), qsizetype(2));
    addRow("instance", queueName() + QStringLiteral("/four"), qsizetype(1));
    addRow("instance without options", queueName() + QStringLiteral("/other"), qsizetype(4));
}

void TestCupsSubmission::savedOptionsApply()
{
    QFETCH(QString, printer);
    QFETCH(qsizetype, sheets);

    const PrintQueue queue(printer);
    QVERIFY(!queue.refusesJobs());
    QString problem;
    QVERIFY2(queue.submit(path("job"), QStringLiteral("Labels"), QStringLiteral("A4"), problem),
             qPrintable(problem));
    QVERIFY(server().waitForJobs());
    const QStringList files = server().outputs();
    QCOMPARE(files.size(), qsizetype(1));
    QVERIFY2(files.at(0).endsWith(QLatin1String("-Labels.pdf")), qPrintable(files.at(0)));
    QCOMPARE(PagePictures::of(files.at(0)).size(), sheets);
}

void TestCupsSubmission::rejectionHasTheServersReason()
{
    const PrintQueue queue(queueName() + QStringLiteral("/four"));
    QVERIFY(server().reject(queueName(), QStringLiteral("Stocktaking")));
    QVERIFY(queue.refusesJobs());
    const QStringList ended = server().endedJobs();
    QString problem;
    QVERIFY(!queue.submit(path("job"), QStringLiteral("Labels"), QString(), problem));
    QCOMPARE(problem, QStringLiteral("The printer \"Hall/four\" did not take the job: "
                                     "Destination \"Hall\" is not accepting jobs."));
    QCOMPARE(server().jobs(), QStringList());
    QCOMPARE(server().endedJobs(), ended);
}

QTEST_MAIN(TestCupsSubmission)

#include "tst_cupssubmission.moc"
