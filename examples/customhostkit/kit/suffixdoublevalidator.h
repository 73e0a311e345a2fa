// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef CUSTOMKIT_SUFFIXDOUBLEVALIDATOR_H
#define CUSTOMKIT_SUFFIXDOUBLEVALIDATOR_H

#include <customkit_export.h>

#include <QtGui/QDoubleValidator>
#include <QtWidgets/QWidget>

/** A number in a range that a suffix such as " in" may follow. */
class CUSTOMKIT_EXPORT SuffixDoubleValidator : public QDoubleValidator
{
    Q_OBJECT

public:
    SuffixDoubleValidator(double bottom, double top, int decimals, QWidget* parent);

    void setSuffix(const QString& suffix);
    State validate(QString& text, int& position) const override;

private:
    QString m_suffix;
};

#endif
