// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_PICTOGRAM_H
#define SAMPLEHOST_PICTOGRAM_H

#include <QtCore/QRectF>
#include <QtCore/QString>

QT_BEGIN_NAMESPACE
class QPainter;
QT_END_NAMESPACE

namespace SampleHost {

/** Whether there is a picture for a pictogram name; "GHS01" to "GHS09" have one. */
bool hasPictogram(const QString& name);

/**
 * Paints the named pictogram as large as fits into the middle of area. A name without a picture is
 * painted as a red diamond with the name in it, so that no hazard is omitted.
 */
void paintPictogram(QPainter& painter, const QRectF& area, const QString& name);

} // namespace SampleHost

#endif
