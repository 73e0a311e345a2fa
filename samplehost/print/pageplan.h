// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_PAGEPLAN_H
#define SAMPLEHOST_PAGEPLAN_H

#include "samplehost/print/printrequest.h"

#include <printpanels/recordlist.h>

#include <QtCore/QList>

namespace SampleHost {

/**
 * Which records go on which page of a print job.
 *
 * The plan stores the selection as ranges and calculates the records of a page, so that a request
 * for every record of a large data source costs no more than a request for one.
 *
 * Order of the pages:
 * - one label a page: the records in the requested order, with all copies of a record in
 * succession, since labels are torn off and applied record by record;
 * - N-up replicating: the same order, but each page is filled with its one record;
 * - N-up sequencing: the records fill the pages in turn; each copy is the whole sequence again and
 *   begins on a new page, so that the copies are identical stacks.
 */
class PagePlan
{
public:
    /** Why a plan has no page. */
    enum class Problem {
        None,           ///< There is at least one page.
        UnreadableList, ///< The custom list is not a valid record list.
        NoSuchRecord    ///< The request is readable but names no record that exists.
    };

    /** A plan without pages, with the problem NoSuchRecord. */
    PagePlan() = default;

    /**
     * Plans a request for a data source of recordCount records. Numbers beyond the last record are
     * left out; repetitions are kept.
     */
    static PagePlan make(const PrintRequest& request, int recordCount);

    /** Why there is no page, or None. */
    Problem problem() const { return m_problem; }

    /** The number of pages, copies included. */
    qint64 pageCount() const;

    /** The number of requested records, including repetitions but not copies. */
    qint64 selectedCount() const;

    /**
     * The 1-based records of a page in reading order (left to right, then down). The last page of a
     * sequence may be only partly filled. The list is empty for a page outside 0 to
     * pageCount() - 1.
     */
    QList<int> recordsOnPage(qint64 page) const;

    /** The arrangement of the labels on each page. */
    NupLayout layout() const { return m_layout; }

private:
    bool isSequencing() const;
    qint64 pagesPerCopy() const;
    int recordAt(qint64 index) const;
    void setRanges(const QList<RecordList::Range>& ranges);

    QList<RecordList::Range> m_ranges;
    // For each range the number of records up to and including it.
    QList<qint64> m_ends;
    NupLayout m_layout;
    NupMode m_mode = NupMode::Replicating;
    int m_copies = 1;
    Problem m_problem = Problem::NoSuchRecord;
};

} // namespace SampleHost

#endif
