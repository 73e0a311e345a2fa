// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_HOSTKIT_COLORTEXT_H
#define PRINTPANELS_HOSTKIT_COLORTEXT_H

#include <QtCore/QString>

class QColor;
class QPainter;
class QRectF;

namespace HostKit {

/** Returns the text for no colour. */
QString transparentText();

/** Returns the text for an empty place, which is shown as an outline. */
QString blankText();

/** Returns true if QColor accepts @p text as a colour, which includes transparentText(). */
bool isColorText(const QString& text);

/** Returns black or white, whichever contrasts better with @p color. */
QColor contrastColor(const QColor& color);

/**
 * Fills @p rect with the colour @p text. Translucent colours are painted on a chequered background,
 * transparentText() as that background with a line through it. Paints nothing if @p text is not a
 * colour.
 */
void fillWithColorText(QPainter* painter, const QRectF& rect, const QString& text);

} // namespace HostKit

#endif
