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
    : JobController(settings, parent), m_preview(preview)
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
    if (isBusy() || !m_document) {
        return;
    }
    Q_EMIT requested();
    PdfPrintRequest request = m_preview.request();
    request.startPage = sequenceStart;
    request.endPage = sequenceEnd;
    request.pageList = customRecordsList;
    const QString reason = pdfPrintProblem(*m_document, request);
    if (!reason.isEmpty()) {
        Q_EMIT refused(reason);
        return;
    }
    const QString printer = m_preview.panel().getSelectedPrinter();
    if (printer == PrinterDirectory::pdfFileName()) {
        startFileJob([document = m_document, request](const QString& path, ExistingFile existing) {
            return makePdfFileJob(*document, request, path, QString(), existing);
        });
    } else {
        startJob(makePdfPrinterJob(*m_document, request,
                                   std::make_unique<PrinterTarget>(printer, m_document->title())),
                 QString());
    }
}

void PdfPrintController::showPrinting(bool printing)
{
    m_preview.setPrinting(printing);
}

} // namespace SampleHost
