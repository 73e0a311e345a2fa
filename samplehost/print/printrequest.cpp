// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/print/printrequest.h"

#include <QtCore/QtGlobal>

namespace SampleHost {

NupLayout NupLayout::bounded() const
{
    return {qBound(1, rows, maximumSide), qBound(1, columns, maximumSide)};
}

int NupLayout::labelsPerPage() const
{
    const NupLayout usable = bounded();
    return usable.rows * usable.columns;
}

QString NupLayout::text() const
{
    return QStringLiteral("%1x%2").arg(rows).arg(columns);
}

std::optional<NupLayout> NupLayout::fromText(QStringView text)
{
    const qsizetype cross = text.indexOf(QLatin1Char('x'), 0, Qt::CaseInsensitive);
    if (cross < 0) {
        return std::nullopt;
    }
    bool rowsRead = false;
    bool columnsRead = false;
    const uint rows = text.first(cross).toUInt(&rowsRead);
    const uint columns = text.sliced(cross + 1).toUInt(&columnsRead);
    const auto usable = [](uint side) { return side >= 1 && side <= uint(maximumSide); };
    if (!rowsRead || !columnsRead || !usable(rows) || !usable(columns)) {
        return std::nullopt;
    }
    return NupLayout{int(rows), int(columns)};
}

} // namespace SampleHost
