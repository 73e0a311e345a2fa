// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/support/previewpixels.h"

#include <algorithm>

namespace PreviewPixels {

namespace {

// Darker than the surround of the page, and than a line of one pixel that lies on two.
constexpr int darkest = 170;

bool containsAt(const QImage& image, const QImage& part, const QPoint& corner)
{
    for (int y = 0; y < part.height(); ++y) {
        const auto* row = reinterpret_cast<const QRgb*>(part.constScanLine(y));
        const auto* there =
            reinterpret_cast<const QRgb*>(image.constScanLine(corner.y() + y)) + corner.x();
        if (!std::equal(row, row + part.width(), there)) {
            return false;
        }
    }
    return true;
}

} // namespace

QWidget* canvasIn(const QWidget& window)
{
    return window.findChild<QWidget*>(QStringLiteral("PreviewView"));
}

QImage shown(const QWidget& canvas)
{
    QImage window = canvas.window()->grab().toImage();
    const qreal ratio = window.devicePixelRatio();
    window.setDevicePixelRatio(1.0);
    const QPointF corner = canvas.mapTo(canvas.window(), QPoint(0, 0));
    return window.copy(QRectF(corner * ratio, QSizeF(canvas.size()) * ratio).toAlignedRect())
        .convertToFormat(QImage::Format_RGB32);
}

bool contains(const QImage& image, const QImage& part)
{
    const QImage wanted = part.convertToFormat(QImage::Format_RGB32);
    for (int y = 0; y + part.height() <= image.height(); ++y) {
        for (int x = 0; x + part.width() <= image.width(); ++x) {
            if (containsAt(image, wanted, QPoint(x, y))) {
                return true;
            }
        }
    }
    return false;
}

QList<double> lineWidths(const QImage& image, Qt::Orientation direction)
{
    const bool vertical = direction == Qt::Vertical;
    const int length = vertical ? image.width() : image.height();
    const auto grey = [&](int at) {
        const QPoint middle = image.rect().center();
        return qGray(vertical ? image.pixel(at, middle.y()) : image.pixel(middle.x(), at));
    };
    QList<double> widths;
    for (int at = 1; at + 1 < length; ++at) {
        if (grey(at) >= darkest) {
            continue;
        }
        // With the pixels on both sides, which a line covers in part.
        double darkness = 255 - grey(at - 1);
        for (; at + 1 < length && grey(at) < darkest; ++at) {
            darkness += 255 - grey(at);
        }
        widths.append((darkness + 255 - grey(at)) / 255);
    }
    return widths;
}

QByteArray lineProblem(const QList<double>& widths, qsizetype count)
{
    if (widths.size() != count) {
        return QByteArray::number(widths.size()) + " lines instead of " + QByteArray::number(count);
    }
    const auto [thinnest, widest] = std::minmax_element(widths.begin(), widths.end());
    // Rounding makes some difference, a lost pixel or a second one much more.
    return *widest < 1.4 * *thinnest ? QByteArray()
                                     : "from " + QByteArray::number(*thinnest) + " to " +
                                           QByteArray::number(*widest) + " pixels";
}

} // namespace PreviewPixels
