// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "printpanel/ribbontab.h"

#include <printpanels/printwidget.h>

namespace PrintPanels {

QString nothingLoaded()
{
    return QStringLiteral("#fffffe");
}

RibbonTab loadedRibbon(int number, const QString& color)
{
    return {color, QStringLiteral("!"),
            PrintWidget::tr("Ribbon%1", "Label for the ribbon color.").arg(number)};
}

RibbonTab blankRibbon(int number)
{
    return {QStringLiteral("blank"), QString(QChar(u'\xE92A')),
            PrintWidget::tr("Blank Ribbon%1", "Label for the ribbon color.").arg(number)};
}

RibbonTab reportedRibbon(int number, const QString& color)
{
    return color == nothingLoaded() ? blankRibbon(number) : loadedRibbon(number, color);
}

} // namespace PrintPanels
