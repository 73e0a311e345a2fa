// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include <jxspinbox.h>

#include <QtGui/QWheelEvent>

JxSpinBox::JxSpinBox(QWidget* parent) : QSpinBox(parent)
{
    setFocusPolicy(Qt::StrongFocus);
}

JxSpinBox::~JxSpinBox() = default;

void JxSpinBox::wheelEvent(QWheelEvent* event)
{
    if (hasFocus())
        QSpinBox::wheelEvent(event);
    else
        event->ignore();
}
