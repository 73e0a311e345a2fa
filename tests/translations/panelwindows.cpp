// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "panelwindows.h"

#include <printpanels/multipageprintdialog.h>
#include <printpanels/multipageprintwidget.h>
#include <printpanels/printpreviewdialog.h>
#include <printpanels/printwidget.h>
#include <printpanels/quickprintwidget.h>

#include <QtWidgets/QComboBox>
#include <QtWidgets/QRadioButton>

namespace {

using Window = std::unique_ptr<QWidget>;

std::unique_ptr<PrintWidget> printPanel(bool testControls)
{
    auto panel = std::make_unique<PrintWidget>(testControls, nullptr);
    panel->updateListOfPrinters({QStringLiteral("Label printer")}, 0);
    panel->updatePrinterLocation(QStringLiteral("Laboratory"));
    panel->updatePrinterStatus(true, false, true);
    panel->enableAllButtons();
    return panel;
}

Window plainPanel()
{
    return printPanel(false);
}

Window panelWithEveryOption()
{
    auto panel = printPanel(true);
    panel->setRangeValues(0, 9, true);
    panel->findChild<QRadioButton*>(QStringLiteral("recordListRadio"))->click();
    panel->setShowUserBackground(true);
    panel->setNupSeqRepVisible(true);
    return panel;
}

Window panelWithDisabledChoices()
{
    auto panel = printPanel(true);
    panel->setNupSeqRepVisible(true);
    panel->setNupDynamicLength(true);
    panel->setRangeValues(0, 0, false);
    panel->disableAllButtons();
    return panel;
}

Window panelWithTwoRibbons()
{
    auto panel = printPanel(false);
    panel->showSupplyInfo(
        {QStringLiteral("#000000"), QStringLiteral("#fffffe"), QStringLiteral("#fedb00")}, true, 4,
        0, true);
    return panel;
}

Window panelWithOneRibbon()
{
    auto panel = printPanel(false);
    panel->showSupplyInfo({QStringLiteral("#000000"), QStringLiteral("#fedb00")}, false, 101.6, 1,
                          false);
    return panel;
}

template <int item>
Window pipePanel()
{
    constexpr int everyTag = 15;
    auto panel = printPanel(false);
    panel->setModule(JxModuleInfo::PipeMarking);
    panel->setVisibleAmmoniaTag(everyTag);
    panel->findChild<QComboBox*>(QStringLiteral("AmmoniaPrintCombo"))->setCurrentIndex(item);
    return panel;
}

std::unique_ptr<QuickPrintWidget> quickPanel(JxModuleInfo::JxModuleTypes module)
{
    auto panel = std::make_unique<QuickPrintWidget>(true, nullptr);
    panel->setModule(module);
    panel->setCurrentPrinterName(QStringLiteral("Label printer"));
    panel->setCanvasSize(QSizeF(4, 2));
    return panel;
}

Window quickPanelWithSize()
{
    return quickPanel(JxModuleInfo::JxCatalog);
}

Window quickPanelWithoutSize()
{
    auto panel = quickPanel(JxModuleInfo::QuickPrint);
    panel->enableAllButtons();
    return panel;
}

std::unique_ptr<MultiPagePrintWidget> multiPagePanel(bool listChosen)
{
    auto panel = std::make_unique<MultiPagePrintWidget>(true, false, nullptr);
    panel->updateListOfPrinters({QStringLiteral("Label printer")}, 0);
    panel->setPageInfo(1, 12, listChosen);
    if (listChosen)
        panel->findChild<QRadioButton*>(QStringLiteral("selectionRadio"))->click();
    return panel;
}

Window multiPagePanelWithEveryOption()
{
    auto panel = multiPagePanel(true);
    panel->enableAllButtons();
    return panel;
}

Window multiPagePanelWithFewOptions()
{
    auto panel = multiPagePanel(false);
    panel->setFormFillOption(false, false);
    panel->set180OrientationVisible(false);
    return panel;
}

Window multiPageDialog()
{
    auto dialog = std::make_unique<MultiPagePrintDialog>(multiPagePanel(true).release(), nullptr,
                                                         Qt::FramelessWindowHint);
    dialog->setTitle(QStringLiteral("Report.pdf"));
    return dialog;
}

Window popup(bool printedSizeOnly, bool metric)
{
    QImage image(400, 200, QImage::Format_RGB32);
    image.fill(Qt::white);
    return std::make_unique<PrintPreviewDialog>(nullptr, Qt::FramelessWindowHint, image,
                                                QSizeF(101.6, 50.8), QSizeF(88.9, 44.45),
                                                printedSizeOnly, true, metric, 1, 1, QString());
}

Window popupWithBothSizes()
{
    return popup(false, false);
}

Window popupWithOneSize()
{
    auto window = popup(true, true);
    static_cast<PrintPreviewDialog*>(window.get())->enablePrintButton(false);
    return window;
}

} // namespace

QList<PanelWindow> popupWindows()
{
    return {{"popup", popupWithBothSizes, 2}, {"popup, one size", popupWithOneSize, 2}};
}

QList<PanelWindow> panelsAndDialogs()
{
    return {{"print panel", plainPanel, 12},
            {"print panel, every option", panelWithEveryOption, 17},
            {"print panel, disabled", panelWithDisabledChoices, 16},
            {"print panel, two ribbons", panelWithTwoRibbons, 15},
            {"print panel, one ribbon", panelWithOneRibbon, 14},
            {"print panel, pipe marker", pipePanel<0>, 9},
            {"print panel, high pressure", pipePanel<1>, 9},
            {"print panel, low pressure", pipePanel<2>, 9},
            {"print panel, vapor", pipePanel<3>, 9},
            {"print panel, liquid", pipePanel<4>, 9},
            {"quick panel with size", quickPanelWithSize, 7},
            {"quick panel", quickPanelWithoutSize, 4},
            {"multi-page panel", multiPagePanelWithEveryOption, 12},
            {"multi-page panel, few options", multiPagePanelWithFewOptions, 10},
            {"multi-page dialog", multiPageDialog, 12}};
}
