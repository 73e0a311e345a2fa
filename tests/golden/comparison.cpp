// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "golden/comparison.h"

#include <QtCore/QtMath>

#include <algorithm>

namespace {

bool areAlike(QRgb a, QRgb b)
{
    return qAbs(qRed(a) - qRed(b)) <= roughChannel && qAbs(qGreen(a) - qGreen(b)) <= roughChannel &&
           qAbs(qBlue(a) - qBlue(b)) <= roughChannel;
}

/** A picture of 32 bits a pixel, the pixels of which are read fast. */
class Pixels
{
public:
    explicit Pixels(const QImage& image) : m_image(image.convertToFormat(QImage::Format_ARGB32)) {}

    QSize size() const { return m_image.size(); }
    const QRgb* line(int y) const
    {
        return reinterpret_cast<const QRgb*>(m_image.constScanLine(y));
    }
    /** Whether a pixel this near to (x, y) is like @p color. */
    bool hasNear(int x, int y, int distance, QRgb color) const
    {
        const int bottom = qMin(y + distance, m_image.height() - 1);
        const int right = qMin(x + distance, m_image.width() - 1);
        for (int row = qMax(y - distance, 0); row <= bottom; ++row) {
            const QRgb* pixels = line(row);
            for (int column = qMax(x - distance, 0); column <= right; ++column) {
                if (areAlike(pixels[column], color))
                    return true;
            }
        }
        return false;
    }

private:
    QImage m_image;
};

/** Which pixels differ, as 0 and 1, and the sums of them. */
class DifferenceMap
{
public:
    DifferenceMap(const Pixels& expected, const Pixels& actual, int ratio, Tolerance tolerance);

    bool at(int x, int y) const { return m_differs.at(y * m_size.width() + x); }
    /** How many pixels of a rectangle, clipped to the picture, differ. */
    int count(int x, int y, int side) const;
    int count() const { return int(std::count(m_differs.begin(), m_differs.end(), true)); }
    /** The highest count() of the squares with this side. */
    int worst(int side) const;

private:
    QSize m_size;
    QList<bool> m_differs;
};

DifferenceMap::DifferenceMap(const Pixels& expected, const Pixels& actual, int ratio,
                             Tolerance tolerance)
    : m_size(expected.size()), m_differs(m_size.width() * m_size.height(), false)
{
    const int distance = roughShift * ratio;
    for (int y = 0; y < m_size.height(); ++y) {
        const QRgb* a = expected.line(y);
        const QRgb* b = actual.line(y);
        for (int x = 0; x < m_size.width(); ++x) {
            if (a[x] == b[x])
                continue;
            m_differs[y * m_size.width() + x] = tolerance == Tolerance::None ||
                                                !actual.hasNear(x, y, distance, a[x]) ||
                                                !expected.hasNear(x, y, distance, b[x]);
        }
    }
}

int DifferenceMap::count(int x, int y, int side) const
{
    const int right = qMin(x + side, m_size.width());
    int sum = 0;
    for (int row = y; row < qMin(y + side, m_size.height()); ++row) {
        const auto begin = m_differs.begin() + row * m_size.width();
        sum += int(std::count(begin + x, begin + right, true));
    }
    return sum;
}

int DifferenceMap::worst(int side) const
{
    int most = 0;
    for (int y = 0; y < m_size.height(); y += side / 2) {
        for (int x = 0; x < m_size.width(); x += side / 2)
            most = qMax(most, count(x, y, side));
    }
    return most;
}

QImage paintDifference(const QImage& expected, const DifferenceMap& map)
{
    QImage picture =
        expected.convertToFormat(QImage::Format_Grayscale8).convertToFormat(QImage::Format_RGB32);
    for (int y = 0; y < picture.height(); ++y) {
        auto* pixels = reinterpret_cast<QRgb*>(picture.scanLine(y));
        for (int x = 0; x < picture.width(); ++x) {
            const int pale = 192 + qGray(pixels[x]) / 4;
            pixels[x] = map.at(x, y) ? qRgb(255, 0, 0) : qRgb(pale, pale, pale);
        }
    }
    return picture;
}

// Where only one of the pictures is, they differ.
Comparison compareSizes(const QImage& expected, const QImage& actual)
{
    const QRect both(QPoint(), expected.size().expandedTo(actual.size()));
    const QImage a = expected.convertToFormat(QImage::Format_ARGB32).copy(both);
    const QImage b = actual.convertToFormat(QImage::Format_ARGB32).copy(both);
    Comparison result;
    result.message = QStringLiteral("%1 x %2 pixels instead of %3 x %4")
                         .arg(actual.width())
                         .arg(actual.height())
                         .arg(expected.width())
                         .arg(expected.height());
    result.difference = paintDifference(a, DifferenceMap(Pixels(a), Pixels(b), 1, Tolerance::None));
    return result;
}

} // namespace

Comparison compare(const QImage& expected, const QImage& actual, int ratio, Tolerance tolerance)
{
    Comparison result;
    if (expected.size() != actual.size())
        return compareSizes(expected, actual);
    const DifferenceMap map(Pixels(expected), Pixels(actual), ratio, tolerance);
    const int cell = roughCell * ratio;
    const int limit = tolerance == Tolerance::None ? 0 : roughCellLimit * ratio * ratio;
    const int worst = map.worst(cell);
    result.passes = worst <= limit;
    if (!result.passes) {
        result.message =
            QStringLiteral("%1 pixels differ, up to %2 in a square of %3 x %3 (limit: %4)")
                .arg(map.count())
                .arg(worst)
                .arg(cell)
                .arg(limit);
        result.difference = paintDifference(expected, map);
    }
    return result;
}
