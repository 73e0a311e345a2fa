// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

// For a Qt without Qt Svg: the resources hold the shapes of the pictures, which a tool took from
// them when this host was built.

#include "samplehost/label/svgpicture.h"

#include "samplehost/label/shapes/svgshapes.h"

#include <QtCore/QFile>
#include <QtGui/QPainter>

#include <algorithm>

namespace SampleHost {

void paintSvgPicture(QPainter& painter, const QRectF& area, const QString& file,
                     const QColor& color)
{
    QFile resource(file);
    if (area.isEmpty() || !resource.open(QIODevice::ReadOnly)) {
        return;
    }
    QDataStream stream(&resource);
    stream.setVersion(shapesVersion);
    QSizeF size;
    QList<Shape> shapes;
    stream >> size >> shapes;
    if (size.isEmpty()) {
        return;
    }
    const qreal scale = std::min(area.width() / size.width(), area.height() / size.height());
    painter.save();
    painter.translate(area.center());
    painter.scale(scale, scale);
    painter.translate(-size.width() / 2, -size.height() / 2);
    painter.setRenderHint(QPainter::Antialiasing);
    for (const Shape& shape : std::as_const(shapes)) {
        painter.fillPath(shape.path, shape.color == currentColor ? color : shape.color);
    }
    painter.restore();
}

} // namespace SampleHost
