// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/pdf/pdfsheetwriter.h"

#include "samplehost/pdf/fillparts.h"
#include "samplehost/pdf/pdfsource.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDateTime>

#include <initializer_list>

namespace SampleHost {

namespace {

constexpr std::size_t sheetsInNode = 256;

std::string numbers(std::initializer_list<qreal> values)
{
    std::string text;
    for (const qreal value : values) {
        text += ' ' + QByteArray::number(value, 'f', 4).toStdString();
    }
    return text;
}

std::string list(const std::vector<int>& objects)
{
    std::string text = "[";
    for (const int object : objects) {
        text += ' ' + PdfObjectWriter::reference(object);
    }
    return text + " ]";
}

std::string text(const QString& value)
{
    return QPDFObjectHandle::newUnicodeString(value.toStdString()).unparse();
}

std::string now()
{
    const QString stamp =
        QDateTime::currentDateTimeUtc().toString(QStringLiteral("yyyyMMddHHmmss"));
    return "(D:" + stamp.toStdString() + "Z)";
}

} // namespace

PdfSheetWriter::PdfSheetWriter(PdfSource& source, QIODevice& device, const SheetOptions& options,
                               SheetContents contents)
    : m_source(source),
      m_writer(device),
      m_options(options),
      m_contents(contents),
      m_root(m_writer.reserve())
{
}

PdfSheetWriter::Sheet PdfSheetWriter::makeSheet(int page)
{
    const PageBox pageBox = m_source.pageBox(page);
    const QRectF& box = pageBox.visible;
    const SheetLayout layout(pageBox, m_options);
    const PageParts parts = m_contents == SheetContents::FillOnly ? fillParts(m_source, page)
                                                                  : wholePage(m_source, page);
    std::string resources;
    for (const PdfForm& form : parts.forms) {
        const int stream = m_writer.writeStream(form.dictionary, form.data);
        resources += ' ' + form.name + ' ' + PdfObjectWriter::reference(stream);
    }
    const std::string content = "q " + matrixText(layout.pageToSheet()) + " cm" +
                                numbers({box.left(), box.top(), box.width(), box.height()}) +
                                " re W n\n" + parts.content + "Q\n";
    const int stream = m_writer.writeStream(std::string(), content);
    m_writer.copyReferred();
    return {layout.sheetSize(), " /Resources << /XObject <<" + resources + " >> >> /Contents " +
                                    PdfObjectWriter::reference(stream)};
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
    add(made, QRectF(QPointF(), made.size));
}

void PdfSheetWriter::addSheetPart(int page, const QRectF& part)
{
    add(sheet(page), part);
}

void PdfSheetWriter::add(const Sheet& sheet, const QRectF& part)
{
    openNode();
    const int number = m_writer.reserve();
    // From the lower left corner, y up.
    const qreal bottom = sheet.size.height() - part.bottom();
    m_writer.write(number,
                   "<< /Type /Page /Parent " + PdfObjectWriter::reference(m_node) + " /MediaBox [" +
                       numbers({part.left(), bottom, part.right(), bottom + part.height()}) + " ]" +
                       sheet.entries + " >>");
    m_nodeSheets.push_back(number);
    ++m_sheets;
    if (m_nodeSheets.size() == sheetsInNode) {
        closeNode();
    }
}

void PdfSheetWriter::openNode()
{
    if (m_node == 0) {
        m_node = m_writer.reserve();
    }
}

void PdfSheetWriter::closeNode()
{
    if (m_node == 0) {
        return;
    }
    m_writer.write(m_node, "<< /Type /Pages /Parent " + PdfObjectWriter::reference(m_root) +
                               " /Count " + std::to_string(m_nodeSheets.size()) + " /Kids " +
                               list(m_nodeSheets) + " >>");
    m_nodes.push_back(m_node);
    m_nodeSheets.clear();
    m_node = 0;
}

std::string PdfSheetWriter::catalogEntries()
{
    std::string entries;
    // Which layers are shown, and what the colours mean.
    for (const char* key : {"/OCProperties", "/OutputIntents"}) {
        const QPDFObjectHandle value = m_source.catalogEntry(key);
        if (!QPDFObjectHandle(value).isNull()) {
            entries += std::string(" ") + key + ' ' + m_writer.textOf(value);
        }
    }
    m_writer.copyReferred();
    return entries;
}

void PdfSheetWriter::finish(const QString& title)
{
    closeNode();
    m_writer.write(m_root, "<< /Type /Pages /Count " + std::to_string(m_sheets) + " /Kids " +
                               list(m_nodes) + " >>");
    const int catalog = m_writer.reserve();
    m_writer.write(catalog, "<< /Type /Catalog /Pages " + PdfObjectWriter::reference(m_root) +
                                catalogEntries() + " >>");
    const int info = m_writer.reserve();
    m_writer.write(info, "<< /Title " + text(title) + " /Creator " +
                             text(QCoreApplication::applicationName()) + " /CreationDate " + now() +
                             " >>");
    m_writer.finish(catalog, info);
}

} // namespace SampleHost
