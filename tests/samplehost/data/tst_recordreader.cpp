// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/data/recordreader.h"
#include "samplehost/data/recordsource.h"
#include "samplehost/data/seeddatabase.h"
#include "samplehost/support/openfiles.h"
#include "support/stricttest.h"

#include <QtCore/QFile>
#include <QtCore/QRegularExpression>
#include <QtCore/QTemporaryDir>
#include <QtCore/QThread>
#include <QtSql/QSqlDatabase>
#include <QtSql/QSqlDriver>
#include <QtSql/QSqlField>
#include <QtSql/QSqlQuery>
#include <QtSql/QSqlRecord>
#include <QtSql/QSqlResult>

using SampleHost::Chemical;
using SampleHost::DataSourceOptions;
using SampleHost::RecordReader;
using SampleHost::RecordSource;
using Purpose = RecordReader::Purpose;

namespace {

// What the server below was asked for, and how often it discarded the results of its queries.
QStringList statements;
int discarded = 0;

constexpr int serverRows = 2'000'000;

/** The rows "Record 0", "Record 1" and so on, as far as a statement asks for them. */
class ServerResult : public QSqlResult
{
public:
    explicit ServerResult(const QSqlDriver* driver) : QSqlResult(driver) {}

protected:
    QVariant data(int column) override
    {
        return column == 0 ? QStringLiteral("Record %1").arg(m_first + at()) : QString();
    }

    bool isNull(int) override { return false; }

    bool reset(const QString& statement) override
    {
        statements.append(statement);
        static const QRegularExpression limit(QStringLiteral("LIMIT (\\d+) OFFSET (\\d+)$"));
        const auto match = limit.match(statement);
        m_first = match.captured(2).toInt();
        m_count =
            match.hasMatch() ? qMin(match.captured(1).toInt(), serverRows - m_first) : serverRows;
        m_discarded = discarded;
        setSelect(true);
        setActive(true);
        setAt(QSql::BeforeFirstRow);
        return true;
    }

    bool fetch(int row) override
    {
        if (row < 0 || row >= m_count || m_discarded != discarded) {
            return false;
        }
        setAt(row);
        return true;
    }

    bool fetchFirst() override { return fetch(0); }
    bool fetchLast() override { return fetch(m_count - 1); }
    int size() override { return -1; }
    int numRowsAffected() override { return -1; }

    QSqlRecord record() const override
    {
        QSqlRecord columns;
        columns.append(QSqlField(QStringLiteral("id")));
        for (const QString& name : SampleHost::chemicalColumns()) {
            columns.append(QSqlField(name));
        }
        return columns;
    }

private:
    int m_first = 0;
    int m_count = 0;
    int m_discarded = 0;
};

/** A server that notes the statements. */
class ServerDriver : public QSqlDriver
{
public:
    bool hasFeature(DriverFeature) const override { return false; }

    bool open(const QString&, const QString&, const QString&, const QString&, int,
              const QString&) override
    {
        setOpen(true);
        return true;
    }

    void close() override { setOpen(false); }
    QSqlResult* createResult() const override { return new ServerResult(this); }
};

/** Writes to a SQLite file, waiting for others at most as long as told. */
bool write(const QString& path, int milliseconds)
{
    const QString connection = SampleHost::uniqueConnectionName();
    bool written = false;
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connection);
        database.setDatabaseName(path);
        database.setConnectOptions(QStringLiteral("QSQLITE_BUSY_TIMEOUT=%1").arg(milliseconds));
        written = database.open() &&
                  QSqlQuery(database).exec(QStringLiteral("UPDATE chemicals SET formula = 'X'"));
    }
    QSqlDatabase::removeDatabase(connection);
    return written;
}

} // namespace

class TestRecordReader : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();

    void ascendingRecordsTakeOneQuery_data();
    void ascendingRecordsTakeOneQuery();
    void sameRecordIsNotReadAgain();
    void onlyStepsBackAndLargeStepsTakeANewQuery();
    void displayAsksForOneRecord();
    void discardedQueryIsStartedAgain();

    void readsWhatTheSourceReads();
    void missingRecordIsReported();
    void deletedFileIsReportedUntilItIsBack();
    void replacedFileIsReadFromThere();
    void runHoldsTheFileUntilItEnds();
    void displayLeavesTheFileFree();
    void longRunLetsOthersWrite();

