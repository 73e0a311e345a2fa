// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/automation/catalogrun.h"

#include "samplehost/automation/inputsimulation.h"
#include "samplehost/pages/catalogpage.h"
#include "samplehost/pages/labelpage.h"
#include "samplehost/window/mainwindow.h"

#include <printpanels/printwidget.h>
#include <printpanels/quickprintwidget.h>

namespace SampleHost {

CatalogRun::CatalogRun(MainWindow& window, const CommandLine& command)
    : CommandRun(window, command, window.catalogPage().panel()), m_page(window.catalogPage())
{
}

bool CatalogRun::choose()
{
    if (!m_command.printer.isEmpty()) {
        // Only the panel of this page has a list of printers.
        m_window.setCurrentPage(m_window.labelPage());
    }
    return choosePrinter(m_window.labelPage().panel()) && chooseItem() && chooseSize() &&
           chooseCopies("copiesSpinBox");
}

bool CatalogRun::chooseItem()
{
    const int index = catalogIndexOf(m_command.catalog.item);
    if (index < 0) {
        QStringList names;
        for (const CatalogItem& item : catalogItems()) {
            names.append(item.text);
        }
        return fail(NothingToPrint,
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
        return fail(RuntimeFailure, tr("The panel takes no size."));
    }
    if (!m_page.message().isEmpty()) {
        return fail(NothingToPrint,
                    m_page.message() + QLatin1Char(' ') + tr("Nothing is printed."));
    }
    return true;
}

bool CatalogRun::print()
{
    return clickPrint("printButton");
}

} // namespace SampleHost
