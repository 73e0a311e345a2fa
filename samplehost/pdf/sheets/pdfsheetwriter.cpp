// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/pdf/sheets/pdfsheetwriter.h"

#include "samplehost/pdf/sheets/annotationpage.h"
#include "samplehost/pdf/sheets/formfilling.h"
#include "samplehost/pdf/sheets/pageform.h"
#include "samplehost/pdf/sheets/pageupdate.h"
#include "samplehost/pdf/sheets/pdfsource.h"

#include <qpdf/Pl_Count.hh>
#include <qpdf/Pl_Function.hh>
#include <qpdf/QPDFMatrix.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFPageObjectHelper.hh>
#include <qpdf/QPDFWriter.hh>
#include <qpdf/QUtil.hh>

#include <QtCore/QCoreApplication>
#include <QtCore/QIODevice>

#include <stdexcept>

namespace SampleHost {

namespace {

QPDFObjectHandle unicode(const QString& text)
{
    return QPDFObjectHandle::newUnicodeString(text.toStdString());
}

/** The operators that place a page on its sheet and cut it off at the edges of its box. */
std::string placing(const QTransform& place, const QRectF& box)
{
    const QPDFMatrix matrix(place.m11(), place.m12(), place.m21(), place.m22(), place.dx(),
                            place.dy());
    std::string text = matrix.unparse() + " cm";
    for (const qreal number : {box.left(), box.top(), box.width(), box.height()}) {
        text += ' ' + QUtil::double_to_string(number);
    }
    return text + " re W n\n";
}

QPDFObjectHandle mediaBox(const QRectF& sheet)
{
    return QPDFObjectHandle::newArray(rectangle(sheet));
}

} // namespace

PdfSheetWriter::PdfSheetWriter(PdfSource& source, const SheetOptions& options,
                               SheetContents contents)
    : m_source(source), m_options(options), m_contents(contents)
{
    m_document.emptyPDF();
    m_document.setSuppressWarnings(true);
}

// The annotations of a page as a form XObject of the new document; null without any.
QPDFObjectHandle PdfSheetWriter::copiedAnnotations(int page)
{
    AnnotationPage annotations(m_source, page);
    if (m_contents == SheetContents::FillOnly) {
        addFilling(annotations, m_source, page);
    } else {
        annotations.addAll();
    }
    if (annotations.isEmpty()) {
        return QPDFObjectHandle::newNull();
    }
    // Flattening treats every page that the document has, which is this one alone.
    const QPDFObjectHandle copy = m_document.copyForeignObject(annotations.object());
    QPDFPageDocumentHelper pages(m_document);
    pages.addPage(copy, false);
    pages.flattenAnnotations(an_print, an_invisible | an_hidden);
    pages.removePage(copy);
    return QPDFPageObjectHelper(copy).getFormXObjectForPage(false);
}

QPDFObjectHandle PdfSheetWriter::makeSheet(int page)
{
    const PageBox pageBox = m_source.pageBox(page);
    const SheetLayout layout(pageBox, m_options);
    QPDFObjectHandle forms = QPDFObjectHandle::newDictionary();
    std::string content = "q " + placing(layout.pageToSheet(), pageBox.visible);
    if (m_contents == SheetContents::WholePage) {
        forms.replaceKey("/Page", m_document.copyForeignObject(pageForm(m_source, page)));
        content += "/Page Do\n";
    }
    const QPDFObjectHandle annotations = copiedAnnotations(page);
    if (!QPDFObjectHandle(annotations).isNull()) {
        forms.replaceKey("/Annotations", annotations);
        content += "/Annotations Do\n";
    }
    QPDFObjectHandle resources = QPDFObjectHandle::newDictionary({{"/XObject", forms}});
    return QPDFObjectHandle::newDictionary({
        {"/Type", QPDFObjectHandle::newName("/Page")},
        {"/MediaBox", mediaBox(QRectF(QPointF(), layout.sheetSize()))},
        {"/Resources", m_document.makeIndirectObject(resources)},
        {"/Contents", m_document.newStream(content + "Q\n")},
    });
}

PdfSheetWriter::Sheet& PdfSheetWriter::sheet(int page)
{
    auto sheet = m_sheets.find(page);
    if (sheet == m_sheets.end()) {
        sheet = m_sheets.insert(page, {makeSheet(page)});
    }
    return *sheet;
}

int PdfSheetWriter::append(const QPDFObjectHandle& object)
{
    m_objects.push_back(object);
    return int(m_objects.size()) - 1;
}

void PdfSheetWriter::addSheet(int page)
{
    Sheet& made = sheet(page);
    if (made.index < 0) {
        made.index = append(made.object);
    }
    m_order.push_back(made.index);
}

void PdfSheetWriter::addSheetPart(int page, const QRectF& part)
{
    // From the lower left corner, y up.
    const QSizeF size = SheetLayout(m_source.pageBox(page), m_options).sheetSize();
    const QRectF box(part.left(), size.height() - part.bottom(), part.width(), part.height());
    QPDFObjectHandle object = sheet(page).object.shallowCopy();
    object.replaceKey("/MediaBox", mediaBox(box));
    m_order.push_back(append(object));
}

void PdfSheetWriter::copyCatalogEntries()
{
    // Which layers are shown, and what the colours mean.
    for (const char* key : {"/OCProperties", "/OutputIntents"}) {
        const QPDFObjectHandle value = m_source.catalogEntry(key);
        if (!QPDFObjectHandle(value).isNull()) {
            m_document.getRoot().replaceKey(key, m_document.copyForeignObject(value));
        }
    }
}

void PdfSheetWriter::setInfo(const QString& title)
{
    const std::string now = QUtil::qpdf_time_to_pdf_time(QUtil::get_current_qpdf_time());
    m_document.getTrailer().replaceKey(
        "/Info", m_document.makeIndirectObject(QPDFObjectHandle::newDictionary({
                     {"/Title", unicode(title)},
                     {"/Creator", unicode(QCoreApplication::applicationName())},
                     {"/CreationDate", QPDFObjectHandle::newString(now)},
                 })));
}

void PdfSheetWriter::write(QIODevice& device, const QString& title,
                           const std::function<void()>& afterPart)
{
    for (const QPDFObjectHandle& object : m_objects) {
        m_document.addPage(object, false);
    }
    copyCatalogEntries();
    setInfo(title);
    Pl_Function output("output", nullptr, [&](unsigned char const* data, size_t length) {
        if (device.write(reinterpret_cast<const char*>(data), qint64(length)) != qint64(length)) {
            throw std::runtime_error("the device cannot be written");
        }
        if (afterPart) {
            afterPart();
        }
    });
    Pl_Count file("file", &output);
    QPDFWriter writer(m_document);
    writer.setOutputPipeline(&file);
    writer.setMinimumPDFVersion("1.7");
    // The streams of the pages are encoded already; our own are short.
    writer.setDecodeLevel(qpdf_dl_none);
    writer.setCompressStreams(false);
    writer.write();
    if (m_order.size() > m_objects.size()) {
        PageUpdate(file, writer, m_document).write(m_order);
    }
    if (!m_source.isIntact()) {
        throw std::runtime_error("the file has changed");
    }
}

} // namespace SampleHost
