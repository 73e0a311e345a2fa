// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef MONKEY_STOPPEDCLOCK_H
#define MONKEY_STOPPEDCLOCK_H

#include "randomsource.h"

#include <QtCore/QObject>

namespace Monkey {

/**
 * Holds the timers of the application, so that a slow machine sees the same as a fast one: they
 * fire only on request, and only those without an interval by themselves.
 */
class StoppedClock : public QObject
{
    Q_DISABLE_COPY_MOVE(StoppedClock)

public:
    StoppedClock();
    ~StoppedClock() override;

    /** Lets every timer fire that now runs for @p object or something that it owns. */
    void fireTimersOf(QObject* object);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool m_firing = false;
};

} // namespace Monkey

#endif
