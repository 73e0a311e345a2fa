// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef HOSTTEST_H
#define HOSTTEST_H

#include "support/stricttest.h"

#include <memory>

/** Base class of the tests that drive a host; each function has a fixture of its own. */
template <typename Fixture, auto... arguments>
class HostTest : public StrictTest
{
protected:
    void init() override
    {
        StrictTest::init();
        m_host = std::make_unique<Fixture>(arguments...);
        QCOMPARE(m_host->window->dataSourceProblem(), QString());
    }
    void cleanup() override { m_host.reset(); }

    std::unique_ptr<Fixture> m_host;
};

#endif
