// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_CATALOGSIZE_H
#define SAMPLEHOST_CATALOGSIZE_H

#include <QtCore/QSizeF>
#include <QtCore/QString>

namespace SampleHost {

/** The sizes, length by width, in which catalogue items can be printed. */
namespace CatalogSize {

/** The minimum length and width in millimetres. */
constexpr double minimumMm = 10.0;
/** The maximum length in millimetres of a piece that is cut from a roll. */
constexpr double maximumLengthMm = 914.4;
/** The width of the widest roll in millimetres. */
constexpr double maximumWidthMm = 304.8;

/**
 * Why an item cannot be printed in a size, for the user; empty if it can. The size, in millimetres
 * or inches, may have any values.
 */
QString problem(const QSizeF& size, bool metric);

/** A size as text for the user, "10.00 x 7.00 in" or "254.00 x 177.80 mm". */
QString text(const QSizeF& size, bool metric);

} // namespace CatalogSize

} // namespace SampleHost

#endif
