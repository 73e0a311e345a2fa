// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_HOSTKIT_JXLINEEDIT_H
#define PRINTPANELS_HOSTKIT_JXLINEEDIT_H

#include <hostkit_export.h>

#include <QtWidgets/QLineEdit>

/** A line edit that also tells when it loses the keyboard focus, whatever its text is worth. */
class HOSTKIT_EXPORT JxLineEdit : public QLineEdit
{
    Q_OBJECT

public:
    /** Creates an empty edit; @p parent (may be null) owns it. */
    explicit JxLineEdit(QWidget* parent = nullptr);
    ~JxLineEdit() override;

Q_SIGNALS:
    /**
     * The edit lost the keyboard focus, for whatever reason. Emitted after editingFinished(), and
     * also when a validator that is not satisfied keeps editingFinished() back.
     */
    void focusLost();

protected:
    void focusOutEvent(QFocusEvent* event) override;
};

#endif
