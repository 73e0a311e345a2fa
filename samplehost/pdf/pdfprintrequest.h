// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_PDFPRINTREQUEST_H
#define SAMPLEHOST_PDFPRINTREQUEST_H

#include <QtCore/QSizeF>
#include <QtCore/QString>

namespace SampleHost {

/** Everything a user asked for by pressing Print in the multi-page panel. */
struct PdfPrintRequest
{
    /** First page, 1-based; 0 when pageList decides. */
    int startPage = 1;
    /** Last page, 1-based; -1 for the single page startPage. Pages beyond the last are left out. */
    int endPage = -1;
    /** A list such as "1,4-5"; when it is not empty it alone says which pages are meant. */
    QString pageList;
    /** How often the whole selection is printed, one copy after another; below 1 counts as 1. */
    int copies = 1;
    /** Scales each page evenly to the printable area of its sheet. */
    bool fitToPage = false;
    /** Turns each page upside down. */
    bool rotated180 = false;
    /**
     * Prints only what is filled in the form fields, for paper that has the form printed on it
     * already. A document without form fields is printed whole.
     */
    bool formFillOnly = false;
    /** The paper in millimetres; empty for sheets as large as their pages. */
    QSizeF paperMm;
};

} // namespace SampleHost

#endif
