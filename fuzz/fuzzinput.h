// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_FUZZINPUT_H
#define PRINTPANELS_FUZZINPUT_H

#include <QtCore/QString>

#include <cstddef>
#include <cstdint>
#include <string_view>

/**
 * Reads the inputs of fuzzers. An input consists of lines, so that a corpus can be read and written
 * by hand: one number or text per line, where the last text extends to the end of the input.
 */
namespace Fuzz {

/** Reads an input from start to end. At the end of the input, returns empty texts and zeros. */
class Input
{
public:
    /** Reads @p size bytes at @p data, which must outlive the object. */
    Input(const std::uint8_t* data, std::size_t size);

    /** Reads one byte, but no line end after it. */
    char character();
    /** Reads a line as a decimal number, clamped to the range of int. */
    int integer();
    /**
     * Reads a line as a number in any notation that strtod() accepts, including "nan", "inf" and
     * hexadecimal, or as "#" followed by the bits of the double in up to 16 hexadecimal digits.
     */
    double real();
    /** Reads a line as text; see textOf(). */
    QString text();
    /** Reads the rest of the input as text, including line ends. */
    QString rest();

private:
    std::string_view line();

    std::string_view m_left;
};

/**
 * Decodes a text. ASCII characters stand for themselves. Any other byte is followed by a UTF-16
 * code unit of two bytes, low byte first, so that texts can contain lone surrogates and other
 * invalid UTF-16; without two bytes after it, it stands for itself.
 */
QString textOf(std::string_view bytes);

/** Prints @p what and both texts and aborts the process if the texts differ. */
void requireEqual(const QString& actual, const QString& expected, const char* what);

/** Prints @p what and aborts the process unless @p holds is true. */
void require(bool holds, const char* what);

} // namespace Fuzz

#endif
