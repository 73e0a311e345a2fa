// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/pdf/slicedcall.h"

#include <stdexcept>
#include <utility>

namespace SampleHost {

namespace {

constexpr int sliceMilliseconds = 25;

} // namespace

SlicedCall::SlicedCall(Function function)
    : m_thread([this, function = std::move(function)] { run(function); })
{
}

SlicedCall::~SlicedCall()
{
    m_cancelled = true;
    m_mayRun.release();
    m_thread.join();
}

void SlicedCall::run(const Function& function)
{
    m_mayRun.acquire();
    try {
        if (!m_cancelled) {
            function(*this);
        }
    } catch (...) {
        m_problem = std::current_exception();
    }
    m_ended = true;
    m_hasPaused.release();
}

bool SlicedCall::runSlice()
{
    if (!m_ended) {
        m_sliceEnd.setRemainingTime(sliceMilliseconds);
        m_mayRun.release();
        m_hasPaused.acquire();
    }
    if (m_problem) {
        std::rethrow_exception(m_problem);
    }
    return m_ended;
}

void SlicedCall::pauseIfDue()
{
    if (m_sliceEnd.hasExpired()) {
        m_hasPaused.release();
        m_mayRun.acquire();
    }
    if (m_cancelled) {
        throw std::runtime_error("the call was cancelled");
    }
}

} // namespace SampleHost
