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
 * What a typed page list stands for while the document is shown: from the first page that it names
 * and that exists to the last page of the document. An empty list stands for the current page; a
 * list that names no existing page has the start RecordList::noPage and ends at the current page.
 */
PageRange listedPages(QStringView list, int currentPage, int pageCount);

} // namespace PrintPanels

#endif
