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

/** Brings a visible window into a state. False when the window does not take it. */
bool applyDemoState(MainWindow& window, DemoState state);

/** Checks print-to-file in the panel of a visible page. False if the panel has no such control. */
bool choosePrintToFile(const PrintPage& page);

/**
 * Presses Print Preview in a visible page, and the button of an orientation if one is given. False
 * if that does not bring up the popup.
 */
bool openPreview(const PrintPage& page, std::optional<bool> portrait);

/** A widget of a page's popup by its object name; null before the first preview. */
QWidget* previewWidget(const PrintPage& page, const char* name);

/** The preview or the window of a document that is open over a window, or null. */
QWidget* openPopup(const MainWindow& window);

} // namespace SampleHost

#endif
