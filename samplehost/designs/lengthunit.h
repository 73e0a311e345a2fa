// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_LENGTHUNIT_H
#define SAMPLEHOST_LENGTHUNIT_H

#include <QtCore/QSizeF>

namespace SampleHost {

/** The unit in which sizes are shown: millimetres if metric, otherwise inches. */
namespace LengthUnit {

/** Converts a size from millimetres. */
QSizeF fromMm(const QSizeF& sizeMm, bool metric);

/** Converts a size to millimetres. */
QSizeF toMm(const QSizeF& size, bool metric);

} // namespace LengthUnit

} // namespace SampleHost

#endif
