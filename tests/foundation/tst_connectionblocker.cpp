// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "foundation/widgets/connectionblocker.h"
#include "support/stricttest.h"

#include <memory>

using PrintPanels::ConnectionBlocker;

/** Emits and counts. */
class Talker : public QObject
{
    Q_OBJECT

public:
    void say(int value) { Q_EMIT said(value); }
    int receiversOfSaid() const { return receivers(SIGNAL(said(int))); }

    int heard = 0;

Q_SIGNALS:
    void said(int value);
    void whispered(int value);

public Q_SLOTS:
    void hear(int) { ++heard; }
    void hearToo(int) { heard += 100; }
};

class tst_ConnectionBlocker : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void theConnectionIsBlockedInsideTheScope();
    void theConnectionStandsOnceAfterwards();
    void otherConnectionsOfTheSignalGoOn();
    void otherReceiversGoOn();
    void otherSignalsOfThePairGoOn();
    void nestedBlockersLeaveOneConnection();
    void anExceptionalExitRestoresTheConnection();
    void aSenderDeletedInsideTheScopeIsLeftAlone();
    void aReceiverDeletedInsideTheScopeIsLeftAlone();
    void aListenerMayDeleteTheReceiver();
};

void tst_ConnectionBlocker::theConnectionIsBlockedInsideTheScope()
{
    Talker talker;
    Talker listener;
    connect(&talker, SIGNAL(said(int)), &listener, SLOT(hear(int)));
    {
        const ConnectionBlocker blocker(&talker, SIGNAL(said(int)), &listener, SLOT(hear(int)));
        talker.say(1);
        QCOMPARE(listener.heard, 0);
        QCOMPARE(talker.receiversOfSaid(), 0);
    }
    QCOMPARE(listener.heard, 0);
}

void tst_ConnectionBlocker::theConnectionStandsOnceAfterwards()
{
    Talker talker;
    Talker listener;
    connect(&talker, SIGNAL(said(int)), &listener, SLOT(hear(int)));
    for (int i = 1; i <= 3; ++i) {
        {
            const ConnectionBlocker blocker(&talker, SIGNAL(said(int)), &listener, SLOT(hear(int)));
        }
        talker.say(1);
        QCOMPARE(listener.heard, i);
        QCOMPARE(talker.receiversOfSaid(), 1);
    }
}

void tst_ConnectionBlocker::otherConnectionsOfTheSignalGoOn()
{
    Talker talker;
    Talker listener;
    connect(&talker, SIGNAL(said(int)), &listener, SLOT(hear(int)));
    connect(&talker, SIGNAL(said(int)), &listener, SLOT(hearToo(int)));
    {
        const ConnectionBlocker blocker(&talker, SIGNAL(said(int)), &listener, SLOT(hear(int)));
        talker.say(1);
        QCOMPARE(listener.heard, 100);
    }
    talker.say(1);
    QCOMPARE(listener.heard, 201);
}

void tst_ConnectionBlocker::otherReceiversGoOn()
{
    Talker talker;
    Talker paused;
    Talker other;
    connect(&talker, SIGNAL(said(int)), &paused, SLOT(hear(int)));
    connect(&talker, SIGNAL(said(int)), &other, SLOT(hear(int)));
    const ConnectionBlocker blocker(&talker, SIGNAL(said(int)), &paused, SLOT(hear(int)));
    talker.say(1);
    QCOMPARE(paused.heard, 0);
    QCOMPARE(other.heard, 1);
    QVERIFY(!talker.signalsBlocked());
}

void tst_ConnectionBlocker::otherSignalsOfThePairGoOn()
{
    Talker talker;
    Talker listener;
    connect(&talker, SIGNAL(said(int)), &listener, SLOT(hear(int)));
    connect(&talker, SIGNAL(whispered(int)), &listener, SLOT(hear(int)));
    const ConnectionBlocker blocker(&talker, SIGNAL(said(int)), &listener, SLOT(hear(int)));
    Q_EMIT talker.whispered(1);
    QCOMPARE(listener.heard, 1);
}

void tst_ConnectionBlocker::nestedBlockersLeaveOneConnection()
{
    Talker talker;
    Talker listener;
    connect(&talker, SIGNAL(said(int)), &listener, SLOT(hear(int)));
    {
        const ConnectionBlocker outer(&talker, SIGNAL(said(int)), &listener, SLOT(hear(int)));
        {
            const ConnectionBlocker inner(&talker, SIGNAL(said(int)), &listener, SLOT(hear(int)));
        }
        talker.say(1);
        QCOMPARE(listener.heard, 0);
    }
    talker.say(1);
    QCOMPARE(listener.heard, 1);
    QCOMPARE(talker.receiversOfSaid(), 1);
}

void tst_ConnectionBlocker::anExceptionalExitRestoresTheConnection()
{
    Talker talker;
    Talker listener;
    connect(&talker, SIGNAL(said(int)), &listener, SLOT(hear(int)));
    try {
        const ConnectionBlocker blocker(&talker, SIGNAL(said(int)), &listener, SLOT(hear(int)));
        throw 1;
    } catch (int) {
    }
    talker.say(1);
    QCOMPARE(listener.heard, 1);
}

void tst_ConnectionBlocker::aSenderDeletedInsideTheScopeIsLeftAlone()
{
    auto talker = std::make_unique<Talker>();
    Talker listener;
    connect(talker.get(), SIGNAL(said(int)), &listener, SLOT(hear(int)));
    {
        const ConnectionBlocker blocker(talker.get(), SIGNAL(said(int)), &listener,
                                        SLOT(hear(int)));
        talker.reset();
    }
    QCOMPARE(listener.heard, 0);
}

void tst_ConnectionBlocker::aReceiverDeletedInsideTheScopeIsLeftAlone()
{
    Talker talker;
    auto listener = std::make_unique<Talker>();
    connect(&talker, SIGNAL(said(int)), listener.get(), SLOT(hear(int)));
    {
        const ConnectionBlocker blocker(&talker, SIGNAL(said(int)), listener.get(),
                                        SLOT(hear(int)));
        listener.reset();
    }
    talker.say(1);
    QCOMPARE(talker.receiversOfSaid(), 0);
}

void tst_ConnectionBlocker::aListenerMayDeleteTheReceiver()
{
    Talker talker;
    auto* listener = new Talker;
    connect(&talker, SIGNAL(said(int)), listener, SLOT(hear(int)));
    connect(&talker, &Talker::said, &talker, [listener] { delete listener; });
    {
        const ConnectionBlocker blocker(&talker, SIGNAL(said(int)), listener, SLOT(hear(int)));
        talker.say(1);
    }
    QCOMPARE(talker.receiversOfSaid(), 1);
}

QTEST_GUILESS_MAIN(tst_ConnectionBlocker)
#include "tst_connectionblocker.moc"
