// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/data/recordreader.h"

#include "samplehost/data/recordsource.h"

#include <limits>
#include <utility>

namespace SampleHost {

RecordReader::RecordReader(std::shared_ptr<const RecordSource> source, Purpose purpose)
    : m_source(std::move(source)), m_purpose(purpose)
{
}

const Chemical* RecordReader::record(int index, QString& problem)
{
    if (index != m_index) {
        m_record = read(index);
        m_index = index;
    }
    if (!m_record) {
        problem = m_problem;
        return nullptr;
    }
    return &*m_record;
}

std::optional<Chemical> RecordReader::read(int index)
{
    std::optional<Chemical> record;
    // A query that cannot be continued is replaced by a new one, which reports what is wrong.
    if (m_source->ensureOpen(&m_problem) && (advance(index) || start(index))) {
        record = RecordSource::chemicalFrom(*m_query);
    }
    if (!record || m_purpose == Purpose::Display) {
        m_query.reset();
    }
    return record;
}

bool RecordReader::advance(int index)
{
    if (!m_query || index < *m_index || m_queryTime.hasExpired(longestQuery)) {
        return false;
    }
    const int steps = index - *m_index;
    bool found = steps <= farthestStep;
    for (int step = 0; found && step < steps; ++step) {
        found = m_query->next();
    }
    return found;
}

bool RecordReader::start(int index)
{
    // The new query must not wait for another program that waits for the old one.
    m_query.reset();
    m_query.emplace(m_source->m_database);
    m_queryTime.start();
    const int count = m_purpose == Purpose::Display ? 1 : std::numeric_limits<int>::max();
    return m_source->select(*m_query, index, count, &m_problem);
}

} // namespace SampleHost
