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
 * The text to hand to QToolTip so that @p text is shown letter for letter, where QToolTip would
 * take some texts for markup. What nobody would read to its end is broken into lines and cut off.
 */
QString plainToolTip(const QString& text);

/** Shows @p widget's own tool tip as plain text; what QEvent::ToolTip asks for. */
void showPlainToolTip(QWidget* widget, QHelpEvent* event);

} // namespace HostKit

#endif
