#include "samplehost/app/mainwindow.h"

#include "samplehost/app/errormessages.h"
#include "samplehost/app/eventlog.h"
#include "samplehost/app/labelpage.h"
#include "samplehost/app/messagebox.h"
#include "samplehost/app/pipepage.h"
#include "samplehost/app/preferencesdialog.h"
#include "samplehost/app/previewwindow.h"
#include "samplehost/app/printcontroller.h"
#include "samplehost/app/printprogressdialog.h"
#include "samplehost/app/supplysimulator.h"

#include <printpanels/printwidget.h>

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
    : QMainWindow(parent), m_printers(m_settings)
{
    setWindowTitle(tr("Sample Host"));
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
    auto source = RecordSource::open(options.dataSource, &m_dataSourceProblem);
    m_labelPage = new LabelPage(std::move(source), m_settings, options.testControls);
    m_pipePage = new PipePage(m_settings, options.testControls);
    addPage(m_labelPage, tr("Chemical Labels"), tr("Labels"));
    addPage(m_pipePage, tr("Pipe Markers"), tr("Pipes"));
}

void MainWindow::addPage(PrintPage* page, const QString& title, const QString& logName)
{
    m_log->watch(page->panel(), logName);
    connectPanel(*page);
    connectController(*page);
    m_printers.fill(page->panel());
    m_supply->connectPanel(page->panel());
    m_pages->addTab(page, title);
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
    file->addAction(tr("&Print"), QKeySequence::Print, this,
                    [this] { clickPanelButton(QStringLiteral("PrintButton")); });
    file->addAction(tr("Print Pre&view"), this,
                    [this] { clickPanelButton(QStringLiteral("PreviewButton")); });
    file->addAction(tr("P&references..."), this, &MainWindow::openPreferences);
    file->addSeparator();
    file->addAction(tr("&Quit"), QKeySequence::Quit, this, &QWidget::close);
    QMenu* view = menuBar()->addMenu(tr("&View"));
    const auto docks = findChildren<QDockWidget*>();
    for (QDockWidget* dock : docks) {
        view->addAction(dock->toggleViewAction());
    }
    QMenu* help = menuBar()->addMenu(tr("&Help"));
    help->addAction(tr("&About Sample Host"), this, &MainWindow::showAbout);
}

void MainWindow::connectPanel(PrintPage& page)
{
    PrintWidget* panel = &page.panel();
    connect(panel, &PrintWidget::openPreferencesSignal, this, &MainWindow::openPreferences);
    connect(panel, &PrintWidget::testPrintError, this, &MainWindow::showPrintError);
    connect(panel, &PrintWidget::currentPrinterSelectionChanged, this,
            [this, panel] { m_printers.showState(*panel); });
    // Printers come and go while the panel is out of sight.
    connect(panel, &PrintWidget::printWidgetShowSignal, this,
            [this, panel] { m_printers.fill(*panel); });
}

void MainWindow::connectController(PrintPage& page)
{
    PrintController* controller = &page.controller();
    connect(controller, &PrintController::refused, this, &MainWindow::showError);
    connect(controller, &PrintController::jobStarted, this, &MainWindow::showJob);
    connect(controller, &PrintController::jobEnded, this, &MainWindow::showOutcome);
    connect(controller, &PrintController::previewRequested, this,
            [this](const PagePlan& plan, const SheetGeometry& sheet, const LabelPainter& paint) {
                auto* window = new PreviewWindow(plan, sheet, paint, this);
                window->setAttribute(Qt::WA_DeleteOnClose);
                window->show();
            });
}

PrintPage& MainWindow::currentPage() const
{
    if (m_pages->currentWidget() == m_pipePage) {
        return *m_pipePage;
    }
    return *m_labelPage;
}

void MainWindow::setCurrentPage(PrintPage& page)
{
    m_pages->setCurrentWidget(&page);
}

void MainWindow::growToPanel()
{
    const int missing = currentPage().fullHeight() - currentPage().height();
    resize(width(), height() + std::max(0, missing));
}

void MainWindow::clickPanelButton(const QString& name)
{
    if (auto* button = currentPage().panel().findChild<QAbstractButton*>(name)) {
        button->click();
    }
}

void MainWindow::refreshPrinterStates()
{
    m_printers.showState(m_labelPage->panel());
    m_printers.showState(m_pipePage->panel());
}

void MainWindow::openPreferences()
{
    auto* dialog = new PreferencesDialog(m_settings, this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

void MainWindow::showJob(PrintJob* job)
{
    statusBar()->showMessage(tr("Printing to %1").arg(job->targetDescription()));
    new PrintProgressDialog(*job, this);
}

void MainWindow::showOutcome(PrintJob::Outcome outcome, const QString& message)
{
    if (outcome == PrintJob::Outcome::Failed) {
        showError(message);
    } else {
        statusBar()->showMessage(message);
    }
}

void MainWindow::showError(const QString& message)
{
    statusBar()->showMessage(message);
    showMessage(this, tr("Printing"), message);
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
