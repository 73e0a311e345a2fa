// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_LENGTHUNIT_H
#define SAMPLEHOST_LENGTHUNIT_H

#include <QtCore/QSizeF>

namespace SampleHost {

/** The unit in which sizes are shown: millimetres, or else inches. */
namespace LengthUnit {

/** A size in millimetres as numbers of the unit. */
QSizeF fromMm(const QSizeF& sizeMm, bool metric);

/** Numbers of the unit as a size in millimetres. */
QSizeF toMm(const QSizeF& size, bool metric);

} // namespace LengthUnit

} // namespace SampleHost

#endif
