// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "support/stricttest.h"

#include <printpanels/recordlist.h>

#include <QtCore/QElapsedTimer>
#include <QtCore/QRandomGenerator>

#include <climits>

using RecordList::Extent;

Q_DECLARE_METATYPE(RecordList::Extent)

namespace {

bool isWholeMatch(const QString& text)
{
    static const QRegularExpression whole(
        QRegularExpression::anchoredPattern(RecordList::expression().pattern()));
    return whole.match(text).hasMatch();
}

/** The classification in the plainest words: every piece copied, everything looked at in order. */
Extent plainClassify(const QString& text, int numberOfRecords)
{
    int counter = 0;
    const QStringList items = text.split(QLatin1Char(','), Qt::SkipEmptyParts);
    for (const QString& item : items) {
        const QStringList pieces = item.split(QLatin1Char('-'), Qt::SkipEmptyParts);
        if (pieces.isEmpty())
            continue;
        if (pieces.size() >= 2) {
            const int first = pieces.first().toInt();
            const int last = qMin(pieces.last().toInt(), numberOfRecords);
            if (first < last)
                return Extent::SeveralRecords;
            if (first > last)
                continue;
        }
        ++counter;
        if (counter > 1)
            return Extent::SeveralRecords;
    }
    return Extent::OneRecord;
}

/** The first page in the plainest words. */
std::optional<int> plainFirstPage(const QString& text, int pageCount)
{
    const QStringList items = text.split(QLatin1Char(','), Qt::SkipEmptyParts);
    if (items.isEmpty())
        return std::nullopt;
    for (const QString& item : items) {
        const QStringList pieces = item.split(QLatin1Char('-'), Qt::SkipEmptyParts);
        if (!pieces.isEmpty() && pieces.first().toInt() <= pageCount)
            return pieces.first().toInt();
    }
    return -1;
}

QString randomText(QRandomGenerator& random)
{
    static const QString alphabet = QStringLiteral("0123456789--,,,1 a");
    QString text;
    const int length = random.bounded(14);
    for (int i = 0; i < length; ++i)
        text.append(alphabet.at(random.bounded(int(alphabet.size()))));
    return text;
}

} // namespace

class tst_RecordList : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void expressionIsExact();
    void expressionIsBuiltOnce();
    void grammar_data();
    void grammar();
    void classify_data();
    void classify();
    void classifyAgreesWithThePlainRules();
    void classifyReadsHugeTextsQuickly_data();
    void classifyReadsHugeTextsQuickly();
    void firstPage_data();
    void firstPage();
    void firstPageAgreesWithThePlainRules();
};

void tst_RecordList::expressionIsExact()
{
    QCOMPARE(RecordList::expression().pattern(),
             QString::fromLatin1(
                 R"((?![0])\d{1,4}(?:-(?![0])\d{1,4})?(?:,(?![0])\d{1,4}(?:-(?![0])\d{1,4})?)*)"));
    QCOMPARE(RecordList::expression().patternOptions(), QRegularExpression::NoPatternOption);
    QVERIFY(RecordList::expression().isValid());
}

void tst_RecordList::expressionIsBuiltOnce()
{
    QCOMPARE(&RecordList::expression(), &RecordList::expression());
}

void tst_RecordList::grammar_data()
{
    addColumns<QString, bool>("text", "valid");
    const auto valid = [](const char* text) {
        QTest::addRow("valid: %s", text) << QString::fromUtf8(text) << true;
    };
    const auto invalid = [](const char* text) {
        QTest::addRow("invalid: '%s'", text) << QString::fromUtf8(text) << false;
    };
    for (const char* text : {"1", "4-5", "1,4-5,11-20,33", "20-11", "9999", "1000", "10", "3,3",
                             "4-4", "1-9999", "9999-1", "1,1,1,1"})
        valid(text);
    for (const char* text :
         {"",    "0",   "01",  "1,,2", "1 - 3", "12345", "1-2-3",   "1,",  ",1", "1-",
          "-1",  "0-3", "3-0", "3-01", "1, 2",  " 1",    "1 ",      "1\n", "a",  "1,a",
          "1.5", "+1",  "1;2", "1--2", "1,2,",  "10000", "1-10000", "٣",   "１"})
        invalid(text);
}

void tst_RecordList::grammar()
{
    QFETCH(const QString, text);
    QTEST(isWholeMatch(text), "valid");
}

