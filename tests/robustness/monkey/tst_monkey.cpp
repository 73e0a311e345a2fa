// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "runner.h"
#include "subjects/subject.h"
#include "support/stricttest.h"

#include <QtWidgets/QApplication>

#include <cstdio>
#include <limits>

/**
 * Interleaves random calls of a host with random input of a user on every kind of panel and checks
 * after each step what must always be true.
 *
 * PRINTPANELS_MONKEY_SEED, _STEPS and _PANEL choose another run than the fixed one; a failure tells
 * what to set to repeat it.
 */
class tst_Monkey : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void aSeedRepeatsItself_data();
    void aSeedRepeatsItself();
    void walks_data();
    void walks();
};

namespace {

/** The steps of the fixed run, more for the panels that have more to them. */
int defaultSteps(const QByteArray& panel)
{
    if (panel == "PrintWidget")
        return 8000;
    return panel == "MultiPagePrintWidget" ? 4000 : 2000;
}

void addPanels()
{
    QTest::addColumn<QByteArray>("panel");
    const QByteArray wanted = qgetenv("PRINTPANELS_MONKEY_PANEL");
    const QByteArrayList panels = Monkey::Subject::names();
    for (const QByteArray& panel : panels) {
        if (wanted.isEmpty() || wanted == panel)
            QTest::newRow(panel.constData()) << panel;
    }
}

bool testIsFine()
{
    return !QTest::currentTestFailed();
}

/** Tells a failure in full, for which a test's message has no room. */
bool isSound(const Monkey::Runner& runner)
{
    const QByteArray report = runner.report().toUtf8();
    if (!report.isEmpty())
        std::fprintf(stderr, "%s\n", report.constData());
    return report.isEmpty();
}

} // namespace

void tst_Monkey::initTestCase()
{
    // What depends on how fast the machine is must not: one search in a list lasts for ever.
    QApplication::setKeyboardInputInterval(std::numeric_limits<int>::max());
    QApplication::setQuitOnLastWindowClosed(false);
}

void tst_Monkey::aSeedRepeatsItself_data()
{
    addPanels();
}

void tst_Monkey::aSeedRepeatsItself()
{
    QFETCH(const QByteArray, panel);
    quint64 fingerprints[2] = {};
    for (quint64& fingerprint : fingerprints) {
        Monkey::Runner runner({panel, 7, 150});
        runner.run(testIsFine);
        QVERIFY(isSound(runner));
        fingerprint = runner.fingerprint();
    }
    QCOMPARE(fingerprints[0], fingerprints[1]);
}

void tst_Monkey::walks_data()
{
    addPanels();
}

void tst_Monkey::walks()
{
    QFETCH(const QByteArray, panel);
    const int steps = qEnvironmentVariableIntValue("PRINTPANELS_MONKEY_STEPS");
    const QByteArray seed = qgetenv("PRINTPANELS_MONKEY_SEED");
    Monkey::Runner runner(
        {panel, seed.isEmpty() ? 1 : seed.toULongLong(), steps > 0 ? steps : defaultSteps(panel)});
    runner.run(testIsFine);
    const Monkey::World::Tally tally = runner.tally();
    std::printf("monkey: %d steps, %d panels, %d host calls, %d signals\n", tally.steps,
                tally.panels, tally.hostCalls, tally.signalsReceived);
    QVERIFY(isSound(runner));
}

// Without the handler of QTest, which would keep a fault from the sanitizers and from the trail.
int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    tst_Monkey test;
    QTEST_SET_MAIN_SOURCE_PATH
    return QTest::qExec(&test, app.arguments() << QStringLiteral("-nocrashhandler"));
}

#include "tst_monkey.moc"
