// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include <jxlineedit.h>

JxLineEdit::JxLineEdit(QWidget* parent) : QLineEdit(parent) {}

JxLineEdit::~JxLineEdit() = default;

void JxLineEdit::focusOutEvent(QFocusEvent* event)
{
    QLineEdit::focusOutEvent(event);
    Q_EMIT focusLost();
}
