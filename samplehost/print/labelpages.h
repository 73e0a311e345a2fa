// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_LABELPAGES_H
#define SAMPLEHOST_LABELPAGES_H

#include "samplehost/print/pageplan.h"
#include "samplehost/print/paintedwork.h"
#include "samplehost/print/sheetgeometry.h"

#include <functional>

namespace SampleHost {

/**
 * Paints the label of one 1-based record into area, a rectangle in the painter's coordinates.
 * Returns false with the reason in problem when the record cannot be painted; the job then fails.
 */
using LabelPainter =
    std::function<bool(QPainter& painter, const QRectF& area, int record, QString& problem)>;

/**
 * Paints the labels of one page at their places on the sheet, with a painter whose coordinates are
 * dotsPerMm to the millimetre. Stops at a label that fails: false with the reason in problem.
 */
bool paintPage(QPainter& painter, qreal dotsPerMm, const SheetGeometry& sheet,
               const QList<int>& records, const LabelPainter& paintLabel, QString& problem);

/** The sheets of labels of a page plan. */
class LabelPages : public PageSource
{
public:
    /** There are no pages if paintLabel is null. */
    LabelPages(const PagePlan& plan, const SheetGeometry& sheet, LabelPainter paintLabel);

    qint64 pageCount() const override;
    QSizeF sheetSizeMm() const override;
    bool paint(QPainter& painter, QPagedPaintDevice& device, qint64 page,
               QString& problem) override;

private:
    PagePlan m_plan;
    SheetGeometry m_sheet;
    LabelPainter m_paintLabel;
};

} // namespace SampleHost

#endif
