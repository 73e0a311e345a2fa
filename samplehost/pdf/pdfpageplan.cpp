// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/pdf/pdfpageplan.h"

#include "samplehost/print/listproblem.h"

#include <algorithm>

namespace SampleHost {

namespace {

// A document is collated, so copies are counted here; the selection is planned for one of them.
PagePlan selectionOf(const PdfPrintRequest& request, int pageCount)
{
    PrintRequest selection;
    selection.sequenceStart = request.startPage;
    selection.sequenceEnd = request.endPage;
    selection.customRecordsList = request.pageList;
    return PagePlan::make(selection, pageCount);
}

} // namespace

PdfPagePlan::PdfPagePlan(const PdfPrintRequest& request, int pageCount)
    : m_selection(selectionOf(request, pageCount)),
      m_list(request.pageList),
      m_pageCount(std::max(0, pageCount)),
      m_copies(std::max(1, request.copies))
{
}

QString PdfPagePlan::problemText() const
{
    if (problem() == PagePlan::Problem::None) {
        return QString();
    }
    return m_list.isEmpty() ? tr("There is no such page. Nothing is printed.")
                            : listProblem(m_list, m_pageCount, ListItems::Pages);
}

int PdfPagePlan::pageOnSheet(qint64 sheet) const
{
    if (sheet < 0 || sheet >= sheetCount()) {
        return 0;
    }
    return m_selection.recordsOnPage(sheet % selectedCount()).constFirst();
}

} // namespace SampleHost
