// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/pdf/pdfprinting.h"

#include "samplehost/pdf/pdfdocument.h"
#include "samplehost/pdf/pdffilework.h"
#include "samplehost/pdf/sheetimage.h"
#include "samplehost/pdf/sheetpages.h"
#include "samplehost/pdf/sheets/pdfsource.h"

#include <exception>
#include <utility>

namespace SampleHost {

QString pdfPrintProblem(const PdfDocument& document, const PdfPrintRequest& request)
{
    return PdfSheets(document, request).problemText();
}

std::unique_ptr<PrintJob> makePdfFileJob(const PdfDocument& document,
                                         const PdfPrintRequest& request, const QString& path,
                                         const QString& title, ExistingFile existing)
{
    return std::make_unique<PrintJob>(std::make_unique<PdfFileWork>(
        PdfSheets(document, request), path, title.isEmpty() ? document.title() : title, existing));
}

std::unique_ptr<PrintJob> makePdfPrinterJob(const PdfDocument& document,
                                            const PdfPrintRequest& request,
                                            std::unique_ptr<PrintTarget> target)
{
    auto pages = std::make_unique<SheetPages>(PdfSheets(document, request));
    return std::make_unique<PrintJob>(
        std::make_unique<PaintedWork>(std::move(pages), std::move(target)));
}

QImage previewPdfSheet(const PdfDocument& document, const PdfPrintRequest& request, int page,
                       const QSize& bounds)
{
    const PdfSheets sheets(document, request);
    if (page < 0 || page >= document.pageCount() || bounds.isEmpty()) {
        return QImage();
    }
    const QSizeF sheet = SheetLayout(sheets.source().pageBox(page), sheets.options()).sheetSize();
    const QSize size = sheet.scaled(bounds, Qt::KeepAspectRatio).toSize().expandedTo(QSize(1, 1));
    try {
        return SheetImage(sheets.source(), page, sheets.options(), sheets.contents(), size,
                          size.height())
            .band(0);
    } catch (const std::exception&) {
        return QImage();
    }
}

} // namespace SampleHost
