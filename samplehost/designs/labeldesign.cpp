// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/designs/labeldesign.h"

#include <utility>

namespace SampleHost {

LabelDesign::~LabelDesign() = default;

LabelPainter turnedPainter(LabelPainter paint)
{
    return [paint = std::move(paint)](QPainter& painter, const QRectF& area, int record,
                                      QString& problem) {
        QRectF rotated(QPointF(), area.size().transposed());
        rotated.moveCenter(QPointF());
        painter.save();
        painter.translate(area.center());
        painter.rotate(-90);
        const bool painted = paint(painter, rotated, record, problem);
        painter.restore();
        return painted;
    };
}

} // namespace SampleHost
