// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_PAGEUPDATE_H
#define SAMPLEHOST_PAGEUPDATE_H

#include <qpdf/Pl_Count.hh>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFWriter.hh>

#include <QtCore/QtGlobal>

#include <string>
#include <vector>

namespace SampleHost {

/**
 * Appends an incremental update to a PDF file, which repeats and reorders its pages.
 *
 * For qpdf every page is an object of a kilobyte, which takes it some microseconds. With hundreds
 * of thousands of sheets that is eight times as long as appending their few words.
 */
class PageUpdate
{
public:
    /** The writer has just written the document to the file. All of them must outlive the update.
     */
    PageUpdate(Pl_Count& file, QPDFWriter& writer, QPDF& document);

    /**
     * Gives the document the pages of order, which are 0-based indexes of pages that it has. Throws
     * what the file throws.
     */
    void write(const std::vector<int>& order);

private:
    std::string reference(const QPDFObjectHandle& object) const;
    std::string entriesOf(QPDFObjectHandle page) const;
    std::string writePages(const std::vector<int>& order);
    void writeTable();
    int begin(int number);
    int beginNext();

    Pl_Count& m_file;
    QPDFWriter& m_writer;
    QPDF& m_document;
    // The position of each object by its number.
    std::vector<qint64> m_positions;
};

} // namespace SampleHost

#endif
