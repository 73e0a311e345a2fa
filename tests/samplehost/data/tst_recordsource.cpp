// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/data/chemicalseed.h"
#include "samplehost/data/recordsource.h"
#include "samplehost/data/seeddatabase.h"
#include "samplehost/support/openfiles.h"
#include "support/stricttest.h"

#include <QtCore/QDir>
#include <QtCore/QElapsedTimer>
#include <QtCore/QFile>
#include <QtCore/QStandardPaths>
#include <QtCore/QTemporaryDir>
#include <QtSql/QSqlDatabase>
#include <QtSql/QSqlError>
#include <QtSql/QSqlQuery>

using SampleHost::Chemical;
using SampleHost::ChemicalSeed;
using SampleHost::createSeedDatabase;
using SampleHost::DataSourceOptions;
using SampleHost::RecordSource;

namespace {

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("cannot be read");
}

void writeFile(const QString& path, const QByteArray& content)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), content.size());
}

/** A writing connection of another program's kind to a SQLite file. */
class Writer
{
public:
    explicit Writer(const QString& path)
        : m_database(QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("writer")))
    {
        m_database.setDatabaseName(path);
        m_database.open();
    }

    ~Writer()
    {
        m_database = QSqlDatabase();
        QSqlDatabase::removeDatabase(QStringLiteral("writer"));
    }

    Writer(const Writer&) = delete;
    Writer& operator=(const Writer&) = delete;

    void run(const QString& statement)
    {
        QSqlQuery query(m_database);
        QVERIFY2(query.exec(statement), qPrintable(query.lastError().text()));
    }

private:
    QSqlDatabase m_database;
};

} // namespace

class TestRecordSource : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;
    void cleanup() override;

    void firstStartCreatesTheDatabaseFromTheSeed();
    void firstStartMakesMissingFolders();
    void emptyPathMeansTheDefaultFile();
    void existingDatabaseIsUsedAsItIs();
    void anotherTableIsReadByOption();
    void changesAreSeenAtTheNextCall();
    void recordsComeInTheOrderOfTheirIds();
    void codesMayBeSeparatedDifferently();
    void missingValuesAreEmpty();

    void indexWithoutRecordIsAnError_data();
    void indexWithoutRecordIsAnError();
    void unusableFileIsReportedAndLeftAlone_data();
    void unusableFileIsReportedAndLeftAlone();
    void folderInPlaceOfTheFileIsReported();
    void fileThatCannotBeCreatedIsReported();
    void failedCreationLeavesNoFile();
    void creationLeavesAnExistingFileAlone();
    void missingTableIsReported();
    void missingColumnIsNamed();
    void unknownDriverIsReported();
    void deletedDatabaseIsReportedUntilItIsBack();
    void lockedDatabaseIsReportedUntilItIsFree();
    void damagedDatabaseIsReported();
    void droppedTableIsReported();
    void errorTextIsOptional();

    void severalSourcesLiveSideBySide();
    void descriptionNamesThePlaceButNoPassword();

private:
    QString path(const QString& name = QStringLiteral("records.sqlite")) const
    {
        return m_folder->filePath(name);
    }

    DataSourceOptions options() const
    {
        DataSourceOptions result;
        result.databaseName = path();
        return result;
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestRecordSource::init()
{
    StrictTest::init();
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

void TestRecordSource::cleanup()
{
    // Whatever a test did, no connection may be left over.
    QCOMPARE(QSqlDatabase::connectionNames(), QStringList());
    m_folder.reset();
}

void TestRecordSource::firstStartCreatesTheDatabaseFromTheSeed()
{
    QString error;
    const auto source = RecordSource::open(options(), &error);
    QVERIFY2(source, qPrintable(error));
    const QList<Chemical> seed = ChemicalSeed::load();
    QVERIFY(seed.size() >= 40);
    QCOMPARE(source->count(), static_cast<int>(seed.size()));
    for (int i = 0; i < seed.size(); ++i) {
        QCOMPARE(source->record(i), seed.at(i));
    }
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden),
             QStringList{QStringLiteral("records.sqlite")});
    QCOMPARE(error, QString());
}

void TestRecordSource::firstStartMakesMissingFolders()
{
    DataSourceOptions deep = options();
    deep.databaseName = path(QStringLiteral("a/b c/\u00e4/records.sqlite"));
    const auto source = RecordSource::open(deep);
    QVERIFY(source);
    QCOMPARE(source->count(), static_cast<int>(ChemicalSeed::load().size()));
    QVERIFY(QFile::exists(deep.databaseName));
}

