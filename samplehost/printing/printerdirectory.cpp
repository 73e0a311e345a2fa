// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/printing/printerdirectory.h"

#include "samplehost/print/printqueue.h"
#include "samplehost/printing/hostsettings.h"

#include <printpanels/printwidgetinterface.h>

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtPrintSupport/QPrinterInfo>

#include <algorithm>

namespace SampleHost {

PrinterDirectory::PrinterDirectory(const HostSettings& settings) : m_settings(settings) {}

QString PrinterDirectory::pdfFileName()
{
    return tr("PDF file");
}

QStringList PrinterDirectory::names() const
{
    QStringList all = QStringList{pdfFileName()} + QPrinterInfo::availablePrinterNames() + m_added;
    // The system may list an added printer by now.
    all.removeDuplicates();
    return all;
}

bool PrinterDirectory::add(const QString& name)
{
    if (name.isEmpty() || names().contains(name)) {
        return false;
    }
    m_added.append(name);
    return true;
}

PrinterState PrinterDirectory::state(const QString& name) const
{
    if (name == pdfFileName()) {
        return pdfFileState();
    }
    PrinterState state;
    const QPrinterInfo info = QPrinterInfo::printerInfo(name);
    if (info.isNull()) {
        state.offline = true;
        state.unavailable = true;
        return state;
    }
    state.location = info.location();
    state.remote = info.isRemote();
    // A stopped printer only queues jobs. The panel shows "Remote" instead of "Offline", hence
    // both.
    state.offline = info.state() == QPrinter::Error || info.state() == QPrinter::Aborted;
    state.unavailable =
        state.offline || (PrintQueue::isSupported() && PrintQueue(name).refusesJobs());
    return state;
}

PrinterState PrinterDirectory::pdfFileState() const
{
    PrinterState state;
    state.location = QDir::toNativeSeparators(m_settings.outputPath());
    state.unavailable = !QFileInfo(m_settings.outputFolder()).isWritable();
    state.offline = state.unavailable;
    return state;
}

void PrinterDirectory::fill(PrintWidgetInterface& panel) const
{
    const QStringList printers = names();
    const qsizetype before = printers.indexOf(panel.getSelectedPrinter());
    panel.updateListOfPrinters(printers, int(std::max<qsizetype>(0, before)));
    showState(panel);
}

void PrinterDirectory::showState(PrintWidgetInterface& panel) const
{
    const PrinterState current = state(panel.getSelectedPrinter());
    panel.updatePrinterLocation(current.location);
    panel.updatePrinterStatus(current.offline, current.remote, current.unavailable);
}

} // namespace SampleHost
