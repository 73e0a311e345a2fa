#include "samplehost/app/printcontroller.h"

#include "samplehost/app/hostsettings.h"
#include "samplehost/app/labeldesign.h"
#include "samplehost/app/printerdirectory.h"
#include "samplehost/app/printtofile.h"

#include <printpanels/printwidget.h>

#include <utility>

namespace SampleHost {

PrintController::PrintController(PrintWidget& panel, const LabelDesign& design,
                                 const HostSettings& settings, QObject* parent)
    : QObject(parent), m_panel(panel), m_design(design), m_settings(settings)
{
    connect(&panel, &PrintWidget::widgetPrintSignal, this, &PrintController::print);
    connect(&panel, &PrintWidget::printPreviewSignal, this, &PrintController::preview);
}

PrintController::~PrintController() = default;

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
    request.userBackground = m_panel.getPrintUserBackground();
    m_design.complete(request);
    return request;
}

SheetGeometry PrintController::sheet(const PrintRequest& request) const
{
    return SheetGeometry(m_design.labelSizeMm(request), request.nup,
                         paperSizeMm(m_settings.paper()));
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
    if (makePlan(wanted, plan)) {
        Q_EMIT previewRequested(plan, sheet(wanted), m_design.painter(wanted));
    }
}

void PrintController::print(int sequenceStart, int sequenceEnd, const QString& customRecordsList)
{
    if (isPrinting()) {
        return;
    }
    const PrintRequest wanted = request(sequenceStart, sequenceEnd, customRecordsList);
    PagePlan plan;
    if (!makePlan(wanted, plan)) {
        return;
    }
    QString problem;
    auto target = makeTarget(problem);
    if (target == nullptr) {
        Q_EMIT jobEnded(PrintJob::Outcome::Failed, problem);
        return;
    }
    startJob(wanted, plan, std::move(target));
}

std::unique_ptr<PrintTarget> PrintController::makeTarget(QString& problem) const
{
    const QString title = m_design.title();
    if (m_panel.getPrintToFileEnabled()) {
        const QString path = nextPrintTestFile(m_settings.outputFolder(), problem);
        return path.isEmpty() ? nullptr : std::make_unique<PdfTarget>(path, title);
    }
    const QString printer = m_panel.getSelectedPrinter();
    if (printer == PrinterDirectory::pdfFileName()) {
        return std::make_unique<PdfTarget>(m_settings.outputPath(), title);
    }
    return std::make_unique<PrinterTarget>(printer, title);
}

void PrintController::startJob(const PrintRequest& request, const PagePlan& plan,
                               std::unique_ptr<PrintTarget> target)
{
    m_job = new PrintJob(plan, sheet(request), m_design.painter(request), std::move(target), this);
    connect(m_job, &PrintJob::finished, this, &PrintController::endJob);
    m_panel.disablePrintButtons();
    Q_EMIT jobStarted(m_job);
    m_job->start();
}

void PrintController::endJob(PrintJob::Outcome outcome, const QString& message)
{
    const QString target = m_job->targetDescription();
    const qint64 pages = m_job->pageCount();
    m_job->deleteLater();
    m_job = nullptr;
    m_panel.enablePrintButtons();
    switch (outcome) {
    case PrintJob::Outcome::Completed:
        Q_EMIT jobEnded(
            outcome, pages == 1 ? tr("Printed 1 page to %1").arg(target)
                                : tr("Printed %1 pages to %2").arg(QString::number(pages), target));
        break;
    case PrintJob::Outcome::Cancelled:
        Q_EMIT jobEnded(outcome,
                        (tr("Printing was cancelled.") + QLatin1Char(' ') + message).trimmed());
        break;
    case PrintJob::Outcome::Failed:
        Q_EMIT jobEnded(outcome, message);
        break;
    }
}

} // namespace SampleHost
