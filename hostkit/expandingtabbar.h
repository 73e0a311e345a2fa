// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_HOSTKIT_EXPANDINGTABBAR_H
#define PRINTPANELS_HOSTKIT_EXPANDINGTABBAR_H

#include <hostkit_export.h>

#include <QtCore/QCache>
#include <QtCore/QHash>
#include <QtGui/QIcon>
#include <QtWidgets/QTabBar>

/**
 * A tab bar whose tabs expand to fill its width and can each show a colour rectangle.
 *
 * Three tab texts are characters of the host's icon font and are drawn as images: "!" (ribbon),
 * U+E92A (blank ribbon) and U+E917 (supply). tabText() still returns the character. The accessible
 * name of such a tab is its tool tip.
 */
class HOSTKIT_EXPORT ExpandingTabBar : public QTabBar
{
    Q_OBJECT

public:
    /** Creates a tab bar without tabs. @p parent (may be null) owns it. */
    explicit ExpandingTabBar(QWidget* parent = nullptr);
    ~ExpandingTabBar() override;

    /**
     * Shows a rectangle of the colour @p color on the tab at position @p index (0-based).
     *
     * @p color is "#" followed by hexadecimal digits or a colour name, as QColor accepts them,
     * "transparent" for a chequered rectangle with a line through it, or "blank" for a dashed
     * outline. An empty text removes the rectangle. Does nothing if @p color is anything else or
     * @p index is out of range.
     *
     * The rectangle moves with its tab; @p color is stored as the tab's data (tabData()).
     */
    void setTabColorRect(int index, const QString& color);

    /**
     * Returns the colour text of the tab at position @p index (0-based), as passed to
     * setTabColorRect(). It is empty if the tab has no rectangle or @p index is out of range.
     */
    QString tabColorRect(int index) const;

    /**
     * Sets the tool tip of the tab at position @p index (0-based), shown as plain text. It is also
     * the accessible name of a tab that shows an image. Does nothing if @p index is out of range.
     */
    void setTabToolTip(int index, const QString& toolTip);

protected:
    bool event(QEvent* event) override;
    void initStyleOption(QStyleOptionTab* option, int tabIndex) const override;
    void tabLayoutChange() override;
    QSize tabSizeHint(int index) const override;

private:
    QSize contentsSize(int index) const;
    QString contentsKey(int index) const;
    QIcon contentsIcon(int index) const;
    QPixmap contents(int index) const;
    QIcon pictureIcon(const QString& file) const;
    bool isVertical() const;
    void updateAccessibleName(int index);

    // Cached by file name and by contentsKey(), because Qt would cache the pixmaps of every new
    // QIcon again.
    mutable QHash<QString, QIcon> m_pictures;
    mutable QCache<QString, QIcon> m_contents;
};

#endif
