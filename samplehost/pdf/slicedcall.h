// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_SLICEDCALL_H
#define SAMPLEHOST_SLICEDCALL_H

#include <QtCore/QDeadlineTimer>
#include <QtCore/QSemaphore>

#include <exception>
#include <functional>
#include <thread>

namespace SampleHost {

/**
 * A long call of a library, carried out a slice at a time between the events of the GUI thread. It
 * has a thread of its own, which runs only while runSlice() waits for it, so that the two threads
 * never run at once and nothing has to be locked.
 */
class SlicedCall
{
public:
    /** The call, which is passed the object that runs it. */
    using Function = std::function<void(SlicedCall&)>;

    /** Prepares a call; it starts with the first slice. */
    explicit SlicedCall(Function function);

    /** Ends a call that has not ended: its pauseIfDue() throws. */
    ~SlicedCall();

    /** Continues the call. True once it has ended; throws what the call threw. */
    bool runSlice();

    /** To be called often by the call: waits for the next slice if this one is over. */
    void pauseIfDue();

private:
    SlicedCall(const SlicedCall&) = delete;
    SlicedCall& operator=(const SlicedCall&) = delete;
    void run(const Function& function);

    QSemaphore m_mayRun;
    QSemaphore m_hasPaused;
    QDeadlineTimer m_sliceEnd;
    bool m_cancelled = false;
    bool m_ended = false;
    std::exception_ptr m_problem;
    // Last, so that the thread finds everything else made.
    std::thread m_thread;
};

} // namespace SampleHost

#endif
