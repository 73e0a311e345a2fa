// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include <suffixdoublevalidator.h>

#include <QtCore/QLocale>

namespace {
bool isDigit(QChar character)
{
    return character >= QLatin1Char('0') && character <= QLatin1Char('9');
}

qsizetype countDigits(QStringView text)
{
    qsizetype count = 0;
    while (count < text.size() && isDigit(text[count]))
        ++count;
    return count;
}

bool isNumberCharacter(QChar character)
{
    return isDigit(character) || character == QLatin1Char('.') || character == QLatin1Char('-');
}

// Returns the length of the number in front of the suffix.
qsizetype numberLength(QStringView text, const QString& suffix)
{
    if (!suffix.isEmpty() && text.endsWith(suffix))
        return text.size() - suffix.size();
    qsizetype length = 0;
    while (length < text.size() && isNumberCharacter(text[length]))
        ++length;
    return length;
}
} // namespace

SuffixDoubleValidator::SuffixDoubleValidator(double bottom, double top, int decimals,
                                             QWidget* parent)
    : QValidator(parent), m_bottom(bottom), m_top(top), m_decimals(qMax(0, decimals))
{
}

SuffixDoubleValidator::~SuffixDoubleValidator() = default;

QString SuffixDoubleValidator::suffix() const
{
    return m_suffix;
}

void SuffixDoubleValidator::setSuffix(const QString& suffix)
{
    if (suffix == m_suffix)
        return;
    m_suffix = suffix;
    Q_EMIT changed();
}

QValidator::State SuffixDoubleValidator::validate(QString& text, int&) const
{
    const QStringView whole(text);
    const qsizetype length = numberLength(whole, m_suffix);
    const QStringView rest = whole.mid(length);
    if (!rest.isEmpty() && !QStringView(m_suffix).startsWith(rest))
        return Invalid;
    const State number = validateNumber(whole.left(length));
    const bool complete = rest.isEmpty() || rest.size() == m_suffix.size();
    return complete ? number : qMin(number, Intermediate);
}

// Checks the syntax; validateValue() checks the range.
QValidator::State SuffixDoubleValidator::validateNumber(QStringView number) const
{
    QStringView rest = number;
    if (rest.startsWith(QLatin1Char('-'))) {
        if (!(m_bottom < 0))
            return Invalid;
        rest = rest.mid(1);
    }
    const qsizetype integerDigits = countDigits(rest);
    rest = rest.mid(integerDigits);
    if (rest.isEmpty())
        return integerDigits > 0 ? validateValue(number) : Intermediate;
    if (rest[0] != QLatin1Char('.') || m_decimals == 0)
        return Invalid;
    rest = rest.mid(1);
    const qsizetype decimals = countDigits(rest);
    if (decimals < rest.size() || decimals > m_decimals)
        return Invalid;
    if (integerDigits == 0 && decimals == 0)
        return Intermediate;
    const State value = validateValue(decimals > 0 ? number : number.chopped(1));
    return decimals > 0 ? value : qMin(value, Intermediate);
}

QValidator::State SuffixDoubleValidator::validateValue(QStringView number) const
{
    // The syntax is valid, so toDouble() can only overflow or underflow. It then returns an
    // infinity or zero, which are compared like any other value.
    const double value = QLocale::c().toDouble(number);
    if (value >= m_bottom && value <= m_top)
        return Acceptable;
    // Typing more digits can only move the number away from zero.
    const bool negative = number.startsWith(QLatin1Char('-'));
    const bool tooCloseToZero = negative ? value > m_top : value < m_bottom;
    return tooCloseToZero ? Intermediate : Invalid;
}
