// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_SVGPICTURE_H
#define SAMPLEHOST_SVGPICTURE_H

#include <QtCore/QRectF>
#include <QtCore/QString>
#include <QtGui/QColor>

QT_BEGIN_NAMESPACE
class QPainter;
QT_END_NAMESPACE

namespace SampleHost {

/** The largest square in the middle of area. */
QRectF squareIn(const QRectF& area);

/**
 * Paints an SVG file, a resource of this library, as large as fits into the middle of area. The
 * colour "currentColor" in the file is replaced by color.
 */
void paintSvgPicture(QPainter& painter, const QRectF& area, const QString& file,
                     const QColor& color = Qt::black);

} // namespace SampleHost

#endif
