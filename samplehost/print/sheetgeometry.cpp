// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/print/sheetgeometry.h"

#include <algorithm>

namespace SampleHost {

namespace {

const QSizeF defaultLabelMm(100.0, 75.0);

} // namespace

SheetGeometry::SheetGeometry() : SheetGeometry(defaultLabelMm, NupLayout{}) {}

SheetGeometry::SheetGeometry(const QSizeF& labelMm, const NupLayout& layout, const QSizeF& paperMm)
    : m_label(labelMm.isEmpty() ? defaultLabelMm : labelMm), m_layout(layout.bounded())
{
    const bool single = m_layout.labelsPerPage() == 1;
    if (paperMm.isEmpty()) {
        sizeSheetToLabels(single);
    } else {
        fitLabelsOnPaper(single, paperMm);
    }
}

void SheetGeometry::sizeSheetToLabels(bool single)
{
    const qreal margin = single ? 0.0 : marginMm;
    m_origin = QPointF(margin, margin);
    m_step = m_label + QSizeF(gapMm, gapMm);
    m_sheet = QSizeF(2 * margin + m_layout.columns * m_step.width() - gapMm,
                     2 * margin + m_layout.rows * m_step.height() - gapMm);
}

void SheetGeometry::fitLabelsOnPaper(bool single, const QSizeF& paperMm)
{
    m_sheet = paperMm;
    // A single label may extend to the edges of the paper.
    const bool fillsPaper =
        single && m_label.width() <= paperMm.width() && m_label.height() <= paperMm.height();
    // On small paper the margins become smaller to leave room for the labels.
    const qreal shortest = std::min(paperMm.width(), paperMm.height());
    const qreal margin = fillsPaper ? 0.0 : std::min(marginMm, shortest / 10);
    const qreal gap = std::min(gapMm, shortest / 10 / NupLayout::maximumSide);
    const QSizeF usable(paperMm.width() - 2 * margin + gap, paperMm.height() - 2 * margin + gap);
    m_step = QSizeF(usable.width() / m_layout.columns, usable.height() / m_layout.rows);
    const QSizeF cell(m_step.width() - gap, m_step.height() - gap);
    const qreal scale =
        std::min({1.0, cell.width() / m_label.width(), cell.height() / m_label.height()});
    m_label *= scale;
    m_origin = QPointF(margin + (cell.width() - m_label.width()) / 2,
                       margin + (cell.height() - m_label.height()) / 2);
}

QRectF SheetGeometry::labelRectMm(int index) const
{
    if (index < 0 || index >= labelsPerPage()) {
        return {};
    }
    const int row = index / m_layout.columns;
    const int column = index % m_layout.columns;
    return QRectF(m_origin + QPointF(column * m_step.width(), row * m_step.height()), m_label);
}

} // namespace SampleHost