void TestRecordSource::emptyPathMeansTheDefaultFile()
{
    QStandardPaths::setTestModeEnabled(true);
    const QString expected = RecordSource::defaultDatabasePath();
    QCOMPARE(QFileInfo(expected).fileName(), QStringLiteral("chemicals.sqlite"));
    QCOMPARE(QFileInfo(expected).absolutePath(),
             QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
    QFile::remove(expected);
    {
        const auto source = RecordSource::open(DataSourceOptions());
        QVERIFY(source);
        QVERIFY(source->description().startsWith(QDir::toNativeSeparators(expected)));
        QVERIFY(QFile::exists(expected));
    }
    QVERIFY(QFile::remove(expected));
    QStandardPaths::setTestModeEnabled(false);
}

void TestRecordSource::existingDatabaseIsUsedAsItIs()
{
    Chemical own;
    own.name = QStringLiteral("Our own mixture");
    own.hazardCodes = QStringList{QStringLiteral("H302")};
    QVERIFY(createSeedDatabase(path(), QStringLiteral("chemicals"), {own}, nullptr));
    const QByteArray before = contentOf(path());
    {
        const auto source = RecordSource::open(options());
        QVERIFY(source);
        QCOMPARE(source->count(), 1);
        QCOMPARE(source->record(0), own);
    }
    QCOMPARE(contentOf(path()), before);
}

void TestRecordSource::anotherTableIsReadByOption()
{
    const QString table = QStringLiteral("our \"best\" 'stock'");
    DataSourceOptions other = options();
    other.table = table;
    QString error;
    const auto source = RecordSource::open(other, &error);
    QVERIFY2(source, qPrintable(error));
    QCOMPARE(source->record(0), ChemicalSeed::load().first());
    QVERIFY(source->description().endsWith(table));
}

void TestRecordSource::changesAreSeenAtTheNextCall()
{
    const auto source = RecordSource::open(options());
    QVERIFY(source);
    const int count = source->count();
    QVERIFY(source->record(0));
    Writer(path()).run(QStringLiteral("UPDATE chemicals SET name = 'Renamed' WHERE id = 1"));
    QCOMPARE(source->record(0)->name, QStringLiteral("Renamed"));
    Writer(path()).run(QStringLiteral("DELETE FROM chemicals WHERE id = 1"));
    QCOMPARE(source->count(), count - 1);
    Writer(path()).run(QStringLiteral("DELETE FROM chemicals"));
    QString error;
    QCOMPARE(source->count(&error), 0);
    QCOMPARE(error, QString());
}

void TestRecordSource::recordsComeInTheOrderOfTheirIds()
{
    const auto source = RecordSource::open(options());
    QVERIFY(source);
    const QString second = source->record(1)->name;
    Writer(path()).run(QStringLiteral("UPDATE chemicals SET id = 5000 WHERE id = 1"));
    QCOMPARE(source->record(0)->name, second);
    QCOMPARE(source->record(source->count() - 1), ChemicalSeed::load().first());
}

void TestRecordSource::codesMayBeSeparatedDifferently()
{
    const auto source = RecordSource::open(options());
    QVERIFY(source);
    Writer(path()).run(QStringLiteral(
        "UPDATE chemicals SET hazard_codes = ' H225, H319;H336 ', pictograms = ',' WHERE id = 1"));
    const QStringList expected{QStringLiteral("H225"), QStringLiteral("H319"),
                               QStringLiteral("H336")};
    QCOMPARE(source->record(0)->hazardCodes, expected);
    QCOMPARE(source->record(0)->pictograms, QStringList());
}

void TestRecordSource::missingValuesAreEmpty()
{
    {
        Writer writer(path());
        writer.run(QStringLiteral(
            "CREATE TABLE chemicals (id, name, cas_number, formula, un_number, signal_word, "
            "hazard_codes, precaution_codes, pictograms, remarks)"));
        writer.run(QStringLiteral("INSERT INTO chemicals (id, name) VALUES (7, 'Only a name')"));
    }
    const auto source = RecordSource::open(options());
    QVERIFY(source);
    Chemical expected;
    expected.name = QStringLiteral("Only a name");
    QCOMPARE(source->record(0), expected);
}

void TestRecordSource::indexWithoutRecordIsAnError_data()
{
    addColumns<int, QString>("index", "expected");
    const int count = static_cast<int>(ChemicalSeed::load().size());
    addRow("just beyond the end", count, QStringLiteral("There is no record %1.").arg(count + 1));
    addRow("negative", -1, "There is no record 0.");
    addRow("smallest", std::numeric_limits<int>::min(), "There is no record -2147483647.");
    addRow("largest", std::numeric_limits<int>::max(), "There is no record 2147483648.");
}

void TestRecordSource::indexWithoutRecordIsAnError()
{
    QFETCH(int, index);
    const auto source = RecordSource::open(options());
    QVERIFY(source);
    QString error;
    QVERIFY(!source->record(index, &error));
    QTEST(error, "expected");
    // The source goes on working.
    QVERIFY(source->record(0));
}

void TestRecordSource::unusableFileIsReportedAndLeftAlone_data()
{
    addColumns<QByteArray, QString>("content", "reason");
    addRow("text", QByteArray(2000, 'x'), "not a database");
    addRow("damaged header", QByteArray("SQLite format 3\0\1\2\3", 19), "not a database");
    addRow("nothing in it", QByteArray(), "no such table");
}

void TestRecordSource::unusableFileIsReportedAndLeftAlone()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, reason);
    writeFile(path(), content);
    QString error;
    QVERIFY(!RecordSource::open(options(), &error));
    QVERIFY2(error.contains(reason), qPrintable(error));
    QVERIFY2(error.contains(QDir::toNativeSeparators(path())), qPrintable(error));
    QCOMPARE(contentOf(path()), content);
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden).size(), 1);
}

