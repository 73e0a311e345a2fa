// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_DOCUMENTRUN_H
#define SAMPLEHOST_DOCUMENTRUN_H

#include "samplehost/automation/headlessrun.h"
#include "samplehost/commandline/commandline.h"

#include <QtCore/QCoreApplication>

namespace SampleHost {

class MainWindow;
class PdfPage;

/**
 * Prints the document of a command line through the window "Preview and Print", as a user would. If
 * a step fails, it returns false and sets exitCode() and problem().
 */
class DocumentRun
{
    Q_DECLARE_TR_FUNCTIONS(DocumentRun)

public:
    /** Prepares a run in a visible window, which must outlive it. */
    DocumentRun(MainWindow& window, const CommandLine& command);

    /** Opens the window "Preview and Print" and makes all choices there. */
    bool choose();

    /** Presses Print there. */
    bool print();

    HeadlessRun::ExitCode exitCode() const { return m_exitCode; }
    QString problem() const { return m_problem; }

private:
    bool openWindow();
    bool chooseOutput();
    bool choosePages();
    bool chooseCurrent();
    bool chooseList();
    bool chooseCopies();
    bool chooseOptions();
    bool setChecked(const char* name, bool checked);
    bool fail(HeadlessRun::ExitCode code, const QString& problem);
    QWidget* panelWidget(const char* name) const;

    MainWindow& m_window;
    PdfPage& m_page;
    const CommandLine& m_command;
    HeadlessRun::ExitCode m_exitCode = HeadlessRun::Success;
    QString m_problem;
};

} // namespace SampleHost

#endif
