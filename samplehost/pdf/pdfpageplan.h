// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_PDFPAGEPLAN_H
#define SAMPLEHOST_PDFPAGEPLAN_H

#include "samplehost/pdf/pdfprintrequest.h"
#include "samplehost/print/pageplan.h"

#include <QtCore/QCoreApplication>

namespace SampleHost {

/**
 * Which page of a document goes on which sheet: the pages in the order asked for, repetitions kept,
 * and the whole of it again for every copy. Computed, so that the number of sheets does not matter.
 */
class PdfPagePlan
{
    Q_DECLARE_TR_FUNCTIONS(PdfPagePlan)

public:
    /** Plans a request for a document of pageCount pages. */
    PdfPagePlan(const PdfPrintRequest& request, int pageCount);

    /** Why there is no sheet, or None. */
    PagePlan::Problem problem() const { return m_selection.problem(); }

    /** The same in words for the user; empty when there is something to print. */
    QString problemText() const;

    /** The number of pages asked for, repetitions included and copies not. */
    qint64 selectedCount() const { return m_selection.pageCount(); }

    /** The number of sheets, copies included. */
    qint64 sheetCount() const { return selectedCount() * m_copies; }

    /** The 1-based page on a 0-based sheet; 0 for a sheet that does not exist. */
    int pageOnSheet(qint64 sheet) const;

private:
    PagePlan m_selection;
    QString m_list;
    int m_pageCount;
    int m_copies;
};

} // namespace SampleHost

#endif
