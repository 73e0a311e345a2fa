// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/pdf/sheets/pageupdate.h"

#include <qpdf/QUtil.hh>

#include <algorithm>

namespace SampleHost {

namespace {

// The page tree has one level of nodes, so that none of them lists very many pages.
constexpr std::size_t pagesInNode = 256;

std::string reference(int number)
{
    return std::to_string(number) + " 0 R";
}

} // namespace

PageUpdate::PageUpdate(Pl_Count& file, QPDFWriter& writer, QPDF& document)
    : m_file(file), m_writer(writer), m_document(document)
{
    for (const auto& [object, entry] : writer.getWrittenXRefTable()) {
        m_positions.resize(std::max(m_positions.size(), std::size_t(object.getObj()) + 1));
        m_positions.at(std::size_t(object.getObj())) = entry.getOffset();
    }
}

void PageUpdate::write(const std::vector<int>& order)
{
    const QPDFObjectHandle pages = m_document.getRoot().getKey("/Pages");
    const std::string nodes = writePages(order);
    begin(m_writer.getRenumberedObjGen(pages.getObjGen()).getObj());
    m_file.writeString("<< /Type /Pages /Count " + std::to_string(order.size()) + " /Kids [" +
                       nodes + " ] >>\nendobj\n");
    writeTable();
}

// Returns the references to the nodes.
std::string PageUpdate::writePages(const std::vector<int>& order)
{
    std::vector<std::string> entries;
    for (const QPDFObjectHandle& page : m_document.getAllPages()) {
        entries.push_back(entriesOf(page));
    }
    const std::string root = reference(m_document.getRoot().getKey("/Pages"));
    std::string nodes;
    for (std::size_t first = 0; first < order.size(); first += pagesInNode) {
        const std::size_t last = std::min(order.size(), first + pagesInNode);
        const std::string node = SampleHost::reference(int(m_positions.size() + last - first));
        std::string kids;
        for (std::size_t i = first; i < last; ++i) {
            kids += ' ' + SampleHost::reference(beginNext());
            m_file.writeString("<< /Type /Page /Parent " + node +
                               entries.at(std::size_t(order.at(i))) + " >>\nendobj\n");
        }
        beginNext();
        m_file.writeString("<< /Type /Pages /Parent " + root + " /Count " +
                           std::to_string(last - first) + " /Kids [" + kids + " ] >>\nendobj\n");
        nodes += ' ' + node;
    }
    return nodes;
}

std::string PageUpdate::entriesOf(QPDFObjectHandle page) const
{
    return " /MediaBox " + page.getKey("/MediaBox").unparse() + " /Resources " +
           reference(page.getKey("/Resources")) + " /Contents " +
           reference(page.getKey("/Contents"));
}

std::string PageUpdate::reference(const QPDFObjectHandle& object) const
{
    return SampleHost::reference(m_writer.getRenumberedObjGen(object.getObjGen()).getObj());
}

int PageUpdate::begin(int number)
{
    m_positions.at(std::size_t(number)) = m_file.getCount();
    m_file.writeString(std::to_string(number) + " 0 obj\n");
    return number;
}

int PageUpdate::beginNext()
{
    m_positions.push_back(0);
    return begin(int(m_positions.size()) - 1);
}

// Lists all objects, so that the table that qpdf wrote is not needed any more.
void PageUpdate::writeTable()
{
    const qint64 table = m_file.getCount();
    const std::string size = std::to_string(m_positions.size());
    m_file.writeString("xref\n0 " + size + "\n0000000000 65535 f \n");
    for (std::size_t number = 1; number < m_positions.size(); ++number) {
        m_file.writeString(QUtil::int_to_string(m_positions.at(number), 10) + " 00000 n \n");
    }
    m_file.writeString("trailer\n<< /Size " + size + " /Root " + reference(m_document.getRoot()) +
                       " /Info " + reference(m_document.getTrailer().getKey("/Info")) +
                       " >>\nstartxref\n" + std::to_string(table) + "\n%%EOF\n");
    m_file.finish();
}

} // namespace SampleHost