private:
    std::shared_ptr<RecordSource> openServer(const QString& driver = QStringLiteral("QPSQL"))
    {
        DataSourceOptions options;
        options.driver = driver;
        std::shared_ptr<RecordSource> source = RecordSource::open(options);
        statements.clear();
        return source;
    }

    std::shared_ptr<RecordSource> openFile() const
    {
        DataSourceOptions options;
        options.databaseName = m_path;
        return RecordSource::open(options);
    }

    static QString nameAt(RecordReader& reader, int index)
    {
        QString problem;
        const Chemical* chemical = reader.record(index, problem);
        return chemical != nullptr ? chemical->name : problem;
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_path;
};

void TestRecordReader::initTestCase()
{
    // In place of the real driver, which would need a server.
    QSqlDatabase::registerSqlDriver(QStringLiteral("QPSQL"), new QSqlDriverCreator<ServerDriver>);
    QSqlDatabase::registerSqlDriver(QStringLiteral("OTHER"), new QSqlDriverCreator<ServerDriver>);
}

void TestRecordReader::init()
{
    StrictTest::init();
    m_folder = std::make_unique<QTemporaryDir>();
    m_path = m_folder->filePath(QStringLiteral("records.sqlite"));
}

void TestRecordReader::ascendingRecordsTakeOneQuery_data()
{
    addColumns<QString, QString>("driver", "end");
    addRow("with a limit clause", "QPSQL", " LIMIT 2147483647 OFFSET 7");
    addRow("without one", "OTHER", " ORDER BY id");
}

void TestRecordReader::ascendingRecordsTakeOneQuery()
{
    QFETCH(QString, driver);
    QFETCH(QString, end);
    RecordReader reader(openServer(driver), Purpose::Run);
    for (int index = 7; index < 1000; index += index % 3 + 1) {
        QCOMPARE(nameAt(reader, index), QStringLiteral("Record %1").arg(index));
    }
    QCOMPARE(statements.size(), 1);
    QVERIFY2(statements.first().endsWith(end), qPrintable(statements.first()));
}

void TestRecordReader::sameRecordIsNotReadAgain()
{
    RecordReader reader(openServer(), Purpose::Display);
    QCOMPARE(nameAt(reader, 4), QStringLiteral("Record 4"));
    QCOMPARE(nameAt(reader, 4), QStringLiteral("Record 4"));
    QCOMPARE(nameAt(reader, -1), QStringLiteral("There is no record 0."));
    QCOMPARE(nameAt(reader, -1), QStringLiteral("There is no record 0."));
    QCOMPARE(statements.size(), 2);
}

void TestRecordReader::onlyStepsBackAndLargeStepsTakeANewQuery()
{
    RecordReader reader(openServer(), Purpose::Run);
    const QList<int> indices{0, 1, 5, 5 + RecordReader::farthestStep, 3, 4, 1'999'998, 1'999'999};
    for (const int index : indices) {
        QCOMPARE(nameAt(reader, index), QStringLiteral("Record %1").arg(index));
    }
    QCOMPARE(statements.size(), 3);
    QVERIFY(statements.at(1).endsWith(QLatin1String(" OFFSET 3")));
    QVERIFY(statements.at(2).endsWith(QLatin1String(" OFFSET 1999998")));
}

void TestRecordReader::displayAsksForOneRecord()
{
    RecordReader reader(openServer(), Purpose::Display);
    QCOMPARE(nameAt(reader, 4), QStringLiteral("Record 4"));
    QCOMPARE(nameAt(reader, 5), QStringLiteral("Record 5"));
    QCOMPARE(statements.size(), 2);
    QVERIFY(statements.at(1).endsWith(QLatin1String(" LIMIT 1 OFFSET 5")));
}

void TestRecordReader::discardedQueryIsStartedAgain()
{
    RecordReader reader(openServer(), Purpose::Run);
    QCOMPARE(nameAt(reader, 0), QStringLiteral("Record 0"));
    ++discarded;
    QCOMPARE(nameAt(reader, 1), QStringLiteral("Record 1"));
    QCOMPARE(nameAt(reader, 2), QStringLiteral("Record 2"));
    QCOMPARE(statements.size(), 2);
}

