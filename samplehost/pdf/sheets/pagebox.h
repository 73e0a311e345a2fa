// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_PAGEBOX_H
#define SAMPLEHOST_PAGEBOX_H

#include <QtCore/QRectF>
#include <QtCore/QSizeF>

namespace SampleHost {

/** The visible part of a PDF page in the page's own coordinates, and how viewers show it. */
struct PageBox
{
    /** The visible rectangle; the y axis points up, so its top() is the lower edge. Never empty. */
    QRectF visible = QRectF(0, 0, 612, 792);
    /** Quarter turns clockwise when shown: 0 to 3. */
    int turns = 0;
    /** The size of a unit of the coordinates in points (1/72 inch). */
    qreal unit = 1;

    /** The size of the page as it is shown, in points. */
    QSizeF shownSize() const
    {
        const QSizeF size = visible.size() * unit;
        return turns % 2 == 0 ? size : size.transposed();
    }
};

} // namespace SampleHost

#endif
