// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "user.h"

#include "subjects/subject.h"

#include <QtTest/QTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QTabBar>

namespace Monkey {

User::User(World& sharedWorld) : world(sharedWorld)
{
    m_desk.setObjectName(QStringLiteral("desk"));
    m_desk.resize(60, 60);
    m_desk.show();
}

void User::act(Subject& subject)
{
    struct Action
    {
        int weight;
        void (User::*run)(QWidget*);
    };
    static constexpr Action actions[] = {
        {40, &User::click},    {6, &User::press}, {12, &User::moveMouse}, {5, &User::turnWheel},
        {18, &User::pressKey}, {12, &User::type}, {2, &User::paste},      {5, &User::moveFocus},
        {3, &User::openList},  {6, &User::wait},  {2, &User::goAway},
    };
    QWidget* const panel = subject.window();
    world.target = nullptr;
    if (holdsButton() && (++m_heldFor > 8 || world.random.oneIn(4))) {
        release(panel);
        return;
    }
    const int index =
        world.random.pickWeighted(actions, [](const Action& action) { return action.weight; });
    (this->*actions[index].run)(panel);
}

// A list or menu that is open gets most of the attention, and of the widgets those that do
// something.
QWidget* User::chooseTarget(QWidget* panel)
{
    QWidget* const popup = QApplication::activePopupWidget();
    QWidget* const window = popup && !world.random.oneIn(5) ? popup : panel;
    QList<QWidget*> all;
    QList<QWidget*> active;
    const QList<QWidget*> children = window->findChildren<QWidget*>();
    for (QWidget* child : children) {
        if (!child->isVisible() || child->window() != window)
            continue;
        all.append(child);
        if (qobject_cast<QAbstractButton*>(child) || qobject_cast<QLineEdit*>(child) ||
            qobject_cast<QComboBox*>(child) || qobject_cast<QTabBar*>(child) ||
            child->objectName() == QLatin1String("PreviewView"))
            active.append(child);
    }
    if (!active.isEmpty() && !world.random.oneIn(5))
        return world.random.pick(active);
    return all.isEmpty() ? window : world.random.pick(all);
}

void User::moveFocus(QWidget* panel)
{
    if (world.random.oneIn(4)) {
        QWidget* const next = world.random.coin() ? &m_desk : panel;
        world.trail.note(QStringLiteral("user: goes to ") + next->objectName());
        next->activateWindow();
        QCoreApplication::processEvents();
        return;
    }
    QWidget* const target = chooseTarget(panel);
    world.target = target;
    world.trail.note(QStringLiteral("user: focus on ") + target->objectName());
    const Qt::FocusReason reasons[] = {Qt::TabFocusReason, Qt::MouseFocusReason,
                                       Qt::ShortcutFocusReason, Qt::OtherFocusReason};
    target->setFocus(world.random.pick(reasons));
}

void User::openList(QWidget* panel)
{
    QList<QComboBox*> boxes;
    const QList<QComboBox*> children = panel->findChildren<QComboBox*>();
    for (QComboBox* child : children) {
        if (child->isVisible() && child->isEnabled())
            boxes.append(child);
    }
    if (boxes.isEmpty())
        return;
    QComboBox* const box = world.random.pick(boxes);
    world.target = box;
    world.trail.note(QStringLiteral("user: list of ") + box->objectName());
    if (world.random.oneIn(4))
        box->hidePopup();
    else
        box->showPopup();
}

// Time passes: buttons repeat, cursors blink, lists notice that the mouse rests.
void User::wait(QWidget* panel)
{
    QWidget* const popup = QApplication::activePopupWidget();
    const QPointer<QWidget> window(popup ? popup : panel);
    world.trail.note(QStringLiteral("user: waits"));
    m_clock.fireTimersOf(window);
    if (window && window->windowHandle())
        m_clock.fireTimersOf(window->windowHandle());
}

void User::goAway(QWidget* panel)
{
    // The window system hides, closes and moves windows without asking anybody.
    const int choice = world.random.below(3);
    world.trail.note(QStringLiteral("user: window away, in the way %1").arg(choice));
    if (choice == 0)
        panel->close();
    else if (choice == 1)
        panel->setVisible(!panel->isVisible());
    else
        panel->move(world.random.between(-50, 50), world.random.between(-50, 50));
    QCoreApplication::processEvents();
}

} // namespace Monkey
