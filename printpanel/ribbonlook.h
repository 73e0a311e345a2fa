// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_RIBBONLOOK_H
#define PRINTPANELS_RIBBONLOOK_H

#include <QtCore/QString>

namespace PrintPanels {

/** How a host writes "nothing loaded in this place". Compared exactly: "#FFFFFE" is a colour. */
QString nothingLoaded();

/** Tab text of the supply, a picture of the host's icon font. */
QString supplyTabText();

/** What the tab of a ribbon shows. */
struct RibbonLook
{
    QString color;   ///< for the tab's colour rectangle and the menu
    QString tabText; ///< a picture of the host's icon font
    QString toolTip;
};

/** Look of a ribbon with a colour. @p number is 1 or 2. */
RibbonLook loadedRibbon(int number, const QString& color);

/** Look of an empty ribbon place. @p number is 1 or 2. */
RibbonLook blankRibbon(int number);

/** Look of what a host reports: blank for nothingLoaded(), else loaded. */
RibbonLook reportedRibbon(int number, const QString& color);

} // namespace PrintPanels

#endif
