// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

// Compares RecordList with code that uses QString::split() and QRegularExpression. Both sides run
// alternately in one process. Prints the medians of the rounds and their ratio: absolute times
// depend on what else the machine is doing.
#include <printpanels/recordlist.h>

#include <QtCore/QElapsedTimer>
#include <QtCore/QSet>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

namespace {

constexpr int rounds = 15;
constexpr int records = 9999;

volatile qint64 sink = 0;

qint64 splitClassify(const QString& text)
{
    int singles = 0;
    bool several = false;
    const QStringList items = text.split(u',', Qt::SkipEmptyParts);
    for (const QString& item : items) {
        const QStringList ends = item.split(u'-', Qt::SkipEmptyParts);
        if (ends.size() > 1)
            several |= ends.constFirst().toInt() < std::min(ends.constLast().toInt(), records);
        else
            ++singles;
    }
    return several || singles > 1 ? 1 : 0;
}

qint64 splitExpand(const QString& text)
{
    static const QRegularExpression whole(
        QRegularExpression::anchoredPattern(RecordList::expression().pattern()));
    if (!whole.match(text).hasMatch())
        return -1;
    QList<int> numbers;
    const QStringList items = text.split(u',');
    for (const QString& item : items) {
        const QStringList ends = item.split(u'-');
        const int last = std::min(ends.constLast().toInt(), records);
        for (int number = ends.constFirst().toInt(); number <= last; ++number)
            numbers.append(number);
    }
    return numbers.size();
}

qint64 classify(const QString& text)
{
    return RecordList::classify(text, records) == RecordList::Extent::SeveralRecords ? 1 : 0;
}

qint64 expand(const QString& text)
{
    const auto ranges = RecordList::expand(text, records);
    if (!ranges)
        return -1;
    qint64 count = 0;
    for (const RecordList::Range& range : *ranges)
        count += range.last - range.first + 1;
    return count;
}

double timeOf(const std::function<qint64(const QString&)>& work, const QString& text, int repeats)
{
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < repeats; ++i)
        sink = sink + work(text);
    return double(timer.nsecsElapsed()) / repeats;
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

void compare(const char* name, const QString& text, int repeats,
             const std::function<qint64(const QString&)>& ours,
             const std::function<qint64(const QString&)>& splitBased)
{
    if (ours(text) != splitBased(text))
        std::printf("%s: the two sides disagree\n", name);
    std::vector<double> ourTimes;
    std::vector<double> splitTimes;
    for (int round = 0; round < rounds; ++round) {
        ourTimes.push_back(timeOf(ours, text, repeats));
        splitTimes.push_back(timeOf(splitBased, text, repeats));
    }
    const double ourTime = median(ourTimes);
    const double splitTime = median(splitTimes);
    std::printf("%-34s %12.0f ns %12.0f ns %8.1fx\n", name, ourTime, splitTime,
                splitTime / ourTime);
}

QString manyItems(int items)
{
    QStringList list;
    for (int i = 0; i < items; ++i)
        list.append(i % 3 == 0 ? QStringLiteral("%1-%2").arg(i % 4000 + 1).arg(i % 4000 + 9)
                               : QString::number(i % 9999 + 1));
    return list.join(u',');
}

} // namespace

int main()
{
    std::printf("%-34s %15s %15s %9s\n", "median of 15 rounds", "RecordList", "split + regex",
                "ratio");
    const QString typed = QStringLiteral("1,4-5,11-20,33");
    const QString reversed = QStringLiteral("9-1,8-2,7-3,6-4,9-2,8-1,7-2,6-1,5-2,4-1,3-2");
    const QString wide = QStringLiteral("1-9999,1-9999,1-9999");
    const QString longList = manyItems(2000);
    compare("classify, a typed list", typed, 20000, classify, splitClassify);
    compare("classify, undecided to the end", reversed, 20000, classify, splitClassify);
    compare("classify, 2000 items", longList, 50, classify, splitClassify);
    compare("expand, a typed list", typed, 20000, expand, splitExpand);
    compare("expand, wide ranges", wide, 500, expand, splitExpand);
    compare("expand, 2000 items", longList, 50, expand, splitExpand);
    return 0;
}
