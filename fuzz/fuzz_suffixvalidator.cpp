// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

// Input: lower bound, upper bound, decimals and suffix, one per line, then the text to validate.
#include "fuzz/fuzzinput.h"

#include <suffixdoublevalidator.h>

#include <QtCore/QRegularExpression>

#include <cstdlib>
#include <string>

namespace {

struct Rules
{
    double bottom;
    double top;
    int decimals;
    QString suffix;
};

// Checks the syntax with a regular expression, then the range with the value that strtod() returns.
QValidator::State expectedNumberState(const QString& number, const Rules& rules)
{
    static const QRegularExpression shape(QStringLiteral("\\A(-?)([0-9]*)(?:(\\.)([0-9]*))?\\z"));
    const QRegularExpressionMatch match = shape.match(number);
    const bool negative = !match.capturedView(1).isEmpty();
    const bool hasPoint = !match.capturedView(3).isEmpty();
    const qsizetype decimals = match.capturedView(4).size();
    if (!match.hasMatch() || (negative && !(rules.bottom < 0)) ||
        (hasPoint && rules.decimals <= 0) || decimals > qMax(rules.decimals, 0))
        return QValidator::Invalid;
    if (match.capturedView(2).isEmpty() && decimals == 0)
        return QValidator::Intermediate;
    const double value = std::strtod(number.toLatin1().constData(), nullptr);
    const bool isIncomplete = hasPoint && decimals == 0;
    if (rules.bottom <= value && value <= rules.top)
        return isIncomplete ? QValidator::Intermediate : QValidator::Acceptable;
    const bool canGrow = negative ? value > rules.top : value < rules.bottom;
    return canGrow ? QValidator::Intermediate : QValidator::Invalid;
}

// Tries every way to divide the text into a number and the start of the suffix; the best counts.
QValidator::State expectedState(const QString& text, const Rules& rules)
{
    QValidator::State best = QValidator::Invalid;
    for (qsizetype typed = 0; typed <= qMin(text.size(), rules.suffix.size()); ++typed) {
        if (!text.endsWith(QStringView(rules.suffix).first(typed)))
            continue;
        QValidator::State state = expectedNumberState(text.chopped(typed), rules);
        if (typed != 0 && typed != rules.suffix.size())
            state = qMin(state, QValidator::Intermediate);
        best = qMax(best, state);
    }
    return best;
}

QValidator::State validate(const SuffixDoubleValidator& validator, const QString& text)
{
    QString copy = text;
    int position = int(text.size() / 2);
    const QValidator::State state = validator.validate(copy, position);
    Fuzz::requireEqual(copy, text, "validate() leaves the text alone");
    Fuzz::require(position == int(text.size() / 2), "validate() leaves the position alone");
    return state;
}

bool isNumberCharacter(QChar character)
{
    return QStringLiteral("0123456789.-").contains(character);
}

// A text is typed from left to right, so no prefix of a text that is not invalid may be invalid.
void checkTyping(const SuffixDoubleValidator& validator, const QString& text,
                 QValidator::State state)
{
    if (state != QValidator::Invalid && !text.isEmpty()) {
        Fuzz::require(validate(validator, text.chopped(1)) != QValidator::Invalid,
                      "a text can be typed character by character");
    }
    if (state != QValidator::Invalid)
        return;
    const QString typed = QStringLiteral("0123456789.-") + validator.suffix();
    const QChar next = typed[text.size() % typed.size()];
    Fuzz::require(validate(validator, text + next) == QValidator::Invalid,
                  "typing on does not mend an invalid text");
}

// A complete number may be followed by the suffix or not.
void checkSuffix(const SuffixDoubleValidator& validator, const QString& text,
                 QValidator::State state)
{
    const QString& suffix = validator.suffix();
    if (state != QValidator::Acceptable || suffix.isEmpty())
        return;
    const QString other = text.endsWith(suffix) ? text.chopped(suffix.size()) : text + suffix;
    Fuzz::require(validate(validator, other) == QValidator::Acceptable,
                  "a number is acceptable with and without its suffix");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Fuzz::Input input(data, size);
    Rules rules;
    rules.bottom = input.real();
    rules.top = input.real();
    rules.decimals = input.integer();
    rules.suffix = input.text();
    const QString text = input.rest();

    SuffixDoubleValidator validator(rules.bottom, rules.top, rules.decimals, nullptr);
    validator.setSuffix(rules.suffix);
    Fuzz::requireEqual(validator.suffix(), rules.suffix, "suffix()");
    const QValidator::State state = validate(validator, text);
    // If the suffix begins like a number, it is ambiguous where the number ends.
    if (!rules.suffix.isEmpty() && isNumberCharacter(rules.suffix.front()))
        return 0;
    Fuzz::require(state == expectedState(text, rules), "validate()");
    checkTyping(validator, text, state);
    checkSuffix(validator, text, state);
    return 0;
}
