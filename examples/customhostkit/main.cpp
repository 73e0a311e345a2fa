// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

// The panels on the kit in kit/. Prints nothing: it says what the panels ask for.
#include <printpanels/multipageprintwidget.h>
#include <printpanels/printpreviewdialog.h>
#include <printpanels/printwidget.h>
#include <printpanels/quickprintwidget.h>

#include <QtWidgets/QApplication>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QTabWidget>

static void addPanel(QTabWidget& tabs, PrintWidgetInterface* panel, const QString& title)
{
    panel->updateListOfPrinters({"Label printer", "Office"}, 0);
    panel->enableAllButtons();
    QObject::connect(panel, &PrintWidgetInterface::widgetPrintSignal, panel,
                     [panel](int start, int end, const QString& list) {
                         qInfo("Print %d %d \"%s\", copies: %d", start, end, qPrintable(list),
                               panel->getNumberOfCopies());
                     });
    auto* area = new QScrollArea;
    area->setWidget(panel);
    area->setWidgetResizable(true);
    tabs.addTab(area, title);
}

int main(int argc, char** argv)
{
    QApplication app(argc, argv);

    auto* settings = new PrintWidget(true, nullptr);
    settings->setModule(JxModuleInfo::JxLabelEditor);
    settings->showSupplyInfo({"#000000", "#dc0b0b", "#ffffff"}, true, 2.25, 0, true);
    auto* quickPrint = new QuickPrintWidget(true, nullptr);
    quickPrint->setModule(JxModuleInfo::JxCatalog);

    QImage label(400, 300, QImage::Format_RGB32);
    label.fill(Qt::white);
    const QSizeF size(4, 3);
    auto* popup = new PrintPreviewDialog(settings, Qt::Popup, label, size, size, true, false, false,
                                         0, 0, {});
    QObject::connect(settings, &PrintWidget::printPreviewSignal, popup,
                     [=](int start, int end, const QString& list) {
                         popup->updatePreview(label, size, size, true, false, false, start, end,
                                              list);
                         popup->show();
                     });
    QObject::connect(popup, &PrintPreviewDialog::previewPrintSignal, settings,
                     &PrintWidget::widgetPrintSignal);

    QTabWidget tabs;
    addPanel(tabs, settings, "Print settings");
    addPanel(tabs, quickPrint, "Quick print");
    addPanel(tabs, new MultiPagePrintWidget(true, false, nullptr), "Pages");
    tabs.resize(400, 800);
    tabs.show();
    return QApplication::exec();
}
