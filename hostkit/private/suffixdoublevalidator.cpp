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

bool belongsToNumber(QChar character)
{
    return isDigit(character) || character == QLatin1Char('.') || character == QLatin1Char('-');
}

// Where the number ends and the suffix begins.
qsizetype numberLength(QStringView text, const QString& suffix)
{
    if (!suffix.isEmpty() && text.endsWith(suffix))
        return text.size() - suffix.size();
    qsizetype length = 0;
    while (length < text.size() && belongsToNumber(text[length]))
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

// The shape of the number; its size is validateValue()'s.
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
    // The shape is checked. Beyond a double's reach the answer is still the nearest one: an
    // infinity or zero.
    const double value = QLocale::c().toDouble(number);
    if (value >= m_bottom && value <= m_top)
        return Acceptable;
    // More digits lead away from zero, never towards it.
    const bool negative = number.startsWith(QLatin1Char('-'));
    const bool tooCloseToZero = negative ? value > m_top : value < m_bottom;
    return tooCloseToZero ? Intermediate : Invalid;
}
