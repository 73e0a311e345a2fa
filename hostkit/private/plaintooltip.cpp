// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "plaintooltip.h"

#include <QtGui/QHelpEvent>
#include <QtGui/QTextDocument>
#include <QtWidgets/QToolTip>
#include <QtWidgets/QWidget>

namespace {

// QToolTip wraps rich text only and does not limit its size, and Qt cannot paint a tool tip that is
// many times as wide as a screen.
constexpr int maxTextLength = 2000;
constexpr int maxLineLength = 120;

} // namespace

QString HostKit::plainToolTip(const QString& text)
{
    const bool isTruncated = text.size() > maxTextLength;
    const QString shown = isTruncated ? text.left(maxTextLength) + QChar(0x2026) : text;
    const bool isLong = shown.size() > maxLineLength && !shown.contains(u'\n');
    return isLong || isTruncated || Qt::mightBeRichText(shown)
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
