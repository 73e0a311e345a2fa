// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef TESTS_CUPS_CUPSTEST_H
#define TESTS_CUPS_CUPSTEST_H

#include "cups/cupsserver.h"
#include "samplehost/print/printqueue.h"
#include "support/stricttest.h"

/**
 * Base of the tests that print to real queues. Where no server can be started the program is
 * skipped, except where CI is set: there it has to work. A class with an initTestCase() of its own
 * calls CupsTest::initTestCase() first.
 */
class CupsTest : public StrictTest
{
    Q_OBJECT

protected:
    static QString queueName() { return QStringLiteral("Hall"); }

    CupsServer& server() { return m_server; }

protected Q_SLOTS:
    void initTestCase()
    {
        const QString reason = SampleHost::PrintQueue::isSupported()
                                   ? CupsServer::whyUnavailable()
                                   : QStringLiteral("the host was built without libcups");
        if (!reason.isEmpty() && !qEnvironmentVariableIsEmpty("CI")) {
            QFAIL(qPrintable(reason));
        }
        if (!reason.isEmpty()) {
            QSKIP(qPrintable(QStringLiteral("No CUPS server can be started: ") + reason));
        }
        QString problem;
        QVERIFY2(m_server.start(problem), qPrintable(problem));
        QVERIFY(m_server.addQueue(queueName(), QStringLiteral("Label printer"),
                                  QStringLiteral("Hall 3, left")));
    }

    void cleanupTestCase() { m_server.stop(); }

private:
    CupsServer m_server;
};

#endif
