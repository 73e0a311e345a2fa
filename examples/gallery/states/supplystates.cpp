// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "panelstate.h"
#include "readypanel.h"

#include <QtWidgets/QTabBar>

namespace Gallery {

namespace {

const QString black = QStringLiteral("#000000");
const QString red = QStringLiteral("#dc0b0b");
const QString yellow = QStringLiteral("#fedb00");
const QString nothingLoaded = QStringLiteral("#fffffe");

PrintWidget* createSupply(const QStringList& colors, bool twoRibbons)
{
    PrintWidget* panel = readyPipePanel();
    panel->showSupplyInfo(colors, twoRibbons, 2.25, 0, false);
    return panel;
}

QWidget* createTwoRibbons()
{
    return createSupply({black, red, yellow}, true);
}

QWidget* createOneRibbon()
{
    return createSupply({black, yellow}, false);
}

QWidget* createBlankRibbon()
{
    return createSupply({black, nothingLoaded, yellow}, true);
}

QWidget* createClearSupply()
{
    return createSupply({red, nothingLoaded}, false);
}

QWidget* createMetricLadder()
{
    PrintWidget* panel = readyPipePanel();
    panel->showSupplyInfo({black, yellow}, false, 57.0, 1, true);
    click(*panel, "tinyLadderCheck");
    return panel;
}

QWidget* createHostPalette()
{
    PrintWidget* panel = readyPipePanel();
    panel->setColorPalette({black, red}, {yellow, red, QStringLiteral("transparent")});
    panel->showSupplyInfo({red, yellow}, false, 2.25, 0, false);
    return panel;
}

QWidget* createSupplyWithAmmonia()
{
    PrintWidget* panel = createSupply({black, yellow}, false);
    panel->setVisibleAmmoniaTag(15);
    return panel;
}

// All that fits on one panel.
QWidget* createEverything()
{
    PrintWidget* panel = readyPanel(true);
    panel->setNupSeqRepVisible(true);
    panel->setShowUserBackground(true);
    panel->showSupplyInfo({black, red, yellow}, true, 2.25, 0, true);
    click(*panel, "allRecordsRadio");
    return panel;
}

void chooseTab(QWidget& panel, int index)
{
    if (auto* tabs = panel.findChild<QTabBar*>(QStringLiteral("colorTabBar")))
        tabs->setCurrentIndex(index);
}

void chooseSecondTab(QWidget& panel)
{
    chooseTab(panel, 1);
}

void chooseThirdTab(QWidget& panel)
{
    chooseTab(panel, 2);
}

void tabToTabs(QWidget& panel)
{
    tabTo(panel, "colorTabBar");
}

constexpr char panelClass[] = "PrintWidget";

} // namespace

QList<PanelState> supplyStates()
{
    return {
        {panelClass, "print-supply-two-ribbons", "Two ribbons",
         "showSupplyInfo() for a printer with two ribbons: the colours of the first ribbon.",
         createTwoRibbons},
        {panelClass, "print-supply-second-ribbon", "The second ribbon",
         "The user chose the second tab.", createTwoRibbons, chooseSecondTab},
        {panelClass, "print-supply-tape", "The tape", "The user chose the tab of the supply.",
         createTwoRibbons, chooseThirdTab},
        {panelClass, "print-supply-one-ribbon", "One ribbon",
         "A printer with one ribbon has two tabs.", createOneRibbon},
        {panelClass, "print-supply-blank", "A blank ribbon",
         "\"#fffffe\" as the second colour: no second ribbon is loaded.", createBlankRibbon,
         chooseSecondTab},
        {panelClass, "print-supply-clear", "A clear supply",
         "\"#fffffe\" as the last colour: the tape is clear.", createClearSupply, chooseSecondTab},
        {panelClass, "print-supply-metric", "Millimetres, and the ladder tube",
         "The width in millimetres, and the check box for the ladder tube.", createMetricLadder},
        {panelClass, "print-supply-palette", "The host's colours",
         "setColorPalette() replaces the colours on offer.", createHostPalette},
        {panelClass, "print-supply-focus", "Keyboard focus on the tabs",
         "The arrow keys choose a tab.", createTwoRibbons, tabToTabs},
        {panelClass, "print-supply-ammonia", "Loaded supply and ammonia tags",
         "The line below the tags is left out.", createSupplyWithAmmonia},
        {panelClass, "print-everything", "All sections",
         "All that a panel can show at once: a host puts it into a scroll area.", createEverything},
    };
}

} // namespace Gallery
