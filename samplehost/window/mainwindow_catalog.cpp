// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/pages/catalogpage.h"
#include "samplehost/pages/labelpage.h"
#include "samplehost/printing/printcontroller.h"
#include "samplehost/window/eventlog.h"
#include "samplehost/window/mainwindow.h"

#include <printpanels/quickprintwidget.h>

#include <QtWidgets/QStatusBar>
#include <QtWidgets/QTabWidget>

namespace SampleHost {

void MainWindow::addCatalogPage()
{
    m_catalogPage = new CatalogPage(m_settings);
    m_pages->addTab(m_catalogPage, tr("Catalogue"));
    m_log->watch(m_catalogPage->panel(), tr("Catalogue"));
    connectJobs(m_catalogPage->controller());
    // The page itself tells the user; a window on top of it would only be in the way.
    connect(m_catalogPage, &CatalogPage::sizeRefused, this,
            [this](const QString& problem) { statusBar()->showMessage(problem); });
    connect(m_catalogPage, &CatalogPage::editorWanted, this,
            [this](const CatalogItem& item, const QSizeF& sizeMm) {
                m_labelPage->openItem(item, sizeMm);
                setCurrentPage(*m_labelPage);
            });
}

} // namespace SampleHost
