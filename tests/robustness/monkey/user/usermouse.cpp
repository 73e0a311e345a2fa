// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "user.h"

#include <QtCore/QPointer>
#include <QtGui/QWheelEvent>
#include <QtGui/QWindow>
#include <QtTest/QTest>
#include <QtTest/qtestspontaneevent.h>
#include <QtWidgets/QApplication>
#include <QtWidgets/QScrollArea>

// Everything that moves the mouse stands here, because QTest keeps which buttons are down once for
// each source file.
namespace Monkey {

namespace {

QString nameOf(const QWidget* widget)
{
    const QString kind = QString::fromLatin1(widget->metaObject()->className());
    return widget->objectName().isEmpty() ? kind : kind + u' ' + widget->objectName();
}

// As a user who scrolls to what is out of sight, at times.
void bringIntoSight(QWidget* target)
{
    for (QWidget* around = target->parentWidget(); around; around = around->parentWidget()) {
        if (auto* area = qobject_cast<QScrollArea*>(around)) {
            area->ensureWidgetVisible(target);
            return;
        }
    }
}

// Windows repeats a press that closes a list for what lies below the list, before the release can
// come.
void clickAt(QWindow* window, Qt::MouseButton button, const QPoint& spot, const QWidget& desk)
{
    const QPointer<QWindow> target = window;
    QTest::mousePress(window, button, {}, spot);
    QCoreApplication::sendPostedEvents();
    QTest::mouseRelease(target ? target.data() : desk.windowHandle(), button, {},
                        target ? spot : QPoint(5, 5));
}

} // namespace

QPoint User::chooseSpot(QWidget* target, QWidget* window)
{
    const QSize size = target->size().expandedTo(QSize(1, 1));
    const bool atTheLeft = world.random.coin();
    const QPoint spot(atTheLeft ? qMin(12, size.width() / 2) : world.random.below(size.width()),
                      atTheLeft ? size.height() / 2 : world.random.below(size.height()));
    const QSize room = window->windowHandle()->geometry().size();
    const QPoint place = target->mapTo(window, spot);
    return QPoint(qBound(0, place.x(), room.width() - 1), qBound(0, place.y(), room.height() - 1));
}

// Only what is on the screen can be reached.
bool User::reach(QWidget* panel, QWidget** window, QPoint* spot)
{
    QWidget* const target = chooseTarget(panel);
    *window = target->window();
    const QWindow* handle = (*window)->windowHandle();
    if (!(*window)->isVisible() || !handle || handle->geometry().isEmpty())
        return false;
    if (!world.random.oneIn(6))
        bringIntoSight(target);
    *spot = chooseSpot(target, *window);
    world.target = target;
    world.trail.note(
        QStringLiteral("user: to %1 at %2,%3").arg(nameOf(target)).arg(spot->x()).arg(spot->y()));
    return true;
}

void User::click(QWidget* panel)
{
    QWidget* window = nullptr;
    QPoint spot;
    if (holdsButton()) {
        moveMouse(panel);
        return;
    }
    if (!reach(panel, &window, &spot))
        return;
    const int choice = world.random.below(20);
    const Qt::MouseButton button = choice < 16   ? Qt::LeftButton
                                   : choice < 19 ? Qt::RightButton
                                                 : Qt::MiddleButton;
    if (world.random.oneIn(10) && !QApplication::activePopupWidget()) {
        world.trail.note(QStringLiteral("user: double click %1").arg(button));
        QTest::mouseDClick(window->windowHandle(), button, {}, spot);
        return;
    }
    world.trail.note(QStringLiteral("user: click %1").arg(button));
    clickAt(window->windowHandle(), button, spot, m_desk);
}

void User::press(QWidget* panel)
{
    QWidget* window = nullptr;
    QPoint spot;
    if (holdsButton() || !reach(panel, &window, &spot))
        return;
    m_heldButton = world.random.oneIn(6) ? Qt::RightButton : Qt::LeftButton;
    m_heldFor = 0;
    world.heldTarget = world.target;
    world.trail.note(QStringLiteral("user: presses %1").arg(m_heldButton));
    QTest::mousePress(window->windowHandle(), m_heldButton, {}, spot);
}

void User::moveMouse(QWidget* panel)
{
    QWidget* window = nullptr;
    QPoint spot;
    if (!reach(panel, &window, &spot))
        return;
    world.trail.note(QStringLiteral("user: moves the mouse"));
    QTest::mouseMove(window->windowHandle(), spot);
}

void User::release(QWidget* panel)
{
    QWidget* window = nullptr;
    QPoint spot;
    const Qt::MouseButton button = m_heldButton;
    m_heldButton = Qt::NoButton;
    if (!panel || !reach(panel, &window, &spot)) {
        window = &m_desk;
        spot = QPoint(5, 5);
    }
    world.trail.note(QStringLiteral("user: lets go of %1").arg(button));
    QTest::mouseRelease(window->windowHandle(), button, {}, spot);
    // Not before: the release is for what was pressed, wherever the mouse is.
    world.heldTarget = nullptr;
}

void User::turnWheel(QWidget* panel)
{
    QWidget* window = nullptr;
    QPoint spot;
    if (!reach(panel, &window, &spot))
        return;
    const int deltas[] = {120, -120, 0, 1, -15, 12000};
    const QPoint angle(world.random.oneIn(4) ? 120 : 0, world.random.pick(deltas));
    const QPointF position = world.target->mapFrom(window, spot);
    world.trail.note(QStringLiteral("user: wheel %1,%2").arg(angle.x()).arg(angle.y()));
    QWheelEvent event(position, window->mapToGlobal(spot), QPoint(), angle, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    // Only an event from a device moves the focus and goes on to the parents.
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(world.target, &event);
}

void User::clickAway()
{
    world.trail.note(QStringLiteral("user: clicks beside the menu"));
    QTest::mouseClick(m_desk.windowHandle(), Qt::LeftButton, {}, QPoint(3, 3));
}

void User::finish()
{
    world.target = nullptr;
    if (holdsButton())
        release(nullptr);
    for (int i = 0; i < 8 && QApplication::activePopupWidget(); ++i)
        QTest::keyClick(m_desk.windowHandle(), Qt::Key_Escape);
    QTest::mouseMove(m_desk.windowHandle(), QPoint(3, 3));
}

} // namespace Monkey
