// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "stoppedclock.h"

#include <QtCore/QAbstractEventDispatcher>
#include <QtCore/QCoreApplication>
#include <QtCore/QPointer>
#include <QtCore/QTimerEvent>

namespace Monkey {

namespace {

using TimerInfo = QAbstractEventDispatcher::TimerInfo;

QList<TimerInfo> timersOf(QObject* object)
{
    return QAbstractEventDispatcher::instance()->registeredTimers(object);
}

} // namespace

StoppedClock::StoppedClock()
{
    QCoreApplication::instance()->installEventFilter(this);
}

StoppedClock::~StoppedClock()
{
    QCoreApplication::instance()->removeEventFilter(this);
}

bool StoppedClock::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::Timer || m_firing)
        return false;
    const int id = static_cast<QTimerEvent*>(event)->timerId();
    const QList<TimerInfo> timers = timersOf(watched);
    return std::none_of(timers.cbegin(), timers.cend(), [id](const TimerInfo& timer) {
        return timer.timerId == id && timer.interval == 0;
    });
}

void StoppedClock::fireTimersOf(QObject* object)
{
    QList<QPointer<QObject>> owners = {object};
    const QList<QObject*> children = object->findChildren<QObject*>();
    for (QObject* child : children)
        owners.append(child);
    for (const QPointer<QObject>& owner : std::as_const(owners)) {
        const QList<TimerInfo> timers = owner ? timersOf(owner) : QList<TimerInfo>();
        for (const TimerInfo& timer : timers) {
            if (!owner)
                break;
            QTimerEvent event(timer.timerId);
            m_firing = true;
            QCoreApplication::sendEvent(owner, &event);
            m_firing = false;
        }
    }
}

} // namespace Monkey