void TestRecordReader::readsWhatTheSourceReads()
{
    const auto source = openFile();
    QVERIFY(source);
    RecordReader reader(source, Purpose::Run);
    QString problem;
    for (int index = 0; index < source->count(); ++index) {
        const Chemical* chemical = reader.record(index, problem);
        QVERIFY2(chemical, qPrintable(problem));
        QCOMPARE(*chemical, source->record(index));
    }
}

void TestRecordReader::missingRecordIsReported()
{
    const auto source = openFile();
    QVERIFY(source);
    const int count = source->count();
    RecordReader reader(source, Purpose::Run);
    const QString last = source->record(count - 1)->name;
    const auto missing = QStringLiteral("There is no record %1.");
    QCOMPARE(nameAt(reader, count - 1), last);
    QCOMPARE(nameAt(reader, count), missing.arg(count + 1));
    QCOMPARE(nameAt(reader, count + 1), missing.arg(count + 2));
    QCOMPARE(nameAt(reader, -1), missing.arg(0));
    QCOMPARE(nameAt(reader, std::numeric_limits<int>::max()), missing.arg(2147483648));
    QCOMPARE(nameAt(reader, std::numeric_limits<int>::min()), missing.arg(-2147483647));
    QCOMPARE(nameAt(reader, count - 1), last);
}

void TestRecordReader::deletedFileIsReportedUntilItIsBack()
{
    RecordReader reader(openFile(), Purpose::Run);
    const QString second = openFile()->record(1)->name;
    nameAt(reader, 0);
    const QString aside = m_folder->filePath(QStringLiteral("aside"));
    if (!openFilesCanBeRemoved) {
        QVERIFY(!QFile::rename(m_path, aside));
        QCOMPARE(nameAt(reader, 1), second);
        return;
    }
    QVERIFY(QFile::rename(m_path, aside));
    QVERIFY(nameAt(reader, 1).endsWith(QLatin1String("the file does not exist.")));
    QVERIFY(QFile::rename(aside, m_path));
    // The reader tells the same of the same record.
    QVERIFY(nameAt(reader, 1).endsWith(QLatin1String("the file does not exist.")));
    nameAt(reader, 0);
    QCOMPARE(nameAt(reader, 1), second);
}

void TestRecordReader::replacedFileIsReadFromThere()
{
    RecordReader reader(openFile(), Purpose::Run);
    const QString second = openFile()->record(1)->name;
    nameAt(reader, 0);
    if (!openFilesCanBeRemoved) {
        QVERIFY(!QFile::remove(m_path));
        QCOMPARE(nameAt(reader, 1), second);
        return;
    }
    QVERIFY(QFile::remove(m_path));
    Chemical other;
    other.name = QStringLiteral("Other");
    QVERIFY(SampleHost::createSeedDatabase(m_path, QStringLiteral("chemicals"), {other, other},
                                           nullptr));
    QCOMPARE(nameAt(reader, 1), QStringLiteral("Other"));
}

void TestRecordReader::runHoldsTheFileUntilItEnds()
{
    const auto source = openFile();
    {
        RecordReader reader(source, Purpose::Run);
        nameAt(reader, 0);
        QVERIFY(!write(m_path, 0));
        QCOMPARE(nameAt(reader, 1), source->record(1)->name);
    }
    QVERIFY(write(m_path, 0));
}

void TestRecordReader::displayLeavesTheFileFree()
{
    RecordReader reader(openFile(), Purpose::Display);
    nameAt(reader, 0);
    QVERIFY(write(m_path, 0));
}

void TestRecordReader::longRunLetsOthersWrite()
{
    const int count = 250;
    QVERIFY(SampleHost::createSeedDatabase(m_path, QStringLiteral("chemicals"),
                                           QList<Chemical>(count), nullptr));
    RecordReader reader(openFile(), Purpose::Run);
    nameAt(reader, 0);
    bool written = false;
    const std::unique_ptr<QThread> other(
        QThread::create([this, &written] { written = write(m_path, 20000); }));
    other->start();
    for (int index = 1; !other->isFinished() && index < count; ++index) {
        QString problem;
        QVERIFY2(reader.record(index, problem), qPrintable(problem));
        QTest::qSleep(60);
    }
    const bool inTime = other->isFinished();
    QVERIFY(other->wait());
    QVERIFY(inTime && written);
}

QTEST_GUILESS_MAIN(TestRecordReader)
#include "tst_recordreader.moc"
