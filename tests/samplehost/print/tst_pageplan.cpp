// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/print/pageplan.h"
#include "support/stricttest.h"

using namespace SampleHost;

namespace {

PrintRequest listRequest(const QString& list)
{
    PrintRequest request;
    request.sequenceStart = 0;
    request.sequenceEnd = 0;
    request.customRecordsList = list;
    return request;
}

/** Every page as "1,2", pages separated by blanks. */
QString allPages(const PagePlan& plan)
{
    QStringList pages;
    for (qint64 page = 0; page < plan.pageCount(); ++page) {
        QStringList records;
        const QList<int> onPage = plan.recordsOnPage(page);
        for (const int record : onPage) {
            records.append(QString::number(record));
        }
        pages.append(records.join(QLatin1Char(',')));
    }
    return pages.join(QLatin1Char(' '));
}

} // namespace

class TestPagePlan : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void readsRequests_data();
    void readsRequests();
    void customListWinsOverSequence();
    void printsEachLabelAsOftenAsThereAreCopies_data();
    void printsEachLabelAsOftenAsThereAreCopies();
    void replicatingFillsAPageWithOneRecord();
    void sequencingFillsPagesInTurn_data();
    void sequencingFillsPagesInTurn();
    void namesTheProblem_data();
    void namesTheProblem();
    void answersForHugeRequestsByArithmetic();
    void answersNothingForPagesThatDoNotExist();
    void readsLayouts_data();
    void readsLayouts();
    void boundsUnusableLayouts();

private:
    /** The request of the row. */
    static PrintRequest fetchRequest();
};

void TestPagePlan::readsRequests_data()
{
    addColumns<int, int, QString, int, QString>("start", "end", "list", "recordCount", "pages");

    const auto none = QString();
    addRow("only the current record", 3, -1, none, 10, "3");
    addRow("all records", 1, 4, none, 4, "1 2 3 4");
    addRow("one record as a range", 2, 2, none, 4, "2");
    addRow("range clipped", 3, 99999, none, 5, "3 4 5");
    addRow("list in typed order", 0, 0, "4-5,1", 10, "4 5 1");
    addRow("list repeats", 0, 0, "2,2,1-2", 10, "2 2 1 2");
    addRow("list clipped", 0, 0, "1,4-9", 5, "1 4 5");
    addRow("reversed range names nothing", 0, 0, "1,5-4,3", 5, "1 3");
    addRow("beyond the last names nothing", 0, 0, "9,1,7-8", 5, "1");
}

PrintRequest TestPagePlan::fetchRequest()
{
    QFETCH(int, start);
    QFETCH(int, end);
    QFETCH(QString, list);
    PrintRequest request;
    request.sequenceStart = start;
    request.sequenceEnd = end;
    request.customRecordsList = list;
    return request;
}

void TestPagePlan::readsRequests()
{
    QFETCH(int, recordCount);
    QFETCH(QString, pages);
    const PagePlan plan = PagePlan::make(fetchRequest(), recordCount);

    QCOMPARE(plan.problem(), PagePlan::Problem::None);
    QCOMPARE(allPages(plan), pages);
    QCOMPARE(plan.selectedCount(), qint64(pages.split(QLatin1Char(' ')).size()));
}

void TestPagePlan::customListWinsOverSequence()
{
    PrintRequest request;
    request.sequenceStart = 7;
    request.sequenceEnd = 9;
    request.customRecordsList = QStringLiteral("2");
    QCOMPARE(allPages(PagePlan::make(request, 20)), QStringLiteral("2"));
}

void TestPagePlan::printsEachLabelAsOftenAsThereAreCopies_data()
{
    addColumns<int, QString>("copies", "pages");

    addRow("one", 1, "5 1 2");
    addRow("three", 3, "5 5 5 1 1 1 2 2 2");
    addRow("none counts as one", 0, "5 1 2");
    addRow("negative counts as one", -4, "5 1 2");
}

void TestPagePlan::printsEachLabelAsOftenAsThereAreCopies()
{
    QFETCH(int, copies);
    PrintRequest request = listRequest(QStringLiteral("5,1-2"));
    request.copies = copies;
    QTEST(allPages(PagePlan::make(request, 9)), "pages");

    // Sequencing has no meaning on a sheet of one label.
    request.nupMode = NupMode::Sequencing;
    QTEST(allPages(PagePlan::make(request, 9)), "pages");
}

void TestPagePlan::replicatingFillsAPageWithOneRecord()
{
    PrintRequest request = listRequest(QStringLiteral("3,1"));
    request.nup = {2, 2};
    request.copies = 2;
    const PagePlan plan = PagePlan::make(request, 5);
    QCOMPARE(allPages(plan), QStringLiteral("3,3,3,3 3,3,3,3 1,1,1,1 1,1,1,1"));
}

void TestPagePlan::sequencingFillsPagesInTurn_data()
{
    addColumns<QString, int, int, int, QString>("list", "rows", "columns", "copies", "pages");

    addRow("last page part full", "1-5", 2, 2, 1, "1,2,3,4 5");
    addRow("exactly full", "1-4", 2, 1, 1, "1,2 3,4");
    addRow("fewer than a page", "6,2", 3, 2, 1, "6,2");
    addRow("a copy begins a page", "1-3", 1, 2, 2, "1,2 3 1,2 3");
    addRow("ranges run into each other", "8-9,1,3-4", 1, 3, 1, "8,9,1 3,4");
}

