// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/pages/labelpage.h"
#include "samplehost/printing/printprogressdialog.h"
#include "samplehost/window/eventlog.h"
#include "samplehost/window/mainwindow.h"
#include "samplehost/window/messagebox.h"
#include "samplehost/window/outputquestions.h"
#include "samplehost/window/printedfilebar.h"
#include "samplehost/window/statusmessages.h"

#include <QtWidgets/QStatusBar>
#include <QtWidgets/QTabWidget>

namespace SampleHost {

void MainWindow::createStatusBar()
{
    m_status = new StatusMessages(*statusBar(), this);
    m_printedFile = new PrintedFileBar;
    statusBar()->addPermanentWidget(m_printedFile);
    connect(m_printedFile, &PrintedFileBar::failed, this, &MainWindow::showError);
    connect(&m_settings, &HostSettings::changed, m_status, &StatusMessages::clearError);
    connect(&m_settings, &HostSettings::printerChanged, m_status, &StatusMessages::clearError);
}

void MainWindow::connectController(JobController& controller)
{
    connect(&controller, &JobController::requested, this, [this] {
        m_status->clearError();
        m_printedFile->withdraw();
    });
    connect(&controller, &JobController::refused, this, &MainWindow::showError);
    connect(&controller, &JobController::jobStarted, this, &MainWindow::showJob);
    connect(&controller, &JobController::jobEnded, this, &MainWindow::showOutcome);
    connect(&controller, &JobController::fileCompleted, m_printedFile, &PrintedFileBar::offer);
    // A popup whose button was pressed closes first; it would take the focus from the question.
    connect(
        &controller, &JobController::replaceRequested, this,
        [this, &controller](const QString& path) {
            askToReplace(frontWindow(), path, controller, m_settings);
        },
        Qt::QueuedConnection);
}

void MainWindow::showJob(PrintJob* job)
{
    m_status->show(tr("Printing to %1").arg(job->targetDescription()));
    new PrintProgressDialog(*job, frontWindow());
}

void MainWindow::showOutcome(PrintJob::Outcome outcome, const QString& message)
{
    // The state of the printer may have changed with the job.
    refreshPrinterStates();
    if (outcome == PrintJob::Outcome::Failed) {
        // The log keeps the message when the message box is closed.
        m_log->add(tr("Host: %1").arg(message));
        showError(message);
    } else {
        m_status->show(message);
    }
}

void MainWindow::showError(const QString& message)
{
    m_status->showError(message);
    showMessage(frontWindow(), tr("Printing"), message);
}

void MainWindow::savePdfAs()
{
    HostPage* page = &currentPage();
    if (page->controller().isBusy()) {
        m_status->showError(tr("Wait until the current job has ended, or cancel it."));
        return;
    }
    choosePdfFile(
        this, m_settings,
        [this, page] {
            m_settings.setPrinter(PrinterDirectory::pdfFileName());
            page->controller().allowReplacing(m_settings.outputPath());
            page->print();
        },
        [] {});
}

} // namespace SampleHost
