// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_LISTPROBLEM_H
#define SAMPLEHOST_LISTPROBLEM_H

#include <QtCore/QString>

namespace SampleHost {

/** What the numbers of a list stand for. */
enum class ListItems { Records, Pages };

/**
 * Why nothing can be printed of a list such as "1,4-5", for the user: which item is wrong and how
 * to write it. Empty if the list can be read and names at least one of count records or pages.
 */
QString listProblem(const QString& list, int count, ListItems items);

} // namespace SampleHost

#endif
