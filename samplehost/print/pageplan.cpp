// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/print/pageplan.h"

#include <algorithm>
#include <optional>

namespace SampleHost {

namespace {

QList<RecordList::Range> sequenceRanges(const PrintRequest& request, int recordCount)
{
    const int first = request.sequenceStart;
    const int last = request.sequenceEnd == -1 ? first : std::min(request.sequenceEnd, recordCount);
    if (first < 1 || first > recordCount || last < first) {
        return {};
    }
    return {RecordList::Range{first, last}};
}

std::optional<QList<RecordList::Range>> requestedRanges(const PrintRequest& request,
                                                        int recordCount)
{
    if (!request.customRecordsList.isEmpty()) {
        return RecordList::expand(request.customRecordsList, recordCount);
    }
    return sequenceRanges(request, recordCount);
}

} // namespace

PagePlan PagePlan::make(const PrintRequest& request, int recordCount)
{
    PagePlan plan;
    plan.m_layout = request.nup.bounded();
    plan.m_mode = request.nupMode;
    plan.m_copies = std::max(1, request.copies);
    const auto ranges = requestedRanges(request, std::max(0, recordCount));
    if (!ranges) {
        plan.m_problem = Problem::UnreadableList;
        return plan;
    }
    plan.setRanges(*ranges);
    return plan;
}

void PagePlan::setRanges(const QList<RecordList::Range>& ranges)
{
    m_ranges = ranges;
    m_ends.reserve(ranges.size());
    qint64 total = 0;
    for (const RecordList::Range& range : ranges) {
        total += qint64(range.last) - range.first + 1;
        m_ends.append(total);
    }
    m_problem = total > 0 ? Problem::None : Problem::NoSuchRecord;
}

qint64 PagePlan::selectedCount() const
{
    return m_ends.isEmpty() ? 0 : m_ends.constLast();
}

bool PagePlan::isSequencing() const
{
    return m_mode == NupMode::Sequencing && m_layout.labelsPerPage() > 1;
}

qint64 PagePlan::pagesPerCopy() const
{
    const qint64 perPage = isSequencing() ? m_layout.labelsPerPage() : 1;
    return (selectedCount() + perPage - 1) / perPage;
}

qint64 PagePlan::pageCount() const
{
    return pagesPerCopy() * m_copies;
}

int PagePlan::recordAt(qint64 index) const
{
    const auto end = std::upper_bound(m_ends.cbegin(), m_ends.cend(), index);
    const qsizetype which = std::distance(m_ends.cbegin(), end);
    const qint64 before = which == 0 ? 0 : m_ends.at(which - 1);
    return m_ranges.at(which).first + int(index - before);
}

QList<int> PagePlan::recordsOnPage(qint64 page) const
{
    if (page < 0 || page >= pageCount()) {
        return {};
    }
    const int perPage = m_layout.labelsPerPage();
    if (!isSequencing()) {
        return QList<int>(perPage, recordAt(page / m_copies));
    }
    const qint64 first = (page % pagesPerCopy()) * perPage;
    const qint64 count = std::min<qint64>(perPage, selectedCount() - first);
    QList<int> records;
    records.reserve(count);
    for (qint64 i = 0; i < count; ++i) {
        records.append(recordAt(first + i));
    }
    return records;
}

} // namespace SampleHost
