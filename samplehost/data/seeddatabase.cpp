// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/data/seeddatabase.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QUuid>
#include <QtSql/QSqlDatabase>
#include <QtSql/QSqlDriver>
#include <QtSql/QSqlError>
#include <QtSql/QSqlQuery>

#include <algorithm>

namespace SampleHost {

namespace {

bool report(QString* error, const QString& text)
{
    if (error) {
        *error = text;
    }
    return false;
}

QString uniqueSuffix()
{
    return QUuid::createUuid().toString(QUuid::WithoutBraces);
}

bool createTable(QSqlDatabase& database, const QString& table, QString* reason)
{
    const QString columns = chemicalColumns().join(QStringLiteral(" TEXT NOT NULL, "));
    QSqlQuery query(database);
    return query.exec(QStringLiteral("CREATE TABLE %1 (id INTEGER PRIMARY KEY, %2 TEXT NOT NULL)")
                          .arg(table, columns)) ||
           report(reason, query.lastError().text());
}

bool insertChemical(QSqlQuery& insert, const Chemical& chemical)
{
    const QString blank = QStringLiteral(" ");
    const QStringList values{chemical.name,
                             chemical.casNumber,
                             chemical.formula,
                             chemical.unNumber,
                             chemical.signalWord,
                             chemical.hazardCodes.join(blank),
                             chemical.precautionCodes.join(blank),
                             chemical.pictograms.join(blank)};
    for (int i = 0; i < values.size(); ++i) {
        // A null string would be stored as NULL, which means "unknown" instead of "none".
        insert.bindValue(i, values.at(i).isNull() ? QString(QLatin1String("")) : values.at(i));
    }
    return insert.exec();
}

bool insertChemicals(QSqlDatabase& database, const QString& table, const QList<Chemical>& chemicals,
                     QString* reason)
{
    const QStringList columns = chemicalColumns();
    const QStringList marks(columns.size(), QStringLiteral("?"));
    QSqlQuery insert(database);
    if (!insert.prepare(
            QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
                .arg(table, columns.join(QLatin1String(", ")), marks.join(QLatin1String(", "))))) {
        return report(reason, insert.lastError().text());
    }
    const bool inserted =
        std::all_of(chemicals.cbegin(), chemicals.cend(), [&insert](const Chemical& chemical) {
            return insertChemical(insert, chemical);
        });
    return inserted || report(reason, insert.lastError().text());
}

// Fills the file at path, which must be empty if it exists. Queries must be destroyed before their
// connection is removed.
bool fillFile(const QString& path, const QString& table, const QList<Chemical>& chemicals,
              QString* reason)
{
    const QString connection = uniqueConnectionName();
    bool filled = false;
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connection);
        database.setDatabaseName(path);
        if (database.open() && database.transaction()) {
            const QString name = database.driver()->escapeIdentifier(table, QSqlDriver::TableName);
            // The connection does not report the errors of its queries.
            filled = createTable(database, name, reason) &&
                     insertChemicals(database, name, chemicals, reason) && database.commit();
        }
        if (reason->isEmpty()) {
            *reason = database.lastError().text();
        }
    }
    QSqlDatabase::removeDatabase(connection);
    return filled;
}

} // namespace

QStringList chemicalColumns()
{
    return {QStringLiteral("name"),
            QStringLiteral("cas_number"),
            QStringLiteral("formula"),
            QStringLiteral("un_number"),
            QStringLiteral("signal_word"),
            QStringLiteral("hazard_codes"),
            QStringLiteral("precaution_codes"),
            QStringLiteral("pictograms")};
}

QString uniqueConnectionName()
{
    return QStringLiteral("samplehost-") + uniqueSuffix();
}

bool createSeedDatabase(const QString& path, const QString& table, const QList<Chemical>& chemicals,
                        QString* error)
{
    const QString folder = QFileInfo(path).absolutePath();
    const QString problem = QStringLiteral("The database file %1 cannot be created")
                                .arg(QDir::toNativeSeparators(path));
    if (!QDir().mkpath(folder)) {
        return report(error, problem + QStringLiteral(": its folder cannot be made."));
    }
    // The file is renamed when it is complete, so that a crash does not leave an incomplete
    // database, which the next start would use.
    const QString draft = path + QLatin1Char('.') + uniqueSuffix();
    QString reason;
    if (!fillFile(draft, table, chemicals, &reason)) {
        QFile::remove(draft);
        return report(error, problem + QStringLiteral(": ") + reason);
    }
    // rename() never replaces a file. If the file exists by now, another instance of the program
    // has created the same database.
    if (!QFile::rename(draft, path)) {
        QFile::remove(draft);
        if (!QFileInfo::exists(path)) {
            return report(error, problem + QStringLiteral("."));
        }
    }
    return true;
}

} // namespace SampleHost
