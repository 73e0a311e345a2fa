// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_CATALOGRUN_H
#define SAMPLEHOST_CATALOGRUN_H

#include "samplehost/automation/headlessrun.h"
#include "samplehost/commandline/commandline.h"

#include <QtCore/QCoreApplication>

namespace SampleHost {

class CatalogPage;
class MainWindow;

/**
 * Prints the catalogue item of a command line through the window's widgets, as a user would. If a
 * step fails, it returns false and sets exitCode() and problem().
 */
class CatalogRun
{
    Q_DECLARE_TR_FUNCTIONS(CatalogRun)

public:
    /** Prepares a run in a visible window, which must outlive it. */
    CatalogRun(MainWindow& window, const CommandLine& command);

    /** Selects printer and item, types the size, presses Resize and types the copies. */
    bool choose();

    /** Presses Print. */
    bool print();

    HeadlessRun::ExitCode exitCode() const { return m_exitCode; }
    QString problem() const { return m_problem; }

private:
    bool choosePrinter();
    bool chooseItem();
    bool chooseSize();
    bool chooseCopies();
    bool fail(HeadlessRun::ExitCode code, const QString& problem);
    QWidget* panelWidget(const char* name) const;

    MainWindow& m_window;
    CatalogPage& m_page;
    const CommandLine& m_command;
    HeadlessRun::ExitCode m_exitCode = HeadlessRun::Success;
    QString m_problem;
};

} // namespace SampleHost

#endif
