// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef MONKEY_TRAIL_H
#define MONKEY_TRAIL_H

#include <QtCore/QByteArray>
#include <QtCore/QString>

namespace Monkey {

/**
 * The last things that happened in a run, in words, and how to repeat it.
 *
 * They lie in plain memory, so that they can be printed when the process dies: by a handler of the
 * fatal signals, for which the sanitizers are set to abort. There is one trail at a time.
 */
class Trail
{
    Q_DISABLE_COPY_MOVE(Trail)

public:
    /** @p command is what repeats the run; printed with everything else. */
    explicit Trail(const QByteArray& command);
    ~Trail();

    /** Begins a step: what is noted from now on belongs to it. */
    void beginStep(int step);
    /** Adds a line. */
    void note(const QString& line);
    /** The last lines and the command. */
    QString text() const;
    /** A number that two runs share if they did the same. */
    quint64 fingerprint() const { return m_fingerprint; }

private:
    int m_step = 0;
    quint64 m_fingerprint = 0;
};

} // namespace Monkey

#endif
