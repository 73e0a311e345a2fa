// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "foundation/widgets/palettekeeper.h"

#include "foundation/widgets/editpalette.h"

#include <QtCore/QChildEvent>
#include <QtWidgets/QAbstractSpinBox>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>

#include <algorithm>

namespace PrintPanels {

namespace {

/** Enough for a sheet to bring back what a widget had before. */
constexpr qsizetype mostRemembered = 8;

constexpr QPalette::ColorGroup groups[] = {QPalette::Active, QPalette::Disabled,
                                           QPalette::Inactive};

/** @p base with those colours of @p palette for which @p holds. */
template <typename Condition>
QPalette overlaid(const QPalette& base, const QPalette& palette, Condition holds)
{
    QPalette result = base;
    for (const QPalette::ColorGroup group : groups) {
        for (int i = 0; i < QPalette::NColorRoles; ++i) {
            const auto role = static_cast<QPalette::ColorRole>(i);
            if (holds(group, role))
                result.setBrush(group, role, palette.brush(group, role));
        }
    }
    return result;
}

// Unlike QPalette::resolve(), which gives an empty palette the other's colours, but does not set
// them.
QPalette overlaid(const QPalette& base, const QPalette& palette)
{
    return overlaid(base, palette, [&](QPalette::ColorGroup group, QPalette::ColorRole role) {
        return palette.isBrushSet(group, role);
    });
}

/**
 * What the host around @p panel set, as opposed to what the application has anyway. The colours of
 * a widget with a style sheet are about that widget alone.
 */
QPalette hostPalette(const QWidget* panel)
{
    const QWidget* host = panel->isWindow() ? nullptr : panel->parentWidget();
    if (host == nullptr || host->testAttribute(Qt::WA_StyleSheet))
        return QPalette();
    const QPalette here = host->palette();
    const QPalette everywhere = QApplication::palette(host);
    return overlaid(QPalette(), here, [&](QPalette::ColorGroup group, QPalette::ColorRole role) {
        return here.brush(group, role) != everywhere.brush(group, role);
    });
}

bool isEdit(const QWidget* widget)
{
    return qobject_cast<const QLineEdit*>(widget) != nullptr ||
           qobject_cast<const QAbstractSpinBox*>(widget) != nullptr;
}

/**
 * Lets @p widget paint its ground, if it is the edit of a spin box. A spin box that a style sheet
 * gives a border paints the application's colour, whatever its own palette is.
 */
void paintGround(QWidget* widget)
{
    if (qobject_cast<QAbstractSpinBox*>(widget->parentWidget()) == nullptr)
        return;
    widget->setBackgroundRole(QPalette::Base);
    widget->setAutoFillBackground(true);
}

PaletteKeeper* keeperOf(const QWidget* widget)
{
    return widget->findChild<PaletteKeeper*>(QString(), Qt::FindDirectChildrenOnly);
}

} // namespace

PaletteKeeper::PaletteKeeper(QWidget* root, const std::optional<QPalette>& ground)
    : QObject(root), m_ground(ground)
{
    watchParent();
    m_source = sourcePalette();
    add(root);
}

QWidget* PaletteKeeper::root() const
{
    return static_cast<QWidget*>(parent());
}

/** The colours of the ground: those of the next keeper around, unless there is none. */
QPalette PaletteKeeper::sourcePalette() const
{
    if (m_ground)
        return *m_ground;
    const QWidget* widget = root();
    while (!widget->isWindow() && widget->parentWidget() != nullptr) {
        widget = widget->parentWidget();
        if (const PaletteKeeper* keeper = keeperOf(widget))
            return keeper->m_source;
    }
    return hostPalette(root());
}

// A change of the host's colours ends at a widget with a style sheet, as the panel is.
void PaletteKeeper::watchParent()
{
    if (m_ground || m_parent == root()->parentWidget())
        return;
    if (m_parent)
        m_parent->removeEventFilter(this);
    m_parent = root()->parentWidget();
    if (m_parent)
        m_parent->installEventFilter(this);
}

void PaletteKeeper::update()
{
    if (m_ground)
        return;
    m_source = sourcePalette();
    const QList<Given> all = m_given.values();
    for (const Given& given : all) {
        if (given.widget)
            give(given.widget);
    }
}

bool PaletteKeeper::eventFilter(QObject* watched, QEvent* event)
{
    const bool isAround = watched == m_parent;
    switch (event->type()) {
    case QEvent::PaletteChange:
        if (isAround)
            update();
        else
            give(static_cast<QWidget*>(watched));
        break;
    case QEvent::ApplicationPaletteChange:
    case QEvent::StyleChange:
        if (isAround || watched == root())
            update();
        break;
    case QEvent::ParentChange:
        if (watched == root()) {
            watchParent();
            update();
        }
        break;
    case QEvent::ChildAdded:
    case QEvent::ChildPolished:
        if (!isAround && static_cast<QChildEvent*>(event)->child()->isWidgetType())
            addChild(static_cast<QWidget*>(static_cast<QChildEvent*>(event)->child()));
        break;
    case QEvent::ChildRemoved:
        if (!isAround)
            remove(static_cast<QChildEvent*>(event)->child());
        break;
    default:
        break;
    }
    return false;
}

// One that is still being built is added when it is polished.
void PaletteKeeper::addChild(QWidget* child)
{
    if (child->testAttribute(Qt::WA_WState_Polished))
        add(child);
}

void PaletteKeeper::add(QWidget* widget)
{
    if (widget != root() && (widget->isWindow() || keeperOf(widget) != nullptr))
        return;
    if (!m_given.contains(widget)) {
        m_given.insert(widget, {widget, {}});
        widget->installEventFilter(this);
        paintGround(widget);
        give(widget);
    }
    const QObjectList children = widget->children();
    for (QObject* child : children) {
        if (child->isWidgetType())
            add(static_cast<QWidget*>(child));
    }
}

// What leaves goes back to the colours of wherever it goes to. It may also be about to be deleted.
void PaletteKeeper::remove(QObject* object)
{
    const auto given = m_given.constFind(object);
    if (given == m_given.constEnd())
        return;
    const QPointer<QWidget> widget = given->widget;
    const QPalette own = widget ? ownPalette(widget) : QPalette();
    m_given.erase(given);
    if (!widget)
        return;
    widget->removeEventFilter(this);
    widget->setPalette(own);
    const QObjectList children = widget->children();
    for (QObject* child : children)
        remove(child);
}

void PaletteKeeper::give(QWidget* widget)
{
    const auto given = m_given.find(widget);
    if (given == m_given.end())
        return;
    const QPalette own = ownPalette(widget);
    const QPalette wanted = wantedPalette(widget, own);
    if (!given->palettes.contains(wanted)) {
        given->palettes.append(wanted);
        if (given->palettes.size() > mostRemembered)
            given->palettes.removeFirst();
    }
    const QPalette present = widget->palette();
    const QPalette complete = overlaid(wanted, own);
    if (complete.resolveMask() != present.resolveMask() || complete != present)
        widget->setPalette(complete);
}

/**
 * What was set on @p widget by anything but the keeper. What it has in common with the application
 * does not count: a style sheet sets that, too, on widgets of which it names a single colour.
 */
QPalette PaletteKeeper::ownPalette(const QWidget* widget) const
{
    const QPalette present = widget->palette();
    QList<QPalette> known = m_given.value(widget).palettes;
    known.append(QApplication::palette(widget));
    return overlaid(QPalette(), present, [&](QPalette::ColorGroup group, QPalette::ColorRole role) {
        const auto isKnown = [&](const QPalette& palette) {
            return palette.brush(group, role) == present.brush(group, role);
        };
        return present.isBrushSet(group, role) &&
               std::none_of(known.cbegin(), known.cend(), isKnown);
    });
}

QPalette PaletteKeeper::wantedPalette(const QWidget* widget, const QPalette& own) const
{
    if (!isEdit(widget))
        return m_source;
    const QPalette known = overlaid(m_source, own);
    return overlaid(m_source, editPalette(known.resolve(QApplication::palette(widget))));
}

} // namespace PrintPanels
