// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

// For a build without Qt PDF or qpdf: the window has no page of documents.
#include "samplehost/window/mainwindow.h"

namespace SampleHost {

bool MainWindow::hasDocuments()
{
    return false;
}

void MainWindow::addDocumentPage(const QString&) {}

void MainWindow::addDocumentActions(QMenu&) {}

QWidget* MainWindow::documentWindow() const
{
    return nullptr;
}

} // namespace SampleHost
