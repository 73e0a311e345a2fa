// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef USERINPUT_H
#define USERINPUT_H

#include <QtCore/Qt>

class QComboBox;
class QWidget;

/** Clicks @p widget at its left end, where a radio button or check box has its indicator. */
void click(QWidget* widget);

void pressSpace(QWidget* widget);

/** Opens the list of @p combo and clicks an item. */
void clickRow(QComboBox* combo, int row);

/** Opens the list of @p combo, presses @p way and takes the item with Return. */
void pickByKeys(QComboBox* combo, Qt::Key way);

#endif
