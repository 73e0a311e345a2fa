// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/pdf/sheets/filltext.h"

#include <qpdf/QPDFTokenizer.hh>

#include <algorithm>
#include <array>

namespace SampleHost {

namespace {

template <std::size_t size>
bool isOneOf(const std::array<const char*, size>& names, const std::string& name)
{
    return std::find(names.cbegin(), names.cend(), name) != names.cend();
}

constexpr std::array<const char*, 4> showingText = {"Tj", "TJ", "'", "\""};
// These end a path; a path may also be there to clip the text and has to be ended then, too.
constexpr std::array<const char*, 10> paintingPath = {"S", "s",  "f", "F",  "f*",
                                                      "B", "B*", "b", "b*", "n"};
constexpr std::array<const char*, 5> paintingOther = {"sh", "Do", "BI", "ID", "EI"};

/** Copies a content stream operator by operator, with the painting of anything but text left out.
 */
class TextFilter : public QPDFObjectHandle::TokenFilter
{
public:
    void handleToken(const QPDFTokenizer::Token& token) override
    {
        switch (token.getType()) {
        case QPDFTokenizer::tt_space:
        case QPDFTokenizer::tt_comment:
        case QPDFTokenizer::tt_eof:
        case QPDFTokenizer::tt_inline_image:
            break;
        case QPDFTokenizer::tt_word:
            handleOperator(token.getRawValue());
            break;
        default:
            m_operands += token.getRawValue() + ' ';
            break;
        }
    }

    const FillText& result() const { return m_result; }

private:
    void handleOperator(const std::string& name)
    {
        if (isOneOf(paintingPath, name)) {
            m_result.content += "n\n";
        } else if (!isOneOf(paintingOther, name)) {
            m_result.content += m_operands + name + '\n';
            m_result.showsText = m_result.showsText || isOneOf(showingText, name);
        }
        m_operands.clear();
    }

    std::string m_operands;
    FillText m_result;
};

} // namespace

FillText fillTextOf(QPDFObjectHandle appearance)
{
    TextFilter filter;
    appearance.filterAsContents(&filter);
    return filter.result();
}

} // namespace SampleHost
