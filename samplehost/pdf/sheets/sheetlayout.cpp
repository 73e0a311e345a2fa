// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/pdf/sheets/sheetlayout.h"

#include <algorithm>

namespace SampleHost {

namespace {

QSizeF sheetFor(const PageBox& page, const QSizeF& paper)
{
    if (paper.isEmpty()) {
        return page.shownSize();
    }
    return SheetLayout::turnsPaper(page, paper) ? paper.transposed() : paper;
}

QRectF printableArea(const QSizeF& sheet, const QMarginsF& unprintable)
{
    const QRectF whole(QPointF(), sheet);
    const QRectF area = whole.marginsRemoved(unprintable);
    return area.isEmpty() ? whole : area;
}

QRectF place(const QSizeF& page, const QSizeF& sheet, const SheetOptions& options)
{
    const QRectF area =
        options.fitToPage ? printableArea(sheet, options.unprintable) : QRectF(QPointF(), sheet);
    QRectF rect(QPointF(),
                options.fitToPage ? page.scaled(area.size(), Qt::KeepAspectRatio) : page);
    rect.moveCenter(area.center());
    return rect;
}

/** From the page's own coordinates to its shown size in units, its lower left corner at 0, 0. */
QTransform shown(const PageBox& page)
{
    const qreal width = page.visible.width();
    const qreal height = page.visible.height();
    const QTransform atOrigin =
        QTransform::fromTranslate(-page.visible.left(), -page.visible.top());
    switch (page.turns) {
    case 1:
        return atOrigin * QTransform(0, -1, 1, 0, 0, width);
    case 2:
        return atOrigin * QTransform(-1, 0, 0, -1, width, height);
    case 3:
        return atOrigin * QTransform(0, 1, -1, 0, height, 0);
    default:
        return atOrigin;
    }
}

} // namespace

bool SheetLayout::turnsPaper(const PageBox& page, const QSizeF& paper)
{
    const QSizeF size = page.shownSize();
    return (size.width() < size.height() && paper.width() > paper.height()) ||
           (size.width() > size.height() && paper.width() < paper.height());
}

SheetLayout::SheetLayout(const PageBox& page, const SheetOptions& options)
    : m_sheet(sheetFor(page, options.paper)), m_rect(place(page.shownSize(), m_sheet, options))
{
    const qreal scale = page.unit * m_rect.width() / page.shownSize().width();
    m_transform = shown(page) * QTransform::fromScale(scale, scale);
    if (options.rotated180) {
        m_transform *= QTransform(-1, 0, 0, -1, m_rect.width(), m_rect.height());
    }
    m_transform *= QTransform::fromTranslate(m_rect.left(), m_sheet.height() - m_rect.bottom());
}

} // namespace SampleHost
