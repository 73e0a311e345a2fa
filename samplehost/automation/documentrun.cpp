// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/automation/documentrun.h"

#include "samplehost/automation/inputsimulation.h"
#include "samplehost/pages/pdfpage.h"
#include "samplehost/pages/recordnavigator.h"
#include "samplehost/printing/pdfpreview.h"
#include "samplehost/window/mainwindow.h"

#include <printpanels/multipageprintdialog.h>
#include <printpanels/multipageprintwidget.h>

#include <QtWidgets/QCheckBox>

namespace SampleHost {

using Pages = DocumentCommand::Pages;

DocumentRun::DocumentRun(MainWindow& window, const CommandLine& command)
    : CommandRun(window, command, window.pdfPage().preview().panel()), m_page(window.pdfPage())
{
}

bool DocumentRun::choose()
{
    if (!prints() && m_command.state == DemoState::Document) {
        return true;
    }
    return openWindow() && choosePrinter(m_page.preview().panel()) && choosePages() &&
           chooseCopies("copiesEdit") && chooseOptions();
}

bool DocumentRun::openWindow()
{
    if (!m_page.problem().isEmpty()) {
        return fail(RuntimeFailure, m_page.problem());
    }
    m_window.setCurrentPage(m_page);
    if (!InputSimulation::click(
            m_page.findChild<QWidget*>(QStringLiteral("documentPrintButton")))) {
        return fail(RuntimeFailure, tr("There is no document."));
    }
    InputSimulation::processEvents();
    return true;
}

bool DocumentRun::choosePages()
{
    switch (m_command.document.pages) {
    case Pages::None:
        return true;
    case Pages::Current:
        return chooseCurrent();
    case Pages::All:
        return checkOffered(InputSimulation::click(panelWidget("allPagesRadio")));
    case Pages::List:
        break;
    }
    return chooseList();
}

bool DocumentRun::checkOffered(bool chosen)
{
    return chosen || fail(RuntimeFailure, tr("The panel offers no choice of pages."));
}

bool DocumentRun::chooseCurrent()
{
    const int page = m_command.document.page;
    const int count = m_page.navigator().count();
    if (page > count) {
        return fail(NothingToPrint,
                    tr("There is no page %1; the last one is %2. Nothing is printed.")
                        .arg(page)
                        .arg(count));
    }
    m_page.navigator().setCurrentIndex(page - 1);
    return checkOffered(InputSimulation::click(panelWidget("currentPageRadio")));
}

bool DocumentRun::chooseList()
{
    const QString list = m_command.document.list;
    return checkList(list) &&
           checkOffered(InputSimulation::click(panelWidget("selectionRadio")) &&
                        InputSimulation::type(panelWidget("pageListEdit"), list)) &&
           checkTypedList("pageListEdit", list, m_page.navigator().count(), ListItems::Pages);
}

bool DocumentRun::chooseOptions()
{
    const DocumentCommand& document = m_command.document;
    if (document.formFillOnly && !setChecked("formFillCheck", true)) {
        return fail(NothingToPrint, tr("The document has no form fields. Print it without "
                                       "--form-fill. Nothing is printed."));
    }
    const bool chosen =
        (!document.fitToPage || setChecked("fitToPageCheck", *document.fitToPage)) &&
        (!document.rotate180 || setChecked("orientationCheck", true));
    return chosen || fail(RuntimeFailure, tr("The panel does not offer this."));
}

bool DocumentRun::setChecked(const char* name, bool checked)
{
    auto* check = qobject_cast<QCheckBox*>(panelWidget(name));
    if (check == nullptr || !check->isVisible()) {
        return false;
    }
    return check->isChecked() == checked ||
           (InputSimulation::click(check) && check->isChecked() == checked);
}

bool DocumentRun::print()
{
    const QString reason = m_page.preview().problem();
    if (!reason.isEmpty()) {
        return fail(RuntimeFailure, tr("The document cannot be printed: %1.").arg(reason));
    }
    return clickPrint("PrintButton");
}

} // namespace SampleHost
