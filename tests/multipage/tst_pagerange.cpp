// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "multipage/pagerange.h"
#include "support/stricttest.h"

#include <limits>

using PrintPanels::listedPages;
using PrintPanels::PageRange;

/** What a typed page list stands for. */
class tst_PageRange : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void listedPagesOf_data();
    void listedPagesOf();
};

void tst_PageRange::listedPagesOf_data()
{
    QTest::addColumn<QString>("list");
    QTest::addColumn<int>("current");
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("end");
    const auto row = [](const char* name, const QString& list, int current, int count, int start,
                        int end) {
        QTest::newRow(name) << list << current << count << start << end;
    };
    constexpr int highest = std::numeric_limits<int>::max();

    row("empty: the current page", QString(), 3, 10, 3, 3);
    row("only commas: the current page", QStringLiteral(",,"), 3, 10, 3, 3);
    row("one page", QStringLiteral("7"), 3, 10, 7, 10);
    row("the last page", QStringLiteral("10"), 3, 10, 10, 10);
    row("one page beyond the end", QStringLiteral("11"), 3, 10, -1, 3);
    row("12 of 10", QStringLiteral("12"), 3, 10, -1, 3);
    row("a range: its first page", QStringLiteral("4-5"), 3, 10, 4, 10);
    row("a range that leaves the document", QStringLiteral("9-20"), 3, 10, 9, 10);
    row("a range beyond the end", QStringLiteral("11-20"), 3, 10, -1, 3);
    row("a reversed range: its first number", QStringLiteral("8-2"), 3, 10, 8, 10);
    row("a reversed range from beyond the end", QStringLiteral("20-2"), 3, 10, -1, 3);
    row("the first item decides", QStringLiteral("7-9,2"), 3, 10, 7, 10);
    row("the first item that exists decides", QStringLiteral("5-9,2"), 1, 4, 2, 4);
    row("the last of several exists", QStringLiteral("30,20-5,11,10"), 3, 10, 10, 10);
    row("none of several exists", QStringLiteral("30,20-5,11"), 3, 10, -1, 3);
    row("not sorted", QStringLiteral("9,1"), 3, 10, 9, 10);
    row("being typed: a comma", QStringLiteral("4,"), 3, 10, 4, 10);
    row("being typed: a hyphen", QStringLiteral("4-"), 3, 10, 4, 10);
    row("only a hyphen", QStringLiteral("-"), 3, 10, -1, 3);
    row("a hyphen, then a page", QStringLiteral("-,6"), 3, 10, 6, 10);
    row("a hyphen before the page", QStringLiteral("-6"), 3, 10, 6, 10);
    row("zero counts as it stands", QStringLiteral("0"), 3, 10, 0, 10);
    row("no number counts as 0", QStringLiteral("x,5"), 3, 10, 0, 10);
    row("too high for a number counts as 0", QStringLiteral("2147483648"), 3, 10, 0, 10);
    row("the highest number", QStringLiteral("2147483647"), 3, 10, -1, 3);
    row("the highest number exists", QStringLiteral("2147483647"), 3, highest, highest, highest);
    row("no pages", QStringLiteral("1"), 1, 0, -1, 1);
    row("less than no pages", QStringLiteral("0,1"), 1, -5, -1, 1);
    row("the current page beyond the end", QStringLiteral("99"), 50, 10, -1, 50);
    row("the current page below 1", QString(), -4, 10, -4, -4);
}

void tst_PageRange::listedPagesOf()
{
    QFETCH(const QString, list);
    QFETCH(const int, current);
    QFETCH(const int, count);
    const PageRange range = listedPages(list, current, count);
    QTEST(range.start, "start");
    QTEST(range.end, "end");
}

QTEST_APPLESS_MAIN(tst_PageRange)
#include "tst_pagerange.moc"
