// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/pdf/slicedcall.h"
#include "support/stricttest.h"

#include <QtCore/QThread>

#include <memory>
#include <stdexcept>

using SampleHost::SlicedCall;

class TestSlicedCall : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void shortCallEndsInOneSlice();
    void longCallTakesSeveralSlices();
    void callRunsOnlyDuringASlice();
    void exceptionsReachTheCaller();
    void destructionEndsTheCall();
    void callThatWasNotStartedDoesNotRun();
};

void TestSlicedCall::shortCallEndsInOneSlice()
{
    int calls = 0;
    SlicedCall call([&calls](SlicedCall& self) {
        self.pauseIfDue();
        ++calls;
    });
    QVERIFY(call.runSlice());
    QCOMPARE(calls, 1);
    QVERIFY(call.runSlice());
    QCOMPARE(calls, 1);
}

void TestSlicedCall::longCallTakesSeveralSlices()
{
    SlicedCall call([](SlicedCall& self) {
        for (int step = 0; step < 10; ++step) {
            QThread::msleep(20);
            self.pauseIfDue();
        }
    });
    int slices = 1;
    while (!call.runSlice()) {
        ++slices;
    }
    QVERIFY2(slices >= 4 && slices <= 11, qPrintable(QString::number(slices)));
}

void TestSlicedCall::callRunsOnlyDuringASlice()
{
    int steps = 0;
    SlicedCall call([&steps](SlicedCall& self) {
        for (;;) {
            ++steps;
            self.pauseIfDue();
        }
    });
    QThread::msleep(40);
    QCOMPARE(steps, 0);
    QVERIFY(!call.runSlice());
    const int before = steps;
    QVERIFY(before > 0);
    QThread::msleep(40);
    QCOMPARE(steps, before);
    QVERIFY(!call.runSlice());
    QVERIFY(steps > before);
}

void TestSlicedCall::exceptionsReachTheCaller()
{
    SlicedCall call([](SlicedCall&) { throw std::out_of_range("seven"); });
    QVERIFY_EXCEPTION_THROWN(call.runSlice(), std::out_of_range);
    QVERIFY_EXCEPTION_THROWN(call.runSlice(), std::out_of_range);
}

void TestSlicedCall::destructionEndsTheCall()
{
    const auto held = std::make_shared<int>(0);
    bool wentOn = false;
    auto call = std::make_unique<SlicedCall>([&wentOn, copy = held](SlicedCall& self) {
        const std::shared_ptr<int> local = copy;
        QThread::msleep(40);
        self.pauseIfDue();
        wentOn = true;
    });
    QVERIFY(!call->runSlice());
    QCOMPARE(held.use_count(), 3L);
    call.reset();
    QVERIFY(!wentOn);
    // The call left its scope as by any exception.
    QCOMPARE(held.use_count(), 1L);
}

void TestSlicedCall::callThatWasNotStartedDoesNotRun()
{
    bool ran = false;
    {
        const SlicedCall call([&ran](SlicedCall&) { ran = true; });
    }
    QVERIFY(!ran);
}

QTEST_GUILESS_MAIN(TestSlicedCall)

#include "tst_slicedcall.moc"
