// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_RECORDLIST_H
#define PRINTPANELS_RECORDLIST_H

#include <printpanels/printpanels_export.h>

#include <QtCore/QList>
#include <QtCore/QRegularExpression>
#include <QtCore/QStringView>

#include <optional>

/**
 * The record lists and page lists that users type, such as "1,4-5,11-20,33".
 *
 * An item is a number of one to four digits without a leading zero, or a range of two such numbers
 * joined by a hyphen; items are separated by commas; there are no blanks. Every number is 1-based.
 * Everything here takes any text, valid or not, in time linear in its length.
 */
namespace RecordList {

/** Records first to last, 1-based and inclusive, first <= last. */
struct Range
{
    int first;
    int last;

    friend bool operator==(Range a, Range b) { return a.first == b.first && a.last == b.last; }
    friend bool operator!=(Range a, Range b) { return !(a == b); }
};

/** Whether a list stands for one record or for several. */
enum class Extent { OneRecord, SeveralRecords };

/** What firstPage() answers when a list names pages, but none that exists. */
constexpr int noPage = -1;

/**
 * The syntax as an expression, for validators. Built once per process on first use and shared. It
 * is not anchored: a validator matches the whole text.
 */
PRINTPANELS_EXPORT const QRegularExpression& expression();

/**
 * Classifies a list as it stands, while it is being typed; it need not be complete or valid.
 *
 * Two items make several records, even the same one twice, and so does a range whose last number,
 * lowered to @p numberOfRecords, is above its first. A range that then is reversed does not count.
 * A single number is not compared with @p numberOfRecords. A number that cannot be read is 0.
 */
PRINTPANELS_EXPORT Extent classify(QStringView text, int numberOfRecords);

/**
 * The first page of a page list that is not above @p pageCount; of a range only the first number
 * counts. Answers noPage when every item is above @p pageCount, and nothing when the list has no
 * item. A number that cannot be read is 0 and counts as it stands.
 */
PRINTPANELS_EXPORT std::optional<int> firstPage(QStringView text, int pageCount);

/**
 * Reads a complete list for a host that prints it: its ranges in typed order, repetitions kept, a
 * single number being a range of one, each clipped to @p numberOfRecords. A reversed range and an
 * item that starts beyond the last record name nothing and are left out, so the answer may be
 * empty. Answers nothing at all when the text is not a valid list.
 */
PRINTPANELS_EXPORT std::optional<QList<Range>> expand(QStringView text, int numberOfRecords);

} // namespace RecordList

Q_DECLARE_TYPEINFO(RecordList::Range, Q_PRIMITIVE_TYPE);

#endif
