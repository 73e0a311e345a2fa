// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/pdf/sheets/pdfsheetwriter.h"

#include "samplehost/pdf/sheets/annotationpage.h"
#include "samplehost/pdf/sheets/formfilling.h"
#include "samplehost/pdf/sheets/pageform.h"
#include "samplehost/pdf/sheets/pdfsource.h"

#include <qpdf/Pipeline.hh>
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

constexpr qint64 sheetsInNode = 256;

/** Takes what is written to a device. */
class DevicePipeline : public Pipeline
{
public:
    DevicePipeline(QIODevice& device, const std::function<void()>& afterPart)
        : Pipeline("device", nullptr), m_device(device), m_afterPart(afterPart)
    {
    }

    void write(unsigned char const* data, size_t length) override
    {
        if (m_device.write(reinterpret_cast<const char*>(data), qint64(length)) != qint64(length)) {
            throw std::runtime_error("the device cannot be written");
        }
        if (m_afterPart) {
            m_afterPart();
        }
    }

    void finish() override {}

private:
    QIODevice& m_device;
    const std::function<void()>& m_afterPart;
};

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

PdfSheetWriter::Sheet PdfSheetWriter::makeSheet(int page)
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
    const QRectF whole(QPointF(), layout.sheetSize());
    return {layout.sheetSize(),
            m_document.makeIndirectObject(QPDFObjectHandle::newArray(rectangle(whole))),
            m_document.makeIndirectObject(QPDFObjectHandle::newDictionary({{"/XObject", forms}})),
            m_document.newStream(content + "Q\n")};
}

const PdfSheetWriter::Sheet& PdfSheetWriter::sheet(int page)
{
    auto made = m_made.constFind(page);
    if (made == m_made.constEnd()) {
        made = m_made.insert(page, makeSheet(page));
    }
    return *made;
}

void PdfSheetWriter::addSheet(int page)
{
    const Sheet& made = sheet(page);
    add(made, made.mediaBox);
}

void PdfSheetWriter::addSheetPart(int page, const QRectF& part)
{
    const Sheet& made = sheet(page);
    // From the lower left corner, y up.
    const QRectF box(part.left(), made.size.height() - part.bottom(), part.width(), part.height());
    add(made, QPDFObjectHandle::newArray(rectangle(box)));
}

void PdfSheetWriter::add(const Sheet& sheet, const QPDFObjectHandle& mediaBox)
{
    QPDFObjectHandle node = nextNode();
    node.getKey("/Kids").appendItem(m_document.makeIndirectObject(QPDFObjectHandle::newDictionary({
        {"/Type", QPDFObjectHandle::newName("/Page")},
        {"/Parent", node},
        {"/MediaBox", mediaBox},
        {"/Resources", sheet.resources},
        {"/Contents", sheet.content},
    })));
    ++m_sheets;
}

QPDFObjectHandle PdfSheetWriter::nextNode()
{
    if (m_sheets % sheetsInNode == 0) {
        m_nodes.push_back(m_document.makeIndirectObject(QPDFObjectHandle::newDictionary({
            {"/Type", QPDFObjectHandle::newName("/Pages")},
            {"/Parent", m_document.getRoot().getKey("/Pages")},
            {"/Kids", QPDFObjectHandle::newArray()},
        })));
    }
    return m_nodes.back();
}

// Adding page by page, which checks each of them, would take half as long again in all.
void PdfSheetWriter::finishPageTree()
{
    for (QPDFObjectHandle& node : m_nodes) {
        node.replaceKey("/Count",
                        QPDFObjectHandle::newInteger(node.getKey("/Kids").getArrayNItems()));
    }
    QPDFObjectHandle root = m_document.getRoot().getKey("/Pages");
    root.replaceKey("/Kids", QPDFObjectHandle::newArray(m_nodes));
    root.replaceKey("/Count", QPDFObjectHandle::newInteger(m_sheets));
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
    finishPageTree();
    copyCatalogEntries();
    setInfo(title);
    DevicePipeline output(device, afterPart);
    QPDFWriter writer(m_document);
    writer.setOutputPipeline(&output);
    writer.setMinimumPDFVersion("1.7");
    writer.setDecodeLevel(qpdf_dl_none);
    writer.write();
    if (!m_source.isIntact()) {
        throw std::runtime_error("the file has changed");
    }
}

} // namespace SampleHost
