// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "panelstate.h"

#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QLineEdit>

namespace Gallery {

QList<PanelState> panelStates()
{
    return printWidgetStates() + supplyStates() + quickPrintStates() + previewStates() +
           multiPageStates();
}

void click(QWidget& panel, const char* button)
{
    if (auto* part = panel.findChild<QAbstractButton*>(QLatin1String(button)))
        part->click();
}

void type(QWidget& panel, const char* field, const QString& text)
{
    if (auto* part = panel.findChild<QLineEdit*>(QLatin1String(field))) {
        part->selectAll();
        part->insert(text);
    }
}

void tabTo(QWidget& panel, const char* part)
{
    if (auto* widget = panel.findChild<QWidget*>(QLatin1String(part)))
        widget->setFocus(Qt::TabFocusReason);
}

} // namespace Gallery
