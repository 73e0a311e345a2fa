// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "signallog.h"

#include <printpanels/multipageprintwidget.h>
#include <printpanels/printpreviewdialog.h>
#include <printpanels/printwidget.h>
#include <printpanels/quickprintwidget.h>

#include <QtCore/QDebug>

namespace Gallery {

namespace {

template <typename Value>
QString textOf(const Value& value)
{
    QString text;
    QDebug(&text).nospace() << value;
    return text;
}

// The panel itself or, for a dialog, the one in it.
template <class Sender>
Sender* senderIn(QWidget* widget)
{
    auto* panel = qobject_cast<Sender*>(widget);
    return panel != nullptr ? panel : widget->findChild<Sender*>();
}

} // namespace

SignalLog::SignalLog(QWidget* parent) : QPlainTextEdit(parent)
{
    setReadOnly(true);
    setTabChangesFocus(true);
    setMaximumBlockCount(200);
    setPlaceholderText("The panel's signals to its host");
    setAccessibleName("Signals to the host");
    setObjectName("signalLog");
}

template <class Sender, typename... Arguments>
void SignalLog::add(Sender* panel, const char* name, void (Sender::*signal)(Arguments...))
{
    connect(panel, signal, this, [this, name](const Arguments&... arguments) {
        const QStringList texts{textOf(arguments)...};
        appendPlainText(QString("%1(%2)").arg(name, texts.join(", ")));
    });
}

void SignalLog::listenTo(QWidget* widget)
{
    if (auto* panel = senderIn<PrintWidgetInterface>(widget)) {
        using Interface = PrintWidgetInterface;
        add(panel, "widgetPrintSignal", &Interface::widgetPrintSignal);
        add(panel, "printPreviewSignal", &Interface::printPreviewSignal);
        add(panel, "openPreferencesSignal", &Interface::openPreferencesSignal);
        add(panel, "currentPrinterSelectionChanged", &Interface::currentPrinterSelectionChanged);
        add(panel, "openModuleSignal", &Interface::openModuleSignal);
        add(panel, "focusLost", &Interface::focusLost);
        add(panel, "printWidgetShowSignal", &Interface::printWidgetShowSignal);
        add(panel, "supplyWidthChangedSignal", &Interface::supplyWidthChangedSignal);
        add(panel, "supplyColorsChangedSignal", &Interface::supplyColorsChangedSignal);
        add(panel, "tinyLadderSupplyChangedSignal", &Interface::tinyLadderSupplyChangedSignal);
    }
    if (auto* panel = senderIn<PrintWidget>(widget)) {
        add(panel, "ammoniaPrintTagChanged", &PrintWidget::ammoniaPrintTagChanged);
        add(panel, "testPrintError", &PrintWidget::testPrintError);
    }
    if (auto* panel = senderIn<QuickPrintWidget>(widget))
        add(panel, "resizeSignal", &QuickPrintWidget::resizeSignal);
    if (auto* panel = senderIn<MultiPagePrintWidget>(widget)) {
        using MultiPage = MultiPagePrintWidget;
        add(panel, "printFormFillChangedSignal", &MultiPage::printFormFillChangedSignal);
        add(panel, "fitToPageChangedSignal", &MultiPage::fitToPageChangedSignal);
        add(panel, "startPageChangedSignal", &MultiPage::startPageChangedSignal);
        add(panel, "orientationChangedSignal", &MultiPage::orientationChangedSignal);
    }
    if (auto* popup = senderIn<PrintPreviewDialog>(widget)) {
        using Popup = PrintPreviewDialog;
        add(popup, "previewPrintSignal", &Popup::previewPrintSignal);
        add(popup, "orientationChangedSignal", &Popup::orientationChangedSignal);
        add(popup, "popupHideSignal", &Popup::popupHideSignal);
    }
}

} // namespace Gallery
