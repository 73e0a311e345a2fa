// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_PALETTEKEEPER_H
#define PRINTPANELS_PALETTEKEEPER_H

#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtGui/QPalette>

#include <optional>

class QWidget;

namespace PrintPanels {

/**
 * Gives a widget and all that stands on it the colours of its ground: colours of its own, or those
 * of the host around it.
 *
 * Qt does not hand palettes on to widgets with a style sheet, of which a panel consists, nor past
 * them. It also takes colours back that were set after a sheet, whenever the sheet is applied
 * again. Colours that a style sheet or the host sets on a single widget stay; so do those of
 * widgets with a keeper of their own.
 */
class PaletteKeeper : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(PaletteKeeper)

public:
    /** Keeps the colours of @p root, its parent. Without @p ground they are those of the host. */
    explicit PaletteKeeper(QWidget* root, const std::optional<QPalette>& ground = std::nullopt);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Given
    {
        QPointer<QWidget> widget;
        QList<QPalette> palettes;
    };

    QWidget* root() const;
    QPalette sourcePalette() const;
    void watchParent();
    void update();
    void addChild(QWidget* child);
    void add(QWidget* widget);
    void remove(QObject* object);
    void give(QWidget* widget);
    QPalette ownPalette(const QWidget* widget) const;
    QPalette wantedPalette(const QWidget* widget, const QPalette& own) const;

    const std::optional<QPalette> m_ground;
    QPalette m_source;
    QPointer<QWidget> m_parent;
    QHash<const QObject*, Given> m_given;
};

} // namespace PrintPanels

#endif
