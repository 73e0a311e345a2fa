// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_SHEETGEOMETRY_H
#define SAMPLEHOST_SHEETGEOMETRY_H

#include "samplehost/print/printrequest.h"

#include <QtCore/QRectF>
#include <QtCore/QSizeF>

namespace SampleHost {

/**
 * Where the labels lie on a sheet, in millimetres from its top left corner.
 *
 * Without a paper size the sheet is as large as its labels: a single label fills it to the edge,
 * several keep a margin and a gap for cutting. On a given paper the labels keep their size if they
 * fit, and shrink evenly otherwise; they never grow.
 */
class SheetGeometry
{
public:
    /** Free strip along the edges of a sheet that is not one bare label. */
    static constexpr qreal marginMm = 5.0;
    /** Free strip between two labels. */
    static constexpr qreal gapMm = 3.0;

    /** A sheet of one bare label of 100 by 75 mm. */
    SheetGeometry();

    /**
     * Lays labels of labelMm out on paperMm; an empty paperMm lets the labels decide. A label size
     * that is empty counts as 100 by 75 mm.
     */
    SheetGeometry(const QSizeF& labelMm, const NupLayout& layout, const QSizeF& paperMm = QSizeF());

    /** The size of the sheet. */
    QSizeF sheetSizeMm() const { return m_sheet; }

    /** The number of labels on a full sheet. */
    int labelsPerPage() const { return m_layout.labelsPerPage(); }

    /**
     * The place of a label, 0-based in reading order (left to right, then down). An index that is
     * not on the sheet gives an empty rectangle.
     */
    QRectF labelRectMm(int index) const;

private:
    void sizeSheetToLabels(bool bare);
    void fitLabelsOnPaper(bool bare, const QSizeF& paperMm);

    QSizeF m_label;
    NupLayout m_layout;
    QSizeF m_sheet;
    // Distance between the top left corners of two cells, and the corner of the first one.
    QSizeF m_step;
    QPointF m_origin;
};

} // namespace SampleHost

#endif
