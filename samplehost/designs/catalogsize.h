// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_CATALOGSIZE_H
#define SAMPLEHOST_CATALOGSIZE_H

#include <QtCore/QSizeF>
#include <QtCore/QString>

namespace SampleHost {

/** The sizes in which catalogue items can be printed: length by width. */
namespace CatalogSize {

/** The shortest side in millimetres, whichever it is. */
constexpr double leastMm = 10.0;
/** The greatest length in millimetres; the printer cuts it off a roll. */
constexpr double greatestLengthMm = 914.4;
/** The greatest width in millimetres, that of the widest roll. */
constexpr double greatestWidthMm = 304.8;

/**
 * Why an item cannot be printed in a size, in words for the user; empty if it can. The size is in
 * millimetres or inches, and may hold anything.
 */
QString problem(const QSizeF& size, bool metric);

/** A size as it is written for the user, "10.00 x 7.00 in" or "254.00 x 177.80 mm". */
QString text(const QSizeF& size, bool metric);

} // namespace CatalogSize

} // namespace SampleHost

#endif
