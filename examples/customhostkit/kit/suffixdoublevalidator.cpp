// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "suffixdoublevalidator.h"

SuffixDoubleValidator::SuffixDoubleValidator(double bottom, double top, int decimals,
                                             QWidget* parent)
    : QDoubleValidator(bottom, top, decimals, parent)
{
    setNotation(StandardNotation);
    setLocale(QLocale::c()); // as the panels write and read the number
}

void SuffixDoubleValidator::setSuffix(const QString& suffix)
{
    m_suffix = suffix;
    Q_EMIT changed();
}

QValidator::State SuffixDoubleValidator::validate(QString& text, int& position) const
{
    // The longest part of the suffix that the text ends with; all but the whole is still being
    // typed.
    qsizetype length = m_suffix.size();
    while (!text.endsWith(QStringView(m_suffix).left(length)))
        --length;
    QString number = text.chopped(length);
    const State state = QDoubleValidator::validate(number, position);
    const bool complete = length == 0 || length == m_suffix.size();
    return complete ? state : qMin(state, Intermediate);
}
