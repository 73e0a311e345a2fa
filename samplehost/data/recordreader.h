// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_RECORDREADER_H
#define SAMPLEHOST_RECORDREADER_H

#include "samplehost/data/chemical.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QString>
#include <QtSql/QSqlQuery>

#include <memory>
#include <optional>

namespace SampleHost {

class RecordSource;

/**
 * Reads the records of a source in ascending order with a single query.
 *
 * While the query is open, other programs cannot write to a SQLite file. It is closed with the
 * reader, and a long run starts a new one every longestQuery milliseconds to let them write.
 */
class RecordReader
{
public:
    /** What a reader is used for. */
    enum class Purpose {
        Run,    ///< To read many records; the query stays open.
        Display ///< To read one record; no query stays open.
    };

    /** The longest time in milliseconds for which records are taken from the same query. */
    static constexpr int longestQuery = 1000;
    /** The largest number of records that are skipped without a new query. */
    static constexpr int farthestStep = 1000;

    /** A reader for a source, which must not be null. Nothing is read yet. */
    RecordReader(std::shared_ptr<const RecordSource> source, Purpose purpose);

    /**
     * The record at a 0-based index, valid until the next call. Null, with the reason in problem,
     * where RecordSource::record() finds none. If the same index is requested again, the result is
     * the same, and nothing is read.
     */
    const Chemical* record(int index, QString& problem);

private:
    Q_DISABLE_COPY_MOVE(RecordReader)

    std::optional<Chemical> read(int index);
    bool advance(int index);
    bool start(int index);

    std::shared_ptr<const RecordSource> m_source;
    Purpose m_purpose;
    // Positioned on the record that was read last.
    std::optional<QSqlQuery> m_query;
    QElapsedTimer m_queryTime;
    // The record that was read last, or why it cannot be read: with a locked database each attempt
    // takes time, and windows are painted often.
    std::optional<int> m_index;
    std::optional<Chemical> m_record;
    QString m_problem;
};

} // namespace SampleHost

#endif
