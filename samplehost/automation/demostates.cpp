// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/automation/demostates.h"

#include "samplehost/automation/documentstates.h"
#include "samplehost/automation/inputsimulation.h"
#include "samplehost/pages/catalogpage.h"
#include "samplehost/pages/labelpage.h"
#include "samplehost/pages/pipepage.h"
#include "samplehost/printing/labelpreview.h"
#include "samplehost/simulator/supplysimulator.h"
#include "samplehost/window/mainwindow.h"

#include <printpanels/printpreviewdialog.h>
#include <printpanels/printwidget.h>

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDockWidget>
#include <QtWidgets/QSpinBox>

namespace SampleHost {

namespace {

QWidget* panelWidget(const PrintPage& page, const char* name)
{
    return page.panel().findChild<QWidget*>(QString::fromLatin1(name));
}

bool showPlain(MainWindow& window)
{
    window.setCurrentPage(window.labelPage());
    return true;
}

bool showListWithNup(MainWindow& window)
{
    const LabelPage& page = window.labelPage();
    window.settings().setNup(NupLayout{2, 2});
    return InputSimulation::click(panelWidget(page, "recordListRadio")) &&
           InputSimulation::type(panelWidget(page, "recordListEdit"),
                                 QStringLiteral("1,4-5,11-20,33")) &&
           InputSimulation::click(panelWidget(page, "sequencingRadio"));
}

bool showSupply(MainWindow& window)
{
    SupplySimulator& supply = window.supply();
    auto* secondRibbon = supply.findChild<QComboBox*>(QStringLiteral("ribbon2Combo"));
    window.findChild<QDockWidget*>(QStringLiteral("supplyDock"))->show();
    supply.setReport(SupplySimulator::Report::TwoRibbons);
    // The last colour stands for no ribbon.
    secondRibbon->setCurrentIndex(secondRibbon->count() - 1);
    supply.findChild<QCheckBox*>(QStringLiteral("ladderCheck"))->setChecked(true);
    return window.labelPage().panel().isSupplyInfoVisible();
}

bool showPipe(MainWindow& window)
{
    PipePage& page = window.pipePage();
    window.setCurrentPage(page);
    page.setCurrentMarker(0);
    auto* items = page.panel().findChild<QComboBox*>(QStringLiteral("AmmoniaPrintCombo"));
    return items != nullptr && items->isVisible();
}

bool showPreview(MainWindow& window, bool portrait)
{
    window.setCurrentPage(window.labelPage());
    return openPreview(window.labelPage(), portrait);
}

bool showCatalog(MainWindow& window)
{
    CatalogPage& page = window.catalogPage();
    window.setCurrentPage(page);
    page.setCurrentItem(catalogIndexOf(QStringLiteral("EYE WASH STATION")));
    InputSimulation::processEvents();
    return page.findChild<QWidget*>(QStringLiteral("resizeFrame"))->isVisible();
}

bool showQuickPrint(MainWindow& window)
{
    return showCatalog(window) && InputSimulation::click(window.catalogPage().findChild<QWidget*>(
                                      QStringLiteral("fixedSizeCheck")));
}

} // namespace

bool choosePrintToFile(const PrintPage& page)
{
    if (!page.panel().getPrintToFileEnabled()) {
        InputSimulation::click(panelWidget(page, "printToFileCheck"));
    }
    return page.panel().getPrintToFileEnabled();
}

bool openPreview(const PrintPage& page, std::optional<bool> portrait)
{
    if (!InputSimulation::click(panelWidget(page, "PreviewButton")) ||
        page.preview().popup() == nullptr) {
        return false;
    }
    if (portrait) {
        return InputSimulation::click(
            previewWidget(page, *portrait ? "portraitButton" : "landscapeButton"));
    }
    return page.preview().popup()->isVisible();
}

QWidget* previewWidget(const PrintPage& page, const char* name)
{
    const PrintPreviewDialog* popup = page.preview().popup();
    return popup != nullptr ? popup->findChild<QWidget*>(QString::fromLatin1(name)) : nullptr;
}

QWidget* openPopup(const MainWindow& window)
{
    const auto popups = window.findChildren<PrintPreviewDialog*>();
    for (PrintPreviewDialog* popup : popups) {
        if (popup->isVisible()) {
            return popup;
        }
    }
    return window.documentWindow();
}

bool applyDemoState(MainWindow& window, DemoState state)
{
    switch (state) {
    case DemoState::None:
        return true;
    case DemoState::Plain:
        return showPlain(window);
    case DemoState::ListWithNup:
        return showListWithNup(window);
    case DemoState::Supply:
        return showSupply(window);
    case DemoState::Pipe:
        return showPipe(window);
    case DemoState::TestControls:
        return choosePrintToFile(window.labelPage());
    case DemoState::PortraitPreview:
    case DemoState::LandscapePreview:
        return showPreview(window, state == DemoState::PortraitPreview);
    case DemoState::Catalog:
        return showCatalog(window);
    case DemoState::QuickPrint:
        return showQuickPrint(window);
    case DemoState::Document:
        return showDocument(window);
    case DemoState::MultiPage:
        return showMultiPage(window);
    }
    return false;
}

} // namespace SampleHost
