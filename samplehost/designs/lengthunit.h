// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_LENGTHUNIT_H
#define SAMPLEHOST_LENGTHUNIT_H

#include <QtCore/QSizeF>

/** The unit in which sizes are shown: millimetres if metric, otherwise inches. */
namespace SampleHost::LengthUnit {

constexpr qreal millimetersPerInch = 25.4;

/** Converts a size from millimetres. */
inline QSizeF fromMm(const QSizeF& sizeMm, bool metric)
{
    return metric ? sizeMm : sizeMm / millimetersPerInch;
}

/** Converts a size to millimetres. */
inline QSizeF toMm(const QSizeF& size, bool metric)
{
    return metric ? size : size * millimetersPerInch;
}

} // namespace SampleHost::LengthUnit

#endif
