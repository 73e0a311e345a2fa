// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/pdf/pdfobjectwriter.h"

#include <qpdf/Buffer.hh>

#include <QtCore/QByteArray>
#include <QtCore/QIODevice>

#include <algorithm>

namespace SampleHost {

std::string matrixText(const QTransform& transform)
{
    std::string text;
    for (const qreal number : {transform.m11(), transform.m12(), transform.m21(), transform.m22(),
                               transform.dx(), transform.dy()}) {
        text += (text.empty() ? "" : " ") + QByteArray::number(number, 'f', 6).toStdString();
    }
    return text;
}

PdfObjectWriter::PdfObjectWriter(QIODevice& device) : m_device(device)
{
    // The four high bytes tell programs that move files that this one is not text.
    put("%PDF-1.7\n%\xE2\xE3\xCF\xD3\n");
}

int PdfObjectWriter::reserve()
{
    m_offsets.push_back(0);
    return int(m_offsets.size()) - 1;
}

std::string PdfObjectWriter::textOf(QPDFObjectHandle object)
{
    if (object.isIndirect()) {
        return reference(numberOf(object));
    }
    if (object.isDictionary()) {
        return "<<" + entriesOf(object, false) + " >>";
    }
    if (!object.isArray()) {
        return object.unparse();
    }
    std::string text = "[";
    for (const QPDFObjectHandle& item : object.getArrayAsVector()) {
        text += ' ' + textOf(item);
    }
    return text + " ]";
}

int PdfObjectWriter::numberOf(const QPDFObjectHandle& object)
{
    const auto found = m_numbers.find(object.getObjGen());
    if (found != m_numbers.cend()) {
        return found->second;
    }
    const int number = reserve();
    m_numbers.emplace(object.getObjGen(), number);
    m_referred.emplace_back(number, object);
    return number;
}

std::string PdfObjectWriter::entriesOf(QPDFObjectHandle dictionary, bool isStream)
{
    std::string text;
    for (const auto& entry : dictionary.getDictAsMap()) {
        if (!isStream || entry.first != "/Length") {
            text +=
                ' ' + QPDFObjectHandle::newName(entry.first).unparse() + ' ' + textOf(entry.second);
        }
    }
    return text;
}

void PdfObjectWriter::write(int number, const std::string& text)
{
    begin(number);
    put(text + "\nendobj\n");
}

int PdfObjectWriter::writeStream(const std::string& entries, const std::string& data)
{
    const int number = reserve();
    begin(number);
    put("<<" + entries + " /Length " + std::to_string(data.size()) + " >>\nstream\n");
    put(data);
    put("\nendstream\nendobj\n");
    return number;
}

int PdfObjectWriter::writeStream(QPDFObjectHandle dictionary, const std::string& data)
{
    return writeStream(entriesOf(dictionary, true), data);
}

void PdfObjectWriter::copyReferred()
{
    while (!m_referred.empty()) {
        const auto next = m_referred.back();
        m_referred.pop_back();
        copy(next.first, next.second);
    }
}

void PdfObjectWriter::copy(int number, QPDFObjectHandle object)
{
    if (object.isStream()) {
        const std::string entries = entriesOf(object.getDict(), true);
        const auto data = object.getRawStreamData();
        begin(number);
        put("<<" + entries + " /Length " + std::to_string(data->getSize()) + " >>\nstream\n");
        put(std::string(reinterpret_cast<const char*>(data->getBuffer()), data->getSize()));
        put("\nendstream\nendobj\n");
    } else if (object.isPageObject() || object.isPagesObject()) {
        // A drawing has no need of other pages, and one of them could bring the whole document.
        write(number, "null");
    } else if (object.isDictionary() || object.isArray()) {
        write(number, textOf(object.shallowCopy()));
    } else {
        write(number, object.unparseResolved());
    }
}

void PdfObjectWriter::begin(int number)
{
    m_offsets.at(std::size_t(number)) = m_position;
    put(std::to_string(number) + " 0 obj\n");
}

void PdfObjectWriter::put(const std::string& text)
{
    m_device.write(text.data(), qint64(text.size()));
    m_position += qint64(text.size());
}

void PdfObjectWriter::finish(int catalog, int info)
{
    const qint64 table = m_position;
    put("xref\n0 " + std::to_string(m_offsets.size()) + "\n0000000000 65535 f \n");
    for (std::size_t number = 1; number < m_offsets.size(); ++number) {
        const bool isFree = m_offsets.at(number) == 0;
        const std::string digits = std::to_string(m_offsets.at(number));
        put(std::string(10 - std::min<std::size_t>(10, digits.size()), '0') + digits +
            (isFree ? " 65535 f \n" : " 00000 n \n"));
    }
    put("trailer\n<< /Size " + std::to_string(m_offsets.size()) + " /Root " + reference(catalog) +
        " /Info " + reference(info) + " >>\nstartxref\n" + std::to_string(table) + "\n%%EOF\n");
}

} // namespace SampleHost
