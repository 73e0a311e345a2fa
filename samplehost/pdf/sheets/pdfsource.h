// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_PDFSOURCE_H
#define SAMPLEHOST_PDFSOURCE_H

#include "samplehost/pdf/sheets/pagebox.h"

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFAcroFormDocumentHelper.hh>

#include <QtCore/QDateTime>
#include <QtCore/QFile>
#include <QtCore/QString>

#include <memory>
#include <vector>

namespace SampleHost {

/** A rectangle of a page's own coordinates as a PDF file has it. */
QPDFObjectHandle::Rectangle rectangle(const QRectF& rect);

/** Makes the appearance of a text field or a choice from its value, for a field that has none. */
void drawField(QPDFFormFieldObjectHelper field, QPDFAnnotationObjectHelper widget);

/**
 * The objects of a PDF file, for putting its pages on sheets. The file stays open and is read as
 * its objects are needed, so everything here may throw a std::exception on a damaged file.
 *
 * Pages are 0-based; a page outside 0 to pageCount() - 1 throws too.
 */
class PdfSource
{
public:
    /** Opens the file. Throws a std::exception when it cannot be read as a PDF document. */
    explicit PdfSource(const QString& path);

    /** Whether the file is still what was opened; if not, its objects are not what they were. */
    bool isIntact() const;

    int pageCount() const { return int(m_pages.size()); }

    /** Whether the document's author lets it be printed. */
    bool allowsPrinting() { return m_pdf.allowPrintLowRes(); }

    /** Whether there is a form field that something can be filled into. */
    bool hasFormFields();

    /** The visible part of a page; an unusable one counts as US Letter. Never throws. */
    PageBox pageBox(int page) const;

    /** The object of a page. Throws when the file is not intact any more. */
    QPDFObjectHandle page(int page) const;

    /** The document, for objects that are added to be copied elsewhere. */
    QPDF& document() { return m_pdf; }

    /** The form of the document. */
    QPDFAcroFormDocumentHelper& form() { return *m_form; }

    /** An entry of the document's catalogue as an indirect object, or a null object. */
    QPDFObjectHandle catalogEntry(const std::string& key);

private:
    Q_DISABLE_COPY_MOVE(PdfSource)
    void drawFilledFields();

    // Another program may write into the file while it is open. A file that was replaced by a new
    // one of its name stays what it was for those who have it open.
    QFile m_file;
    qint64 m_size = 0;
    QDateTime m_modified;
    QPDF m_pdf;
    std::vector<QPDFObjectHandle> m_pages;
    std::unique_ptr<QPDFAcroFormDocumentHelper> m_form;
};

} // namespace SampleHost

#endif
