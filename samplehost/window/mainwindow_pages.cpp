// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/pages/catalogpage.h"
#include "samplehost/pages/labelpage.h"
#include "samplehost/pages/pipepage.h"
#include "samplehost/printing/labelpreview.h"
#include "samplehost/simulator/supplysimulator.h"
#include "samplehost/window/eventlog.h"
#include "samplehost/window/mainwindow.h"
#include "samplehost/window/pageactions.h"
#include "samplehost/window/statusmessages.h"

#include <printpanels/printpreviewdialog.h>
#include <printpanels/printwidget.h>
#include <printpanels/quickprintwidget.h>

#include <QtWidgets/QTabWidget>

#include <utility>

namespace SampleHost {

void MainWindow::createPages(const HostOptions& options)
{
    m_pages = new QTabWidget;
    m_pages->setDocumentMode(true);
    m_pages->setAccessibleName(tr("Pages"));
    setCentralWidget(m_pages);
    connect(m_pages, &QTabWidget::currentChanged, m_status, &StatusMessages::clearError);
    m_actions = new PageActions(this);
    connect(m_pages, &QTabWidget::currentChanged, m_actions,
            [this] { m_actions->setPage(currentPage()); });
    auto source = RecordSource::open(m_dataSource, &m_dataSourceProblem);
    m_settings.setDataFile(RecordSource::filePath(m_dataSource));
    auto design = std::make_unique<ChemicalDesign>(std::move(source), m_dataSourceProblem);
    m_labelPage = new LabelPage(std::move(design), m_settings, options.testControls);
    m_pipePage = new PipePage(m_settings, options.testControls);
    addPrintPage(m_labelPage, tr("Chemical Labels"), tr("Labels"));
    addPrintPage(m_pipePage, tr("Pipe Markers"), tr("Pipes"));
    addCatalogPage();
    addDocumentPage(options.document);
}

void MainWindow::addPage(HostPage* page, const QString& title)
{
    connectController(page->controller());
    m_actions->addPage(*page);
    m_pages->addTab(page, title);
}

void MainWindow::addPrintPage(PrintPage* page, const QString& title, const QString& logName)
{
    m_log->watch(page->panel(), logName);
    connect(&page->preview(), &LabelPreview::popupCreated, m_log,
            [this, logName](PrintPreviewDialog* popup) {
                m_log->watch(*popup, tr("%1 preview").arg(logName));
            });
    connectPanel(*page);
    m_printers.fill(page->panel());
    m_supply->connectPanel(page->panel());
    addPage(page, title);
}

void MainWindow::addCatalogPage()
{
    m_catalogPage = new CatalogPage(m_settings);
    m_log->watch(m_catalogPage->panel(), tr("Catalogue"));
    // The page shows the problem itself, so no message box is needed.
    connect(m_catalogPage, &CatalogPage::sizeRefused, this,
            [this](const QString& problem) { m_status->showError(problem); });
    connect(m_catalogPage, &CatalogPage::messageCleared, m_status, &StatusMessages::clearError);
    connect(m_catalogPage, &CatalogPage::editorRequested, this,
            [this](const CatalogItem& item, const QSizeF& sizeMm) {
                m_labelPage->openItem(item, sizeMm);
                setCurrentPage(*m_labelPage);
            });
    addPage(m_catalogPage, tr("Catalogue"));
}

// Message boxes of this window would be covered by a window in front of it.
QWidget* MainWindow::frontWindow()
{
    QWidget* window = documentWindow();
    return window != nullptr ? window : this;
}

} // namespace SampleHost