void TestRecordSource::folderInPlaceOfTheFileIsReported()
{
    QVERIFY(QDir().mkpath(path()));
    QString error;
    QVERIFY(!RecordSource::open(options(), &error));
    QVERIFY2(error.contains(QLatin1String("it is not a file.")), qPrintable(error));
}

void TestRecordSource::fileThatCannotBeCreatedIsReported()
{
    writeFile(path(), "a file, not a folder");
    DataSourceOptions below = options();
    below.databaseName = path() + QStringLiteral("/records.sqlite");
    QString error;
    QVERIFY(!RecordSource::open(below, &error));
    QVERIFY2(error.contains(QLatin1String("cannot be created")), qPrintable(error));
    QCOMPARE(contentOf(path()), QByteArray("a file, not a folder"));
}

void TestRecordSource::failedCreationLeavesNoFile()
{
    DataSourceOptions nameless = options();
    nameless.table.clear();
    QString error;
    QVERIFY(!RecordSource::open(nameless, &error));
    QVERIFY2(error.contains(QLatin1String("cannot be created")), qPrintable(error));
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden), QStringList());
}

void TestRecordSource::creationLeavesAnExistingFileAlone()
{
    writeFile(path(), "precious");
    QVERIFY(createSeedDatabase(path(), QStringLiteral("chemicals"), ChemicalSeed::load(), nullptr));
    QCOMPARE(contentOf(path()), QByteArray("precious"));
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden).size(), 1);
}

void TestRecordSource::missingTableIsReported()
{
    QVERIFY(RecordSource::open(options()));
    DataSourceOptions other = options();
    other.table = QStringLiteral("solvents");
    QString error;
    QVERIFY(!RecordSource::open(other, &error));
    QVERIFY2(error.contains(QLatin1String("no such table: solvents")), qPrintable(error));
}

void TestRecordSource::missingColumnIsNamed()
{
    Writer(path()).run(QStringLiteral("CREATE TABLE chemicals (id, name, cas_number, formula)"));
    QString error;
    QVERIFY(!RecordSource::open(options(), &error));
    QVERIFY2(error.endsWith(QLatin1String("it has no column \"un_number\".")), qPrintable(error));
}

void TestRecordSource::unknownDriverIsReported()
{
    DataSourceOptions other = options();
    other.driver = QStringLiteral("QNOSUCH");
    QString error;
    QVERIFY(!RecordSource::open(other, &error));
    QVERIFY2(error.startsWith(QLatin1String("There is no database driver \"QNOSUCH\"")),
             qPrintable(error));
    QVERIFY2(error.contains(QLatin1String("QSQLITE")), qPrintable(error));
    QVERIFY(!QFile::exists(path()));
}

