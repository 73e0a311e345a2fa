// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef CUSTOMKIT_JXSPINBOX_H
#define CUSTOMKIT_JXSPINBOX_H

#include <customkit_export.h>

#include <QtWidgets/QSpinBox>

/** Copies and numbers. The panels hide its arrows and put buttons beside it. */
class CUSTOMKIT_EXPORT JxSpinBox : public QSpinBox
{
    Q_OBJECT

public:
    using QSpinBox::QSpinBox;
};

#endif
