// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_HOSTKIT_JXCOMBOBOX_H
#define PRINTPANELS_HOSTKIT_JXCOMBOBOX_H

#include <hostkit_export.h>

#include <QtWidgets/QComboBox>

/**
 * A combo box for touch screens. The height of its items can be set by a style sheet, long texts
 * are elided, and the mouse wheel changes the current item only if the combo box has the focus.
 *
 * Item texts, item tool tips and the tool tip of the combo box are shown as plain text, never as
 * rich text; toolTip() and the item data return what was set. An item without a tool tip shows its
 * text as the tool tip if it does not fit.
 *
 * The focus policy is Qt::StrongFocus by default, so that the wheel does not give the combo box the
 * focus. With Qt::NoFocus it can still be used with the mouse.
 */
class HOSTKIT_EXPORT JxComboBox : public QComboBox
{
    Q_OBJECT

public:
    /** Creates an empty combo box that is not editable. @p parent (may be null) owns it. */
    explicit JxComboBox(QWidget* parent = nullptr);
    ~JxComboBox() override;

    /** QComboBox::activated(int), which the overload below would hide. */
    using QComboBox::activated;

    /** Returns the size that fits the items, but at most 320 pixels wide. */
    QSize sizeHint() const override;
    /** Returns the minimum size of QComboBox, but at most 120 pixels wide. */
    QSize minimumSizeHint() const override;

    /** Shows the list of items, with their tool tips as plain text. */
    void showPopup() override;

Q_SIGNALS:
    /**
     * Emitted when the user selects the item with the text @p text, even if it is already the
     * current item. Not emitted when the current item is changed programmatically.
     */
    void activated(const QString& text);

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    bool showItemToolTip(const QPoint& position, const QPoint& globalPosition);
};

#endif
