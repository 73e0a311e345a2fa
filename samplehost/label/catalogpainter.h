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
 * Paints an item that fills target, which is in the painter's coordinates and represents sizeMm
 * (millimetres). The symbol of a wide item is beside the text, that of a high one above it.
 * Restores the painter's state. Paints nothing if target or size is empty or the painter is
 * inactive.
 */
void paintCatalogItem(QPainter& painter, const QRectF& target, const CatalogItem& item,
                      const QSizeF& sizeMm);

} // namespace SampleHost

#endif
