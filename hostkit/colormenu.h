// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_HOSTKIT_COLORMENU_H
#define PRINTPANELS_HOSTKIT_COLORMENU_H

#include <hostkit_export.h>

#include <QtCore/QList>
#include <QtWidgets/QWidget>

namespace HostKit {
class ColorSwatch;
}
class QScrollArea;

/**
 * A grid of colour swatches of touch size, at most one of which is checked. The user picks one with
 * the mouse, or with the arrow keys and Space or Enter. Every entry is a child button whose object
 * name is its code.
 */
class HOSTKIT_EXPORT ColorMenu : public QWidget
{
    Q_OBJECT

public:
    /** Creates a menu without entries; @p parent (may be null) owns it. */
    explicit ColorMenu(QWidget* parent = nullptr);
    ~ColorMenu() override;

    /**
     * Replaces the entries. With both lists filled, entry i has the name names[i], shown as its
     * tool tip, and the code codes[i]; what one list has more than the other is ignored. With one
     * list empty the other alone gives the codes, and names are found for those the kit knows. Two
     * empty lists leave a menu without entries.
     *
     * A code is "#" and hexadecimal digits, a colour name that QColor knows, or "transparent" for
     * the entry for no colour. Entries with any other text are left out, and so is everything
     * beyond the first 256 entries. The selected colour stays selected if the new entries have it.
     * Emits nothing, and may be called while colorSignal() is being delivered.
     */
    void setColorPalette(QList<QString> names, QList<QString> codes);

    /**
     * Checks the first entry whose code is exactly @p color (letter case counts) and no other; none
     * if there is no such entry. Emits nothing.
     */
    void updateSelectedColor(QString color);

    /**
     * Shows or hides the "transparent" entry of the palette, now and after every later
     * setColorPalette(). Hidden at first. A palette without that entry gets none.
     */
    void setTransparentColorVisible(bool visible);

Q_SIGNALS:
    /**
     * The user picked an entry, be it the checked one again; @p code is its code as
     * setColorPalette() got it. The entry is checked by then. The menu may be deleted from a slot.
     */
    void colorSignal(QString code);

protected:
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void addSwatch(const QString& name, const QString& code);
    void replaceContents();
    void arrangeSwatches();
    void updateExtent();
    void pick(HostKit::ColorSwatch* swatch);
    bool moveFocus(HostKit::ColorSwatch* from, int key);
    QList<HostKit::ColorSwatch*> shownSwatches() const;

    QScrollArea* m_scrollArea = nullptr;
    QList<HostKit::ColorSwatch*> m_swatches;
    QString m_selectedColor;
    bool m_transparentVisible = false;
};

#endif
