// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/window/mainwindow.h"

#include "samplehost/pages/catalogpage.h"
#include "samplehost/pages/labelpage.h"
#include "samplehost/pages/pdfpage.h"
#include "samplehost/pages/pipepage.h"
#include "samplehost/printing/labelpreview.h"
#include "samplehost/printing/printcontroller.h"
#include "samplehost/printing/printprogressdialog.h"
#include "samplehost/simulator/supplysimulator.h"
#include "samplehost/window/errormessages.h"
#include "samplehost/window/eventlog.h"
#include "samplehost/window/messagebox.h"
#include "samplehost/window/preferencesdialog.h"

#include <printpanels/printpreviewdialog.h>
#include <printpanels/printwidget.h>
#include <printpanels/quickprintwidget.h>

#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QDockWidget>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QStatusBar>
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
    createDocks();
    createPages(options);
    createMenus();
    connect(&m_settings, &HostSettings::changed, this, &MainWindow::refreshPrinterStates);
    statusBar()->showMessage(m_dataSourceProblem.isEmpty()
                                 ? m_labelPage->design().sourceDescription()
                                 : m_dataSourceProblem);
    resize(windowSize);
}

MainWindow::~MainWindow() = default;

void MainWindow::createPages(const HostOptions& options)
{
    m_pages = new QTabWidget;
    m_pages->setDocumentMode(true);
    setCentralWidget(m_pages);
    auto source = RecordSource::open(m_dataSource, &m_dataSourceProblem);
    m_settings.setDataFile(RecordSource::filePath(m_dataSource));
    auto design = std::make_unique<ChemicalDesign>(std::move(source), m_dataSourceProblem);
    m_labelPage = new LabelPage(std::move(design), m_settings, options.testControls);
    m_pipePage = new PipePage(m_settings, options.testControls);
    addPage(m_labelPage, tr("Chemical Labels"), tr("Labels"));
    addPage(m_pipePage, tr("Pipe Markers"), tr("Pipes"));
    addCatalogPage();
    addDocumentPage(options.document);
}

void MainWindow::addPage(PrintPage* page, const QString& title, const QString& logName)
{
    m_log->watch(page->panel(), logName);
    connect(&page->preview(), &LabelPreview::popupCreated, m_log,
            [this, logName](PrintPreviewDialog* popup) {
                m_log->watch(*popup, tr("%1 preview").arg(logName));
            });
    connectPanel(*page);
    connectJobs(page->controller());
    m_printers.fill(page->panel());
    m_supply->connectPanel(page->panel());
    m_pages->addTab(page, title);
}

void MainWindow::connectJobs(const JobController& controller)
{
    connect(&controller, &JobController::refused, this, &MainWindow::showError);
    connect(&controller, &JobController::jobStarted, this, &MainWindow::showJob);
    connect(&controller, &JobController::jobEnded, this, &MainWindow::showOutcome);
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
    m_pdfPage->addActions(*file);
    file->addSeparator();
    file->addAction(tr("&Print"), QKeySequence::Print, this,
                    [this] { clickPanelButton(QStringLiteral("PrintButton")); });
    file->addAction(tr("Print Pre&view"), this,
                    [this] { clickPanelButton(QStringLiteral("PreviewButton")); });
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
    QAction* metric = menu.addAction(tr("Sizes in &Millimeters"));
    metric->setObjectName(QStringLiteral("metricAction"));
    metric->setCheckable(true);
    connect(metric, &QAction::toggled, &m_settings, &HostSettings::setMetric);
    connect(&m_settings, &HostSettings::changed, metric,
            [this, metric] { metric->setChecked(m_settings.isMetric()); });
}

PrintPage& MainWindow::currentPage() const
{
    if (m_pages->currentWidget() == m_pipePage) {
        return *m_pipePage;
    }
    return *m_labelPage;
}

void MainWindow::setCurrentPage(QWidget& page)
{
    m_pages->setCurrentWidget(&page);
}

void MainWindow::growToPanel()
{
    const QWidget* page = m_pages->currentWidget();
    const int fullHeight =
        page == m_catalogPage ? m_catalogPage->fullHeight() : currentPage().fullHeight();
    const int missing = fullHeight - page->height();
    resize(width(), height() + std::max(0, missing));
}

void MainWindow::clickPanelButton(const QString& name)
{
    if (m_pages->currentWidget() == m_pdfPage) {
        m_pdfPage->showPrintWindow();
        return;
    }
    if (m_pages->currentWidget() == m_catalogPage) {
        m_catalogPage->print();
        return;
    }
    if (auto* button = currentPage().panel().findChild<QAbstractButton*>(name)) {
        button->click();
    }
}

void MainWindow::countPages()
{
    const auto* page = qobject_cast<const PrintPage*>(m_pages->currentWidget());
    if (page == nullptr) {
        return;
    }
    const qint64 pages = page->pageCount();
    statusBar()->showMessage(pages == 1 ? tr("1 page would be printed.")
                                        : tr("%1 pages would be printed.").arg(pages));
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
    statusBar()->showMessage(m_labelPage->design().sourceDescription());
}

void MainWindow::keepSettings()
{
    m_settings.load();
    connect(&m_settings, &HostSettings::changed, this, &MainWindow::saveSettings);
}

bool MainWindow::saveSettings()
{
    const bool saved = m_settings.save();
    if (!saved) {
        statusBar()->showMessage(tr("The settings cannot be kept for the next start."));
    }
    return saved;
}

void MainWindow::openPreferences()
{
    auto* dialog = new PreferencesDialog(m_settings, front());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

void MainWindow::showJob(PrintJob* job)
{
    statusBar()->showMessage(tr("Printing to %1").arg(job->targetDescription()));
    new PrintProgressDialog(*job, front());
}

void MainWindow::showOutcome(PrintJob::Outcome outcome, const QString& message)
{
    // What ended a job may be seen at its printer, too.
    refreshPrinterStates();
    if (outcome == PrintJob::Outcome::Failed) {
        // The message goes when it is read, the log stays.
        m_log->add(tr("Host: %1").arg(message));
        showError(message);
    } else {
        statusBar()->showMessage(message);
    }
}

void MainWindow::showError(const QString& message)
{
    statusBar()->showMessage(message);
    showMessage(front(), tr("Printing"), message);
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
