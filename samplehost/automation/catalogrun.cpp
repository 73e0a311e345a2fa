// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/automation/catalogrun.h"

#include "samplehost/automation/inputsimulation.h"
#include "samplehost/pages/catalogpage.h"
#include "samplehost/pages/labelpage.h"
#include "samplehost/window/mainwindow.h"

#include <printpanels/printwidget.h>
#include <printpanels/quickprintwidget.h>

#include <QtCore/QFileInfo>
#include <QtWidgets/QComboBox>

namespace SampleHost {

CatalogRun::CatalogRun(MainWindow& window, const CommandLine& command)
    : m_window(window), m_page(window.catalogPage()), m_command(command)
{
}

bool CatalogRun::fail(HeadlessRun::ExitCode code, const QString& problem)
{
    m_exitCode = code;
    m_problem = problem;
    return false;
}

QWidget* CatalogRun::panelWidget(const char* name) const
{
    return m_page.panel().findChild<QWidget*>(QString::fromLatin1(name));
}

bool CatalogRun::choose()
{
    return choosePrinter() && chooseItem() && chooseSize() && chooseCopies();
}

bool CatalogRun::choosePrinter()
{
    if (!m_command.output.isEmpty() && QFileInfo(m_command.output).fileName().isEmpty()) {
        return fail(HeadlessRun::RuntimeFailure,
                    tr("\"%1\" is not the name of a file.").arg(m_command.output));
    }
    if (m_command.printer.isEmpty()) {
        return true;
    }
    // Only the panel of this page has a list of printers.
    m_window.setCurrentPage(m_window.labelPage());
    auto* printers =
        m_window.labelPage().panel().findChild<QComboBox*>(QStringLiteral("PrinterListCombo"));
    return InputSimulation::select(printers, m_command.printer) ||
           fail(HeadlessRun::RuntimeFailure,
                tr("There is no printer \"%1\".").arg(m_command.printer));
}

bool CatalogRun::chooseItem()
{
    const int index = catalogIndexOf(m_command.catalog.item);
    if (index < 0) {
        QStringList names;
        for (const CatalogItem& item : catalogItems()) {
            names.append(item.text);
        }
        return fail(HeadlessRun::NothingToPrint,
                    tr("There is no catalogue item \"%1\". There are: %2.")
                        .arg(m_command.catalog.item, names.join(QStringLiteral(", "))));
    }
    m_window.setCurrentPage(m_page);
    m_page.setCurrentItem(index);
    InputSimulation::processEvents();
    m_window.growToPanel();
    return true;
}

bool CatalogRun::chooseSize()
{
    const CatalogCommand& catalog = m_command.catalog;
    if (!catalog.hasSize()) {
        return true;
    }
    if (!InputSimulation::type(panelWidget("lengthEdit"), catalog.length) ||
        !InputSimulation::type(panelWidget("widthEdit"), catalog.width) ||
        !InputSimulation::click(panelWidget("resizeButton"))) {
        return fail(HeadlessRun::RuntimeFailure, tr("The panel takes no size."));
    }
    if (!m_page.message().isEmpty()) {
        return fail(HeadlessRun::NothingToPrint,
                    m_page.message() + QLatin1Char(' ') + tr("Nothing is printed."));
    }
    return true;
}

bool CatalogRun::chooseCopies()
{
    return (InputSimulation::type(panelWidget("copiesSpinBox"),
                                  QString::number(m_command.copies)) &&
            m_page.panel().getNumberOfCopies() == m_command.copies) ||
           fail(HeadlessRun::RuntimeFailure,
                tr("The panel does not take %1 copies.").arg(m_command.copies));
}

bool CatalogRun::print()
{
    return InputSimulation::click(panelWidget("printButton")) ||
           fail(HeadlessRun::RuntimeFailure, tr("The panel's Print button cannot be pressed."));
}

} // namespace SampleHost
