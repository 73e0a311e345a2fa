// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_HOSTKIT_JXSPINBOX_H
#define PRINTPANELS_HOSTKIT_JXSPINBOX_H

#include <hostkit_export.h>

#include <QtWidgets/QSpinBox>

/**
 * A spin box whose value does not change when the wheel passes over it without the focus; the wheel
 * then scrolls whatever the box lies in. The focus policy starts as Qt::StrongFocus, so that the
 * wheel does not give the focus either.
 */
class HOSTKIT_EXPORT JxSpinBox : public QSpinBox
{
    Q_OBJECT

public:
    /** Creates a box with QSpinBox's defaults; @p parent (may be null) owns it. */
    explicit JxSpinBox(QWidget* parent = nullptr);
    ~JxSpinBox() override;

protected:
    void wheelEvent(QWheelEvent* event) override;
};

#endif
