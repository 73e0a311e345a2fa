// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_HOSTKIT_JXSPINBOX_H
#define PRINTPANELS_HOSTKIT_JXSPINBOX_H

#include <hostkit_export.h>

#include <QtWidgets/QSpinBox>

/**
 * A spin box that ignores the mouse wheel unless it has the focus, so that the wheel scrolls the
 * area around it. The focus policy is Qt::StrongFocus by default, so that the wheel does not give
 * the spin box the focus.
 */
class HOSTKIT_EXPORT JxSpinBox : public QSpinBox
{
    Q_OBJECT

public:
    /** Creates a spin box with the defaults of QSpinBox. @p parent (may be null) owns it. */
    explicit JxSpinBox(QWidget* parent = nullptr);
    ~JxSpinBox() override;

protected:
    void wheelEvent(QWheelEvent* event) override;
};

#endif
