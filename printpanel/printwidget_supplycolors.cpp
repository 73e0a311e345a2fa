// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

// ---- Supply and ribbon colours: the menus behind the tabs ----

#include <printpanels/printwidget.h>

#include "foundation/hostkit.h"
#include "printpanel/ribbonlook.h"

#include <printpanels/sharedconstants.h>

#include <QtWidgets/QStackedWidget>

using namespace PrintPanels;

namespace {

constexpr int ribbonPaletteSize = 9;
constexpr int supplyPaletteSize = 11;

/** The first supply colours and the see-through entry: what a menu offers before the host says
 * more. */
QStringList defaultPalette(int size)
{
    return SharedConstants::supplyColorCodes.mid(0, size) << SharedConstants::transparentName;
}

ColorMenu* createMenu(const QString& name, const QStringList& palette)
{
    auto* menu = new ColorMenu(nullptr);
    menu->setObjectName(name);
    menu->setColorPalette(palette, QStringList());
    menu->setTransparentColorVisible(true);
    return menu;
}

} // namespace

void PrintWidget::createColorMenus()
{
    ribbon1Menu = createMenu(QStringLiteral("ribbon1Menu"), defaultPalette(ribbonPaletteSize));
    ribbon2Menu = createMenu(QStringLiteral("ribbon2Menu"), defaultPalette(ribbonPaletteSize));
    supplyMenu = createMenu(QStringLiteral("supplyMenu"), defaultPalette(supplyPaletteSize));
    if (keptPalettes) {
        applyPalettes(keptPalettes->first, keptPalettes->second);
        keptPalettes.reset();
    }
    supplyTabIndex = 2;
    hasSecondRibbon = true;
}

void PrintWidget::addColorMenus()
{
    ribbon1Color = QStringLiteral("#000000");
    ribbon2Color = QStringLiteral("#000000");
    supplyColor = QStringLiteral("#ffffff");
    const RibbonLook first = loadedRibbon(1, ribbon1Color);
    const RibbonLook second = loadedRibbon(2, ribbon2Color);
    addMenuToStack(0, first.color, first.tabText, first.toolTip, ribbon1Menu);
    addMenuToStack(1, second.color, second.tabText, second.toolTip, ribbon2Menu);
    addMenuToStack(2, supplyColor, supplyTabText(), tr("Supply", "Label for the supply color."),
                   supplyMenu);
}

void PrintWidget::setColorPalette(const QStringList& ribbonColors, const QStringList& supplyColors)
{
    if (supplyLayoutPending)
        keptPalettes.emplace(ribbonColors, supplyColors);
    else
        applyPalettes(ribbonColors, supplyColors);
}

// The menus take codes as their first list, and never a second one.
void PrintWidget::applyPalettes(const QStringList& ribbonColors, const QStringList& supplyColors)
{
    ribbon1Menu->setColorPalette(ribbonColors, QStringList());
    ribbon2Menu->setColorPalette(ribbonColors, QStringList());
    supplyMenu->setColorPalette(supplyColors, QStringList());
}

void PrintWidget::addMenuToStack(int index, const QString& color, const QString& tabText,
                                 const QString& toolTip, ColorMenu* menu)
{
    if (menu == nullptr || supplyLayoutPending)
        return;
    menu->updateSelectedColor(color);
    colorTabBar->insertTab(index, tabText);
    colorTabBar->setTabColorRect(index, color);
    colorTabBar->setTabToolTip(index, toolTip);
    colorStack->insertWidget(index, menu);
}

void PrintWidget::updateColorSelection(int index, const QString& color, ColorMenu* menu)
{
    if (menu == nullptr || supplyLayoutPending)
        return;
    menu->updateSelectedColor(color);
    colorTabBar->setTabColorRect(index, color);
}

void PrintWidget::labelRibbonTab(int tabIndex, const RibbonLook& look)
{
    colorTabBar->setTabText(tabIndex, look.tabText);
    colorTabBar->setTabToolTip(tabIndex, look.toolTip);
}

void PrintWidget::refreshRibbonTab(int tabIndex, const RibbonLook& look, ColorMenu* menu)
{
    labelRibbonTab(tabIndex, look);
    updateColorSelection(tabIndex, look.color, menu);
}

void PrintWidget::ribbon1ColorSelectionSlot(const QString& color)
{
    if (!supplyLayoutPending)
        selectRibbonColor(0, color, ribbon1Color);
}

void PrintWidget::ribbon2ColorSelectionSlot(const QString& color)
{
    if (!supplyLayoutPending && hasSecondRibbon)
        selectRibbonColor(1, color, ribbon2Color);
}

// Compares before mapping, unlike the supply: taking "transparent" again for a ribbon that is
// already blank redraws it and tells the host once more.
void PrintWidget::selectRibbonColor(int tabIndex, const QString& color, QString& stored)
{
    if (color == stored)
        return;
    const bool blank = color == SharedConstants::transparentName;
    stored = blank ? nothingLoaded() : color;
    const RibbonLook look = blank ? blankRibbon(tabIndex + 1) : loadedRibbon(tabIndex + 1, color);
    labelRibbonTab(tabIndex, look);
    colorTabBar->setTabColorRect(tabIndex, look.color);
    reportSupplyColors();
}

void PrintWidget::supplyColorSelectionSlot(const QString& color)
{
    const QString value = color == SharedConstants::transparentName ? nothingLoaded() : color;
    if (supplyLayoutPending || value == supplyColor)
        return;
    supplyColor = value;
    // The tab shows what the menu named: "transparent", not the off-white that is stored.
    colorTabBar->setTabColorRect(supplyTabIndex, color);
    reportSupplyColors();
}

void PrintWidget::reportSupplyColors()
{
    Q_EMIT supplyColorsChangedSignal({ribbon1Color, ribbon2Color, supplyColor});
}
