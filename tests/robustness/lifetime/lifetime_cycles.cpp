// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

// Run by hand, through scripts/lifetime: creates, shows, uses and destroys panels many times and
// prints what is in use of the heap.
//     lifetime_cycles [CYCLES [NAME]]

#include "heapinuse.h"
#include "panelcycles.h"

#include <QtWidgets/QApplication>

#include <cstdio>

namespace {

constexpr int usualCycles = 10000;
// Fonts, style sheets and pictures are cached at first use.
constexpr int warmUp = 200;

void report(const PanelCycle& cycle, int times)
{
    runCycles(cycle, warmUp);
    const auto before = static_cast<long long>(heapInUse());
    runCycles(cycle, times);
    const auto after = static_cast<long long>(heapInUse());
    std::printf("%-28s %8d %12lld %12lld %10lld %8.2f\n", cycle.name, times, before, after,
                after - before, double(after - before) / times);
    std::fflush(stdout);
}

// The offscreen platform says of every window what it cannot do for it.
void ignoreMessage(QtMsgType, const QMessageLogContext&, const QString&) {}

} // namespace

int main(int argc, char* argv[])
{
    qInstallMessageHandler(ignoreMessage);
    const QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    const int times = arguments.size() > 1 ? arguments.at(1).toInt() : usualCycles;
    const QString only = arguments.value(2);
    if (times <= 0) {
        std::fprintf(stderr, "usage: lifetime_cycles [CYCLES [NAME]]\n");
        return 2;
    }
    std::printf("%-28s %8s %12s %12s %10s %8s\n", "", "cycles", "bytes before", "bytes after",
                "grown", "a cycle");
    const QList<PanelCycle> cycles = panelCycles();
    for (const PanelCycle& cycle : cycles) {
        if (only.isEmpty() || only == QLatin1String(cycle.name))
            report(cycle, times);
    }
    return 0;
}