void TestRecordSource::deletedDatabaseIsReportedUntilItIsBack()
{
    const auto source = RecordSource::open(options());
    QVERIFY(source);
    const int count = source->count();
    const QString aside = path(QStringLiteral("aside"));
    if (!openFilesCanBeRemoved) {
        QVERIFY(!QFile::rename(path(), aside));
        QCOMPARE(source->count(), count);
        QVERIFY(source->record(0));
        return;
    }
    QVERIFY(QFile::rename(path(), aside));
    QString error;
    QCOMPARE(source->count(&error), 0);
    QVERIFY2(error.endsWith(QLatin1String("the file does not exist.")), qPrintable(error));
    error.clear();
    QVERIFY(!source->record(0, &error));
    QVERIFY2(error.endsWith(QLatin1String("the file does not exist.")), qPrintable(error));
    // Reading must not have made a new, empty database.
    QVERIFY(!QFile::exists(path()));
    QVERIFY(QFile::rename(aside, path()));
    QCOMPARE(source->count(), count);
    QVERIFY(source->record(0));
}

void TestRecordSource::lockedDatabaseIsReportedUntilItIsFree()
{
    const auto source = RecordSource::open(options());
    QVERIFY(source);
    {
        Writer writer(path());
        writer.run(QStringLiteral("BEGIN EXCLUSIVE"));
        QString error;
        QElapsedTimer timer;
        timer.start();
        QVERIFY(!source->record(0, &error));
        QVERIFY2(error.contains(QLatin1String("locked")), qPrintable(error));
        // It waits for a short write to end, but not for long: the window stands still meanwhile.
        QVERIFY2(timer.elapsed() < 4000, qPrintable(QString::number(timer.elapsed())));
        writer.run(QStringLiteral("ROLLBACK"));
    }
    QVERIFY(source->record(0));
}

void TestRecordSource::damagedDatabaseIsReported()
{
    const auto source = RecordSource::open(options());
    QVERIFY(source);
    writeFile(path(), QByteArray(contentOf(path()).size(), 'x'));
    QString error;
    QVERIFY(!source->record(0, &error));
    QVERIFY2(error.contains(QLatin1String("cannot be read")), qPrintable(error));
    QCOMPARE(source->count(&error), 0);
}

void TestRecordSource::droppedTableIsReported()
{
    const auto source = RecordSource::open(options());
    QVERIFY(source);
    Writer(path()).run(QStringLiteral("DROP TABLE chemicals"));
    QString error;
    QCOMPARE(source->count(&error), 0);
    QVERIFY2(error.contains(QLatin1String("no such table")), qPrintable(error));
    error.clear();
    QVERIFY(!source->record(0, &error));
    QVERIFY2(error.contains(QLatin1String("no such table")), qPrintable(error));
}

void TestRecordSource::errorTextIsOptional()
{
    DataSourceOptions other = options();
    other.driver = QStringLiteral("QNOSUCH");
    QVERIFY(!RecordSource::open(other));
    const auto source = RecordSource::open(options());
    QVERIFY(source);
    QVERIFY(!source->record(-1));
    Writer(path()).run(QStringLiteral("DROP TABLE chemicals"));
    QCOMPARE(source->count(), 0);
    QVERIFY(!source->record(0));
    QVERIFY(QFile::remove(path()));
    QCOMPARE(source->count(), 0);
    QVERIFY(!source->record(0));
}

void TestRecordSource::severalSourcesLiveSideBySide()
{
    const auto first = RecordSource::open(options());
    auto second = RecordSource::open(options());
    QVERIFY(first && second);
    QCOMPARE(QSqlDatabase::connectionNames().size(), 2);
    QCOMPARE(first->record(3), second->record(3));
    second.reset();
    QVERIFY(first->record(3));
}

void TestRecordSource::descriptionNamesThePlaceButNoPassword()
{
    DataSourceOptions secret = options();
    secret.userName = QStringLiteral("clerk");
    secret.password = QStringLiteral("s3cret");
    const auto source = RecordSource::open(secret);
    QVERIFY(source);
    QCOMPARE(source->description(),
             QStringLiteral("%1, table chemicals").arg(QDir::toNativeSeparators(path())));
}

QTEST_GUILESS_MAIN(TestRecordSource)
#include "tst_recordsource.moc"
