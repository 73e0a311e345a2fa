// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/designs/lengthunit.h"

namespace SampleHost::LengthUnit {

namespace {

constexpr qreal millimetersPerInch = 25.4;

} // namespace

QSizeF fromMm(const QSizeF& sizeMm, bool metric)
{
    return metric ? sizeMm : sizeMm / millimetersPerInch;
}

QSizeF toMm(const QSizeF& size, bool metric)
{
    return metric ? size : size * millimetersPerInch;
}

} // namespace SampleHost::LengthUnit
