// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_HEADLESSRUN_H
#define SAMPLEHOST_HEADLESSRUN_H

#include "samplehost/commandline/commandline.h"
#include "samplehost/print/printjob.h"

#include <QtCore/QObject>

namespace SampleHost {

class MainWindow;

/**
 * Executes a command line with the window's widgets, as a user would: selects the records in the
 * panel, types the list, presses Print, waits for the job and takes the screenshot.
 */
class HeadlessRun : public QObject
{
    Q_OBJECT

public:
    /** How a run ended; the values are the program's exit codes. */
    enum ExitCode {
        Success = 0,
        RuntimeFailure = 1, ///< The output cannot be written or the data cannot be read.
        NothingToPrint = 2  ///< The command line is invalid or names no record.
    };
    Q_ENUM(ExitCode)

    /** Prepares a run in a window, which must outlive it. */
    HeadlessRun(MainWindow& window, const CommandLine& command, QObject* parent = nullptr);

    /** Shows the window and starts. finished() may be emitted before this returns. */
    void start();

Q_SIGNALS:
    /** There is a line for standard output. */
    void reported(const QString& line);
    /** There is a warning for standard error. */
    void warned(const QString& line);
    /** The run ended; message is for standard error and empty on success. */
    void finished(SampleHost::HeadlessRun::ExitCode code, const QString& message);

private:
    void applyOptions();
    bool chooseRecords();
    bool chooseCurrent();
    bool chooseList();
    bool chooseSheet();
    bool chooseOutput();
    void print();
    void printCatalogItem();
    void printDocument();
    void printFromPreview();
    void endJob(PrintJob::Outcome outcome, const QString& message);
    void finish();
    bool saveScreenshot();
    bool fail(ExitCode code, const QString& message);
    QWidget* panelWidget(const char* name) const;

    MainWindow& m_window;
    CommandLine m_command;
    bool m_ended = false;
};

} // namespace SampleHost

#endif
