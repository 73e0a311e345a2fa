// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_HOSTKIT_JXLINEEDIT_H
#define PRINTPANELS_HOSTKIT_JXLINEEDIT_H

#include <hostkit_export.h>

#include <QtWidgets/QLineEdit>

/** A line edit that emits a signal whenever it loses the keyboard focus, even with invalid text. */
class HOSTKIT_EXPORT JxLineEdit : public QLineEdit
{
    Q_OBJECT

public:
    /** Creates an empty line edit. @p parent (may be null) owns it. */
    explicit JxLineEdit(QWidget* parent = nullptr);
    ~JxLineEdit() override;

Q_SIGNALS:
    /**
     * Emitted when the line edit loses the keyboard focus for any reason, after editingFinished().
     * Also emitted if the validator does not accept the text and editingFinished() is not emitted.
     */
    void focusLost();

protected:
    void focusOutEvent(QFocusEvent* event) override;
};

#endif
