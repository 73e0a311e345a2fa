// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/pages/pdfpage.h"
#include "samplehost/printing/pdfpreview.h"
#include "samplehost/window/eventlog.h"
#include "samplehost/window/mainwindow.h"

#include <printpanels/multipageprintdialog.h>
#include <printpanels/multipageprintwidget.h>

#include <QtWidgets/QMenu>
#include <QtWidgets/QStatusBar>

namespace SampleHost {

bool MainWindow::hasDocuments()
{
    return true;
}

void MainWindow::addDocumentPage(const QString& document)
{
    m_pdfPage = new PdfPage(m_settings, m_printers);
    m_log->watch(m_pdfPage->preview().panel(), tr("Documents"));
    addPage(m_pdfPage, tr("Documents"));
    const auto showStatus = [this](const QString& text) { statusBar()->showMessage(text); };
    connect(m_pdfPage, &PdfPage::opened, this, [this, showStatus](const QString& path) {
        setCurrentPage(*m_pdfPage);
        showStatus(tr("Opened %1").arg(path));
    });
    connect(&m_pdfPage->preview(), &PdfPreview::statusChanged, this, showStatus);
    connect(m_pdfPage, &PdfPage::openFailed, this, &MainWindow::showError);
    connect(&m_pdfPage->preview(), &PdfPreview::preferencesRequested, this,
            &MainWindow::openPreferences);
    if (!document.isEmpty()) {
        m_pdfPage->open(document);
    }
}

void MainWindow::addDocumentActions(QMenu& menu)
{
    m_pdfPage->addActions(menu);
    menu.addSeparator();
}

QWidget* MainWindow::documentWindow() const
{
    MultiPagePrintDialog& dialog = m_pdfPage->preview().dialog();
    return dialog.isVisible() ? &dialog : nullptr;
}

} // namespace SampleHost
