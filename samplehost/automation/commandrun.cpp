// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/automation/commandrun.h"

#include "samplehost/automation/inputsimulation.h"

#include <printpanels/printwidgetinterface.h>

#include <QtCore/QFileInfo>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>

namespace SampleHost {

CommandRun::CommandRun(MainWindow& window, const CommandLine& command, PrintWidgetInterface& panel)
    : m_window(window), m_command(command), m_panel(panel)
{
}

CommandRun::~CommandRun() = default;

bool CommandRun::fail(ExitCode code, const QString& problem)
{
    m_exitCode = code;
    m_problem = problem;
    return false;
}

QWidget* CommandRun::panelWidget(const char* name) const
{
    return m_panel.findChild<QWidget*>(QString::fromLatin1(name));
}

bool CommandRun::choosePrinter(const QWidget& panel)
{
    if (!m_command.output.isEmpty() &&
        !HostSettings::isFileName(QFileInfo(m_command.output).fileName())) {
        return fail(RuntimeFailure,
                    tr("\"%1\" is not the name of a file. Write a name such as labels.pdf.")
                        .arg(m_command.output));
    }
    auto* printers = panel.findChild<QComboBox*>(QStringLiteral("PrinterListCombo"));
    return m_command.printer.isEmpty() || InputSimulation::select(printers, m_command.printer) ||
           fail(RuntimeFailure, tr("There is no printer \"%1\". Choose one that the panel lists.")
                                    .arg(m_command.printer));
}

bool CommandRun::checkList(const QString& list)
{
    return !list.isEmpty() ||
           fail(NothingToPrint, tr("The list is empty. Write numbers and ranges such as "
                                   "1,4-5. Nothing is printed."));
}

bool CommandRun::checkTypedList(const char* edit, const QString& list, int count, ListItems items)
{
    const QString problem = listProblem(list, count, items);
    if (!problem.isEmpty()) {
        return fail(NothingToPrint, problem);
    }
    const QString accepted = qobject_cast<QLineEdit*>(panelWidget(edit))->text();
    return accepted == list ||
           fail(NothingToPrint, tr("The list \"%1\" is too long: the panel takes no more than "
                                   "\"%2\" of it. Nothing is printed.")
                                    .arg(list, accepted));
}

bool CommandRun::chooseCopies(const char* edit)
{
    const QString copies = QString::number(m_command.copies);
    return (InputSimulation::type(panelWidget(edit), copies) &&
            m_panel.getNumberOfCopies() == m_command.copies) ||
           fail(RuntimeFailure, tr("The panel does not take %1 copies.").arg(copies));
}

bool CommandRun::clickPrint(const char* button)
{
    return InputSimulation::click(panelWidget(button)) ||
           fail(RuntimeFailure, tr("The panel's Print button cannot be pressed."));
}

} // namespace SampleHost
