// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/pages/labelview.h"

#include <QtGui/QPainter>

#include <utility>

namespace SampleHost {

namespace {

constexpr int deskMargin = 24;
constexpr int shadowDepth = 6;
constexpr int shadowAlpha = 8;

void paintShadow(QPainter& painter, const QRectF& paper)
{
    painter.save();
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, shadowAlpha));
    for (int step = 1; step <= shadowDepth; ++step) {
        painter.drawRoundedRect(paper.adjusted(-step, 2 - step, step, 2 + step), step, step);
    }
    painter.restore();
}

} // namespace

LabelView::LabelView(QWidget* parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void LabelView::setSheet(const QSizeF& sheetMm, Paint paint)
{
    m_sheetMm = sheetMm;
    m_paint = std::move(paint);
    update();
}

QRectF LabelView::paperRect() const
{
    const QSizeF room = QSizeF(size()) - QSizeF(2 * deskMargin, 2 * deskMargin);
    if (m_sheetMm.isEmpty() || room.isEmpty()) {
        return {};
    }
    QRectF paper(QPointF(), m_sheetMm.scaled(room, Qt::KeepAspectRatio));
    paper.moveCenter(QRectF(rect()).center());
    return paper;
}

QSize LabelView::sizeHint() const
{
    return {480, 400};
}

void LabelView::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    const QRectF paper = paperRect();
    if (paper.isEmpty() || !m_paint) {
        return;
    }
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    paintShadow(painter, paper);
    painter.fillRect(paper, Qt::white);
    m_paint(painter, paper);
}

} // namespace SampleHost
