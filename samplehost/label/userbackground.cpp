// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/label/userbackground.h"

#include "samplehost/label/labelfont.h"

#include <QtCore/QtMath>
#include <QtGui/QPainter>
#include <QtGui/QPainterPath>

#include <cmath>

namespace SampleHost {

namespace {

const QColor paleOrange(0xff, 0xef, 0xdf);

// The company's name around the origin, as wide as width.
QPainterPath companyName(qreal width)
{
    QFont font = labelFont();
    font.setBold(true);
    font.setPixelSize(200);
    QPainterPath text;
    text.addText(QPointF(), font, QStringLiteral("YOUR COMPANY"));
    const QRectF bounds = text.boundingRect();
    if (bounds.isEmpty()) {
        return {};
    }
    const qreal scale = width / bounds.width();
    const QPointF center = bounds.center();
    return QTransform::fromScale(scale, scale).map(text.translated(-center));
}

} // namespace

void paintUserBackground(QPainter& painter, const QRectF& area)
{
    if (area.isEmpty()) {
        return;
    }
    painter.save();
    painter.setClipRect(area, Qt::IntersectClip);
    painter.translate(area.center());
    painter.rotate(-qRadiansToDegrees(std::atan2(area.height(), area.width())));
    const qreal diagonal = std::hypot(area.width(), area.height());
    const QPainterPath name = companyName(diagonal * 0.68);
    const qreal band = name.boundingRect().height();
    painter.fillPath(name, paleOrange);
    for (const qreal side : {-1.0, 1.0}) {
        const QRectF stripe(-diagonal / 2, side * band * 1.1 - band * 0.08, diagonal, band * 0.16);
        painter.fillRect(stripe, paleOrange);
    }
    painter.restore();
}

} // namespace SampleHost
