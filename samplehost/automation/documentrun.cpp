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

#include <QtCore/QFileInfo>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>

namespace SampleHost {

using Pages = DocumentCommand::Pages;

DocumentRun::DocumentRun(MainWindow& window, const CommandLine& command)
    : m_window(window), m_page(window.pdfPage()), m_command(command)
{
}

bool DocumentRun::fail(HeadlessRun::ExitCode code, const QString& problem)
{
    m_exitCode = code;
    m_problem = problem;
    return false;
}

QWidget* DocumentRun::panelWidget(const char* name) const
{
    return m_page.preview().panel().findChild<QWidget*>(QString::fromLatin1(name));
}

bool DocumentRun::choose()
{
    return openWindow() && chooseOutput() && choosePages() && chooseCopies() && chooseOptions();
}

bool DocumentRun::openWindow()
{
    if (!m_page.problem().isEmpty()) {
        return fail(HeadlessRun::RuntimeFailure, m_page.problem());
    }
    m_window.setCurrentPage(m_page);
    if (!InputSimulation::click(
            m_page.findChild<QWidget*>(QStringLiteral("documentPrintButton")))) {
        return fail(HeadlessRun::RuntimeFailure, tr("There is no document."));
    }
    InputSimulation::processEvents();
    return true;
}

bool DocumentRun::chooseOutput()
{
    if (!m_command.output.isEmpty() && QFileInfo(m_command.output).fileName().isEmpty()) {
        return fail(HeadlessRun::RuntimeFailure,
                    tr("\"%1\" is not the name of a file.").arg(m_command.output));
    }
    auto* printers = qobject_cast<QComboBox*>(panelWidget("PrinterListCombo"));
    if (!m_command.printer.isEmpty() && !InputSimulation::select(printers, m_command.printer)) {
        return fail(HeadlessRun::RuntimeFailure,
                    tr("There is no printer \"%1\".").arg(m_command.printer));
    }
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
        return InputSimulation::click(panelWidget("allPagesRadio")) ||
               fail(HeadlessRun::RuntimeFailure, tr("The panel offers no choice of pages."));
    case Pages::List:
        break;
    }
    return chooseList();
}

bool DocumentRun::chooseCurrent()
{
    const int page = m_command.document.page;
    const int count = m_page.navigator().count();
    if (page > count) {
        return fail(
            HeadlessRun::NothingToPrint,
            tr("There is no page %1 among the %2 pages. Nothing is printed.").arg(page).arg(count));
    }
    m_page.navigator().setCurrentIndex(page - 1);
    return InputSimulation::click(panelWidget("currentPageRadio")) ||
           fail(HeadlessRun::RuntimeFailure, tr("The panel offers no choice of pages."));
}

bool DocumentRun::chooseList()
{
    const QString list = m_command.document.list;
    if (list.isEmpty()) {
        return fail(HeadlessRun::NothingToPrint, tr("The list is empty. Nothing is printed."));
    }
    auto* edit = qobject_cast<QLineEdit*>(panelWidget("pageListEdit"));
    if (!InputSimulation::click(panelWidget("selectionRadio")) ||
        !InputSimulation::type(edit, list)) {
        return fail(HeadlessRun::RuntimeFailure, tr("The panel offers no choice of pages."));
    }
    if (edit->text() != list) {
        return fail(HeadlessRun::NothingToPrint,
                    tr("The list \"%1\" cannot be read: the panel takes no more than \"%2\" of it. "
                       "Nothing is printed.")
                        .arg(list, edit->text()));
    }
    if (m_page.preview().shownPage() < 1) {
        return fail(HeadlessRun::NothingToPrint,
                    tr("The list \"%1\" names none of the %2 pages. Nothing is printed.")
                        .arg(list, QString::number(m_page.navigator().count())));
    }
    return true;
}

bool DocumentRun::chooseCopies()
{
    const QString copies = QString::number(m_command.copies);
    return (InputSimulation::type(panelWidget("copiesEdit"), copies) &&
            m_page.preview().panel().getNumberOfCopies() == m_command.copies) ||
           fail(HeadlessRun::RuntimeFailure, tr("The panel does not take %1 copies.").arg(copies));
}

bool DocumentRun::chooseOptions()
{
    const DocumentCommand& document = m_command.document;
    if (document.formFillOnly && !setChecked("formFillCheck", true)) {
        return fail(HeadlessRun::NothingToPrint,
                    tr("The document has no form fields. Nothing is printed."));
    }
    const bool chosen =
        (!document.fitToPage || setChecked("fitToPageCheck", *document.fitToPage)) &&
        (!document.rotate180 || setChecked("orientationCheck", true));
    return chosen || fail(HeadlessRun::RuntimeFailure, tr("The panel does not offer this."));
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
        return fail(HeadlessRun::RuntimeFailure,
                    tr("The document cannot be printed: %1.").arg(reason));
    }
    return InputSimulation::click(panelWidget("PrintButton")) ||
           fail(HeadlessRun::RuntimeFailure, tr("The panel's Print button cannot be pressed."));
}

} // namespace SampleHost
