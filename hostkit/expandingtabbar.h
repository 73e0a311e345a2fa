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
 * A tab bar whose tabs share its width and can each show a small rectangle of a colour.
 *
 * Three tab texts are characters of the host's icon font and are drawn as pictures: "!" (a ribbon),
 * U+E92A (a blank ribbon) and U+E917 (the supply). tabText() answers the character all the same. A
 * screen reader hears the tab's tool tip in place of such a character.
 */
class HOSTKIT_EXPORT ExpandingTabBar : public QTabBar
{
    Q_OBJECT

public:
    /** Creates a bar without tabs; @p parent (may be null) owns it. */
    explicit ExpandingTabBar(QWidget* parent = nullptr);
    ~ExpandingTabBar() override;

    /**
     * Shows a rectangle of the colour @p color on tab @p index (zero-based). The text is a colour
     * code
     * ("#" and hexadecimal digits) or a colour name that QColor knows; "transparent" shows a
     * see-through rectangle, "blank" a dashed empty outline, and an empty text takes the rectangle
     * away. Any other text, and an index without a tab, changes nothing.
     *
     * The rectangle belongs to its tab and moves with it. It is kept as the tab's data (tabData()).
     */
    void setTabColorRect(int index, const QString& color);

    /** The text last accepted by setTabColorRect() for tab @p index; empty without one. */
    QString tabColorRect(int index) const;

    /**
     * Sets the tool tip of tab @p index, which also names a tab that shows a picture. It is shown
     * letter for letter, never as markup.
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

    // Kept, because Qt caches the picture of every new icon anew: by file, and by contentsKey().
    mutable QHash<QString, QIcon> m_pictures;
    mutable QCache<QString, QIcon> m_contents;
};

#endif
