// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef TESTS_SAMPLEHOST_PREVIEWPIXELS_H
#define TESTS_SAMPLEHOST_PREVIEWPIXELS_H

#include <QtGui/QImage>
#include <QtWidgets/QWidget>

/** What the previews in the panels show on the screen, in its pixels. */
namespace PreviewPixels {

/** The preview in a panel or window. */
QWidget* canvasIn(const QWidget& window);

/** The pixels that a preview has on the screen, painted with the window that it is in. */
QImage shown(const QWidget& canvas);

/** Whether an image is part of another, pixel by pixel. */
bool contains(const QImage& image, const QImage& part);

/**
 * The thin black lines in a direction that the middle of a white page shows: how many pixels wide
 * each is, as its darkness says.
 */
QList<double> lineWidths(const QImage& image, Qt::Orientation direction);

/** Why lineWidths() are not those of a number of lines of one width; empty if they are. */
QByteArray lineProblem(const QList<double>& widths, qsizetype count);

} // namespace PreviewPixels

#endif
