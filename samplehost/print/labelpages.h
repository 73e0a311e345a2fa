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
 * Paints the labels of one page where the sheet has them, on a painter whose coordinates are
 * dotsPerMm to the millimetre. False with the reason in problem as soon as a label fails.
 */
bool paintPage(QPainter& painter, qreal dotsPerMm, const SheetGeometry& sheet,
               const QList<int>& records, const LabelPainter& paintLabel, QString& problem);

/** The sheets of labels that a page plan asks for. */
class LabelPages : public PageSource
{
public:
    /** Without a paintLabel there is no page. */
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
