// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "panelstate.h"
#include "readypanel.h"
#include "samplepictures.h"

#include <printpanels/multipageprintdialog.h>
#include <printpanels/multipageprintwidget.h>

namespace Gallery {

namespace {

MultiPagePrintWidget* createPanel()
{
    auto* panel = new MultiPagePrintWidget(true, false, nullptr);
    panel->updateListOfPrinters(samplePrinters(), 0);
    panel->setFormFillOption(false, false);
    panel->set180OrientationVisible(false);
    panel->setPageInfo(1, 12, true);
    panel->enablePrintButtons();
    return panel;
}

QWidget* createFresh()
{
    return new MultiPagePrintWidget(false, false, nullptr);
}

QWidget* createCurrentPage()
{
    return createPanel();
}

QWidget* createAllPages()
{
    QWidget* panel = createPanel();
    click(*panel, "allPagesRadio");
    return panel;
}

QWidget* createSelection()
{
    QWidget* panel = createPanel();
    click(*panel, "selectionRadio");
    type(*panel, "pageListEdit", QStringLiteral("2,5-9"));
    return panel;
}

void tabToList(QWidget& panel)
{
    tabTo(panel, "pageListEdit");
}

QWidget* createPagesDisabled()
{
    MultiPagePrintWidget* panel = createPanel();
    panel->setPageInfo(1, 1, false);
    return panel;
}

QWidget* createFormFill()
{
    MultiPagePrintWidget* panel = createPanel();
    panel->setFormFillOption(true, true);
    return panel;
}

QWidget* createTurned()
{
    MultiPagePrintWidget* panel = createPanel();
    panel->set180OrientationVisible(true);
    panel->set180OrientationCheck(true);
    return panel;
}

QWidget* createNoPrinter()
{
    MultiPagePrintWidget* panel = createPanel();
    panel->updateListOfPrinters({}, 0);
    panel->disablePrintButtons();
    return panel;
}

QWidget* createMostCopies()
{
    MultiPagePrintWidget* panel = createPanel();
    panel->setNumberOfCopies(999);
    return panel;
}

MultiPagePrintDialog* createDialog(QWidget* panel)
{
    auto* dialog = new MultiPagePrintDialog(panel, nullptr, Qt::FramelessWindowHint);
    dialog->setTitle(QStringLiteral("Safety manual.pdf"));
    return dialog;
}

QWidget* createWithPage()
{
    MultiPagePrintWidget* panel = createPanel();
    panel->setFormFillOption(true, false);
    panel->set180OrientationVisible(true);
    MultiPagePrintDialog* dialog = createDialog(panel);
    dialog->setPreviewImage(samplePage());
    return dialog;
}

QWidget* createPlaceholder()
{
    return createDialog(createPanel());
}

QWidget* createWithoutPanel()
{
    MultiPagePrintDialog* dialog = createDialog(nullptr);
    dialog->setPreviewImage(samplePage());
    return dialog;
}

constexpr char panelClass[] = "MultiPagePrintWidget";
constexpr char dialogClass[] = "MultiPagePrintDialog";

QList<PanelState> panelRows()
{
    return {
        {panelClass, "pages-fresh", "Fresh",
         "As constructed: all options, no printer, and Print is disabled.", createFresh},
        {panelClass, "pages-current", "Current page",
         "A document with twelve pages and no form fields: setFormFillOption() and "
         "set180OrientationVisible() have hidden these options.",
         createCurrentPage},
        {panelClass, "pages-all", "All pages", "The user chose all pages.", createAllPages},
        {panelClass, "pages-selection", "Selection", "The user typed pages.", createSelection},
        {panelClass, "pages-focus", "Typing a selection", "The list has the keyboard.",
         createSelection, tabToList},
        {panelClass, "pages-disabled", "Pages disabled",
         "setPageInfo() with false: there is nothing to choose from.", createPagesDisabled},
        {panelClass, "pages-form-fill", "Form fill",
         "setFormFillOption(true, true): only what was filled into the form.", createFormFill},
        {panelClass, "pages-turned", "Turned",
         "set180OrientationVisible(true) and set180OrientationCheck(true).", createTurned},
        {panelClass, "pages-no-printer", "No printer",
         "An empty list of printers. The host has disabled Print.", createNoPrinter},
        {panelClass, "pages-copies", "Many copies", "The step buttons stay between 1 and 999.",
         createMostCopies},
    };
}

QList<PanelState> dialogRows()
{
    return {
        {dialogClass, "document-page", "With a page", "The panel beside the page that it names.",
         createWithPage},
        {dialogClass, "document-placeholder", "Without a page",
         "Until setPreviewImage() an empty page is shown.", createPlaceholder},
        {dialogClass, "document-no-panel", "Without a panel",
         "A null panel leaves its place empty.", createWithoutPanel},
    };
}

} // namespace

QList<PanelState> multiPageStates()
{
    return panelRows() + dialogRows();
}

} // namespace Gallery
