// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_PDFSHEETWRITER_H
#define SAMPLEHOST_PDFSHEETWRITER_H

#include "samplehost/pdf/pdfobjectwriter.h"
#include "samplehost/pdf/sheetlayout.h"

#include <QtCore/QHash>
#include <QtCore/QString>

#include <string>
#include <vector>

namespace SampleHost {

class PdfSource;

/** What of a page comes on its sheet. */
enum class SheetContents {
    WholePage,
    FillOnly ///< Only what is filled in the form fields.
};

/**
 * Writes a PDF file of sheets, each with a page of another document. Everything that the page draws
 * comes along as it is: text stays text in its fonts, lines stay lines, pictures keep their pixels.
 */
class PdfSheetWriter
{
public:
    /** The source and the open device must outlive the writer. */
    PdfSheetWriter(PdfSource& source, QIODevice& device, const SheetOptions& options,
                   SheetContents contents);

    /** Adds a sheet with a 0-based page. Throws a std::exception when the page cannot be read. */
    void addSheet(int page);

    /** Adds a part of a sheet, in points from its top left corner, as a sheet of its own. */
    void addSheetPart(int page, const QRectF& part);

    /** Ends the file; title becomes the title of the document. Throws a std::exception likewise. */
    void finish(const QString& title);

private:
    // What all sheets of one page share.
    struct Sheet
    {
        QSizeF size;
        // The text of its dictionary's entries.
        std::string entries;
    };

    const Sheet& sheet(int page);
    Sheet makeSheet(int page);
    void add(const Sheet& sheet, const QRectF& part);
    void openNode();
    void closeNode();
    std::string catalogEntries();

    PdfSource& m_source;
    PdfObjectWriter m_writer;
    SheetOptions m_options;
    SheetContents m_contents;
    int m_root;
    QHash<int, Sheet> m_made;
    // The page tree has one level of nodes, so that none of them lists very many sheets.
    int m_node = 0;
    std::vector<int> m_nodeSheets;
    std::vector<int> m_nodes;
    qint64 m_sheets = 0;
};

} // namespace SampleHost

#endif
