// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef MONKEY_RUNNER_H
#define MONKEY_RUNNER_H

#include "user/user.h"
#include "world.h"

#include <functional>
#include <memory>

namespace Monkey {

/** What a run does; the same plan does the same on every machine. */
struct Plan
{
    QByteArray panel;
    quint64 seed = 1;
    int steps = 1000;
};

/** One run: panels of one kind, one after the other, between their host and their user. */
class Runner
{
    Q_DISABLE_COPY_MOVE(Runner)

public:
    explicit Runner(const Plan& plan);
    ~Runner();

    /**
     * Runs until the end or the first failure. @p isFine says whether nothing else has failed, such
     * as the test because of a warning.
     */
    void run(const std::function<bool()>& isFine);
    /** What went wrong, what happened last and how to repeat it; empty if all is well. */
    QString report() const;
    World::Tally tally() const { return m_world.tally; }
    quint64 fingerprint() const { return m_world.trail.fingerprint(); }

private:
    void step();
    void beginLife();
    void endLife();
    void settle();
    void checkApplication();
    void checkNothingLeft();
    void answerNestedLoop();
    bool isExpected(const QWidget* window) const;

    const Plan m_plan;
    World m_world;
    User m_user;
    std::unique_ptr<Subject> m_subject;
    QObject m_nestedLoops;
    int m_stepsToLive = 0;
    bool m_answering = false;
    int m_idleLoops = 0;
};

} // namespace Monkey

#endif
