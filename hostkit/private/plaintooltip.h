// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_HOSTKIT_PLAINTOOLTIP_H
#define PRINTPANELS_HOSTKIT_PLAINTOOLTIP_H

#include <QtCore/QString>

class QHelpEvent;
class QPoint;
class QWidget;

namespace HostKit {

/**
 * Returns the text to pass to QToolTip so that it shows @p text as plain text, even if that looks
 * like rich text. A long line is wrapped, and a very long text truncated.
 */
QString plainToolTip(const QString& text);

/**
 * Handles the QEvent::ToolTip @p event of @p widget: shows its tool tip as plain text, or ignores
 * the event if there is none.
 */
void showPlainToolTip(QWidget* widget, QHelpEvent* event);

} // namespace HostKit

#endif
