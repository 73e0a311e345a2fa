// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "foundation/widgets/printersettingsbutton.h"

#include "foundation/stylesheets.h"
#include "foundation/widgets/metrics.h"

#include <QtCore/QCoreApplication>
#include <QtWidgets/QPushButton>

namespace PrintPanels {

void setUpPrinterSettingsButton(QPushButton* button)
{
    button->setObjectName(QStringLiteral("PreferencesButton"));
    button->setAccessibleName(QCoreApplication::translate(
        "PrintPanels", "Preferences", "Name of the button beside the printer for screen readers."));
    button->setStyleSheet(StyleSheets::printerSettingsButton());
    button->setFixedSize(squareButton);
    button->setIconSize(squareButton);
}

} // namespace PrintPanels
