// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/printing/pdfprintcontroller.h"

#include "samplehost/pdf/pdfdocument.h"
#include "samplehost/pdf/pdfprinting.h"
#include "samplehost/printing/hostsettings.h"
#include "samplehost/printing/pdfpreview.h"
#include "samplehost/printing/printerdirectory.h"

#include <printpanels/multipageprintwidget.h>

#include <utility>

namespace SampleHost {

PdfPrintController::PdfPrintController(PdfPreview& preview, const HostSettings& settings,
                                       QObject* parent)
    : JobController(parent), m_preview(preview), m_settings(settings)
{
    connect(&preview.panel(), &MultiPagePrintWidget::widgetPrintSignal, this,
            &PdfPrintController::print);
}

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
    startJob(std::move(job), problem);
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
    problem = m_settings.overwriteProblem(path);
    if (!problem.isEmpty()) {
        return nullptr;
    }
    return makePdfFileJob(*m_document, request, path);
}

void PdfPrintController::showPrinting(bool printing)
{
    m_preview.setPrinting(printing);
}

} // namespace SampleHost
