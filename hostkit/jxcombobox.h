// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_HOSTKIT_JXCOMBOBOX_H
#define PRINTPANELS_HOSTKIT_JXCOMBOBOX_H

#include <hostkit_export.h>

#include <QtWidgets/QComboBox>

/**
 * A combo box for touch: rows as high as the style sheet says, long texts elided, and a wheel that
 * passes over it changes nothing unless the box has the focus.
 *
 * Texts are data, never markup: item texts, tool tips of items and the box's own tool tip are shown
 * letter for letter, while toolTip() and the item data keep what was set. An item without a tool
 * tip whose text does not fit shows its text as one.
 *
 * The focus policy starts as Qt::StrongFocus, so that the wheel does not give the focus either;
 * with Qt::NoFocus the box is still operated by mouse.
 */
class HOSTKIT_EXPORT JxComboBox : public QComboBox
{
    Q_OBJECT

public:
    /** Creates an empty box that is not editable; @p parent (may be null) owns it. */
    explicit JxComboBox(QWidget* parent = nullptr);
    ~JxComboBox() override;

    /** The item's index, as QComboBox emits it; stays reachable beside the signal with the text. */
    using QComboBox::activated;

    /** The size of the contents, but never so wide that one long text would stretch a panel. */
    QSize sizeHint() const override;
    /** See sizeHint(). */
    QSize minimumSizeHint() const override;

    /** Opens the list; the tool tips in it are shown as plain text. */
    void showPopup() override;

Q_SIGNALS:
    /**
     * The user picked the item with the text @p text, also when it was the current one. Changes
     * made by the program do not emit it.
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