void TestPagePlan::sequencingFillsPagesInTurn()
{
    QFETCH(QString, list);
    QFETCH(int, rows);
    QFETCH(int, columns);
    QFETCH(int, copies);

    PrintRequest request = listRequest(list);
    request.nup = {rows, columns};
    request.nupMode = NupMode::Sequencing;
    request.copies = copies;
    QTEST(allPages(PagePlan::make(request, 9)), "pages");
}

void TestPagePlan::namesTheProblem_data()
{
    addColumns<int, int, QString, int, PagePlan::Problem>("start", "end", "list", "recordCount",
                                                          "problem");

    const auto unreadable = PagePlan::Problem::UnreadableList;
    const auto nothing = PagePlan::Problem::NoSuchRecord;
    addRow("unfinished list", 0, 0, "1,", 9, unreadable);
    addRow("unfinished range", 0, 0, "4-", 9, unreadable);
    addRow("words", 0, 0, "all", 9, unreadable);
    addRow("reversed only", 0, 0, "5-4", 9, nothing);
    addRow("beyond the last", 0, 0, "10-12", 9, nothing);
    addRow("no records", 1, -1, QString(), 0, nothing);
    addRow("negative record count", 1, 5, QString(), -3, nothing);
    addRow("current beyond the last", 10, -1, QString(), 9, nothing);
    addRow("record 0", 0, 0, QString(), 9, nothing);
    addRow("reversed sequence", 5, 4, QString(), 9, nothing);
}

void TestPagePlan::namesTheProblem()
{
    QFETCH(int, recordCount);
    PrintRequest request = fetchRequest();
    request.copies = 3;
    const PagePlan plan = PagePlan::make(request, recordCount);
    QTEST(plan.problem(), "problem");
    QCOMPARE(plan.pageCount(), qint64(0));
    QCOMPARE(plan.selectedCount(), qint64(0));
    QVERIFY(plan.recordsOnPage(0).isEmpty());
}

void TestPagePlan::answersForHugeRequestsByArithmetic()
{
    PrintRequest request;
    request.sequenceStart = 1;
    request.sequenceEnd = 99999;
    request.copies = 999;
    const PagePlan single = PagePlan::make(request, 99999);
    QCOMPARE(single.pageCount(), qint64(99'899'001));
    QCOMPARE(single.recordsOnPage(998), QList<int>{1});
    QCOMPARE(single.recordsOnPage(999), QList<int>{2});
    QCOMPARE(single.recordsOnPage(99'899'000), QList<int>{99999});

    request.nup = {1, 2};
    request.nupMode = NupMode::Sequencing;
    const PagePlan sheets = PagePlan::make(request, 99999);
    QCOMPARE(sheets.pageCount(), qint64(50'000) * 999);
    QCOMPARE(sheets.recordsOnPage(49'999), QList<int>{99999});
    QCOMPARE(sheets.recordsOnPage(50'000), (QList<int>{1, 2}));

    // A list can name more labels than fit a 32-bit number.
    QStringList parts;
    for (int i = 0; i < 1000; ++i) {
        parts.append(QStringLiteral("1-9999"));
    }
    PrintRequest longList = listRequest(parts.join(QLatin1Char(',')));
    longList.copies = 999;
    const PagePlan many = PagePlan::make(longList, 99999);
    QCOMPARE(many.pageCount(), qint64(9999) * 1000 * 999);
    QCOMPARE(many.recordsOnPage(many.pageCount() - 1), QList<int>{9999});
}

void TestPagePlan::answersNothingForPagesThatDoNotExist()
{
    const PagePlan plan = PagePlan::make(listRequest(QStringLiteral("1-3")), 9);
    QVERIFY(plan.recordsOnPage(-1).isEmpty());
    QVERIFY(plan.recordsOnPage(3).isEmpty());
    QVERIFY(PagePlan().recordsOnPage(0).isEmpty());
    QCOMPARE(PagePlan().problem(), PagePlan::Problem::NoSuchRecord);
}

void TestPagePlan::readsLayouts_data()
{
    addColumns<QString, QString>("text", "read");

    addRow("single", "1x1", "1x1");
    addRow("rows first", "3x2", "3x2");
    addRow("capital", "2X10", "2x10");
    addRow("zero", "0x2", QString());
    addRow("too many", "2x11", QString());
    addRow("negative", "-2x2", QString());
    addRow("one side", "2x", QString());
    addRow("no cross", "22", QString());
    addRow("three sides", "2x2x2", QString());
    addRow("empty", QString(), QString());
}

void TestPagePlan::readsLayouts()
{
    QFETCH(QString, text);
    const auto layout = NupLayout::fromText(text);
    QTEST(layout ? layout->text() : QString(), "read");
}

void TestPagePlan::boundsUnusableLayouts()
{
    QCOMPARE((NupLayout{0, -5}.labelsPerPage()), 1);
    QCOMPARE((NupLayout{99, 99}.labelsPerPage()), 100);
    PrintRequest request = listRequest(QStringLiteral("1-2"));
    request.nup = {0, 0};
    QCOMPARE(allPages(PagePlan::make(request, 9)), QStringLiteral("1 2"));
}

QTEST_GUILESS_MAIN(TestPagePlan)

#include "tst_pageplan.moc"
