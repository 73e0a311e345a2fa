// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/label/svgpicture.h"

#include <QtCore/QFile>
#include <QtSvg/QSvgRenderer>

namespace SampleHost {

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
