// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include <printpanels/recordlist.h>

#include <QtCore/QStringTokenizer>

#include <algorithm>

namespace RecordList {

namespace {

constexpr QChar itemSeparator = u',';
constexpr QChar rangeSeparator = u'-';

/** The first and last of the pieces between hyphens, without empty pieces. */
struct Pieces
{
    int count = 0;
    QStringView first;
    QStringView last;
};

Pieces piecesOf(QStringView item)
{
    Pieces pieces;
    for (QStringView piece : QStringTokenizer(item, rangeSeparator, Qt::SkipEmptyParts)) {
        if (pieces.count == 0)
            pieces.first = piece;
        pieces.last = piece;
        ++pieces.count;
    }
    return pieces;
}

/** The record number that the text is; nothing if it is not exactly that. */
std::optional<int> recordNumber(QStringView text)
{
    if (text.isEmpty() || text.size() > 4 || text.front() == u'0')
        return std::nullopt;
    int number = 0;
    for (QChar digit : text) {
        if (digit < u'0' || digit > u'9')
            return std::nullopt;
        number = number * 10 + (digit.unicode() - u'0');
    }
    return number;
}

/** The range that an item is, as typed: it may be reversed. Nothing if the item is invalid. */
std::optional<Range> itemRange(QStringView item)
{
    const qsizetype hyphen = item.indexOf(rangeSeparator);
    if (hyphen < 0) {
        const std::optional<int> number = recordNumber(item);
        return number ? std::optional<Range>(Range{*number, *number}) : std::nullopt;
    }
    const std::optional<int> first = recordNumber(item.first(hyphen));
    const std::optional<int> last = recordNumber(item.sliced(hyphen + 1));
    return first && last ? std::optional<Range>(Range{*first, *last}) : std::nullopt;
}

} // namespace

const QRegularExpression& expression()
{
    static const QRegularExpression shared(QStringLiteral(
        "(?![0])\\d{1,4}(?:-(?![0])\\d{1,4})?(?:,(?![0])\\d{1,4}(?:-(?![0])\\d{1,4})?)*"));
    return shared;
}

// Runs at every keystroke, so it copies no text and stops at the first item that decides.
Extent classify(QStringView text, int numberOfRecords)
{
    int singleRecords = 0;
    for (QStringView item : QStringTokenizer(text, itemSeparator, Qt::SkipEmptyParts)) {
        const Pieces pieces = piecesOf(item);
        if (pieces.count == 0)
            continue;
        if (pieces.count > 1) {
            const int first = pieces.first.toInt();
            const int last = std::min(pieces.last.toInt(), numberOfRecords);
            if (first < last)
                return Extent::SeveralRecords;
            if (first > last)
                continue;
        }
        if (++singleRecords > 1)
            return Extent::SeveralRecords;
    }
    return Extent::OneRecord;
}

std::optional<int> firstPage(QStringView text, int pageCount)
{
    std::optional<int> answer;
    for (QStringView item : QStringTokenizer(text, itemSeparator, Qt::SkipEmptyParts)) {
        answer = noPage;
        const Pieces pieces = piecesOf(item);
        if (pieces.count == 0)
            continue;
        const int page = pieces.first.toInt();
        if (page <= pageCount)
            return page;
    }
    return answer;
}

std::optional<QList<Range>> expand(QStringView text, int numberOfRecords)
{
    QList<Range> ranges;
    for (QStringView item : QStringTokenizer(text, itemSeparator, Qt::KeepEmptyParts)) {
        const std::optional<Range> range = itemRange(item);
        if (!range)
            return std::nullopt;
        const int last = std::min(range->last, numberOfRecords);
        if (range->first <= last)
            ranges.append(Range{range->first, last});
    }
    return ranges;
}

} // namespace RecordList
