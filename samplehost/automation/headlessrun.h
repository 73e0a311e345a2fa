// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_HEADLESSRUN_H
#define SAMPLEHOST_HEADLESSRUN_H

#include "samplehost/automation/commandrun.h"
#include "samplehost/print/printjob.h"

#include <QtCore/QObject>

#include <memory>

namespace SampleHost {

/**
 * Executes a command line with the window's widgets, as a user would: makes the choices of a
 * CommandRun, presses Print, waits for the job and takes the screenshot.
 */
class HeadlessRun : public QObject
{
    Q_OBJECT

public:
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
    void finished(SampleHost::CommandRun::ExitCode code, const QString& message);

private:
    void applyOptions();
    std::unique_ptr<CommandRun> makeRun();
    void execute(CommandRun& run);
    void endJob(PrintJob::Outcome outcome, const QString& message);
    void finish();
    bool checkScreenshot();
    bool saveScreenshot();
    bool fail(CommandRun::ExitCode code, const QString& message);

    MainWindow& m_window;
    CommandLine m_command;
    bool m_ended = false;
};

} // namespace SampleHost

#endif
