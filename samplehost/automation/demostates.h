// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_DEMOSTATES_H
#define SAMPLEHOST_DEMOSTATES_H

#include "samplehost/commandline/demostate.h"

#include <optional>

class QWidget;

namespace SampleHost {

class MainWindow;
class PrintPage;

/** Brings a visible window into a state. Returns false if that fails. */
bool applyDemoState(MainWindow& window, DemoState state);

/** Checks print-to-file in the panel of a visible page. Returns false if it has no such control. */
bool choosePrintToFile(const PrintPage& page);

/**
 * Presses Print Preview in a visible page, and then the button of the orientation, if any. Returns
 * false if the popup does not appear.
 */
bool openPreview(const PrintPage& page, std::optional<bool> portrait);

/** A widget of a page's popup by object name; null before the first preview. */
QWidget* previewWidget(const PrintPage& page, const char* name);

/** The visible preview or window of a document that belongs to a window, or null. */
QWidget* openPopup(const MainWindow& window);

} // namespace SampleHost

#endif
