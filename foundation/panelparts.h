// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_PANELPARTS_H
#define PRINTPANELS_PANELPARTS_H

class QLineEdit;
class QPushButton;
class QString;
class QWidget;

namespace PrintPanels {

// What several panels build alike. A panel creates each widget itself, from the kit's class that it
// uses, and passes texts that it translated in its own context.

/** A host's 0-based index as a 1-based number; the highest index has no number above it. */
int numberFromIndex(int index);

/**
 * Moves a window's top left corner to (x, y). Places beyond any screen are brought near enough for
 * the other corner to have coordinates at all.
 */
void moveWindow(QWidget* window, int x, int y);

/** The button beside the printer selector: 35 x 35 pixels, with the settings icon. */
void setUpPrinterSettingsButton(QPushButton* button);

/** A button that adds or takes away a copy: 35 x 35 pixels, repeating while it is held down. */
void setUpStepButton(QPushButton* button, const QString& styleSheet);

/**
 * The entry of a record or page list: takes valid lists only, shows an example and starts disabled.
 * @param toolTip what to enter; the example follows it on a line of its own
 * @param exampleLabel what stands before the example
 */
void setUpRecordListEdit(QLineEdit* edit, const QString& toolTip, const QString& exampleLabel);

} // namespace PrintPanels

#endif
