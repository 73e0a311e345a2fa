// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_USERHANDS_H
#define SAMPLEHOST_USERHANDS_H

#include <QtCore/QString>

class QComboBox;
class QWidget;

namespace SampleHost {

/**
 * Does with widgets what a user's hands do: mouse and key events, so that whatever stands between a
 * user and a widget (a validator, a disabled state) stands in the program's way too.
 */
namespace UserHands {

/** Waits until the windows have laid out and painted what was changed, as a user would. */
void wait();

/** Clicks a widget. False, without a click, when it is null, hidden or disabled. */
bool click(QWidget* widget);

/**
 * Types over what a text field or spin box holds. False, without a key, when it is null, hidden or
 * disabled. What arrives there is the widget's decision.
 */
bool type(QWidget* widget, const QString& text);

/**
 * Picks the item of a drop-down list with the arrow keys. False when the list is null, hidden or
 * disabled, or has no item of that text.
 */
bool pick(QComboBox* combo, const QString& text);

} // namespace UserHands

} // namespace SampleHost

#endif
