// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_SCREENFIT_H
#define SAMPLEHOST_SCREENFIT_H

#include <QtCore/QRect>
#include <QtGui/QImage>

class QWidget;

namespace SampleHost {

/**
 * What a picture has to be like, so that a panel's preview shows every pixel of it on one pixel of
 * the screen when it fits. The preview scales without smoothing: of a larger picture it leaves out
 * pixels, and with them thin lines.
 *
 * At ratios at which neither side of the preview is a whole number of pixels, the picture is scaled
 * by less than a pixel in all. Its size is chosen so that this affects no pixel, if there is one.
 */
class ScreenFit
{
public:
    /** For no preview: all sizes are empty. */
    ScreenFit() = default;
    /**
     * For a preview on a screen with a device pixel ratio: where it is in its window, in
     * device-independent pixels.
     */
    ScreenFit(const QRect& place, qreal ratio);
    /** For a preview that is shown. */
    explicit ScreenFit(const QWidget& canvas);

    bool operator==(const ScreenFit& other) const;
    bool operator!=(const ScreenFit& other) const { return !(*this == other); }

    /** The size of the picture. */
    QSize pixels() const { return m_pixels; }

    /** The part of the picture that the preview shows, in which all of a page has to be. */
    QSize room() const;

    /**
     * The picture of a page that is at most as large as the room: the page in the middle, with
     * nothing around it. A null image for a null page.
     */
    QImage picture(const QImage& page) const;

private:
    // The preview's centre is half a pixel or a whole one beside its middle, so that the pixels at
    // the left and upper edges of the picture are not visible.
    int m_hidden = 0;
    QSize m_pixels;
};

} // namespace SampleHost

#endif
