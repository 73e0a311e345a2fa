// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/pdf/pdfpageplan.h"
#include "support/stricttest.h"

#include <limits>

using namespace SampleHost;
using Problem = PagePlan::Problem;

namespace {

PdfPrintRequest range(int start, int end, int copies = 1)
{
    PdfPrintRequest request;
    request.startPage = start;
    request.endPage = end;
    request.copies = copies;
    return request;
}

PdfPrintRequest list(const char* text, int copies = 1)
{
    PdfPrintRequest request = range(0, 0, copies);
    request.pageList = QString::fromLatin1(text);
    return request;
}

QList<int> pages(const PdfPagePlan& plan)
{
    QList<int> pages;
    for (qint64 sheet = 0; sheet < plan.sheetCount(); ++sheet) {
        pages.append(plan.pageOnSheet(sheet));
    }
    return pages;
}

} // namespace

class TestPdfPagePlan : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void namesPages_data();
    void namesPages();
    void explainsEmptyPlans_data();
    void explainsEmptyPlans();
    void staysSmall();
};

void TestPdfPagePlan::namesPages_data()
{
    addColumns<PdfPrintRequest, int, QList<int>>("request", "pageCount", "expected");

    addRow("current page", range(3, 3), 12, QList<int>{3});
    addRow("single page", range(3, -1), 12, QList<int>{3});
    addRow("all pages", range(1, 4), 4, QList<int>{1, 2, 3, 4});
    addRow("all pages of an unknown count", range(1, 99999), 4, QList<int>{1, 2, 3, 4});
    addRow("to beyond the last", range(3, 9), 4, QList<int>{3, 4});
    addRow("list in typed order", list("9,2,5-7"), 12, QList<int>{9, 2, 5, 6, 7});
    addRow("list with repetitions", list("2,2,1-3,3"), 12, QList<int>{2, 2, 1, 2, 3, 3});
    addRow("list to beyond the last", list("11-99,1"), 12, QList<int>{11, 12, 1});
    addRow("reversed range in a list", list("7-5,2"), 12, QList<int>{2});
    addRow("nothing of an item", list("13,2,20-30"), 12, QList<int>{2});
    addRow(
        "list beats range",
        [] {
            PdfPrintRequest request = range(1, 12);
            request.pageList = QStringLiteral("4");
            return request;
        }(),
        12, QList<int>{4});
    addRow("copies are collated", list("3,1", 3), 12, QList<int>{3, 1, 3, 1, 3, 1});
    addRow("copies of a page", range(2, 2, 3), 12, QList<int>{2, 2, 2});
    addRow("no copies", range(2, 2, 0), 12, QList<int>{2});
    addRow("negative copies", range(1, 2, -5), 12, QList<int>{1, 2});
}

void TestPdfPagePlan::namesPages()
{
    QFETCH(PdfPrintRequest, request);
    QFETCH(int, pageCount);
    QFETCH(QList<int>, expected);
    const PdfPagePlan plan(request, pageCount);
    QCOMPARE(plan.problem(), Problem::None);
    QCOMPARE(plan.problemText(), QString());
    QCOMPARE(plan.sheetCount(), qint64(expected.size()));
    QCOMPARE(pages(plan), expected);
    QCOMPARE(plan.pageOnSheet(-1), 0);
    QCOMPARE(plan.pageOnSheet(plan.sheetCount()), 0);
}

void TestPdfPagePlan::explainsEmptyPlans_data()
{
    addColumns<PdfPrintRequest, int, Problem, QString>("request", "pageCount", "problem", "text");

    const QString noPage = QStringLiteral("There is no such page. Nothing is printed.");
    addRow("reversed range", range(5, 3), 12, Problem::NoSuchRecord, noPage);
    addRow("beyond the last", range(13, 20), 12, Problem::NoSuchRecord, noPage);
    addRow("before the first", range(-1, 3), 12, Problem::NoSuchRecord, noPage);
    addRow("no list after all", range(0, 0), 12, Problem::NoSuchRecord, noPage);
    addRow("no pages", range(1, 99999), 0, Problem::NoSuchRecord, noPage);
    addRow("negative page count", range(1, 1), -3, Problem::NoSuchRecord, noPage);
    addRow("list of none", list("13,7-5"), 12, Problem::NoSuchRecord,
           "The list \"13,7-5\" names none of the 12 pages: there is no page 13. Write numbers "
           "from 1 to 12. Nothing is printed.");
    addRow("unreadable list", list("1,,2"), 12, Problem::UnreadableList,
           "The list \"1,,2\" cannot be read: a page number is missing beside a comma. Write "
           "numbers and ranges such as 1,4-5. Nothing is printed.");
    addRow("words", list("%1 %2"), 12, Problem::UnreadableList,
           "The list \"%1 %2\" cannot be read: \"%1 %2\" is not a page number. Write numbers and "
           "ranges such as 1,4-5. Nothing is printed.");
}

void TestPdfPagePlan::explainsEmptyPlans()
{
    QFETCH(PdfPrintRequest, request);
    QFETCH(int, pageCount);
    QFETCH(Problem, problem);
    QFETCH(QString, text);
    const PdfPagePlan plan(request, pageCount);
    QCOMPARE(plan.problem(), problem);
    QCOMPARE(plan.problemText(), text);
    QCOMPARE(plan.sheetCount(), qint64(0));
    QCOMPARE(plan.pageOnSheet(0), 0);
}

void TestPdfPagePlan::staysSmall()
{
    QString everything = QStringLiteral("1-9999");
    for (int i = 0; i < 99; ++i) {
        everything += QStringLiteral(",1-9999");
    }
    PdfPrintRequest request;
    request.pageList = everything;
    request.copies = std::numeric_limits<int>::max();
    const PdfPagePlan plan(request, 9999);
    QCOMPARE(plan.selectedCount(), qint64(999900));
    QCOMPARE(plan.sheetCount(), qint64(999900) * std::numeric_limits<int>::max());
    QCOMPARE(plan.pageOnSheet(plan.sheetCount() - 1), 9999);
    QCOMPARE(plan.pageOnSheet(plan.sheetCount() - 9999), 1);
}

QTEST_MAIN(TestPdfPagePlan)

#include "tst_pdfpageplan.moc"
