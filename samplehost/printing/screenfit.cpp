// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/printing/screenfit.h"

#include <QtCore/QtMath>
#include <QtGui/QPainter>

#include <cmath>

namespace SampleHost {

namespace {

/** How far a length is from a whole number of pixels, as a part of it. */
qreal roundingError(int length, qreal ratio)
{
    const qreal pixels = length * ratio;
    return std::abs(pixels - std::round(pixels)) / pixels;
}

} // namespace

ScreenFit::ScreenFit(const QSize& size, qreal ratio)
{
    if (size.isEmpty()) {
        return;
    }
    m_hidden = qCeil(ratio);
    // The preview takes the smaller of the scales of both sides. One side sets it, as close to one
    // pixel on one pixel as it can; the other may be shorter, but not longer.
    if (roundingError(size.width(), ratio) <= roundingError(size.height(), ratio)) {
        const int width = qRound(size.width() * ratio);
        m_pixels = QSize(width, size.height() * width / size.width());
    } else {
        const int height = qRound(size.height() * ratio);
        m_pixels = QSize(size.width() * height / size.height(), height);
    }
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
