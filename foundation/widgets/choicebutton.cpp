// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "foundation/widgets/choicebutton.h"

#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QAccessibleWidget>

namespace PrintPanels {

namespace {

class AccessibleChoice : public QAccessibleWidget
{
public:
    AccessibleChoice(QAbstractButton* button, QAccessible::Role role)
        : QAccessibleWidget(button, role)
    {
    }

    QString text(QAccessible::Text type) const override;
    QAccessible::State state() const override;
    QStringList actionNames() const override;
    void doAction(const QString& action) override;

private:
    QAbstractButton* button() const { return static_cast<QAbstractButton*>(object()); }
};

QString AccessibleChoice::text(QAccessible::Text type) const
{
    const QString text = QAccessibleWidget::text(type);
    return type == QAccessible::Name && text.isEmpty() ? button()->text() : text;
}

QAccessible::State AccessibleChoice::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.checkable = true;
    state.checked = button()->isChecked();
    state.pressed = button()->isDown();
    return state;
}

QStringList AccessibleChoice::actionNames() const
{
    QStringList names = QAccessibleWidget::actionNames();
    if (button()->isEnabled())
        names.prepend(toggleAction());
    return names;
}

// On Windows, Qt presses radio buttons and toggles check boxes.
void AccessibleChoice::doAction(const QString& action)
{
    if (action == toggleAction() || action == pressAction())
        button()->click();
    else
        QAccessibleWidget::doAction(action);
}

} // namespace

QAccessibleInterface* createAccessibleChoice(QAbstractButton* button, QAccessible::Role role)
{
    return new AccessibleChoice(button, role);
}

} // namespace PrintPanels
