// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/automation/labelrun.h"

#include "samplehost/automation/demostates.h"
#include "samplehost/automation/inputsimulation.h"
#include "samplehost/pages/labelpage.h"
#include "samplehost/pages/recordnavigator.h"
#include "samplehost/window/mainwindow.h"

#include <printpanels/printwidget.h>

namespace SampleHost {

using Records = CommandLine::Records;

LabelRun::LabelRun(MainWindow& window, const CommandLine& command)
    : CommandRun(window, command, window.labelPage().panel()), m_page(window.labelPage())
{
}

bool LabelRun::choose()
{
    return chooseOutput() && chooseRecords() && chooseCopies("copiesSpinBox") && chooseNupMode() &&
           openPreviewIfAsked();
}

bool LabelRun::chooseOutput()
{
    if (!m_window.dataSourceProblem().isEmpty()) {
        return fail(RuntimeFailure, m_window.dataSourceProblem());
    }
    if (!choosePrinter(m_page.panel())) {
        return false;
    }
    return !m_command.printToFile || choosePrintToFile(m_page) ||
           fail(RuntimeFailure, tr("The panel cannot print to a file."));
}

bool LabelRun::chooseRecords()
{
    switch (m_command.records) {
    case Records::None:
        return true;
    case Records::Current:
        return chooseCurrent();
    case Records::All:
        return checkOffered(InputSimulation::click(panelWidget("allRecordsRadio")));
    case Records::List:
        break;
    }
    return chooseList();
}

bool LabelRun::checkOffered(bool chosen)
{
    return chosen || fail(NothingToPrint, tr("There are no records. Nothing is printed."));
}

bool LabelRun::chooseCurrent()
{
    const int count = m_page.navigator().count();
    if (m_command.currentRecord > count) {
        return fail(NothingToPrint, tr("There is no record %1; the last one is %2. Nothing is "
                                       "printed.")
                                        .arg(m_command.currentRecord)
                                        .arg(count));
    }
    m_page.navigator().setCurrentIndex(m_command.currentRecord - 1);
    return checkOffered(InputSimulation::click(panelWidget("currentRecordRadio")));
}

bool LabelRun::chooseList()
{
    return checkList(m_command.list) &&
           checkOffered(InputSimulation::click(panelWidget("recordListRadio")) &&
                        InputSimulation::type(panelWidget("recordListEdit"), m_command.list)) &&
           checkTypedList("recordListEdit", m_command.list, m_page.navigator().count(),
                          ListItems::Records);
}

bool LabelRun::chooseNupMode()
{
    if (m_command.nupMode) {
        const bool sequencing = *m_command.nupMode == NupMode::Sequencing;
        if (!InputSimulation::click(
                panelWidget(sequencing ? "sequencingRadio" : "replicatingRadio"))) {
            warn(tr("The panel offers no N-up choice for this request; --%1 has no effect.")
                     .arg(sequencing ? QStringLiteral("sequence") : QStringLiteral("replicate")));
        }
    }
    return true;
}

bool LabelRun::openPreviewIfAsked()
{
    return !m_command.preview || openPreview(m_page, m_command.portrait) ||
           fail(RuntimeFailure, tr("The preview cannot be shown."));
}

bool LabelRun::print()
{
    if (!m_command.preview) {
        return clickPrint("PrintButton");
    }
    return InputSimulation::click(previewWidget(m_page, "printButton")) ||
           fail(RuntimeFailure, tr("The preview's Print button cannot be pressed."));
}

} // namespace SampleHost
