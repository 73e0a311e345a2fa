// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_UNITS_H
#define SAMPLEHOST_UNITS_H

#include <QtCore/QtGlobal>

namespace SampleHost {

/** PDF measures in points, the host in millimetres. */
constexpr qreal pointsPerInch = 72;
constexpr qreal pointsPerMm = pointsPerInch / 25.4;

} // namespace SampleHost

#endif
