// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef CUSTOMKIT_JXLINEEDIT_H
#define CUSTOMKIT_JXLINEEDIT_H

#include <customkit_export.h>

#include <QtWidgets/QLineEdit>

/** A line edit that tells when it loses the keyboard focus. */
class CUSTOMKIT_EXPORT JxLineEdit : public QLineEdit
{
    Q_OBJECT

public:
    using QLineEdit::QLineEdit;

Q_SIGNALS:
    void focusLost();

protected:
    void focusOutEvent(QFocusEvent* event) override
    {
        QLineEdit::focusOutEvent(event);
        Q_EMIT focusLost();
    }
};

#endif
