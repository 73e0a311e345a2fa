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
#include "samplehost/window/pageactions.h"
#include "samplehost/window/preferencesdialog.h"
#include "samplehost/window/statusmessages.h"

#include <QtWidgets/QDockWidget>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QTabWidget>
#include <QtWidgets/QToolBar>

#include <algorithm>
#include <utility>

namespace SampleHost {

namespace {

constexpr QSize windowSize(1100, 760);
constexpr int toolIconSide = 16;

// A dock may become this narrow, so that the window fits on a small screen with it.
constexpr int minimumDockWidth = 120;

/** Lets a dock be smaller than its contents. */
QWidget* scrolled(QWidget* contents)
{
    auto* area = new QScrollArea;
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setFocusPolicy(Qt::NoFocus); // its contents take the focus
    area->setWidget(contents);
    area->setMinimumWidth(minimumDockWidth);
    return area;
}

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
    createToolBar();
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
        // A first look belongs to the label and the panel.
        dock->hide();
        return dock;
    };
    QDockWidget* supply =
        addDock(QStringLiteral("supplyDock"), tr("Loaded Supply Simulator"), scrolled(m_supply));
    QDockWidget* log = addDock(QStringLiteral("eventDock"), tr("Panel Events"), m_log);
    // Wide enough for the simulator in every language.
    const int width = std::max(260, m_supply->sizeHint().width());
    resizeDocks({supply, log}, {width, width}, Qt::Horizontal);
}

void MainWindow::createMenus()
{
    QMenu* file = menuBar()->addMenu(tr("&File"));
    addDocumentActions(*file);
    m_actions->addPrintActions(*file);
    file->addAction(tr("Save PDF &As..."), QKeySequence::SaveAs, this, &MainWindow::savePdfAs)
        ->setObjectName(QStringLiteral("savePdfAction"));
    file->addAction(tr("&Count Pages"), this, &MainWindow::countPages)
        ->setObjectName(QStringLiteral("countPagesAction"));
    file->addAction(tr("&Add Printer..."), this, &MainWindow::askForPrinter)
        ->setObjectName(QStringLiteral("addPrinterAction"));
    file->addAction(tr("Re&load Data"), QKeySequence::Refresh, this, &MainWindow::reloadData)
        ->setObjectName(QStringLiteral("reloadDataAction"));
    file->addAction(tr("P&references..."), this, &MainWindow::openPreferences);
    file->addSeparator();
    file->addAction(tr("&Quit"), QKeySequence::Quit, this, &QWidget::close);
    m_actions->addChoices(*menuBar()->addMenu(tr("&Records")));
    QMenu* view = menuBar()->addMenu(tr("&View"));
    const auto docks = findChildren<QDockWidget*>();
    for (QDockWidget* dock : docks) {
        view->addAction(dock->toggleViewAction());
    }
    view->addSeparator();
    addUnitAction(*view);
    addLanguageMenu(*view);
    addFullScreenAction(*view);
    addHelpActions(*menuBar()->addMenu(tr("&Help")));
}

void MainWindow::createToolBar()
{
    // The buttons of the panel are out of sight on small screens, so these are always there.
    auto* toolBar = new QToolBar(tr("Print"));
    toolBar->setObjectName(QStringLiteral("printToolBar"));
    toolBar->setMovable(false);
    toolBar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    toolBar->setIconSize(QSize(toolIconSide, toolIconSide));
    toolBar->toggleViewAction()->setVisible(false);
    m_actions->addPrintActions(*toolBar);
    addToolBar(toolBar);
    // Qt gives the button for what has no room neither a name nor a text.
    if (auto* more = toolBar->findChild<QWidget*>(QStringLiteral("qt_toolbar_ext_button"))) {
        more->setAccessibleName(tr("More Buttons"));
    }
}

void MainWindow::addFullScreenAction(QMenu& menu)
{
    QAction* fullScreen = menu.addAction(tr("&Full Screen"));
    fullScreen->setObjectName(QStringLiteral("fullScreenAction"));
    fullScreen->setShortcut(Qt::Key_F11);
    connect(fullScreen, &QAction::triggered, this,
            [this] { setWindowState(windowState() ^ Qt::WindowFullScreen); });
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

} // namespace SampleHost
