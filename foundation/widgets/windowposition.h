// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_WINDOWPOSITION_H
#define PRINTPANELS_WINDOWPOSITION_H

class QWidget;

namespace PrintPanels {

/**
 * Moves the top left corner of @p window to (@p x, @p y). Clamps positions so far off any screen
 * that the opposite corner would overflow an int.
 */
void moveWindow(QWidget* window, int x, int y);

} // namespace PrintPanels

#endif
