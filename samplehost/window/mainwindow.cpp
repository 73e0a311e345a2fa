// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/window/mainwindow.h"

#include "samplehost/pages/labelpage.h"
#include "samplehost/print/printqueue.h"
#include "samplehost/simulator/supplysimulator.h"
#include "samplehost/window/combolists.h"
#include "samplehost/window/errormessages.h"
#include "samplehost/window/eventlog.h"
#include "samplehost/window/messagebox.h"
#include "samplehost/window/preferencesdialog.h"
#include "samplehost/window/statusmessages.h"

#include <QtWidgets/QDockWidget>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QTabWidget>

#include <algorithm>
#include <utility>

namespace SampleHost {

namespace {

constexpr QSize windowSize(1100, 760);

} // namespace

MainWindow::MainWindow(const HostOptions& options, QWidget* parent)
    : QMainWindow(parent), m_dataSource(options.dataSource), m_printers(m_settings)
{
    setWindowTitle(tr("Sample Host"));
    m_settings.setPrinter(PrinterDirectory::pdfFileName());
    createStatusBar();
    createDocks();
    createPages(options);
    createMenus();
    connect(&m_settings, &HostSettings::changed, this, &MainWindow::refreshPrinterStates);
    if (m_dataSourceProblem.isEmpty()) {
        m_status->show(m_labelPage->design().sourceDescription());
    } else {
        m_status->showError(m_dataSourceProblem);
    }
    nameComboLists(*this);
    resize(windowSize);
}

MainWindow::~MainWindow() = default;

HostParts MainWindow::parts()
{
    HostParts parts;
    parts.documents = hasDocuments();
    parts.printQueues = PrintQueue::isSupported();
    return parts;
}

void MainWindow::createDocks()
{
    m_supply = new SupplySimulator;
    m_log = new EventLog;
    const auto addDock = [this](const QString& name, const QString& title, QWidget* contents) {
        auto* dock = new QDockWidget(title);
        dock->setObjectName(name);
        dock->setWidget(contents);
        addDockWidget(Qt::LeftDockWidgetArea, dock);
        return dock;
    };
    QDockWidget* supply =
        addDock(QStringLiteral("supplyDock"), tr("Loaded Supply Simulator"), m_supply);
    QDockWidget* log = addDock(QStringLiteral("eventDock"), tr("Panel Events"), m_log);
    resizeDocks({supply, log}, {240, 240}, Qt::Horizontal);
}

void MainWindow::createMenus()
{
    QMenu* file = menuBar()->addMenu(tr("&File"));
    addDocumentActions(*file);
    file->addAction(tr("&Print"), QKeySequence::Print, this, [this] { currentPage().print(); });
    file->addAction(tr("Save PDF &As..."), QKeySequence::SaveAs, this, &MainWindow::savePdfAs)
        ->setObjectName(QStringLiteral("savePdfAction"));
    file->addAction(tr("Print Pre&view"), this, [this] { currentPage().showPreview(); });
    file->addAction(tr("&Count Pages"), this, &MainWindow::countPages)
        ->setObjectName(QStringLiteral("countPagesAction"));
    file->addAction(tr("&Add Printer..."), this, &MainWindow::askForPrinter)
        ->setObjectName(QStringLiteral("addPrinterAction"));
    file->addAction(tr("Re&load Data"), QKeySequence::Refresh, this, &MainWindow::reloadData)
        ->setObjectName(QStringLiteral("reloadDataAction"));
    file->addAction(tr("P&references..."), this, &MainWindow::openPreferences);
    file->addSeparator();
    file->addAction(tr("&Quit"), QKeySequence::Quit, this, &QWidget::close);
    QMenu* view = menuBar()->addMenu(tr("&View"));
    const auto docks = findChildren<QDockWidget*>();
    for (QDockWidget* dock : docks) {
        view->addAction(dock->toggleViewAction());
    }
    view->addSeparator();
    addUnitAction(*view);
    QMenu* help = menuBar()->addMenu(tr("&Help"));
    help->addAction(tr("&About Sample Host"), this, &MainWindow::showAbout);
}

void MainWindow::addUnitAction(QMenu& menu)
{
    QAction* metric = menu.addAction(tr("Sizes in &Millimetres"));
    metric->setObjectName(QStringLiteral("metricAction"));
    metric->setCheckable(true);
    connect(metric, &QAction::toggled, &m_settings, &HostSettings::setMetric);
    connect(&m_settings, &HostSettings::changed, metric,
            [this, metric] { metric->setChecked(m_settings.isMetric()); });
}

HostPage& MainWindow::currentPage() const
{
    return *static_cast<HostPage*>(m_pages->currentWidget());
}

void MainWindow::setCurrentPage(QWidget& page)
{
    m_pages->setCurrentWidget(&page);
}

void MainWindow::growToPanel()
{
    const HostPage& page = currentPage();
    // A page without a panel of its own gets the height that the page of labels needs.
    const int panelHeight = page.fullHeight() > 0 ? page.fullHeight() : m_labelPage->fullHeight();
    resize(width(), height() + std::max(0, panelHeight - page.height()));
}

void MainWindow::countPages()
{
    const qint64 pages = currentPage().pageCount();
    if (pages >= 0) {
        m_status->show(pages == 1 ? tr("1 page would be printed.")
                                  : tr("%1 pages would be printed.").arg(pages));
    }
}

void MainWindow::reloadData()
{
    auto source = RecordSource::open(m_dataSource, &m_dataSourceProblem);
    if (source == nullptr) {
        showError(m_dataSourceProblem);
        return;
    }
    m_dataSourceProblem.clear();
    m_labelPage->setSource(std::move(source));
    m_status->show(m_labelPage->design().sourceDescription());
}

void MainWindow::persistSettings()
{
    m_settings.load();
    connect(&m_settings, &HostSettings::changed, this, &MainWindow::saveSettings);
}

bool MainWindow::saveSettings()
{
    const bool saved = m_settings.save();
    if (!saved) {
        m_status->showError(tr("The settings cannot be kept for the next start. Check that your "
                               "settings folder can be written."));
    }
    return saved;
}

void MainWindow::openPreferences()
{
    auto* dialog = new PreferencesDialog(m_settings, frontWindow());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

void MainWindow::showPrintError(int number)
{
    showMessage(this, tr("Print Error %1").arg(number), printErrorMessage(number));
}

void MainWindow::showAbout()
{
    QMessageBox::about(this, tr("About Sample Host"),
                       tr("Shows the print panels at work: labels from a data source, printed to "
                          "PDF files and printers."));
}

} // namespace SampleHost
