// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/printing/printcontroller.h"

#include "samplehost/designs/labeldesign.h"
#include "samplehost/designs/requestsheet.h"
#include "samplehost/printing/hostsettings.h"
#include "samplehost/printing/printerdirectory.h"
#include "samplehost/printing/printtofile.h"

#include <printpanels/printwidget.h>

#include <utility>

namespace SampleHost {

namespace {

// What a panel shows if it has no printers.
const QString noPrinter = QStringLiteral("No printer");

} // namespace

PrintController::PrintController(PrintWidgetInterface& panel, const LabelDesign& design,
                                 const HostSettings& settings, QObject* parent)
    : JobController(parent), m_panel(panel), m_design(design), m_settings(settings)
{
    using Panel = PrintWidgetInterface;
    connect(&panel, &Panel::widgetPrintSignal, this, &PrintController::print);
    connect(&panel, &Panel::printPreviewSignal, this, &PrintController::preview);
    connect(&panel, &Panel::currentPrinterSelectionChanged, this,
            &PrintController::readinessChanged);
}

PrintRequest PrintController::request(int sequenceStart, int sequenceEnd,
                                      const QString& customRecordsList) const
{
    PrintRequest request;
    request.sequenceStart = sequenceStart;
    request.sequenceEnd = sequenceEnd;
    request.customRecordsList = customRecordsList;
    request.copies = m_panel.getNumberOfCopies();
    request.nup = m_settings.nup();
    request.nupMode = m_panel.getNupSeqRepOption() ? NupMode::Sequencing : NupMode::Replicating;
    if (const auto* panel = qobject_cast<const PrintWidget*>(&m_panel)) {
        request.userBackground = panel->getPrintUserBackground();
    }
    request.paperMm = paperSizeMm(m_settings.paper());
    m_design.complete(request);
    return request;
}

QString PrintController::selectedPrinter() const
{
    // A panel without a list of printers uses the printer in the settings.
    const QString printer = m_panel.getSelectedPrinter();
    return printer.isEmpty() ? m_settings.printer() : printer;
}

bool PrintController::isReady() const
{
    const QString printer = selectedPrinter();
    return !isPrinting() && !printer.isEmpty() && printer != noPrinter;
}

bool PrintController::makePlan(const PrintRequest& request, PagePlan& plan)
{
    const int records = m_design.recordCount();
    plan = PagePlan::make(request, records);
    const QString& list = request.customRecordsList;
    switch (plan.problem()) {
    case PagePlan::Problem::None:
        return true;
    case PagePlan::Problem::UnreadableList:
        Q_EMIT refused(tr("The list \"%1\" cannot be read. Nothing is printed.").arg(list));
        break;
    case PagePlan::Problem::NoSuchRecord:
        Q_EMIT refused(list.isEmpty()
                           ? tr("There is no such record. Nothing is printed.")
                           : tr("The list \"%1\" names none of the %2 records. Nothing is printed.")
                                 .arg(list, QString::number(records)));
        break;
    }
    return false;
}

void PrintController::preview(int sequenceStart, int sequenceEnd, const QString& customRecordsList)
{
    const PrintRequest wanted = request(sequenceStart, sequenceEnd, customRecordsList);
    PagePlan plan;
    if (!makePlan(wanted, plan)) {
        return;
    }
    // A preview that shows only an error message is of no use.
    QString problem;
    renderFirstSheet(m_design, wanted, QSize(100, 100), &problem);
    if (problem.isEmpty()) {
        Q_EMIT previewRequested(wanted);
    } else {
        Q_EMIT jobEnded(PrintJob::Outcome::Failed, problem);
    }
}

void PrintController::print(int sequenceStart, int sequenceEnd, const QString& customRecordsList)
{
    printRequest(request(sequenceStart, sequenceEnd, customRecordsList));
}

void PrintController::printAgain(const PrintRequest& request)
{
    PrintRequest again = request;
    again.copies = m_panel.getNumberOfCopies();
    printRequest(again);
}

void PrintController::printRequest(const PrintRequest& request)
{
    PagePlan plan;
    if (isPrinting() || !makePlan(request, plan)) {
        return;
    }
    QString problem;
    std::unique_ptr<PrintJob> job;
    if (auto target = makeTarget(problem)) {
        job = std::make_unique<PrintJob>(plan, sheetOf(m_design, request),
                                         m_design.painter(request), std::move(target));
    }
    startJob(std::move(job), problem);
}

std::unique_ptr<PrintTarget> PrintController::makeTarget(QString& problem) const
{
    const QString title = m_design.title();
    if (m_panel.getPrintToFileEnabled()) {
        const QString path = nextPrintTestFile(m_settings.outputFolder(), problem);
        return path.isEmpty() ? nullptr : std::make_unique<PdfTarget>(path, title);
    }
    const QString printer = selectedPrinter();
    if (printer == PrinterDirectory::pdfFileName()) {
        const QString path = m_settings.outputPath();
        problem = m_settings.overwriteProblem(path);
        return problem.isEmpty() ? std::make_unique<PdfTarget>(path, title) : nullptr;
    }
    return std::make_unique<PrinterTarget>(printer, title);
}

void PrintController::showPrinting(bool printing)
{
    if (printing) {
        m_panel.disablePrintButtons();
    } else {
        m_panel.enablePrintButtons();
    }
    Q_EMIT readinessChanged();
}

} // namespace SampleHost
