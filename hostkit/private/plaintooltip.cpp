// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "plaintooltip.h"

#include <QtGui/QHelpEvent>
#include <QtGui/QTextDocument>
#include <QtWidgets/QToolTip>
#include <QtWidgets/QWidget>

namespace {

// Qt makes a tool tip as long as its text, breaks only rich text into lines, and cannot paint what
// is many times as wide as a screen.
constexpr int longestText = 2000;
constexpr int longestLine = 120;

} // namespace

QString HostKit::plainToolTip(const QString& text)
{
    const bool isEndless = text.size() > longestText;
    const QString shown = isEndless ? text.left(longestText) + QChar(0x2026) : text;
    const bool isLong = shown.size() > longestLine && !shown.contains(u'\n');
    return isLong || isEndless || Qt::mightBeRichText(shown)
               ? Qt::convertFromPlainText(shown, Qt::WhiteSpaceNormal)
               : shown;
}

void HostKit::showPlainToolTip(QWidget* widget, QHelpEvent* event)
{
    const QString text = widget->toolTip();
    if (text.isEmpty()) {
        event->ignore();
        return;
    }
    QToolTip::showText(event->globalPos(), plainToolTip(text), widget, QRect(),
                       widget->toolTipDuration());
}
