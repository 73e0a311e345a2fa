// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "printpanel/ribbonlook.h"

#include <printpanels/printwidget.h>

namespace PrintPanels {

QString nothingLoaded()
{
    return QStringLiteral("#fffffe");
}

QString supplyTabText()
{
    return QString(QChar(u'\xE917'));
}

RibbonLook loadedRibbon(int number, const QString& color)
{
    return {color, QStringLiteral("!"),
            PrintWidget::tr("Ribbon%1", "Label for the ribbon color.").arg(number)};
}

RibbonLook blankRibbon(int number)
{
    return {QStringLiteral("blank"), QString(QChar(u'\xE92A')),
            PrintWidget::tr("Blank Ribbon%1", "Label for the ribbon color.").arg(number)};
}

RibbonLook reportedRibbon(int number, const QString& color)
{
    return color == nothingLoaded() ? blankRibbon(number) : loadedRibbon(number, color);
}

} // namespace PrintPanels
