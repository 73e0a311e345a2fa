// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_PRINTERSETTINGSBUTTON_H
#define PRINTPANELS_PRINTERSETTINGSBUTTON_H

class QPushButton;

namespace PrintPanels {

/**
 * Sets up the button beside the printer selector: object name, style sheet with the settings icon,
 * 35 x 35 pixels. The panel creates the button, from the class that it uses.
 */
void setUpPrinterSettingsButton(QPushButton* button);

} // namespace PrintPanels

#endif
