// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_STEPBUTTON_H
#define PRINTPANELS_STEPBUTTON_H

class QPushButton;

namespace PrintPanels {

/**
 * Set up a button that adds or removes a copy: object name, style sheet, 35 x 35 pixels, repeating
 * while it is held down. The panel creates the button, from the class that it uses.
 */
void setUpPlusButton(QPushButton* button);
void setUpMinusButton(QPushButton* button);

} // namespace PrintPanels

#endif
