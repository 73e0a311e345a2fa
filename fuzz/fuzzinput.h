// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_FUZZINPUT_H
#define PRINTPANELS_FUZZINPUT_H

#include <QtCore/QString>

#include <cstddef>
#include <cstdint>
#include <string_view>

/**
 * What a fuzzer's bytes mean. Inputs are lines, so that a corpus can be read and written by hand:
 * numbers and texts, a line each, the last text up to the end of the input.
 */
namespace Fuzz {

/** Reads an input from its beginning to its end; answers empty and zero where it is too short. */
class Input
{
public:
    Input(const std::uint8_t* data, std::size_t size);

    /** One byte, which takes no line end with it. */
    char character();
    /** A line as a decimal number, clamped to an int. */
    int integer();
    /**
     * A line as a number in any notation of C, "nan", "inf" and hexadecimal ones included, or as
     * "#" and up to 16 hexadecimal digits, the bits of the number.
     */
    double real();
    /** A line as text; see textOf(). */
    QString text();
    /** All that is left, line ends included, as text. */
    QString rest();

private:
    std::string_view line();

    std::string_view m_left;
};

/**
 * ASCII stands for itself. Any other byte makes the two bytes behind it a UTF-16 unit, the low one
 * first, so that lone surrogates and all else that is no Unicode text can appear.
 */
QString textOf(std::string_view bytes);

/** Ends the process with @p what and both texts when they differ. */
void requireEqual(const QString& actual, const QString& expected, const char* what);

/** Ends the process with @p what unless @p holds. */
void require(bool holds, const char* what);

} // namespace Fuzz

#endif
