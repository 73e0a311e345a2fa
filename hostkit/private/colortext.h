// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_HOSTKIT_COLORTEXT_H
#define PRINTPANELS_HOSTKIT_COLORTEXT_H

#include <QtCore/QString>

class QColor;
class QPainter;
class QRectF;

namespace HostKit {

/** The text that stands for the entry for no colour. */
QString transparentText();

/** The text that stands for a place without anything in it. */
QString blankText();

/** True if QColor takes @p text for a colour, as it does transparentText(). */
bool isColorText(const QString& text);

/** Black or white, whichever stands out on @p color. */
QColor contrastColor(const QColor& color);

/**
 * Fills @p rect with the colour named by @p text: see-through colours on a chequered ground, and
 * transparentText() as that ground with a slash through it. Texts that name no colour paint
 * nothing.
 */
void fillWithColorText(QPainter* painter, const QRectF& rect, const QString& text);

} // namespace HostKit

#endif
