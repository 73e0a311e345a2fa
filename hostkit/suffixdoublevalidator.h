// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_HOSTKIT_SUFFIXDOUBLEVALIDATOR_H
#define PRINTPANELS_HOSTKIT_SUFFIXDOUBLEVALIDATOR_H

#include <hostkit_export.h>

#include <QtGui/QValidator>
#include <QtWidgets/QWidget>

/**
 * Validates a decimal number with an optional suffix such as " in". The format is that of the C
 * locale, whatever the application's locale is:
 *
 *     text   = number [ suffix ]
 *     number = [ "-" ] ( digits [ "." digits ] | "." digits )
 *     digits = ( "0" | ... | "9" ) { "0" | ... | "9" }
 *
 * A minus sign is allowed only if the lower bound is negative, a decimal point only if decimals
 * are allowed. Plus signs, exponents, group separators and blanks outside the suffix are not
 * allowed. The suffix is case-sensitive.
 *
 * Acceptable: a text of this form whose number is in the range.
 * Intermediate: a text that further typing may make acceptable: an empty text, a number that ends
 * after its sign or decimal point, an incomplete suffix, a suffix without a number, or a number
 * that is too close to zero.
 * Invalid: any other text, including numbers too far from zero or with too many decimals.
 *
 * The number is compared with the bounds as the nearest double: a number that is too large for a
 * double is infinite, and one that is too small is zero.
 *
 * The suffix should not begin with a digit, a decimal point or a minus sign.
 */
class HOSTKIT_EXPORT SuffixDoubleValidator : public QValidator
{
    Q_OBJECT

public:
    /**
     * Creates a validator without a suffix for numbers between @p bottom and @p top, inclusive,
     * with at most @p decimals digits after the decimal point (none if negative). If @p bottom is
     * greater than @p top, or one of them is NaN, no text is acceptable. @p parent (may be null)
     * owns the validator.
     */
    SuffixDoubleValidator(double bottom, double top, int decimals, QWidget* parent = nullptr);
    ~SuffixDoubleValidator() override;

    /** Returns the suffix; empty by default. */
    QString suffix() const;

    /** Sets the optional suffix to @p suffix. Emits changed() if it differs. */
    void setSuffix(const QString& suffix);

    /** Validates @p text as described above. Changes neither @p text nor @p position. */
    State validate(QString& text, int& position) const override;

private:
    State validateNumber(QStringView number) const;
    State validateValue(QStringView number) const;

    double m_bottom;
    double m_top;
    int m_decimals;
    QString m_suffix;
};

#endif
