// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_TABORDER_H
#define PRINTPANELS_TABORDER_H

class QWidget;

namespace PrintPanels {

/**
 * Lets the Tab key visit the controls of @p panel as they are laid out, row by row. Qt goes by when
 * controls were added, so call it whenever some were added anywhere but at the end.
 */
void orderTabs(QWidget* panel);

} // namespace PrintPanels

#endif
