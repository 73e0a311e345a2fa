// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_SHEETLAYOUT_H
#define SAMPLEHOST_SHEETLAYOUT_H

#include "samplehost/pdf/sheets/pagebox.h"

#include <QtCore/QMarginsF>
#include <QtGui/QTransform>

namespace SampleHost {

/** What decides where a page of a document lies on its sheet. Sizes are in points (1/72 inch). */
struct SheetOptions
{
    /** The paper in either orientation; empty for sheets as large as their pages. */
    QSizeF paper;
    /** The strips along the edges of the sheet, in its orientation, that the printer cannot reach.
     */
    QMarginsF unprintable;
    /** Scales the page evenly, up or down, to fill the printable area one way at least. */
    bool fitToPage = false;
    /** Turns the page by 180 degrees where it stands. */
    bool rotated180 = false;
};

/**
 * Where a page lies on its sheet.
 *
 * The paper is turned so that page and paper are both portrait or both landscape. A page that is
 * fitted is centred in the printable area; otherwise it keeps its size and is centred on the sheet,
 * and what reaches beyond the edges is lost evenly on both sides.
 */
class SheetLayout
{
public:
    SheetLayout(const PageBox& page, const SheetOptions& options);

    /** Whether the paper has to be turned by 90 degrees. */
    static bool turnsPaper(const PageBox& page, const QSizeF& paper);

    /** The size of the sheet in points. */
    QSizeF sheetSize() const { return m_sheet; }

    /** The place of the page in points from the top left corner of the sheet, y pointing down. */
    QRectF pageRect() const { return m_rect; }

    /** From the page's own coordinates to points from the sheet's lower left corner, y up. */
    QTransform pageToSheet() const { return m_transform; }

private:
    QSizeF m_sheet;
    QRectF m_rect;
    QTransform m_transform;
};

} // namespace SampleHost

#endif
