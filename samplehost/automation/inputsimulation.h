// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_INPUTSIMULATION_H
#define SAMPLEHOST_INPUTSIMULATION_H

#include <QtCore/QString>

class QComboBox;
class QWidget;

namespace SampleHost {

/**
 * Simulates user input with mouse and key events, so that everything that restricts a user, such as
 * a validator or a disabled widget, also restricts the program.
 */
namespace InputSimulation {

/** Processes events until the windows have been laid out and painted. */
void processEvents();

/** Clicks a widget. Returns false, without a click, if it is null, hidden or disabled. */
bool click(QWidget* widget);

/**
 * Replaces the contents of a text field or spin box with what typing the characters of text one
 * by one would give, in as few insertions as possible. Returns false, without a key press, if the
 * widget is null, hidden or disabled. Which characters are accepted is up to the widget.
 */
bool type(QWidget* widget, const QString& text);

/**
 * Selects an item of a combo box with the arrow keys. Returns false if the combo box is null,
 * hidden or disabled, or has no item with that text.
 */
bool select(QComboBox* combo, const QString& text);

} // namespace InputSimulation

} // namespace SampleHost

#endif
