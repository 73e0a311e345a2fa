// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_COMMANDRUN_H
#define SAMPLEHOST_COMMANDRUN_H

#include "samplehost/commandline/commandline.h"
#include "samplehost/print/listproblem.h"

#include <QtCore/QCoreApplication>

class PrintWidgetInterface;
class QWidget;

namespace SampleHost {

class MainWindow;

/**
 * Makes the choices of a command line on one page of a visible window, as a user would. Functions
 * that fail return false and set exitCode() and problem().
 */
class CommandRun
{
    Q_DECLARE_TR_FUNCTIONS(CommandRun)

public:
    /** The exit codes of the program. */
    enum ExitCode {
        Success = 0,
        RuntimeFailure = 1, ///< The output cannot be written or the data cannot be read.
        NothingToPrint = 2  ///< The command line is invalid or names no record.
    };

    virtual ~CommandRun();

    /** Makes all choices. */
    virtual bool choose() = 0;

    /** Whether the command line asks for printing; otherwise the page is only shown. */
    virtual bool prints() const { return m_command.hasTarget(); }

    /** Presses Print. */
    virtual bool print() = 0;

    ExitCode exitCode() const { return m_exitCode; }
    QString problem() const { return m_problem; }

    /** An option that has no effect, for the user; empty if there is none. */
    QString warning() const { return m_warning; }

protected:
    /** The window, the command line and the panel must outlive the run. */
    CommandRun(MainWindow& window, const CommandLine& command, PrintWidgetInterface& panel);

    /** Sets exitCode() and problem() and returns false. */
    bool fail(ExitCode code, const QString& problem);
    void warn(const QString& warning) { m_warning = warning; }
    /** A widget of the panel by object name, or null. */
    QWidget* panelWidget(const char* name) const;
    /** Selects the printer of the command line, if any, in a panel that lists printers. */
    bool choosePrinter(const QWidget& panel);
    bool checkList(const QString& list);
    /** Checks that a list names some of count items, and that a line edit has accepted all of it.
     */
    bool checkTypedList(const char* edit, const QString& list, int count, ListItems items);
    bool chooseCopies(const char* edit);
    bool clickPrint(const char* button);

    MainWindow& m_window;
    const CommandLine& m_command;

private:
    Q_DISABLE_COPY_MOVE(CommandRun)

    PrintWidgetInterface& m_panel;
    ExitCode m_exitCode = Success;
    QString m_problem;
    QString m_warning;
};

} // namespace SampleHost

#endif
