// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "support/stricttest.h"

#include <printpanels/recordlist.h>

#include <QtCore/QRandomGenerator>

#include <climits>

using RecordList::Range;

namespace {

/** "1-1 4-5": the ranges of an expansion; "invalid" when there is none. */
QString ranges(const QString& text, int numberOfRecords)
{
    const std::optional<QList<Range>> expansion = RecordList::expand(text, numberOfRecords);
    if (!expansion)
        return QStringLiteral("invalid");
    QStringList parts;
    for (const Range range : *expansion)
        parts.append(QStringLiteral("%1-%2").arg(range.first).arg(range.last));
    return parts.join(QLatin1Char(' '));
}

/** The same in the plainest words: valid as the expression says, each item clipped on its own. */
QString plainRanges(const QString& text, int numberOfRecords)
{
    static const QRegularExpression whole(
        QRegularExpression::anchoredPattern(RecordList::expression().pattern()));
    if (!whole.match(text).hasMatch())
        return QStringLiteral("invalid");
    QStringList parts;
    const QStringList items = text.split(QLatin1Char(','));
    for (const QString& item : items) {
        const QStringList pieces = item.split(QLatin1Char('-'));
        const int first = pieces.first().toInt();
        const int last = qMin(pieces.last().toInt(), numberOfRecords);
        if (first <= last)
            parts.append(QStringLiteral("%1-%2").arg(first).arg(last));
    }
    return parts.join(QLatin1Char(' '));
}

/** A text that is a valid list more often than not: items, some of them spoilt. */
QString randomList(QRandomGenerator& random)
{
    QStringList items;
    const int count = random.bounded(1, 6);
    for (int i = 0; i < count; ++i) {
        QString item = QString::number(random.bounded(1, 40));
        if (random.bounded(2) == 0)
            item += QLatin1Char('-') + QString::number(random.bounded(1, 12000));
        items.append(item);
    }
    QString text = items.join(QLatin1Char(','));
    static const QString spoilers = QStringLiteral("0-, x9");
    if (random.bounded(2) == 0)
        text.insert(random.bounded(int(text.size()) + 1), spoilers.at(random.bounded(6)));
    return text;
}

} // namespace

class tst_RecordListExpansion : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void expand_data();
    void expand();
    void invalid_data();
    void invalid();
    void validityAndRangesAgreeWithTheExpression();
    void rangesCompare();
};

void tst_RecordListExpansion::expand_data()
{
    addColumns<QString, int, QString>("text", "records", "expected");
    const auto row = [](const char* text, int records, const char* expected) {
        QTest::addRow("%s of %d", text, records)
            << QString::fromLatin1(text) << records << QString::fromLatin1(expected);
    };
    row("1", 10, "1-1");
    row("1,4-5", 10, "1-1 4-5");
    row("1,4-5,11-20,33", 40, "1-1 4-5 11-20 33-33");
    // Typed order, repetitions kept, neighbours not merged.
    row("5,1", 10, "5-5 1-1");
    row("3,3", 10, "3-3 3-3");
    row("4-5,4-5,2", 10, "4-5 4-5 2-2");
    row("1,2,3", 10, "1-1 2-2 3-3");
    row("4-4", 10, "4-4");
    // Clipped to the records there are.
    row("9-15", 10, "9-10");
    row("10-15", 10, "10-10");
    row("12-15", 10, "");
    row("11", 10, "");
    row("1-9999", 10, "1-10");
    row("12,3", 10, "3-3");
    // A reversed range names nothing, also one that clipping reverses.
    row("5-2", 10, "");
    row("5-2,9", 10, "9-9");
    row("20-11", 40, "");
    row("20-11", 15, "");
    // No records at all.
    row("1", 0, "");
    row("1-5", 0, "");
    row("1", -1, "");
    row("1-5", INT_MIN, "");
    row("9999", INT_MAX, "9999-9999");
    row("1-9999", INT_MAX, "1-9999");
    row("1", 1, "1-1");
    row("1-2", 1, "1-1");
}

void tst_RecordListExpansion::expand()
{
    QFETCH(const QString, text);
    QFETCH(const int, records);
    QTEST(ranges(text, records), "expected");
}

void tst_RecordListExpansion::invalid_data()
{
    QTest::addColumn<QString>("text");
    for (const char* text :
         {"",           "0",  "01", "1,,2", "1 - 3", "12345", "1-2-3", "1,",
          ",1",         "1-", "-1", "-",    ",",     "1,0",   "1-0",   "0-1",
          "1,4-05",     "1 ", " 1", "1\n",  "a",     "1,a",   "٣",     "1-99999999999999999999",
          "2147483648", "+1", "1.0"})
        QTest::addRow("'%s'", text) << QString::fromUtf8(text);
    addRow("null character inside", QString(QStringLiteral("1,2")).replace(1, 1, QChar(u'\0')));
    addRow("full-width digit", QString(QChar(0xff11)));
}

void tst_RecordListExpansion::invalid()
{
    QFETCH(const QString, text);
    for (const int records : {10, 99999, 0, -1}) {
        QCOMPARE(RecordList::expand(text, records).has_value(), false);
        QCOMPARE(plainRanges(text, records), QStringLiteral("invalid"));
    }
}

void tst_RecordListExpansion::validityAndRangesAgreeWithTheExpression()
{
    QRandomGenerator random(415263);
    int valid = 0;
    for (int i = 0; i < 20000; ++i) {
        const QString text = randomList(random);
        const int records = random.bounded(-2, 30);
        const QString expected = plainRanges(text, records);
        QCOMPARE(ranges(text, records), expected);
        valid += expected == QStringLiteral("invalid") ? 0 : 1;
    }
    // Both kinds were met in number.
    QVERIFY(valid > 4000 && valid < 16000);
}

void tst_RecordListExpansion::rangesCompare()
{
    QVERIFY((Range{1, 4}) == (Range{1, 4}));
    QVERIFY((Range{1, 4}) != (Range{1, 5}));
    QVERIFY((Range{1, 4}) != (Range{2, 4}));
}

QTEST_APPLESS_MAIN(tst_RecordListExpansion)
#include "tst_recordlistexpansion.moc"
