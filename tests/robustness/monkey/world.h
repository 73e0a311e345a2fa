// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef MONKEY_WORLD_H
#define MONKEY_WORLD_H

#include "calls/hostcall.h"
#include "randomsource.h"
#include "trail.h"

#include <QtCore/QPointer>
#include <QtWidgets/QWidget>

namespace Monkey {

class Subject;

/** What a run shares: its random numbers, its trail, who acts just now, and what went wrong. */
class World
{
    Q_DISABLE_COPY_MOVE(World)

public:
    World(quint64 seed, const QByteArray& command) : random(seed), trail(command) {}

    RandomSource random;
    Trail trail;
    /** The widget that the user addresses with the present action, if it is about one. */
    QPointer<QWidget> target;
    /** The widget on which a mouse button was pressed that is still down. */
    QPointer<QWidget> heldTarget;

    /** How much happened in a run. */
    struct Tally
    {
        int steps = 0;
        int panels = 0;
        int hostCalls = 0;
        int signalsReceived = 0;
    };
    Tally tally;

    /** Keeps the first failure of a run: a check's name and what it found. */
    void fail(const QString& check, const QString& detail);
    bool hasFailed() const { return !m_failure.isEmpty(); }
    QString failure() const { return m_failure; }

    /** Makes one call of the host with random arguments. */
    void call(Subject& subject, QWidget& widget, const HostCall& hostCall);
    /** The host's call that is under way, innermost; null while the user acts. */
    const HostCall* underWay() const { return m_underWay; }
    /** How many calls lie in each other. */
    int depth() const { return m_depth; }

private:
    QString m_failure;
    const HostCall* m_underWay = nullptr;
    int m_depth = 0;
};

} // namespace Monkey

#endif
