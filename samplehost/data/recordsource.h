// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_RECORDSOURCE_H
#define SAMPLEHOST_RECORDSOURCE_H

#include "samplehost/data/chemical.h"

#include <QtCore/QDateTime>
#include <QtCore/QPair>
#include <QtCore/QString>
#include <QtSql/QSqlDatabase>

#include <memory>
#include <optional>

QT_BEGIN_NAMESPACE
class QSqlQuery;
QT_END_NAMESPACE

namespace SampleHost {

/** Where the records are read from. The default is the embedded database. */
struct DataSourceOptions
{
    /** Name of the Qt SQL driver, for example "QSQLITE" or "QPSQL". */
    QString driver = QStringLiteral("QSQLITE");
    /** The database server; not used with SQLite. */
    QString hostName;
    /** The server's port; -1 for the driver's default. */
    int port = -1;
    /** Path of the SQLite file (empty: RecordSource::defaultDatabasePath()), or the server's
     * database. */
    QString databaseName;
    /** User at the server; not used with SQLite. */
    QString userName;
    /** The user's password; not used with SQLite. */
    QString password;
    /**
     * The table with the records. Columns: id (sets the order), name, cas_number, formula,
     * un_number, signal_word, hazard_codes, precaution_codes, pictograms; codes separated by
     * spaces, commas or semicolons.
     */
    QString table = QStringLiteral("chemicals");
};

/**
 * The records of a database. Each call reads from the database; use a RecordReader to read many
 * records. The source never writes to an existing database; a SQLite file that does not exist is
 * created from the seed. Needs a QCoreApplication, and must be used in the thread that opened it.
 */
class RecordSource
{
public:
    /**
     * Opens a data source, creating the SQLite file first if it does not exist. Null if that fails
     * (unknown driver, unreadable or corrupt file, no such table or column, server not reached),
     * with the reason for the user in error unless that is null.
     */
    static std::unique_ptr<RecordSource> open(const DataSourceOptions& options,
                                              QString* error = nullptr);

    /** The path of the embedded database, in the application's data folder, if none is given. */
    static QString defaultDatabasePath();

    /** The absolute path of the SQLite file that options name; empty for a server. */
    static QString filePath(const DataSourceOptions& options);

    /** Closes the connection. */
    ~RecordSource();

    RecordSource(const RecordSource&) = delete;
    RecordSource& operator=(const RecordSource&) = delete;

    /** The number of records now; 0, with the reason in error, when the database cannot be read. */
    int count(QString* error = nullptr) const;

    /**
     * The record at a 0-based index in the order of the ids. Empty, with the reason in error, when
     * there is no such record or the database cannot be read.
     */
    std::optional<Chemical> record(int index, QString* error = nullptr) const;

    /** The source as a text for the user: file or server, and table. Never the password. */
    QString description() const;

private:
    friend class RecordReader;

    explicit RecordSource(const DataSourceOptions& options);

    void closeReplaced() const;
    bool ensureOpen(QString* error) const;
    bool checkTable(QString* error) const;
    bool run(QSqlQuery& query, const QString& statement, QString* error) const;
    // Executes a query for count records and positions it on the first of them.
    bool select(QSqlQuery& query, int first, int count, QString* error) const;
    static Chemical chemicalFrom(const QSqlQuery& query);
    QString explain(const QString& reason) const;

    DataSourceOptions m_options;
    mutable QSqlDatabase m_database;
    // When the open SQLite file was created and last changed; differs if the file was replaced.
    mutable QPair<QDateTime, QDateTime> m_fileTimes;
};

} // namespace SampleHost

#endif
