// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_PANELFOCUS_H
#define PRINTPANELS_PANELFOCUS_H

class QWidget;

namespace PrintPanels {

/**
 * Sets up what all panels do with the focus: a ring around the control that has it, Return on a
 * button, and the focus coming back to a button. Call it once the panel has its buttons.
 */
void setUpFocus(QWidget* panel);

} // namespace PrintPanels

#endif
