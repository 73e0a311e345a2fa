// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/printing/printcontroller.h"

#include "samplehost/designs/labeldesign.h"
#include "samplehost/designs/requestsheet.h"
#include "samplehost/print/listproblem.h"
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
    : JobController(settings, parent), m_panel(panel), m_design(design), m_settings(settings)
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
    return !isBusy() && !printer.isEmpty() && printer != noPrinter;
}

bool PrintController::makePlan(const PrintRequest& request, PagePlan& plan)
{
    const int records = m_design.recordCount();
    plan = PagePlan::make(request, records);
    if (plan.problem() == PagePlan::Problem::None) {
        return true;
    }
    const QString& list = request.customRecordsList;
    Q_EMIT refused(list.isEmpty() ? tr("There is no such record. Choose another one, or reload the "
                                       "data. Nothing is printed.")
                                  : listProblem(list, records, ListItems::Records));
    return false;
}

void PrintController::preview(int sequenceStart, int sequenceEnd, const QString& customRecordsList)
{
    Q_EMIT requested();
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
    if (isBusy()) {
        return;
    }
    Q_EMIT requested();
    PagePlan plan;
    if (!makePlan(request, plan)) {
        return;
    }
    const auto makeJob = [plan, sheet = sheetOf(m_design, request),
                          painter = m_design.painter(request)](auto target) {
        return std::make_unique<PrintJob>(plan, sheet, painter, std::move(target));
    };
    const QString title = m_design.title();
    const QString printer = selectedPrinter();
    if (m_panel.getPrintToFileEnabled()) {
        QString problem;
        auto target = makeTestFile(problem);
        startJob(target ? makeJob(std::move(target)) : nullptr, problem);
    } else if (printer == PrinterDirectory::pdfFileName()) {
        startFileJob([makeJob, title](const QString& path, ExistingFile existing) {
            return makeJob(std::make_unique<PdfTarget>(path, title, existing));
        });
    } else {
        startJob(makeJob(std::make_unique<PrinterTarget>(printer, title)), QString());
    }
}

std::unique_ptr<PrintTarget> PrintController::makeTestFile(QString& problem) const
{
    const QString path = nextPrintTestFile(m_settings.outputFolder(), problem);
    return path.isEmpty() ? nullptr
                          : std::make_unique<PdfTarget>(path, m_design.title(), ExistingFile::Kept);
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
