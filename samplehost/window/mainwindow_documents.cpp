// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/window/mainwindow.h"

#include "samplehost/pages/pdfpage.h"
#include "samplehost/printing/pdfpreview.h"
#include "samplehost/printing/pdfprintcontroller.h"
#include "samplehost/window/eventlog.h"

#include <printpanels/multipageprintdialog.h>
#include <printpanels/multipageprintwidget.h>

#include <QtWidgets/QStatusBar>
#include <QtWidgets/QTabWidget>

namespace SampleHost {

void MainWindow::addDocumentPage(const QString& document)
{
    m_pdfPage = new PdfPage(m_settings, m_printers);
    m_pages->addTab(m_pdfPage, tr("Documents"));
    m_log->watch(m_pdfPage->preview().panel(), tr("Documents"));
    connectJobs(m_pdfPage->controller());
    const auto tell = [this](const QString& text) { statusBar()->showMessage(text); };
    connect(m_pdfPage, &PdfPage::opened, this, [this, tell](const QString& path) {
        setCurrentPage(*m_pdfPage);
        tell(tr("Opened %1").arg(path));
    });
    connect(&m_pdfPage->preview(), &PdfPreview::statusChanged, this, tell);
    connect(m_pdfPage, &PdfPage::openFailed, this, &MainWindow::showError);
    connect(&m_pdfPage->preview(), &PdfPreview::preferencesWanted, this,
            &MainWindow::openPreferences);
    if (!document.isEmpty()) {
        m_pdfPage->open(document);
    }
}

// A window over this one would cover what belongs to this one.
QWidget* MainWindow::front()
{
    MultiPagePrintDialog& dialog = m_pdfPage->preview().dialog();
    return dialog.isVisible() ? static_cast<QWidget*>(&dialog) : this;
}

} // namespace SampleHost
