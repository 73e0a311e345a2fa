// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_PDFSHEETS_H
#define SAMPLEHOST_PDFSHEETS_H

#include "samplehost/pdf/pdfpageplan.h"
#include "samplehost/pdf/sheets/pdfsheetwriter.h"

#include <memory>

namespace SampleHost {

class PdfDocument;

/** A request for a document, resolved: which sheets come out, and how each of them looks. */
class PdfSheets
{
    Q_DECLARE_TR_FUNCTIONS(PdfSheets)

public:
    PdfSheets(const PdfDocument& document, const PdfPrintRequest& request);

    /** The number of sheets; 0 when there is a problem. */
    qint64 count() const;

    /** Why there is no sheet, in words for the user; empty when there is one. */
    QString problemText() const { return m_problem; }

    /** The 0-based page of a 0-based sheet; -1 for a sheet that does not exist. */
    int page(qint64 sheet) const { return m_plan.pageOnSheet(sheet) - 1; }

    /** Says in words for the user why the page of a sheet cannot be printed after all. */
    QString damageText(qint64 sheet) const;

    /** The document; not null when there is a sheet. */
    PdfSource& source() const { return *m_source; }

    const SheetOptions& options() const { return m_options; }
    SheetContents contents() const { return m_contents; }

private:
    std::shared_ptr<PdfSource> m_source;
    PdfPagePlan m_plan;
    SheetOptions m_options;
    SheetContents m_contents = SheetContents::WholePage;
    QString m_problem;
};

} // namespace SampleHost

#endif