void tst_RecordList::classify_data()
{
    addColumns<QString, int, Extent>("text", "records", "extent");

    const auto one = [](const char* text, int records) {
        QTest::addRow("one: '%s' of %d", text, records)
            << QString::fromUtf8(text) << records << Extent::OneRecord;
    };
    const auto several = [](const char* text, int records) {
        QTest::addRow("several: '%s' of %d", text, records)
            << QString::fromUtf8(text) << records << Extent::SeveralRecords;
    };

    one("", 10);
    one("7", 3);
    several("7,8", 3);
    one("5-2", 10);
    one("5-2,9", 10);
    several("5-2,9,9", 10);
    one("12-15", 10);
    one("10-15", 10);
    several("9-15", 10);
    several("3,3", 10);
    one("4-4", 10);
    several("4-4,5-5", 10);
    several("4-4,4", 10);
    several("4-5", 10);
    several("1,4-5", 10);
    several("1-3", 2);
    one("1-3", 1);
    one("2-3", 1);
    several("1,4-5,11-20,33", 99999);

    // A list that is not complete yet counts as it stands.
    one("1,", 10);
    one("4-", 10);
    one("-4", 10);
    several("4-,5", 10);
    one(",,,", 10);
    one("-", 10);
    one("--", 10);
    one("-,-", 10);
    one(",-,7,-,", 10);
    several(",7,,8,", 10);

    // Of an item with more than two pieces the first and the last one count.
    several("1-2-3", 10);
    one("3-9-1", 10);
    several("1-0-5", 10);
    one("5-9-5", 10);
    several("5-9-5,1", 10);
    several("1--3", 10);

    // What is no number, or too long for one, counts as 0.
    one("abc", 10);
    several("a,b", 10);
    one("a-b", 10);
    several("a-b,c-d", 10);
    several("a-3", 10);
    one("3-a", 10);
    several("99999999999999999999-5", 10);
    one("5-99999999999999999999", 10);
    several("1 - 3", 10);
    one("0-0", 10);
    several("0-1", 10);
    one("٣-٤", 10);
    one("٣-٤,", 10);
    several("٣-1", 10);
    several("٣-٤,1", 10);

    // Record counts of every kind.
    one("1-5", 0);
    several("1,2", 0);
    one("0-5", 0);
    one("1-5", -3);
    one("1-5", INT_MIN);
    several("1-2147483647", INT_MAX);
    several("2147483646-2147483647", INT_MAX);
    one("2147483647-2147483647", INT_MAX);
    one("2147483647-2147483648", INT_MAX);
    several("2147483648-2147483647", INT_MAX);
}

void tst_RecordList::classify()
{
    QFETCH(const QString, text);
    QFETCH(const int, records);
    const Extent extent = RecordList::classify(text, records);
    QTEST(extent, "extent");
    QCOMPARE(extent, plainClassify(text, records));
}

void tst_RecordList::classifyAgreesWithThePlainRules()
{
    QRandomGenerator random(20240611);
    for (int i = 0; i < 20000; ++i) {
        const QString text = randomText(random);
        const int records = random.bounded(-1, 12);
        QVERIFY2(RecordList::classify(text, records) == plainClassify(text, records),
                 qPrintable(QStringLiteral("'%1' of %2").arg(text).arg(records)));
    }
}

void tst_RecordList::classifyReadsHugeTextsQuickly_data()
{
    addColumns<QString, Extent>("piece", "extent");
    addRow("commas", ",", Extent::OneRecord);
    addRow("hyphens", "-", Extent::OneRecord);
    addRow("digits", "7", Extent::OneRecord);
    addRow("reversed ranges", "9-1,", Extent::OneRecord);
    addRow("numbers", "1,", Extent::SeveralRecords);
    addRow("one long range", "1-", Extent::OneRecord);
    addRow("letters", "x", Extent::OneRecord);
}

void tst_RecordList::classifyReadsHugeTextsQuickly()
{
    QFETCH(const QString, piece);
    const QString text = piece.repeated(1024 * 1024 / piece.size());
    QElapsedTimer timer;
    timer.start();
    QTEST(RecordList::classify(text, 10), "extent");
    RecordList::firstPage(text, 10);
    RecordList::expand(text, 10);
    QVERIFY(timer.elapsed() < 5000);
}

void tst_RecordList::firstPage_data()
{
    addColumns<QString, int, bool, int>("text", "pages", "hasItem", "page");
    const auto row = [](const char* text, int pages, int page) {
        QTest::addRow("'%s' of %d", text, pages)
            << QString::fromUtf8(text) << pages << true << page;
    };
    const auto empty = [](const char* text) {
        QTest::addRow("no item: '%s'", text) << QString::fromUtf8(text) << 10 << false << 0;
    };
    empty("");
    empty(",");
    empty(",,,");

    row("5-9,2", 4, 2);
    row("7-9,2", 10, 7);
    row("12", 10, -1);
    row("10", 10, 10);
    row("11,10", 10, 10);
    row("9-2", 10, 9);
    row("1,3", 10, 1);
    row("3,1", 10, 3);
    row("20-3,15,9", 10, 9);
    row("20-3,15", 10, -1);
    row("-", 10, -1);
    row("-,5", 10, 5);
    row("-5", 10, 5);
    row("5-", 10, 5);
    row(",,4", 10, 4);
    row("0", 10, 0);
    row("abc", 10, 0);
    row("99999999999,3", 10, 0);
    row("20,abc,3", 10, 0);
    row("1", 0, -1);
    row("1", -5, -1);
    row("abc", -5, -1);
    row("2147483647", INT_MAX, 2147483647);
    row("2147483647", 2147483646, -1);
}

void tst_RecordList::firstPage()
{
    QFETCH(const QString, text);
    QFETCH(const int, pages);
    const std::optional<int> page = RecordList::firstPage(text, pages);
    QTEST(page.has_value(), "hasItem");
    if (page)
        QTEST(*page, "page");
    QCOMPARE(page, plainFirstPage(text, pages));
    QCOMPARE(RecordList::noPage, -1);
}

void tst_RecordList::firstPageAgreesWithThePlainRules()
{
    QRandomGenerator random(977);
    for (int i = 0; i < 20000; ++i) {
        const QString text = randomText(random);
        const int pages = random.bounded(-1, 12);
        QVERIFY2(RecordList::firstPage(text, pages) == plainFirstPage(text, pages),
                 qPrintable(QStringLiteral("'%1' of %2").arg(text).arg(pages)));
    }
}

QTEST_APPLESS_MAIN(tst_RecordList)
#include "tst_recordlist.moc"
