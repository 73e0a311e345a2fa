// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "expandingtabbar.h"

#include <QtWidgets/QStyleOptionTab>

void ExpandingTabBar::setTabColorRect(int index, const QString& color)
{
    QPixmap rectangle(iconSize());
    if (QColor::isValidColor(color))
        rectangle.fill(QColor(color));
    else
        rectangle.fill(Qt::transparent);
    setTabIcon(index, rectangle);
}

void ExpandingTabBar::initStyleOption(QStyleOptionTab* option, int tabIndex) const
{
    QTabBar::initStyleOption(option, tabIndex);
    // The text is a character of an icon font, which this kit does without.
    option->text = tabToolTip(tabIndex);
}
