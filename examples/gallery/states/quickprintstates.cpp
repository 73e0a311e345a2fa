// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "panelstate.h"
#include "samplepictures.h"

#include <printpanels/quickprintwidget.h>

namespace Gallery {

namespace {

QuickPrintWidget* createPanel(JxModuleInfo::JxModuleTypes module)
{
    auto* panel = new QuickPrintWidget(true, nullptr);
    panel->setModule(module);
    panel->setCurrentPrinterName(QStringLiteral("Label printer"));
    panel->setCanvasSize(QSizeF(10.0, 7.0));
    panel->updateQuickPrint(sampleLabel(QSize(400, 280)));
    panel->enableAllButtons();
    return panel;
}

QWidget* createFresh()
{
    return new QuickPrintWidget(true, nullptr);
}

QWidget* createFixedSize()
{
    return createPanel(JxModuleInfo::QuickPrint);
}

QWidget* createWithResize()
{
    return createPanel(JxModuleInfo::JxCatalog);
}

QWidget* createPortrait()
{
    QuickPrintWidget* panel = createPanel(JxModuleInfo::QuickPrint);
    panel->updateQuickPrint(sampleLabel(QSize(280, 400)));
    return panel;
}

QWidget* createDisabled()
{
    QuickPrintWidget* panel = createPanel(JxModuleInfo::JxCatalog);
    panel->disableAllButtons();
    return panel;
}

QWidget* createLongName()
{
    QuickPrintWidget* panel = createPanel(JxModuleInfo::JxCatalog);
    panel->setCurrentPrinterName(
        QStringLiteral("Label printer on the second floor, next to the paint shop, on the left"));
    return panel;
}

QWidget* createMostCopies()
{
    QuickPrintWidget* panel = createPanel(JxModuleInfo::JxCatalog);
    panel->setNumberOfCopies(999);
    return panel;
}

void tabToLength(QWidget& panel)
{
    tabTo(panel, "lengthEdit");
}

constexpr char panelClass[] = "QuickPrintWidget";

} // namespace

QList<PanelState> quickPrintStates()
{
    return {
        {panelClass, "quick-fresh", "Fresh",
         "As constructed: no label, no printer, and Print is disabled.", createFresh},
        {panelClass, "quick-fixed", "Without a resize frame",
         "A module with labels of a fixed size, such as QuickPrint.", createFixedSize},
        {panelClass, "quick-resize", "With a resize frame",
         "JxCatalog and JavaScript: the user may change the size.", createWithResize},
        {panelClass, "quick-portrait", "A portrait label", "The label is fitted and centred.",
         createPortrait},
        {panelClass, "quick-disabled", "Buttons disabled",
         "disableAllButtons(): neither Print nor Open in Editor.", createDisabled},
        {panelClass, "quick-long-name", "A long printer name",
         "What does not fit is elided; the tool tip shows all of it.", createLongName},
        {panelClass, "quick-copies", "Most copies", "The number of copies is 1 to 999.",
         createMostCopies},
        {panelClass, "quick-focus", "Keyboard focus", "The length has the keyboard.",
         createWithResize, tabToLength},
    };
}

} // namespace Gallery
