// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_LABELPAINTER_H
#define SAMPLEHOST_LABELPAINTER_H

#include "samplehost/data/chemical.h"

#include <QtCore/QRectF>
#include <QtCore/QSizeF>
#include <QtGui/QImage>

QT_BEGIN_NAMESPACE
class QPainter;
QT_END_NAMESPACE

namespace SampleHost {

/** How a GHS label is laid out. */
struct LabelOptions
{
    /** Whether the user's background layer (a pale company watermark) is painted. */
    bool userBackground = false;
    /** Whether the label is wider than high. */
    bool landscape = true;
};

/** The size for which the label is designed: 101.6 x 76.2 mm in landscape, else turned by 90
 * degrees. */
QSizeF labelSizeMm(const LabelOptions& options);

/**
 * Paints the GHS label of a chemical: name, CAS and UN numbers, signal word, pictograms, hazard and
 * precautionary statements with their wording. The label keeps its proportions and is scaled to fit
 * the middle of target, which is in the painter's coordinates; its texts shrink until they fit. The
 * background is transparent. Restores the painter's state. Paints nothing if target is empty or the
 * painter is inactive; the places of fields without a value stay empty.
 */
void paintLabel(QPainter& painter, const QRectF& target, const Chemical& chemical,
                const LabelOptions& options = LabelOptions());

/**
 * The label as a picture of the given size in pixels, on white. A size that is empty, or too large
 * for the memory, gives a null image.
 */
QImage renderLabel(const Chemical& chemical, const LabelOptions& options, const QSize& pixels);

} // namespace SampleHost

#endif
