// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "accessibility/accessibletree.h"

#include <QtCore/QMetaEnum>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>

#include <algorithm>

namespace {

constexpr QAccessible::Role controlRoles[] = {QAccessible::Button,      QAccessible::ButtonDropDown,
                                              QAccessible::ButtonMenu,  QAccessible::CheckBox,
                                              QAccessible::RadioButton, QAccessible::ComboBox,
                                              QAccessible::SpinBox,     QAccessible::Slider,
                                              QAccessible::Dial,        QAccessible::EditableText,
                                              QAccessible::PageTab,     QAccessible::PageTabList,
                                              QAccessible::MenuItem,    QAccessible::List,
                                              QAccessible::ListItem,    QAccessible::Tree,
                                              QAccessible::TreeItem,    QAccessible::Table,
                                              QAccessible::ProgressBar, QAccessible::Link};

// Of the thing that a scroll bar scrolls, screen readers present the contents instead.
bool isSkipped(const QAccessibleInterface* element)
{
    return !element || !element->isValid() || element->role() == QAccessible::ScrollBar ||
           element->role() == QAccessible::Separator;
}

// A window, and the area around the contents of an item view or a scroll area, gets the focus for
// what is in it.
bool isContainer(QAccessible::Role role)
{
    return role == QAccessible::Window || role == QAccessible::Dialog ||
           role == QAccessible::AlertMessage || role == QAccessible::MenuBar ||
           role == QAccessible::PopupMenu;
}

bool isPicture(const QAccessibleInterface* element)
{
    return element->role() == QAccessible::Graphic && !qobject_cast<QLabel*>(element->object());
}

bool isControl(const QAccessibleInterface* element)
{
    const QAccessible::Role role = element->role();
    if (std::find(std::begin(controlRoles), std::end(controlRoles), role) != std::end(controlRoles))
        return true;
    return isPicture(element) || (element->state().focusable && !isContainer(role));
}

QString placeOf(const QAccessibleInterface* element)
{
    const QAccessibleInterface* owner = element;
    while (owner && !owner->object())
        owner = owner->parent();
    if (!owner)
        return QStringLiteral("?");
    const QObject* object = owner->object();
    return QString::fromLatin1(object->metaObject()->className()) + u'#' + object->objectName();
}

AccessibleControl describe(const QAccessibleInterface* element)
{
    const QAccessible::Role role = element->role();
    const bool hasValue = role == QAccessible::ComboBox || role == QAccessible::EditableText ||
                          role == QAccessible::SpinBox;
    return {placeOf(element), role, accessibleName(element),
            hasValue ? element->text(QAccessible::Value) : QString()};
}

void collect(const QAccessibleInterface* element, QList<AccessibleControl>& controls)
{
    if (isSkipped(element))
        return;
    if (isControl(element))
        controls.append(describe(element));
    for (int i = 0; i < element->childCount(); ++i)
        collect(element->child(i), controls);
}

} // namespace

QString accessibleName(const QAccessibleInterface* control)
{
    const QAccessible::Role role = control->role();
    if (role == QAccessible::ComboBox || role == QAccessible::PageTabList) {
        const auto labels = control->relations(QAccessible::Label);
        for (const auto& [label, relation] : labels) {
            if (relation == QAccessible::Label)
                return label->text(QAccessible::Name);
        }
    }
#ifdef Q_OS_LINUX
    if (role == QAccessible::ComboBox)
        return QString();
#endif
    return control->text(QAccessible::Name);
}

QList<AccessibleControl> accessibleControls(QWidget* root)
{
    QList<AccessibleControl> controls;
    collect(QAccessible::queryAccessibleInterface(root), controls);
    return controls;
}

QStringList unnamedControls(QWidget* root)
{
    const auto roles = QMetaEnum::fromType<QAccessible::Role>();
    QStringList lines;
    const QList<AccessibleControl> controls = accessibleControls(root);
    for (const AccessibleControl& control : controls) {
        if (control.name.trimmed().isEmpty())
            lines.append(control.place + u' ' +
                         QString::fromLatin1(roles.valueToKey(control.role)));
    }
    return lines;
}
