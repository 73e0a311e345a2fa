// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

// Input: the number of records on the first line, then the list.
#include <printpanels/recordlist.h>

#include "fuzz/fuzzinput.h"

#include <QtCore/QStringList>

using RecordList::Extent;
using RecordList::Range;

// The reference implementation: simple rather than fast.
namespace {

const QString syntax = QStringLiteral(
    "(?![0])\\d{1,4}(?:-(?![0])\\d{1,4})?(?:,(?![0])\\d{1,4}(?:-(?![0])\\d{1,4})?)*");

Extent expectedExtent(const QString& text, int numberOfRecords)
{
    int singles = 0;
    for (const QString& item : text.split(QLatin1Char(','), Qt::SkipEmptyParts)) {
        const QStringList pieces = item.split(QLatin1Char('-'), Qt::SkipEmptyParts);
        if (pieces.size() == 1)
            ++singles;
        if (pieces.size() < 2)
            continue;
        const int first = pieces.first().toInt();
        const int last = qMin(pieces.last().toInt(), numberOfRecords);
        if (first < last)
            return Extent::SeveralRecords;
        if (first == last)
            ++singles;
    }
    return singles > 1 ? Extent::SeveralRecords : Extent::OneRecord;
}

std::optional<int> expectedPage(const QString& text, int pageCount)
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

std::optional<QList<Range>> expectedRanges(const QString& text, int numberOfRecords)
{
    static const QRegularExpression whole(QRegularExpression::anchoredPattern(syntax));
    if (!whole.match(text).hasMatch())
        return std::nullopt;
    QList<Range> ranges;
    for (const QString& item : text.split(QLatin1Char(','))) {
        const QStringList numbers = item.split(QLatin1Char('-'));
        const int first = numbers.first().toInt();
        const int last = qMin(numbers.last().toInt(), numberOfRecords);
        if (first <= last)
            ranges.append(Range{first, last});
    }
    return ranges;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const bool sameSyntax = RecordList::expression().pattern() == syntax;
    Fuzz::require(sameSyntax, "the shared expression");

    Fuzz::Input input(data, size);
    const int count = input.integer();
    const QString text = input.rest();
    Fuzz::require(RecordList::classify(text, count) == expectedExtent(text, count), "classify()");
    Fuzz::require(RecordList::firstPage(text, count) == expectedPage(text, count), "firstPage()");
    Fuzz::require(RecordList::expand(text, count) == expectedRanges(text, count), "expand()");
    return 0;
}
