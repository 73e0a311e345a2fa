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
 * A grid of touch-sized colour swatches, at most one of which is checked.
 *
 * The user selects a swatch with the mouse, or with the keyboard: Tab goes to the selected swatch,
 * or the first one, and out of the menu again; the arrow keys, Home and End move inside it; Space,
 * Return and Enter select. Each entry is a button inside the menu whose object name is its colour
 * code.
 */
class HOSTKIT_EXPORT ColorMenu : public QWidget
{
    Q_OBJECT

public:
    /** Creates a menu without entries. @p parent (may be null) owns it. */
    explicit ColorMenu(QWidget* parent = nullptr);
    ~ColorMenu() override;

    /**
     * Replaces the entries.
     *
     * Entry i has the code codes[i] and the name names[i], which is its tool tip; surplus elements
     * of the longer list are ignored. If one list is empty, the other holds the codes, and an entry
     * is named after its colour if the kit knows it, otherwise after its code. If both lists are
     * empty, the menu has no entries.
     *
     * A code is "#" followed by hexadecimal digits or a colour name, as QColor accepts them, or
     * "transparent" for no colour. Entries with any other code are left out, as are all entries
     * after the first 256 valid ones. If the selected colour is among the new entries, it stays
     * selected.
     *
     * If an entry has the focus, an entry of the new palette gets it. Emits no signal. May be
     * called from a slot connected to colorSignal().
     */
    void setColorPalette(QList<QString> names, QList<QString> codes);

    /**
     * Selects the colour @p color: checks the first entry with this code (case-sensitive), or none
     * if there is no such entry, and unchecks all others. Emits no signal.
     */
    void updateSelectedColor(QString color);

    /**
     * Shows or hides the "transparent" entry of the current palette and of palettes set later. By
     * default it is hidden. Does not add the entry to a palette without it.
     */
    void setTransparentColorVisible(bool visible);

Q_SIGNALS:
    /**
     * Emitted when the user selects an entry, even if it was already selected. @p code is the code
     * of the entry as it was passed to setColorPalette(). The entry is checked before the signal is
     * emitted. A connected slot may delete the menu.
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
    QWidget* controlBefore() const;
    void addToTabOrder(QWidget* before);
    HostKit::ColorSwatch* tabStop(const QWidget* focused) const;
    void updateTabStop(const QWidget* focused);
    QList<HostKit::ColorSwatch*> shownSwatches() const;

    QScrollArea* m_scrollArea = nullptr;
    QList<HostKit::ColorSwatch*> m_swatches;
    QString m_selectedColor;
    bool m_transparentVisible = false;
};

#endif
