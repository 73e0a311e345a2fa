// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "foundation/widgets/connectionblocker.h"
#include "support/stricttest.h"

#include <memory>

using PrintPanels::ConnectionBlocker;

/** Emits and counts. */
class Emitter : public QObject
{
    Q_OBJECT

public:
    void change(int value) { Q_EMIT changed(value); }
    int receiversOfChanged() const { return receivers(SIGNAL(changed(int))); }

    int received = 0;

Q_SIGNALS:
    void changed(int value);
    void otherChanged(int value);

public Q_SLOTS:
    void receive(int) { ++received; }
    void receiveToo(int) { received += 100; }
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
    Emitter emitter;
    Emitter receiver;
    connect(&emitter, SIGNAL(changed(int)), &receiver, SLOT(receive(int)));
    {
        const ConnectionBlocker blocker(&emitter, SIGNAL(changed(int)), &receiver,
                                        SLOT(receive(int)));
        emitter.change(1);
        QCOMPARE(receiver.received, 0);
        QCOMPARE(emitter.receiversOfChanged(), 0);
    }
    QCOMPARE(receiver.received, 0);
}

void tst_ConnectionBlocker::theConnectionStandsOnceAfterwards()
{
    Emitter emitter;
    Emitter receiver;
    connect(&emitter, SIGNAL(changed(int)), &receiver, SLOT(receive(int)));
    for (int i = 1; i <= 3; ++i) {
        {
            const ConnectionBlocker blocker(&emitter, SIGNAL(changed(int)), &receiver,
                                            SLOT(receive(int)));
        }
        emitter.change(1);
        QCOMPARE(receiver.received, i);
        QCOMPARE(emitter.receiversOfChanged(), 1);
    }
}

void tst_ConnectionBlocker::otherConnectionsOfTheSignalGoOn()
{
    Emitter emitter;
    Emitter receiver;
    connect(&emitter, SIGNAL(changed(int)), &receiver, SLOT(receive(int)));
    connect(&emitter, SIGNAL(changed(int)), &receiver, SLOT(receiveToo(int)));
    {
        const ConnectionBlocker blocker(&emitter, SIGNAL(changed(int)), &receiver,
                                        SLOT(receive(int)));
        emitter.change(1);
        QCOMPARE(receiver.received, 100);
    }
    emitter.change(1);
    QCOMPARE(receiver.received, 201);
}

void tst_ConnectionBlocker::otherReceiversGoOn()
{
    Emitter emitter;
    Emitter paused;
    Emitter other;
    connect(&emitter, SIGNAL(changed(int)), &paused, SLOT(receive(int)));
    connect(&emitter, SIGNAL(changed(int)), &other, SLOT(receive(int)));
    const ConnectionBlocker blocker(&emitter, SIGNAL(changed(int)), &paused, SLOT(receive(int)));
    emitter.change(1);
    QCOMPARE(paused.received, 0);
    QCOMPARE(other.received, 1);
    QVERIFY(!emitter.signalsBlocked());
}

void tst_ConnectionBlocker::otherSignalsOfThePairGoOn()
{
    Emitter emitter;
    Emitter receiver;
    connect(&emitter, SIGNAL(changed(int)), &receiver, SLOT(receive(int)));
    connect(&emitter, SIGNAL(otherChanged(int)), &receiver, SLOT(receive(int)));
    const ConnectionBlocker blocker(&emitter, SIGNAL(changed(int)), &receiver, SLOT(receive(int)));
    Q_EMIT emitter.otherChanged(1);
    QCOMPARE(receiver.received, 1);
}

void tst_ConnectionBlocker::nestedBlockersLeaveOneConnection()
{
    Emitter emitter;
    Emitter receiver;
    connect(&emitter, SIGNAL(changed(int)), &receiver, SLOT(receive(int)));
    {
        const ConnectionBlocker outer(&emitter, SIGNAL(changed(int)), &receiver,
                                      SLOT(receive(int)));
        {
            const ConnectionBlocker inner(&emitter, SIGNAL(changed(int)), &receiver,
                                          SLOT(receive(int)));
        }
        emitter.change(1);
        QCOMPARE(receiver.received, 0);
    }
    emitter.change(1);
    QCOMPARE(receiver.received, 1);
    QCOMPARE(emitter.receiversOfChanged(), 1);
}

void tst_ConnectionBlocker::anExceptionalExitRestoresTheConnection()
{
    Emitter emitter;
    Emitter receiver;
    connect(&emitter, SIGNAL(changed(int)), &receiver, SLOT(receive(int)));
    try {
        const ConnectionBlocker blocker(&emitter, SIGNAL(changed(int)), &receiver,
                                        SLOT(receive(int)));
        throw 1;
    } catch (int) {
    }
    emitter.change(1);
    QCOMPARE(receiver.received, 1);
}

void tst_ConnectionBlocker::aSenderDeletedInsideTheScopeIsLeftAlone()
{
    auto emitter = std::make_unique<Emitter>();
    Emitter receiver;
    connect(emitter.get(), SIGNAL(changed(int)), &receiver, SLOT(receive(int)));
    {
        const ConnectionBlocker blocker(emitter.get(), SIGNAL(changed(int)), &receiver,
                                        SLOT(receive(int)));
        emitter.reset();
    }
    QCOMPARE(receiver.received, 0);
}

void tst_ConnectionBlocker::aReceiverDeletedInsideTheScopeIsLeftAlone()
{
    Emitter emitter;
    auto receiver = std::make_unique<Emitter>();
    connect(&emitter, SIGNAL(changed(int)), receiver.get(), SLOT(receive(int)));
    {
        const ConnectionBlocker blocker(&emitter, SIGNAL(changed(int)), receiver.get(),
                                        SLOT(receive(int)));
        receiver.reset();
    }
    emitter.change(1);
    QCOMPARE(emitter.receiversOfChanged(), 0);
}

void tst_ConnectionBlocker::aListenerMayDeleteTheReceiver()
{
    Emitter emitter;
    auto* receiver = new Emitter;
    connect(&emitter, SIGNAL(changed(int)), receiver, SLOT(receive(int)));
    connect(&emitter, &Emitter::changed, &emitter, [receiver] { delete receiver; });
    {
        const ConnectionBlocker blocker(&emitter, SIGNAL(changed(int)), receiver,
                                        SLOT(receive(int)));
        emitter.change(1);
    }
    QCOMPARE(emitter.receiversOfChanged(), 1);
}

QTEST_GUILESS_MAIN(tst_ConnectionBlocker)
#include "tst_connectionblocker.moc"
