// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "multipage/pagerange.h"

#include <printpanels/recordlist.h>

namespace PrintPanels {

PageRange listedPages(QStringView list, int currentPage, int pageCount)
{
    const std::optional<int> first = RecordList::firstPage(list, pageCount);
    if (!first)
        return {currentPage, currentPage};
    return {*first, *first == RecordList::noPage ? currentPage : pageCount};
}

} // namespace PrintPanels
