// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_DOCUMENTSTATES_H
#define SAMPLEHOST_DOCUMENTSTATES_H

#include "samplehost/automation/commandrun.h"

#include <memory>

namespace SampleHost {

// In a build without documents, these functions do nothing; such a command line is refused before.

/** Shows the open document, or else one for demonstration. Returns false if that fails. */
bool showDocument(MainWindow& window);

/** Opens the window that prints the document as well. Returns false if that fails. */
bool showMultiPage(MainWindow& window);

/** Why the last document could not be opened, for the user; empty if it is open. */
QString documentProblem(const MainWindow& window);

/** The run that prints the document of a command line, or null. */
std::unique_ptr<CommandRun> makeDocumentRun(MainWindow& window, const CommandLine& command);

} // namespace SampleHost

#endif
