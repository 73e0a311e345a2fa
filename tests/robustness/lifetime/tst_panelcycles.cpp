// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "heapinuse.h"
#include "lifetimetest.h"
#include "panelcycles.h"

#include <QtCore/QCoreApplication>

#include <algorithm>
#include <limits>

/** That panels which come and go leave nothing behind, neither objects nor memory. */
class tst_PanelCycles : public LifetimeTest
{
    Q_OBJECT

private Q_SLOTS:
    void noObjectIsLeft_data();
    void noObjectIsLeft();
    void memoryStaysFlat_data();
    void memoryStaysFlat();

private:
    void addRows();
};

void tst_PanelCycles::addRows()
{
    QTest::addColumn<int>("row");
    const QList<PanelCycle> cycles = panelCycles();
    for (qsizetype i = 0; i < cycles.size(); ++i)
        QTest::newRow(cycles.at(i).name) << int(i);
}

void tst_PanelCycles::noObjectIsLeft_data()
{
    addRows();
}

void tst_PanelCycles::noObjectIsLeft()
{
    QFETCH(const int, row);
    const PanelCycle cycle = panelCycles().at(row);
    runCycles(cycle, 1);
    const QObjectList before = qApp->findChildren<QObject*>();
    runCycles(cycle, 3);
    QCOMPARE(qApp->findChildren<QObject*>().size(), before.size());
    QCOMPARE(widgetsLeft(), QStringList());
}

void tst_PanelCycles::memoryStaysFlat_data()
{
    addRows();
}

// What leaks grows in every run. Qt's caches grow in some, the longer the less often.
void tst_PanelCycles::memoryStaysFlat()
{
    constexpr int cyclesPerRun = 10;
    constexpr int mostRuns = 30;
    constexpr qint64 mostPerCycle = 32; // bytes; the smallest QObject takes more
    QFETCH(const int, row);
    const PanelCycle cycle = panelCycles().at(row);
    qint64 least = std::numeric_limits<qint64>::max();
    for (int run = 0; run < mostRuns && least >= mostPerCycle * cyclesPerRun; ++run) {
        const auto before = qint64(heapInUse());
        runCycles(cycle, cyclesPerRun);
        least = std::min(least, qint64(heapInUse()) - before);
    }
    const QByteArray grown = QByteArray::number(least);
    QVERIFY2(least < mostPerCycle * cyclesPerRun, grown.constData());
}

QTEST_MAIN(tst_PanelCycles)
#include "tst_panelcycles.moc"
