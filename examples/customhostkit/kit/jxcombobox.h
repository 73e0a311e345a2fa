// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef CUSTOMKIT_JXCOMBOBOX_H
#define CUSTOMKIT_JXCOMBOBOX_H

#include <customkit_export.h>

#include <QtWidgets/QComboBox>

/** A combo box with the signal that Qt 6 calls textActivated(). */
class CUSTOMKIT_EXPORT JxComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit JxComboBox(QWidget* parent = nullptr) : QComboBox(parent)
    {
        connect(this, &QComboBox::textActivated, this,
                qOverload<const QString&>(&JxComboBox::activated));
    }

    using QComboBox::activated;

Q_SIGNALS:
    void activated(const QString& text);
};

#endif
