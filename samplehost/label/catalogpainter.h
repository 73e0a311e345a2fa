// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_CATALOGPAINTER_H
#define SAMPLEHOST_CATALOGPAINTER_H

#include "samplehost/label/catalogitem.h"

#include <QtCore/QRectF>

QT_BEGIN_NAMESPACE
class QPainter;
QT_END_NAMESPACE

namespace SampleHost {

/**
 * Paints an item over all of target, which is in the painter's coordinates and stands for sizeMm
 * (millimetres). The item is laid out anew for each size: wide ones have the symbol beside the
 * text, high ones above it. The painter's state is restored. An empty target or size, or an
 * inactive painter, paints nothing.
 */
void paintCatalogItem(QPainter& painter, const QRectF& target, const CatalogItem& item,
                      const QSizeF& sizeMm);

} // namespace SampleHost

#endif
