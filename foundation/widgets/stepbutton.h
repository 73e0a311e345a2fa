// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_STEPBUTTON_H
#define PRINTPANELS_STEPBUTTON_H

class QLineEdit;
class QPushButton;
class QSpinBox;

namespace PrintPanels {

/**
 * Set up a button that adds or removes a copy: object name, style sheet, 35 x 35 pixels, repeating
 * while it is held down. The panel creates the button, from the class that it uses.
 */
void setUpPlusButton(QPushButton* button);
void setUpMinusButton(QPushButton* button);

/**
 * Tells assistive technology of every step of @p field, and makes the number the description of
 * both buttons: a screen reader says what changes at the button that has the focus.
 */
void announceSteps(QSpinBox* field, QPushButton* minusButton, QPushButton* plusButton);
void announceSteps(QLineEdit* field, QPushButton* minusButton, QPushButton* plusButton);

} // namespace PrintPanels

#endif
