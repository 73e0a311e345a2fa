// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/automation/demodocument.h"
#include "samplehost/automation/documentrun.h"
#include "samplehost/automation/documentstates.h"
#include "samplehost/automation/inputsimulation.h"
#include "samplehost/pages/labelpage.h"
#include "samplehost/pages/pdfpage.h"
#include "samplehost/window/mainwindow.h"

namespace SampleHost {

bool showDocument(MainWindow& window)
{
    PdfPage& page = window.pdfPage();
    window.setCurrentPage(page);
    if (page.document() == nullptr) {
        auto* demo = new DemoDocument(&page);
        return demo->write(window.labelPage().design()) && page.open(demo->path());
    }
    return true;
}

bool showMultiPage(MainWindow& window)
{
    return showDocument(window) &&
           InputSimulation::click(
               window.pdfPage().findChild<QWidget*>(QStringLiteral("documentPrintButton"))) &&
           window.documentWindow() != nullptr;
}

QString documentProblem(const MainWindow& window)
{
    return window.pdfPage().problem();
}

std::unique_ptr<CommandRun> makeDocumentRun(MainWindow& window, const CommandLine& command)
{
    return std::make_unique<DocumentRun>(window, command);
}

} // namespace SampleHost
