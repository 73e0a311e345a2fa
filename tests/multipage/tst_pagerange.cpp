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
    addColumns<QString, int, int, int, int>("list", "current", "count", "start", "end");
    constexpr int highest = std::numeric_limits<int>::max();

    addRow("empty: the current page", QString(), 3, 10, 3, 3);
    addRow("only commas: the current page", ",,", 3, 10, 3, 3);
    addRow("one page", "7", 3, 10, 7, 10);
    addRow("the last page", "10", 3, 10, 10, 10);
    addRow("one page beyond the end", "11", 3, 10, -1, 3);
    addRow("12 of 10", "12", 3, 10, -1, 3);
    addRow("a range: its first page", "4-5", 3, 10, 4, 10);
    addRow("a range that leaves the document", "9-20", 3, 10, 9, 10);
    addRow("a range beyond the end", "11-20", 3, 10, -1, 3);
    addRow("a reversed range: its first number", "8-2", 3, 10, 8, 10);
    addRow("a reversed range from beyond the end", "20-2", 3, 10, -1, 3);
    addRow("the first item decides", "7-9,2", 3, 10, 7, 10);
    addRow("the first item that exists decides", "5-9,2", 1, 4, 2, 4);
    addRow("the last of several exists", "30,20-5,11,10", 3, 10, 10, 10);
    addRow("none of several exists", "30,20-5,11", 3, 10, -1, 3);
    addRow("not sorted", "9,1", 3, 10, 9, 10);
    addRow("being typed: a comma", "4,", 3, 10, 4, 10);
    addRow("being typed: a hyphen", "4-", 3, 10, 4, 10);
    addRow("only a hyphen", "-", 3, 10, -1, 3);
    addRow("a hyphen, then a page", "-,6", 3, 10, 6, 10);
    addRow("a hyphen before the page", "-6", 3, 10, 6, 10);
    addRow("zero counts as it stands", "0", 3, 10, 0, 10);
    addRow("no number counts as 0", "x,5", 3, 10, 0, 10);
    addRow("too high for a number counts as 0", "2147483648", 3, 10, 0, 10);
    addRow("the highest number", "2147483647", 3, 10, -1, 3);
    addRow("the highest number exists", "2147483647", 3, highest, highest, highest);
    addRow("no pages", "1", 1, 0, -1, 1);
    addRow("less than no pages", "0,1", 1, -5, -1, 1);
    addRow("the current page beyond the end", "99", 50, 10, -1, 50);
    addRow("the current page below 1", QString(), -4, 10, -4, -4);
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
