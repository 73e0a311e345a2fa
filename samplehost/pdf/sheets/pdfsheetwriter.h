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
    // What all sheets of one page share.
    struct Sheet
    {
        QSizeF size;
        QPDFObjectHandle mediaBox;
        QPDFObjectHandle resources;
        QPDFObjectHandle content;
    };

    const Sheet& sheet(int page);
    Sheet makeSheet(int page);
    QPDFObjectHandle copiedAnnotations(int page);
    void add(const Sheet& sheet, const QPDFObjectHandle& mediaBox);
    QPDFObjectHandle nextNode();
    void finishPageTree();
    void copyCatalogEntries();
    void setInfo(const QString& title);

    PdfSource& m_source;
    SheetOptions m_options;
    SheetContents m_contents;
    QPDF m_document;
    QHash<int, Sheet> m_made;
    // The page tree has one level of nodes, so that none of them lists very many sheets.
    std::vector<QPDFObjectHandle> m_nodes;
    qint64 m_sheets = 0;
};

} // namespace SampleHost

#endif
