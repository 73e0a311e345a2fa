// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/label/svgpicture.h"

#include <QtCore/QFile>
#include <QtSvg/QSvgRenderer>

#include <algorithm>

namespace SampleHost {

QRectF squareIn(const QRectF& area)
{
    const qreal side = std::min(area.width(), area.height());
    QRectF square(0, 0, side, side);
    square.moveCenter(area.center());
    return square;
}

void paintSvgPicture(QPainter& painter, const QRectF& area, const QString& file,
                     const QColor& color)
{
    QFile svg(file);
    if (area.isEmpty() || !svg.open(QIODevice::ReadOnly)) {
        return;
    }
    QSvgRenderer picture(svg.readAll().replace("currentColor", color.name().toLatin1()));
    picture.setAspectRatioMode(Qt::KeepAspectRatio);
    picture.render(&painter, area);
}

} // namespace SampleHost
