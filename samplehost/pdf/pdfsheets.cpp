// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/pdf/pdfsheets.h"

#include "samplehost/pdf/pdfdocument.h"
#include "samplehost/pdf/sheets/pdfsource.h"
#include "samplehost/pdf/units.h"

namespace SampleHost {

PdfSheets::PdfSheets(const PdfDocument& document, const PdfPrintRequest& request)
    : m_source(document.source()), m_plan(request, document.pageCount())
{
    m_options.paper = request.paperMm * pointsPerMm;
    m_options.fitToPage = request.fitToPage;
    m_options.rotated180 = request.rotated180;
    if (request.formFillOnly && document.hasFormFields()) {
        m_contents = SheetContents::FillOnly;
    }
    if (!document.isOpen()) {
        m_problem = tr("No document is open. Nothing is printed.");
    } else if (!document.allowsPrinting()) {
        m_problem = tr("The author of the document does not allow it to be printed.");
    } else {
        m_problem = m_plan.problemText();
    }
}

qint64 PdfSheets::count() const
{
    return m_problem.isEmpty() ? m_plan.sheetCount() : 0;
}

QString PdfSheets::damageText(qint64 sheet) const
{
    if (!m_source->isIntact()) {
        return tr("The file of the document was changed. Open it again to print it.");
    }
    return tr("Page %1 of the document is damaged and cannot be printed.").arg(page(sheet) + 1);
}

} // namespace SampleHost
