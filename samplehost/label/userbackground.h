// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_USERBACKGROUND_H
#define SAMPLEHOST_USERBACKGROUND_H

#include <QtCore/QRectF>

QT_BEGIN_NAMESPACE
class QPainter;
QT_END_NAMESPACE

namespace SampleHost {

/**
 * Paints a user's background layer, a pale company watermark from corner to corner of area. It is
 * painted as shapes, so that it is not part of the label's text in a PDF file.
 */
void paintUserBackground(QPainter& painter, const QRectF& area);

} // namespace SampleHost

#endif
