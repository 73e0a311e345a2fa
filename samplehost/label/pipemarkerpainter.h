// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_PIPEMARKERPAINTER_H
#define SAMPLEHOST_PIPEMARKERPAINTER_H

#include "samplehost/label/pipemarker.h"

#include <QtCore/QRectF>
#include <QtCore/QSizeF>
#include <QtGui/QImage>

QT_BEGIN_NAMESPACE
class QPainter;
QT_END_NAMESPACE

namespace SampleHost {

/** Height of the legend's letters in millimetres for a pipe of the given outside diameter. */
qreal pipeLegendHeightMm(qreal diameterMm);

/** Whether a marker has an item: the whole label always, a tag if the marker's mask names it. */
bool hasPipeItem(const PipeMarker& marker, int item);

/** Size in millimetres of a marker or of one of its tags; empty for an item that it does not have.
 */
QSizeF pipeMarkerSizeMm(const PipeMarker& marker, int item = PipeItem::Label);

/**
 * Paints a marker, or the one tag that item names, scaled to fit the middle of target, which is in
 * the painter's coordinates. The whole marker of an ammonia line shows its state, abbreviation,
 * content and pressure beside each other, with the direction of flow. The painter's state is
 * restored. An item that the marker does not have, an empty target or an inactive painter paints
 * nothing.
 */
void paintPipeMarker(QPainter& painter, const QRectF& target, const PipeMarker& marker,
                     int item = PipeItem::Label);

/**
 * The marker or tag as a picture of the given size in pixels, on white. A size that is empty, or
 * too large for the memory, gives a null image.
 */
QImage renderPipeMarker(const PipeMarker& marker, int item, const QSize& pixels);

} // namespace SampleHost

#endif
