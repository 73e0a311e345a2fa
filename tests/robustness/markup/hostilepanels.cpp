// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "hostilepanels.h"

#include <printpanels/multipageprintdialog.h>
#include <printpanels/multipageprintwidget.h>
#include <printpanels/printpreviewdialog.h>
#include <printpanels/printwidget.h>
#include <printpanels/quickprintwidget.h>

#include <QtCore/QSizeF>
#include <QtGui/QImage>

namespace {

std::unique_ptr<QWidget> createPrintPanel(const QString& text)
{
    auto panel = std::make_unique<PrintWidget>(true, nullptr);
    panel->setModule(JxModuleInfo::PipeMarking);
    panel->setVisibleAmmoniaTag(15);
    panel->updateListOfPrinters({text, QStringLiteral("other")}, 0);
    panel->addPrinterToList(text, true);
    panel->setSelectedPrinter(text);
    panel->updatePrinterLocation(text);
    panel->updatePrinterStatus(true, false, true);
    panel->setColorPalette({text, QStringLiteral("#000000")}, {text});
    panel->showSupplyInfo({text, text, text}, true, 4.0, 0, true);
    panel->setShowUserBackground(true);
    panel->setNupSeqRepVisible(true);
    return panel;
}

std::unique_ptr<QWidget> createQuickPanel(const QString& text)
{
    auto panel = std::make_unique<QuickPrintWidget>(true, nullptr);
    panel->setModule(JxModuleInfo::JxCatalog);
    panel->setCurrentPrinterName(text);
    return panel;
}

std::unique_ptr<QWidget> createMultiPagePanel(const QString& text)
{
    auto panel = std::make_unique<MultiPagePrintWidget>(false, false, nullptr);
    panel->updateListOfPrinters({text, QStringLiteral("other")}, 0);
    panel->setSelectedPrinter(text);
    return panel;
}

std::unique_ptr<QWidget> createMultiPageDialog(const QString& text)
{
    auto dialog = std::make_unique<MultiPagePrintDialog>(createMultiPagePanel(text).release(),
                                                         nullptr, Qt::FramelessWindowHint);
    dialog->setTitle(text);
    return dialog;
}

std::unique_ptr<QWidget> createPopup(const QString& text)
{
    return std::make_unique<PrintPreviewDialog>(nullptr, Qt::FramelessWindowHint, QImage(),
                                                QSizeF(4, 2), QSizeF(4, 2), false, true, false, 1,
                                                5, text);
}

} // namespace

QList<HostilePanel> hostilePanels()
{
    return {{"print panel", createPrintPanel},
            {"quick print panel", createQuickPanel},
            {"multi-page panel", createMultiPagePanel},
            {"multi-page dialog", createMultiPageDialog},
            {"preview popup", createPopup}};
}
