// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "fuzz/fuzzinput.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <string>

namespace Fuzz {

Input::Input(const std::uint8_t* data, std::size_t size)
    : m_left(reinterpret_cast<const char*>(data), size)
{
}

std::string_view Input::line()
{
    const std::size_t end = std::min(m_left.find('\n'), m_left.size());
    const std::string_view line = m_left.substr(0, end);
    m_left.remove_prefix(std::min(end + 1, m_left.size()));
    return line;
}

char Input::character()
{
    if (m_left.empty())
        return '\0';
    const char first = m_left.front();
    m_left.remove_prefix(1);
    return first;
}

int Input::integer()
{
    const long long number = std::strtoll(std::string(line()).c_str(), nullptr, 10);
    return int(std::clamp<long long>(number, std::numeric_limits<int>::min(),
                                     std::numeric_limits<int>::max()));
}

double Input::real()
{
    const std::string text(line());
    if (text.empty() || text.front() != '#')
        return std::strtod(text.c_str(), nullptr);
    const std::uint64_t bits = std::strtoull(text.c_str() + 1, nullptr, 16);
    double number = 0;
    static_assert(sizeof(bits) == sizeof(number));
    std::memcpy(&number, &bits, sizeof(number));
    return number;
}

QString Input::text()
{
    return textOf(line());
}

QString Input::rest()
{
    const QString text = textOf(m_left);
    m_left = {};
    return text;
}

QString textOf(std::string_view bytes)
{
    QString text;
    text.reserve(qsizetype(bytes.size()));
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const auto byte = [bytes](std::size_t at) { return std::uint8_t(bytes[at]); };
        if (byte(i) < 0x80 || i + 2 >= bytes.size()) {
            text.append(QChar(char16_t(byte(i))));
            continue;
        }
        text.append(QChar(char16_t(byte(i + 1) | byte(i + 2) << 8)));
        i += 2;
    }
    return text;
}

namespace {

[[noreturn]] void fail(const std::string& what)
{
    std::fprintf(stderr, "Mismatch: %s\n", what.c_str());
    std::abort();
}

} // namespace

void requireEqual(const QString& actual, const QString& expected, const char* what)
{
    if (actual == expected)
        return;
    fail(std::string(what) + "\n  actual:   '" + actual.toStdString() + "'\n  expected: '" +
         expected.toStdString() + "'");
}

void require(bool holds, const char* what)
{
    if (!holds)
        fail(what);
}

} // namespace Fuzz
