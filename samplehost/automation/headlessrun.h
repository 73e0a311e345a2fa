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
 * Does what a command line asks for with the window's own widgets, as a user would: chooses the
 * records in the panel, types the list, presses Print, waits for the job, takes the picture.
 */
class HeadlessRun : public QObject
{
    Q_OBJECT

public:
    /** How a run ended; the values are the program's exit codes. */
    enum ExitCode {
        Success = 0,
        RuntimeFailure = 1, ///< The output could not be written, the data not be read.
        NothingToPrint = 2  ///< The command names no record, or cannot be read.
    };
    Q_ENUM(ExitCode)

    /** Prepares a run in a window, which must outlive it. */
    HeadlessRun(MainWindow& window, const CommandLine& command, QObject* parent = nullptr);

    /** Starts the run. It shows the window. finished() is sent before or after this returns. */
    void start();

Q_SIGNALS:
    /** A line of good news for standard output. */
    void reported(const QString& line);
    /** Something asked for has no effect; a line for standard error. */
    void warned(const QString& line);
    /** The run ended; message is what to say on standard error, empty on success. */
    void finished(SampleHost::HeadlessRun::ExitCode code, const QString& message);

private:
    void arrange();
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
