// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_PDFSHEETWRITER_H
#define SAMPLEHOST_PDFSHEETWRITER_H

#include "samplehost/pdf/sheets/sheetlayout.h"

#include <qpdf/QPDF.hh>

#include <QtCore/QHash>
#include <QtCore/QString>

#include <functional>
#include <vector>

class QIODevice;

namespace SampleHost {

class PdfSource;

/** What is printed of a page. */
enum class SheetContents {
    WholePage,
    FillOnly ///< Only what is filled in the form fields.
};

/**
 * Makes a PDF file of sheets, each with a page of another document. Everything that the page draws
 * comes along as it is: text stays text in its fonts, lines stay lines, pictures keep their pixels.
 */
class PdfSheetWriter
{
public:
    /** The source must outlive the writer. */
    PdfSheetWriter(PdfSource& source, const SheetOptions& options, SheetContents contents);

    /** Adds a sheet with a 0-based page. Throws a std::exception when the page cannot be read. */
    void addSheet(int page);

    /** Adds a part of a sheet, in points from its top left corner, as a sheet of its own. */
    void addSheetPart(int page, const QRectF& part);

    /**
     * Writes the file to a device that is open; title becomes the title of the document. Calls
     * afterPart, unless it is null, after each part. Throws a std::exception when a page or the
     * device fails, and what afterPart throws.
     */
    void write(QIODevice& device, const QString& title,
               const std::function<void()>& afterPart = nullptr);

private:
    struct Sheet
    {
        // A page object.
        QPDFObjectHandle object;
        // Its index in m_objects, or -1.
        int index = -1;
    };

    Sheet& sheet(int page);
    QPDFObjectHandle makeSheet(int page);
    QPDFObjectHandle copiedAnnotations(int page);
    int append(const QPDFObjectHandle& object);
    void copyCatalogEntries();
    void setInfo(const QString& title);

    PdfSource& m_source;
    SheetOptions m_options;
    SheetContents m_contents;
    QPDF m_document;
    // By their pages.
    QHash<int, Sheet> m_sheets;
    // The sheets that differ, in the order of their first appearance.
    std::vector<QPDFObjectHandle> m_objects;
    // The index of each sheet in m_objects.
    std::vector<int> m_order;
};

} // namespace SampleHost

#endif
