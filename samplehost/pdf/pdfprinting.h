// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_PDFPRINTING_H
#define SAMPLEHOST_PDFPRINTING_H

#include "samplehost/pdf/pdfprintrequest.h"
#include "samplehost/print/printjob.h"

#include <QtGui/QImage>

#include <memory>

namespace SampleHost {

class PdfDocument;

/**
 * Why a request for a document cannot be printed, in words for the user; empty when it can. Jobs
 * for a request that cannot be printed fail with this text.
 */
QString pdfPrintProblem(const PdfDocument& document, const PdfPrintRequest& request);

/**
 * A job that prints a document to the PDF file path; an empty title becomes that of the document.
 * Text, fonts and vector graphics of the pages are kept.
 */
std::unique_ptr<PrintJob> makePdfFileJob(const PdfDocument& document,
                                         const PdfPrintRequest& request, const QString& path,
                                         const QString& title = QString(),
                                         ExistingFile existing = ExistingFile::Replaced);

/** A job that paints a document on a target, as a printer wants it: the sheets become pictures. */
std::unique_ptr<PrintJob> makePdfPrinterJob(const PdfDocument& document,
                                            const PdfPrintRequest& request,
                                            std::unique_ptr<PrintTarget> target);

/**
 * The sheet of a 0-based page as the request's options (paper, fit to page, 180 degrees, form fill)
 * make it, as large as fits into bounds in pixels. The pages that the request names are ignored.
 * A null image for no such page, a damaged page and empty bounds.
 */
QImage previewPdfSheet(const PdfDocument& document, const PdfPrintRequest& request, int page,
                       const QSize& bounds);

} // namespace SampleHost

#endif
