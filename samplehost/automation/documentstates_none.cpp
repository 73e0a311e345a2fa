// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

// For a build without Qt PDF or qpdf.
#include "samplehost/automation/documentstates.h"

namespace SampleHost {

bool showDocument(MainWindow&)
{
    return false;
}

bool showMultiPage(MainWindow&)
{
    return false;
}

QString documentProblem(const MainWindow&)
{
    return QString();
}

std::unique_ptr<CommandRun> makeDocumentRun(MainWindow&, const CommandLine&)
{
    return nullptr;
}

} // namespace SampleHost
