// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef MONKEY_USER_H
#define MONKEY_USER_H

#include "stoppedclock.h"
#include "world.h"

#include <QtGui/QWindow>

namespace Monkey {

class Subject;

/**
 * The user of a panel, who clicks, types, drags and looks elsewhere at random.
 *
 * Input goes to the window, as from a device, and Qt finds the widget that it is for. A button may
 * stay down over many steps.
 */
class User
{
    Q_DISABLE_COPY_MOVE(User)

public:
    explicit User(World& sharedWorld);

    /** Does one thing. */
    void act(Subject& subject);
    /** Lets go of the mouse and leaves every list and menu that is open. */
    void finish();
    /** Whether a mouse button is down. */
    bool holdsButton() const { return m_heldButton != Qt::NoButton; }
    /** What the user does in a menu that waits for an answer. */
    void answerMenu();

    /** Another window of the application, which every user has. */
    QWidget* desk() { return &m_desk; }

private:
    QWidget* chooseTarget(QWidget* panel);
    QPoint chooseSpot(QWidget* target, QWidget* window);
    bool reach(QWidget* panel, QWidget** window, QPoint* spot);

    void clickAway();

    void click(QWidget* panel);
    void press(QWidget* panel);
    void moveMouse(QWidget* panel);
    void release(QWidget* panel);
    void turnWheel(QWidget* panel);
    void pressKey(QWidget* panel);
    void type(QWidget* panel);
    void paste(QWidget* panel);
    void moveFocus(QWidget* panel);
    void openList(QWidget* panel);
    void wait(QWidget* panel);
    void goAway(QWidget* panel);

    QWindow* keyWindow(QWidget* panel) const;
    void sendKeys(QWidget* panel, const QString& text);
    void clickKey(QWindow* window, Qt::Key key, Qt::KeyboardModifiers held);

    World& world;
    StoppedClock m_clock;
    QWidget m_desk;
    Qt::MouseButton m_heldButton = Qt::NoButton;
    int m_heldFor = 0;
};

} // namespace Monkey

#endif
