// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/printing/screenfit.h"

#include <QtCore/QtMath>
#include <QtGui/QPainter>
#include <QtWidgets/QWidget>

#include <algorithm>
#include <cmath>
#include <utility>

namespace SampleHost {

namespace {

constexpr qreal nextPixel = 0.5;

/** One direction of a preview. */
struct Side
{
    int length;
    // Where the preview puts the middle of the picture, in pixels of the screen.
    qreal middle;
};

/**
 * How far the middles of the screen's pixels stay from the edges of the picture's pixels, at least;
 * below 0, a pixel is lost or shown twice. The scale is the number of the screen's pixels per pixel
 * of the picture.
 */
qreal distanceFromEdges(const Side& side, int pixels, qreal scale)
{
    if (qFuzzyCompare(scale, 1.0)) {
        return nextPixel; // Painted without scaling, at a whole pixel.
    }
    const qreal inPixel = 0.5 - side.middle + pixels / 2.0;
    const qreal fromMiddle = std::abs(inPixel - std::floor(inPixel) - 0.5);
    return nextPixel - fromMiddle - std::abs(1.0 / scale - 1.0) * pixels / 2.0;
}

/** The best picture in which the first side sets the scale, and the distance for both sides. */
std::pair<qreal, QSize> bestPicture(const Side& first, const Side& second, qreal ratio)
{
    std::pair<qreal, QSize> best(-1.0e9, QSize());
    const int rounded = qFloor(first.length * ratio);
    for (const int pixels : {rounded, rounded + 1}) {
        const qreal scale = ratio * first.length / std::max(pixels, 1);
        // The preview takes the smaller of the scales of both sides, so this side may be shorter,
        // but not longer.
        const int longest = second.length * pixels / first.length;
        for (const int others : {longest, longest - 1}) {
            const qreal distance = std::min(distanceFromEdges(first, pixels, scale),
                                            distanceFromEdges(second, others, scale));
            if (distance > best.first) {
                best = {distance, QSize(pixels, others)};
            }
        }
    }
    return best;
}

} // namespace

ScreenFit::ScreenFit(const QRect& place, qreal ratio)
{
    if (place.isEmpty()) {
        return;
    }
    m_hidden = qCeil(ratio);
    // The preview's middle is a whole pixel.
    const Side width{place.width(), ratio * (place.x() + (place.width() - 1) / 2)};
    const Side height{place.height(), ratio * (place.y() + (place.height() - 1) / 2)};
    const auto byWidth = bestPicture(width, height, ratio);
    const auto byHeight = bestPicture(height, width, ratio);
    m_pixels = byWidth.first >= byHeight.first ? byWidth.second : byHeight.second.transposed();
}

ScreenFit::ScreenFit(const QWidget& canvas)
    : ScreenFit(QRect(canvas.mapTo(canvas.window(), QPoint(0, 0)), canvas.size()),
                canvas.devicePixelRatioF())
{
}

bool ScreenFit::operator==(const ScreenFit& other) const
{
    return m_pixels == other.m_pixels && m_hidden == other.m_hidden;
}

QSize ScreenFit::room() const
{
    return (m_pixels - QSize(m_hidden, m_hidden)).expandedTo(QSize(0, 0));
}

QImage ScreenFit::picture(const QImage& page) const
{
    if (page.isNull()) {
        return page;
    }
    QImage picture(m_pixels, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    const QSize free = room() - page.size();
    QPainter painter(&picture);
    painter.drawImage(QPoint(m_hidden + free.width() / 2, m_hidden + free.height() / 2), page);
    return picture;
}

} // namespace SampleHost
