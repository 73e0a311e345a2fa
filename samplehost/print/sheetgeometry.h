// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_SHEETGEOMETRY_H
#define SAMPLEHOST_SHEETGEOMETRY_H

#include "samplehost/print/printrequest.h"

#include <QtCore/QRectF>
#include <QtCore/QSizeF>

namespace SampleHost {

/**
 * The places of the labels on a sheet, in millimetres from its top left corner.
 *
 * Without a paper size the sheet is as large as its labels: a single label fills it to the edge,
 * several have margins and gaps for cutting. On a given paper the labels keep their size if they
 * fit, and are scaled down otherwise; they are never scaled up.
 */
class SheetGeometry
{
public:
    /** The margin of a sheet, except of one that is a single label. */
    static constexpr qreal marginMm = 5.0;
    /** The gap between two labels. */
    static constexpr qreal gapMm = 3.0;

    /** A sheet that is a single label of 100 by 75 mm. */
    SheetGeometry();

    /**
     * Lays labels of labelMm out on paperMm, or on a sheet as large as its labels if paperMm is
     * empty. A label size that is empty counts as 100 by 75 mm.
     */
    SheetGeometry(const QSizeF& labelMm, const NupLayout& layout, const QSizeF& paperMm = QSizeF());

    /** The size of the sheet. */
    QSizeF sheetSizeMm() const { return m_sheet; }

    /** The number of labels on a full sheet. */
    int labelsPerPage() const { return m_layout.labelsPerPage(); }

    /**
     * The place of a label, 0-based in reading order (left to right, then down). Empty for an index
     * that is not on the sheet.
     */
    QRectF labelRectMm(int index) const;

private:
    void sizeSheetToLabels(bool single);
    void fitLabelsOnPaper(bool single, const QSizeF& paperMm);

    QSizeF m_label;
    NupLayout m_layout;
    QSizeF m_sheet;
    // The distance between the top left corners of two cells, and the corner of the first cell.
    QSizeF m_step;
    QPointF m_origin;
};

} // namespace SampleHost

#endif
