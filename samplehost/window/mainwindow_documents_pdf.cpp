// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/pages/pdfpage.h"
#include "samplehost/printing/pdfpreview.h"
#include "samplehost/window/eventlog.h"
#include "samplehost/window/mainwindow.h"
#include "samplehost/window/statusmessages.h"

#include <printpanels/multipageprintdialog.h>
#include <printpanels/multipageprintwidget.h>

#include <QtWidgets/QMenu>

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
    connect(m_pdfPage, &PdfPage::opened, this, [this](const QString& path) {
        setCurrentPage(*m_pdfPage);
        m_status->show(tr("Opened %1").arg(path));
    });
    const PdfPreview* preview = &m_pdfPage->preview();
    connect(preview, &PdfPreview::statusChanged, m_status, &StatusMessages::show);
    connect(preview, &PdfPreview::problemFound, m_status, &StatusMessages::showError);
    connect(preview, &PdfPreview::problemSolved, m_status, &StatusMessages::clearError);
    connect(m_pdfPage, &PdfPage::openFailed, this, &MainWindow::showError);
    connect(preview, &PdfPreview::preferencesRequested, this, &MainWindow::openPreferences);
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
