#include "samplehost/app/pdfprintcontroller.h"

#include "samplehost/app/hostsettings.h"
#include "samplehost/app/joboutcome.h"
#include "samplehost/app/pdfpreview.h"
#include "samplehost/app/printerdirectory.h"
#include "samplehost/pdf/pdfdocument.h"
#include "samplehost/pdf/pdfprinting.h"

#include <printpanels/multipageprintwidget.h>

#include <QtCore/QDir>
#include <QtCore/QFileInfo>

#include <utility>

namespace SampleHost {

namespace {

bool isSameFile(const QString& path, const QString& other)
{
    const QString file = QFileInfo(path).canonicalFilePath();
    return !file.isEmpty() && file == QFileInfo(other).canonicalFilePath();
}

} // namespace

PdfPrintController::PdfPrintController(PdfPreview& preview, const HostSettings& settings,
                                       QObject* parent)
    : QObject(parent), m_preview(preview), m_settings(settings)
{
    connect(&preview.panel(), &MultiPagePrintWidget::widgetPrintSignal, this,
            &PdfPrintController::print);
}

PdfPrintController::~PdfPrintController() = default;

void PdfPrintController::setDocument(std::shared_ptr<const PdfDocument> document)
{
    m_document = std::move(document);
}

void PdfPrintController::print(int sequenceStart, int sequenceEnd, const QString& customRecordsList)
{
    if (isPrinting() || !m_document) {
        return;
    }
    PdfPrintRequest request = m_preview.request();
    request.startPage = sequenceStart;
    request.endPage = sequenceEnd;
    request.pageList = customRecordsList;
    const QString reason = pdfPrintProblem(*m_document, request);
    if (!reason.isEmpty()) {
        Q_EMIT refused(reason);
        return;
    }
    QString problem;
    std::unique_ptr<PrintJob> job = makeJob(request, problem);
    if (!job) {
        Q_EMIT jobEnded(PrintJob::Outcome::Failed, problem);
        return;
    }
    job->setParent(this);
    m_job = job.release();
    connect(m_job, &PrintJob::finished, this, &PdfPrintController::endJob);
    Q_EMIT jobStarted(m_job);
    m_job->start();
}

std::unique_ptr<PrintJob> PdfPrintController::makeJob(const PdfPrintRequest& request,
                                                      QString& problem) const
{
    const QString printer = m_preview.panel().getSelectedPrinter();
    if (printer != PrinterDirectory::pdfFileName()) {
        return makePdfPrinterJob(*m_document, request,
                                 std::make_unique<PrinterTarget>(printer, m_document->title()));
    }
    const QString path = m_settings.outputPath();
    if (isSameFile(path, m_document->path())) {
        problem = tr("Printing to \"%1\" would replace the document itself. Choose another PDF "
                     "file in the preferences.")
                      .arg(QDir::toNativeSeparators(path));
        return nullptr;
    }
    return makePdfFileJob(*m_document, request, path);
}

void PdfPrintController::endJob(PrintJob::Outcome outcome, const QString& message)
{
    const QString text = jobOutcomeText(*m_job, outcome, message);
    m_job->deleteLater();
    m_job = nullptr;
    Q_EMIT jobEnded(outcome, text);
}

} // namespace SampleHost
