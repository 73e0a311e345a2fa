// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_HOSTKIT_SUFFIXDOUBLEVALIDATOR_H
#define PRINTPANELS_HOSTKIT_SUFFIXDOUBLEVALIDATOR_H

#include <hostkit_export.h>

#include <QtGui/QValidator>
#include <QtWidgets/QWidget>

/**
 * Validates a decimal number that a suffix such as " in" may follow, the C locale's way whatever
 * the application's locale is:
 *
 *     text   = number [ suffix ]
 *     number = [ "-" ] ( digits [ "." digits ] | "." digits )
 *     digits = ( "0" | ... | "9" ) { "0" | ... | "9" }
 *
 * The minus sign is allowed only when the lower bound is negative, the point only when decimals
 * are. There are no plus sign, exponent, group separators or blanks other than the suffix's own;
 * the suffix counts letter for letter.
 *
 * Acceptable: such a text whose number lies in the range.
 * Intermediate: what typing on can still make acceptable: nothing at all, a number cut off behind
 * its sign or point, a suffix cut off or without a number, and a number that is too close to zero.
 * Invalid: everything else, also a number that is too far from zero or has too many decimals.
 *
 * A number counts as the double nearest to it, as the bounds do: beyond the largest double it is
 * infinite, closer to zero than the smallest it is zero.
 *
 * A suffix is expected not to begin with a digit, a point or a minus sign.
 */
class HOSTKIT_EXPORT SuffixDoubleValidator : public QValidator
{
    Q_OBJECT

public:
    /**
     * Creates a validator for numbers from @p bottom to @p top, both included, with at most
     * @p decimals digits behind the point (none if negative), and without a suffix. With bounds
     * that no number satisfies (@p bottom above @p top, or not a number) nothing is acceptable. @p
     * parent (may be null) owns the validator.
     */
    SuffixDoubleValidator(double bottom, double top, int decimals, QWidget* parent = nullptr);
    ~SuffixDoubleValidator() override;

    /** The suffix; empty at first. */
    QString suffix() const;

    /** Replaces the suffix that the text may end with; emits changed() if it is another one. */
    void setSuffix(const QString& suffix);

    /** Judges @p text by the rules above; changes neither @p text nor @p position. */
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
