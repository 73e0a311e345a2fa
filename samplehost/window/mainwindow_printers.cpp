// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/pages/labelpage.h"
#include "samplehost/pages/pipepage.h"
#include "samplehost/window/mainwindow.h"
#include "samplehost/window/statusmessages.h"

#include <printpanels/printwidget.h>

#include <QtWidgets/QInputDialog>

namespace SampleHost {

void MainWindow::connectPanel(PrintPage& page)
{
    PrintWidget* panel = &page.panel();
    connect(panel, &PrintWidget::openPreferencesSignal, this, &MainWindow::openPreferences);
    connect(panel, &PrintWidget::testPrintError, this, &MainWindow::showPrintError);
    connect(panel, &PrintWidget::currentPrinterSelectionChanged, this,
            [this, panel](const QString& printer) {
                m_printers.showState(*panel);
                m_settings.setPrinter(printer);
            });
    connect(&m_settings, &HostSettings::printerChanged, panel,
            [this, panel](const QString& printer) {
                panel->setSelectedPrinter(printer);
                m_printers.showState(*panel);
            });
    // The available printers may have changed while the panel was hidden.
    connect(panel, &PrintWidget::printWidgetShowSignal, this,
            [this, panel] { m_printers.fill(*panel); });
}

void MainWindow::refreshPrinterStates()
{
    m_printers.showState(m_labelPage->panel());
    m_printers.showState(m_pipePage->panel());
}

void MainWindow::askForPrinter()
{
    auto* dialog = new QInputDialog(this);
    dialog->setObjectName(QStringLiteral("addPrinterDialog"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(tr("Add Printer"));
    dialog->setLabelText(tr("Name of the printer:"));
    connect(dialog, &QInputDialog::textValueSelected, this, &MainWindow::addPrinter);
    dialog->open();
}

void MainWindow::addPrinter(const QString& name)
{
    const QString printer = name.trimmed();
    if (!m_printers.add(printer)) {
        m_status->showError(
            printer.isEmpty()
                ? tr("Enter the name of the printer.")
                : tr("There is already a printer \"%1\". Choose it in the panel.").arg(printer));
        return;
    }
    m_labelPage->panel().addPrinterToList(printer, false);
    m_pipePage->panel().addPrinterToList(printer, false);
    m_settings.setPrinter(printer);
}

} // namespace SampleHost
