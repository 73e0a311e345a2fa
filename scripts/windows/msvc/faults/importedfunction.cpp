// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

// Expected: dllimport

#include <printpanels/recordlist.h>

const QRegularExpression& RecordList::expression()
{
    static const QRegularExpression anything;
    return anything;
}
