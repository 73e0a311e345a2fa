// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_MAINWINDOW_H
#define SAMPLEHOST_MAINWINDOW_H

#include "samplehost/commandline/hostoptions.h"
#include "samplehost/commandline/hostparts.h"
#include "samplehost/print/printjob.h"
#include "samplehost/printing/hostsettings.h"
#include "samplehost/printing/printerdirectory.h"

#include <QtWidgets/QMainWindow>

class QMenu;
class QTabWidget;

namespace SampleHost {

class CatalogPage;
class EventLog;
class HostPage;
class JobController;
class LabelPage;
class PageActions;
class PdfPage;
class PipePage;
class PrintPage;
class PrintedFileBar;
class StatusMessages;
class SupplySimulator;

/** The window of the sample host: its pages, the simulated printer and the event log. */
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /** Opens the data source. If that fails, the window has no records but works. */
    explicit MainWindow(const HostOptions& options = HostOptions(), QWidget* parent = nullptr);
    ~MainWindow() override;

    /** The parts that this build has. */
    static HostParts parts();

    /** Why the data source could not be opened; empty if it is open. */
    QString dataSourceProblem() const { return m_dataSourceProblem; }

    /** Loads the stored settings, with the printer, and stores them whenever one changes. */
    void persistSettings();

    /** Stores the settings and the window. If that fails, shows a message and returns false. */
    bool saveSettings();

    /**
     * Brings the window, which is not shown yet, where the last one was, but inside the available
     * part of the screen, and shows the last page unless there is a document to show.
     */
    void restoreWindow(const QRect& available);

    /** Selects a printer in all panels; nothing changes if there is none of that name. */
    void choosePrinter(const QString& name);

    HostSettings& settings() { return m_settings; }
    LabelPage& labelPage() const { return *m_labelPage; }
    PipePage& pipePage() const { return *m_pipePage; }
    CatalogPage& catalogPage() const { return *m_catalogPage; }
    /** The page of documents. Not called in a build without documents. */
    PdfPage& pdfPage() const { return *m_pdfPage; }
    /** The visible window that prints a document, or null. */
    QWidget* documentWindow() const;
    SupplySimulator& supply() const { return *m_supply; }
    EventLog& eventLog() const { return *m_log; }

    /** The current page. */
    HostPage& currentPage() const;

    /** Makes a page of this window the current one. */
    void setCurrentPage(QWidget& page);

    /** Makes the window high enough for the whole panel of the current page. */
    void growToPanel();

private:
    static bool hasDocuments();
    void createPages(const HostOptions& options);
    void createStatusBar();
    void createDocks();
    void createMenus();
    void createToolBar();
    void addUnitAction(QMenu& menu);
    void connectController(JobController& controller);
    void addFullScreenAction(QMenu& menu);
    void addLanguageMenu(QMenu& menu);
    void addHelpActions(QMenu& menu);
    void addPage(HostPage* page, const QString& title);
    void addPrintPage(PrintPage* page, const QString& title, const QString& logName);
    void connectPanel(PrintPage& page);
    void addCatalogPage();
    void addDocumentPage(const QString& document);
    void addDocumentActions(QMenu& menu);
    void refreshPrinterStates();
    void askForPrinter();
    void addPrinter(const QString& name);
    void countPages();
    void reloadData();
    bool checkSaved(bool saved);
    void openPreferences();
    void savePdfAs();
    void showJob(PrintJob* job);
    void showOutcome(PrintJob::Outcome outcome, const QString& message);
    void showError(const QString& message);
    QWidget* frontWindow();
    void showPrintError(int number);
    void showHelp();
    void showAbout();

    DataSourceOptions m_dataSource;
    HostSettings m_settings;
    PrinterDirectory m_printers;
    QString m_dataSourceProblem;
    StatusMessages* m_status = nullptr;
    PrintedFileBar* m_printedFile = nullptr;
    QTabWidget* m_pages = nullptr;
    PageActions* m_actions = nullptr;
    LabelPage* m_labelPage = nullptr;
    PipePage* m_pipePage = nullptr;
    CatalogPage* m_catalogPage = nullptr;
    PdfPage* m_pdfPage = nullptr;
    SupplySimulator* m_supply = nullptr;
    EventLog* m_log = nullptr;
};

} // namespace SampleHost

#endif
