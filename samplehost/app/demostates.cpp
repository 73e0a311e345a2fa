// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/app/demostates.h"

#include "samplehost/app/catalogpage.h"
#include "samplehost/app/demodocument.h"
#include "samplehost/app/labelpage.h"
#include "samplehost/app/labelpreview.h"
#include "samplehost/app/mainwindow.h"
#include "samplehost/app/pdfpage.h"
#include "samplehost/app/pdfpreview.h"
#include "samplehost/app/pipepage.h"
#include "samplehost/app/supplysimulator.h"
#include "samplehost/app/userhands.h"

#include <printpanels/multipageprintdialog.h>
#include <printpanels/printpreviewdialog.h>
#include <printpanels/printwidget.h>

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
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
    return UserHands::click(panelWidget(page, "recordListRadio")) &&
           UserHands::type(panelWidget(page, "recordListEdit"), QStringLiteral("1,4-5,11-20,33")) &&
           UserHands::click(panelWidget(page, "sequencingRadio"));
}

bool showSupply(MainWindow& window)
{
    SupplySimulator& supply = window.supply();
    auto* secondRibbon = supply.findChild<QComboBox*>(QStringLiteral("ribbon2Combo"));
    supply.setReport(SupplySimulator::Report::TwoRibbons);
    // The last colour stands for a place without a ribbon.
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

bool showTestControls(MainWindow& window)
{
    return choosePrintToFile(window.labelPage());
}

bool showPreview(MainWindow& window, bool portrait)
{
    window.setCurrentPage(window.labelPage());
    return openPreview(window.labelPage(), portrait);
}

bool showPortraitPreview(MainWindow& window)
{
    return showPreview(window, true);
}

bool showLandscapePreview(MainWindow& window)
{
    return showPreview(window, false);
}

bool showCatalog(MainWindow& window)
{
    CatalogPage& page = window.catalogPage();
    window.setCurrentPage(page);
    page.setCurrentItem(catalogIndexOf(QStringLiteral("EYE WASH STATION")));
    UserHands::wait();
    return page.findChild<QWidget*>(QStringLiteral("resizeFrame"))->isVisible();
}

bool showQuickPrint(MainWindow& window)
{
    return showCatalog(window) && UserHands::click(window.catalogPage().findChild<QWidget*>(
                                      QStringLiteral("fixedSizeCheck")));
}

bool showDocument(MainWindow& window)
{
    PdfPage& page = window.pdfPage();
    window.setCurrentPage(page);
    if (page.document() == nullptr) {
        auto* demo = new DemoDocument(&page);
        return demo->write(window.labelPage().design()) && page.open(demo->path());
    }
    return true;
}

bool showMultiPage(MainWindow& window)
{
    return showDocument(window) &&
           UserHands::click(
               window.pdfPage().findChild<QWidget*>(QStringLiteral("documentPrintButton"))) &&
           window.pdfPage().preview().dialog().isVisible();
}

struct State
{
    const char* name;
    bool (*apply)(MainWindow& window);
};

constexpr State states[] = {
    {"plain", showPlain},
    {"list-nup", showListWithNup},
    {"supply", showSupply},
    {"pipe", showPipe},
    {"test-controls", showTestControls},
    {"preview-portrait", showPortraitPreview},
    {"preview-landscape", showLandscapePreview},
    {"catalog", showCatalog},
    {"quickprint", showQuickPrint},
    {"document", showDocument},
    {"multipage", showMultiPage},
};

} // namespace

bool choosePrintToFile(const PrintPage& page)
{
    if (!page.panel().getPrintToFileEnabled()) {
        UserHands::click(panelWidget(page, "printToFileCheck"));
    }
    return page.panel().getPrintToFileEnabled();
}

bool openPreview(const PrintPage& page, std::optional<bool> portrait)
{
    if (!UserHands::click(panelWidget(page, "PreviewButton")) ||
        page.preview().popup() == nullptr) {
        return false;
    }
    if (portrait) {
        return UserHands::click(
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
    if (window.pdfPage().preview().dialog().isVisible()) {
        return &window.pdfPage().preview().dialog();
    }
    return nullptr;
}

QStringList demoStateNames()
{
    QStringList names;
    for (const State& state : states) {
        names.append(QString::fromLatin1(state.name));
    }
    return names;
}

QString testControlsStateName()
{
    return QStringLiteral("test-controls");
}

QString documentStateName()
{
    return QStringLiteral("document");
}

bool applyDemoState(MainWindow& window, const QString& name)
{
    for (const State& state : states) {
        if (name == QLatin1String(state.name)) {
            return state.apply(window);
        }
    }
    return false;
}

} // namespace SampleHost
