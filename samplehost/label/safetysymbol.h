// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_SAFETYSYMBOL_H
#define SAMPLEHOST_SAFETYSYMBOL_H

#include "samplehost/label/catalogitem.h"

#include <QtCore/QRectF>

QT_BEGIN_NAMESPACE
class QPainter;
QT_END_NAMESPACE

namespace SampleHost {

/**
 * Paints the symbol of an item as large as fits into the middle of area. Symbols without their own
 * colours are painted in the item's legend colour. Restores the painter's state.
 */
void paintSafetySymbol(QPainter& painter, const QRectF& area, const CatalogItem& item);

} // namespace SampleHost

#endif
