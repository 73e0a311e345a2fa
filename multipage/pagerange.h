// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_PAGERANGE_H
#define PRINTPANELS_PAGERANGE_H

#include <QtCore/QStringView>

namespace PrintPanels {

/** The pages that a choice stands for, 1-based and inclusive. */
struct PageRange
{
    int start;
    int end;
};

/**
 * The pages that a typed list stands for in the preview: from the first page in the list that
 * exists to the last page of the document. An empty list stands for the current page. A list that
 * names no existing page starts at RecordList::noPage and ends at the current page.
 */
PageRange listedPages(QStringView list, int currentPage, int pageCount);

} // namespace PrintPanels

#endif
