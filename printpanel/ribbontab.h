// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_RIBBONTAB_H
#define PRINTPANELS_RIBBONTAB_H

#include <QtCore/QString>

namespace PrintPanels {

/** How a host writes "nothing loaded in this place". Compared exactly: "#FFFFFE" is a colour. */
QString nothingLoaded();

/** What the tab of a ribbon shows. */
struct RibbonTab
{
    QString color; ///< for the tab's colour rectangle and the menu
    QString text;  ///< a glyph of the host's icon font
    QString toolTip;
};

/** The tab of a ribbon with a colour. @p number is 1 or 2. */
RibbonTab loadedRibbon(int number, const QString& color);

/** The tab of an empty ribbon place. @p number is 1 or 2. */
RibbonTab blankRibbon(int number);

/** The tab of what a host reports: blank for nothingLoaded(), else loaded. */
RibbonTab reportedRibbon(int number, const QString& color);

} // namespace PrintPanels

#endif
