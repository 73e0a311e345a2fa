// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/data/recordsource.h"

#include "samplehost/data/chemicalseed.h"
#include "samplehost/data/seeddatabase.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QRegularExpression>
#include <QtCore/QStandardPaths>
#include <QtSql/QSqlDriver>
#include <QtSql/QSqlError>
#include <QtSql/QSqlQuery>
#include <QtSql/QSqlRecord>

#include <algorithm>
#include <limits>

namespace SampleHost {

namespace {

// Long enough for a short write by another program, short enough to keep the window responsive.
const QString sqliteOptions = QStringLiteral("QSQLITE_OPEN_READONLY;QSQLITE_BUSY_TIMEOUT=1000");

bool report(QString* error, const QString& text)
{
    if (error) {
        *error = text;
    }
    return false;
}

bool isSqlite(const DataSourceOptions& options)
{
    return options.driver == QLatin1String("QSQLITE");
}

// Fills in the defaults that depend on the system.
DataSourceOptions resolved(DataSourceOptions options)
{
    if (isSqlite(options)) {
        const QString path = options.databaseName.isEmpty() ? RecordSource::defaultDatabasePath()
                                                            : options.databaseName;
        options.databaseName = QFileInfo(path).absoluteFilePath();
    }
    return options;
}

// Whether the database supports LIMIT and OFFSET, which are not standard SQL.
bool hasLimitClause(const QString& driver)
{
    static const QStringList drivers{QStringLiteral("QSQLITE"), QStringLiteral("QPSQL"),
                                     QStringLiteral("QMYSQL"), QStringLiteral("QMARIADB")};
    return drivers.contains(driver);
}

QSqlDatabase makeConnection(const DataSourceOptions& options)
{
    QSqlDatabase database = QSqlDatabase::addDatabase(options.driver, uniqueConnectionName());
    database.setDatabaseName(options.databaseName);
    if (isSqlite(options)) {
        database.setConnectOptions(sqliteOptions);
        return database;
    }
    database.setHostName(options.hostName);
    database.setPort(options.port);
    database.setUserName(options.userName);
    database.setPassword(options.password);
    return database;
}

QString escaped(const QSqlDatabase& database, const QString& table)
{
    return database.driver()->escapeIdentifier(table, QSqlDriver::TableName);
}

QStringList splitCodes(const QString& text)
{
    static const QRegularExpression separators(QStringLiteral("[\\s,;]+"));
    return text.split(separators, Qt::SkipEmptyParts);
}

} // namespace

RecordSource::RecordSource(const DataSourceOptions& options)
    : m_options(options), m_database(makeConnection(options))
{
}

RecordSource::~RecordSource()
{
    const QString connection = m_database.connectionName();
    // A connection must not be in use when it is removed.
    m_database = QSqlDatabase();
    QSqlDatabase::removeDatabase(connection);
}

std::unique_ptr<RecordSource> RecordSource::open(const DataSourceOptions& options, QString* error)
{
    if (!QSqlDatabase::isDriverAvailable(options.driver)) {
        report(error, QStringLiteral("There is no database driver \"%1\". Available: %2.")
                          .arg(options.driver, QSqlDatabase::drivers().join(QLatin1String(", "))));
        return nullptr;
    }
    const DataSourceOptions complete = resolved(options);
    if (isSqlite(complete) && !QFileInfo::exists(complete.databaseName) &&
        !createSeedDatabase(complete.databaseName, complete.table, ChemicalSeed::load(), error)) {
        return nullptr;
    }
    std::unique_ptr<RecordSource> source(new RecordSource(complete));
    if (!source->ensureOpen(error) || !source->checkTable(error)) {
        return nullptr;
    }
    return source;
}

QString RecordSource::defaultDatabasePath()
{
    const QDir folder(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
    return folder.absoluteFilePath(QStringLiteral("chemicals.sqlite"));
}

QString RecordSource::filePath(const DataSourceOptions& options)
{
    return isSqlite(options) ? resolved(options).databaseName : QString();
}

QString RecordSource::description() const
{
    QString place = m_options.databaseName;
    if (isSqlite(m_options)) {
        place = QDir::toNativeSeparators(place);
    } else if (place.contains(QLatin1Char('='))) {
        // A connection string, which may contain a password.
        place = m_options.driver;
    }
    if (!isSqlite(m_options) && !m_options.hostName.isEmpty()) {
        place += QStringLiteral(" on ") + m_options.hostName;
    }
    return QStringLiteral("%1, table %2").arg(place, m_options.table);
}

QString RecordSource::explain(const QString& reason) const
{
    return QStringLiteral("The data source (%1) cannot be read: %2")
        .arg(description(), reason.simplified());
}

// Closes a file that was replaced; otherwise SQLite would continue to read the old one.
void RecordSource::closeReplaced() const
{
    const QFileInfo file(m_options.databaseName);
    const QPair<QDateTime, QDateTime> times(file.birthTime(), file.metadataChangeTime());
    if (times != m_fileTimes) {
        m_database.close();
        m_fileTimes = times;
    }
}

// Reopens the connection if it was lost. SQLite would continue to read a file that was deleted, so
// its path is checked each time.
bool RecordSource::ensureOpen(QString* error) const
{
    const QFileInfo file(m_options.databaseName);
    if (isSqlite(m_options) && !file.isFile()) {
        m_database.close();
        return report(error, explain(file.exists() ? QStringLiteral("it is not a file.")
                                                   : QStringLiteral("the file does not exist.")));
    }
    if (isSqlite(m_options)) {
        closeReplaced();
    }
    if (!m_database.isOpen() && !m_database.open()) {
        return report(error, explain(m_database.lastError().text()));
    }
    return true;
}

bool RecordSource::checkTable(QString* error) const
{
    QSqlQuery query(m_database);
    // Only the columns are needed, so no row is selected.
    const QString statement =
        QStringLiteral("SELECT * FROM %1 WHERE 1 = 0").arg(escaped(m_database, m_options.table));
    if (!run(query, statement, error)) {
        return false;
    }
    const QStringList required = QStringList(QStringLiteral("id")) + chemicalColumns();
    const QSqlRecord columns = query.record();
    for (const QString& column : required) {
        if (!columns.contains(column)) {
            return report(error, explain(QStringLiteral("it has no column \"%1\".").arg(column)));
        }
    }
    return true;
}

bool RecordSource::run(QSqlQuery& query, const QString& statement, QString* error) const
{
    if (query.exec(statement)) {
        return true;
    }
    report(error, explain(query.lastError().text()));
    // The next call opens a new connection: the server may be available again by then.
    query.finish();
    m_database.close();
    return false;
}

int RecordSource::count(QString* error) const
{
    if (!ensureOpen(error)) {
        return 0;
    }
    QSqlQuery query(m_database);
    const QString statement =
        QStringLiteral("SELECT COUNT(*) FROM %1").arg(escaped(m_database, m_options.table));
    if (!run(query, statement, error)) {
        return 0;
    }
    const qint64 rows = query.next() ? query.value(0).toLongLong() : 0;
    return static_cast<int>(std::clamp<qint64>(rows, 0, std::numeric_limits<int>::max()));
}

Chemical RecordSource::chemicalFrom(const QSqlQuery& query)
{
    const auto text = [&query](int column) { return query.value(column).toString().trimmed(); };
    return {text(0),
            text(1),
            text(2),
            text(3),
            text(4),
            splitCodes(text(5)),
            splitCodes(text(6)),
            splitCodes(text(7))};
}

std::optional<Chemical> RecordSource::record(int index, QString* error) const
{
    QSqlQuery query(m_database);
    if (!ensureOpen(error) || !select(query, index, 1, error)) {
        return std::nullopt;
    }
    return chemicalFrom(query);
}

bool RecordSource::select(QSqlQuery& query, int first, int count, QString* error) const
{
    const bool skipsRows = hasLimitClause(m_options.driver);
    QString statement =
        QStringLiteral("SELECT %1 FROM %2 ORDER BY id")
            .arg(chemicalColumns().join(QLatin1String(", ")), escaped(m_database, m_options.table));
    if (skipsRows) {
        statement += QStringLiteral(" LIMIT %1 OFFSET %2").arg(count).arg(std::max(0, first));
    }
    query = QSqlQuery(m_database);
    query.setForwardOnly(true);
    if (!run(query, statement, error)) {
        return false;
    }
    // The first call of next() moves to the first row. (QSqlQuery::seek() would skip rows as well,
    // but crashes for the largest index.)
    bool found = first >= 0 && query.next();
    for (int row = 0; found && !skipsRows && row < first; ++row) {
        found = query.next();
    }
    if (!found && query.lastError().isValid()) {
        return report(error, explain(query.lastError().text()));
    }
    return found || report(error, QStringLiteral("There is no record %1.").arg(qint64(first) + 1));
}

} // namespace SampleHost
