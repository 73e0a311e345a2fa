// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/print/labelpages.h"

#include <QtGui/QPagedPaintDevice>

#include <utility>

namespace SampleHost {

namespace {

constexpr qreal millimetersPerInch = 25.4;

QRectF scaled(const QRectF& rect, qreal factor)
{
    return QRectF(rect.topLeft() * factor, rect.size() * factor);
}

} // namespace

bool paintPage(QPainter& painter, qreal dotsPerMm, const SheetGeometry& sheet,
               const QList<int>& records, const LabelPainter& paintLabel, QString& problem)
{
    for (int place = 0; place < records.size(); ++place) {
        painter.save();
        const QRectF area = scaled(sheet.labelRectMm(place), dotsPerMm);
        const bool painted = paintLabel(painter, area, records.at(place), problem);
        painter.restore();
        if (!painted) {
            return false;
        }
    }
    return true;
}

LabelPages::LabelPages(const PagePlan& plan, const SheetGeometry& sheet, LabelPainter paintLabel)
    : m_plan(plan), m_sheet(sheet), m_paintLabel(std::move(paintLabel))
{
}

qint64 LabelPages::pageCount() const
{
    return m_paintLabel ? m_plan.pageCount() : 0;
}

QSizeF LabelPages::sheetSizeMm() const
{
    return m_sheet.sheetSizeMm();
}

bool LabelPages::paint(QPainter& painter, QPagedPaintDevice& device, qint64 page, QString& problem)
{
    const qreal dotsPerMm = device.logicalDpiX() / millimetersPerInch;
    return paintPage(painter, dotsPerMm, m_sheet, m_plan.recordsOnPage(page), m_paintLabel,
                     problem);
}

} // namespace SampleHost
