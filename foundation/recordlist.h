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
 * All functions accept any text, valid or not, and take time linear in its length.
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

/** What firstPage() returns if a list names pages, but none that exists. */
constexpr int noPage = -1;

/**
 * The syntax as an expression, for validators. Built once per process on first use and shared. It
 * is not anchored: a validator matches the whole text.
 */
PRINTPANELS_EXPORT const QRegularExpression& expression();

/**
 * Classifies a list while it is being typed, so it may be incomplete or invalid.
 *
 * Two items mean several records, even the same record twice, and so does a range whose last
 * number, clamped to @p numberOfRecords, is above its first. A range that is reversed then does not
 * count. A single number is not compared with @p numberOfRecords. A number that cannot be read
 * counts as 0.
 */
PRINTPANELS_EXPORT Extent classify(QStringView text, int numberOfRecords);

/**
 * Returns the first page of a page list that is not above @p pageCount; of a range only the first
 * number counts. Returns noPage if every item is above @p pageCount, and nothing if the list has no
 * items. A number that cannot be read counts as page 0.
 */
PRINTPANELS_EXPORT std::optional<int> firstPage(QStringView text, int pageCount);

/**
 * Expands a complete list for a host that prints it: its ranges in typed order, with repetitions, a
 * single number being a range of one, each clipped to @p numberOfRecords. Reversed ranges and items
 * that start beyond the last record name nothing and are left out, so the result may be empty.
 * Returns nothing at all if the text is not a valid list.
 */
PRINTPANELS_EXPORT std::optional<QList<Range>> expand(QStringView text, int numberOfRecords);

} // namespace RecordList

Q_DECLARE_TYPEINFO(RecordList::Range, Q_PRIMITIVE_TYPE);

#endif
