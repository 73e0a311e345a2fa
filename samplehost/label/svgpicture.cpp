// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/label/svgpicture.h"

#include <algorithm>

namespace SampleHost {

QRectF squareIn(const QRectF& area)
{
    const qreal side = std::min(area.width(), area.height());
    QRectF square(0, 0, side, side);
    square.moveCenter(area.center());
    return square;
}

} // namespace SampleHost
