// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/label/pipemarkerpainter.h"

#include "samplehost/label/fittedtext.h"

#include <QtGui/QPainter>
#include <QtGui/QPolygonF>

#include <algorithm>

namespace SampleHost {

namespace {

// The height of a marker in the painter's units, independent of its size.
constexpr qreal unitHeight = 1000;
// Height of the field and length of a tag, in heights of the legend's letters and of the field.
constexpr qreal fieldPerLetter = 2.2;
constexpr qreal tagAspect = 2.0;
// Widths of a marker's parts in heights of the field.
constexpr qreal bandWidth = 0.75;
constexpr qreal abbreviationWidth = 0.9;
constexpr qreal arrowWidth = 0.7;

constexpr int stateTags = PipeItem::VaporState | PipeItem::LiquidState;
constexpr int pressureTags = PipeItem::HighPressure | PipeItem::LowPressure;
// A font's size for capitals of the legend's height; capitals are about 0.73 of it.
constexpr qreal largestText = unitHeight / fieldPerLetter / 0.73;

/** Usual length of field and height of letters for pipes up to an outside diameter. */
struct MarkerSize
{
    qreal upToDiameterMm;
    qreal lengthMm;
    qreal letterMm;
};

constexpr MarkerSize markerSizes[] = {
    {32, 203, 13}, {51, 203, 19}, {150, 305, 32}, {250, 610, 64}, {1e9, 813, 89},
};

const MarkerSize& sizeForDiameter(qreal diameterMm)
{
    const auto fits = [diameterMm](const MarkerSize& size) {
        return diameterMm <= size.upToDiameterMm;
    };
    const auto found = std::find_if(std::begin(markerSizes), std::end(markerSizes), fits);
    return found == std::end(markerSizes) ? *std::prev(std::end(markerSizes)) : *found;
}

/** One coloured word of an ammonia marker. */
struct Band
{
    int item;
    QString text;
    QColor field;
    QColor legend;
};

const QList<Band>& bands()
{
    static const QList<Band> list{
        {PipeItem::HighPressure, QStringLiteral("HIGH"), QColor(0xdc, 0x0b, 0x0b), Qt::white},
        {PipeItem::LowPressure, QStringLiteral("LOW"), QColor(0x24, 0x8d, 0x4f), Qt::white},
        {PipeItem::VaporState, QStringLiteral("VAP"), QColor(0x41, 0xb6, 0xe6), Qt::black},
        {PipeItem::LiquidState, QStringLiteral("LIQ"), QColor(0xfe, 0xdb, 0x00), Qt::black},
    };
    return list;
}

QList<Band> bandsOf(int mask)
{
    QList<Band> chosen;
    for (const Band& band : bands()) {
        if (band.item & mask) {
            chosen.append(band);
        }
    }
    return chosen;
}

void paintText(QPainter& painter, const QRectF& area, const QString& words, const QColor& color)
{
    const qreal margin = std::min(area.width(), area.height()) * 0.08;
    painter.setPen(color);
    FittedText text;
    text.addParagraph(words, true);
    text.paint(painter, area.adjusted(margin, 0, -margin, 0), largestText, Qt::AlignCenter);
}

// Fills area with the bands below each other.
void paintBands(QPainter& painter, const QRectF& area, const QList<Band>& chosen)
{
    const qreal height = area.height() / static_cast<qreal>(std::max<qsizetype>(1, chosen.size()));
    QRectF cell(area.topLeft(), QSizeF(area.width(), height));
    for (const Band& band : chosen) {
        painter.fillRect(cell, band.field);
        paintText(painter, cell, band.text, band.legend);
        cell.translate(0, height);
    }
}

void paintArrow(QPainter& painter, const QRectF& area, const QColor& color)
{
    const qreal width = area.width();
    const qreal middle = area.center().y();
    const qreal head = std::min(width * 0.45, area.height() * 0.28);
    const qreal left = area.left() + width * 0.12;
    const qreal right = area.right() - width * 0.12;
    const qreal shaft = head * 0.42;
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawPolygon(
        QPolygonF({QPointF(left, middle - shaft), QPointF(right - head, middle - shaft),
                   QPointF(right - head, middle - head), QPointF(right, middle),
                   QPointF(right - head, middle + head), QPointF(right - head, middle + shaft),
                   QPointF(left, middle + shaft)}));
}

// The content, with the line's service in small letters below it.
void paintContent(QPainter& painter, const QRectF& area, const PipeMarker& marker)
{
    if (marker.service.isEmpty()) {
        paintText(painter, area, marker.content, marker.legend);
        return;
    }
    const qreal split = area.height() * 0.68;
    paintText(painter, area.adjusted(0, area.height() * 0.08, 0, split - area.height()),
              marker.content, marker.legend);
    paintText(painter, area.adjusted(0, split, 0, -area.height() * 0.1), marker.service,
              marker.legend);
}

// Removes a strip of the given width from the left of rest.
QRectF takeLeft(QRectF& rest, qreal width)
{
    const QRectF strip(rest.topLeft(), QSizeF(width, rest.height()));
    rest.setLeft(strip.right());
    return strip;
}

// Removes a strip of the given width from the right of rest.
QRectF takeRight(QRectF& rest, qreal width)
{
    const QRectF strip(rest.right() - width, rest.top(), width, rest.height());
    rest.setRight(strip.left());
    return strip;
}

// From left to right: state, abbreviation, content, pressure, arrow.
void paintWholeMarker(QPainter& painter, const QRectF& area, const PipeMarker& marker)
{
    painter.fillRect(area, marker.field);
    const qreal height = area.height();
    QRectF rest = area;
    if (marker.tags & stateTags) {
        paintBands(painter, takeLeft(rest, height * bandWidth), bandsOf(marker.tags & stateTags));
    }
    if (!marker.abbreviation.isEmpty()) {
        paintText(painter, takeLeft(rest, height * abbreviationWidth), marker.abbreviation,
                  marker.legend);
    }
    paintArrow(painter, takeRight(rest, height * arrowWidth), marker.legend);
    if (marker.tags & pressureTags) {
        paintBands(painter, takeRight(rest, height * bandWidth),
                   bandsOf(marker.tags & pressureTags));
    }
    paintContent(painter, rest.adjusted(height * 0.06, 0, -height * 0.06, 0), marker);
}

// The length of the parts beside content and arrow, in heights of the field. It is added, so that
// the content of an ammonia line has as much space as that of any other pipe.
qreal addedLength(const PipeMarker& marker)
{
    return (marker.tags & stateTags ? bandWidth : 0) +
           (marker.tags & pressureTags ? bandWidth : 0) +
           (marker.abbreviation.isEmpty() ? 0 : abbreviationWidth);
}

} // namespace

qreal pipeLegendHeightMm(qreal diameterMm)
{
    return sizeForDiameter(diameterMm).letterMm;
}

bool hasPipeItem(const PipeMarker& marker, int item)
{
    if (item == PipeItem::Label) {
        return true;
    }
    const QList<Band> chosen = bandsOf(item & marker.tags);
    return chosen.size() == 1 && chosen.first().item == item;
}

QSizeF pipeMarkerSizeMm(const PipeMarker& marker, int item)
{
    if (!hasPipeItem(marker, item)) {
        return {};
    }
    const MarkerSize& size = sizeForDiameter(marker.diameterMm);
    const qreal height = size.letterMm * fieldPerLetter;
    const qreal length = size.lengthMm + addedLength(marker) * height;
    return QSizeF(item == PipeItem::Label ? length : height * tagAspect, height);
}

void paintPipeMarker(QPainter& painter, const QRectF& target, const PipeMarker& marker, int item)
{
    const QSizeF size = pipeMarkerSizeMm(marker, item);
    if (size.isEmpty() || target.isEmpty() || !painter.isActive()) {
        return;
    }
    const QRectF area(0, 0, unitHeight * size.width() / size.height(), unitHeight);
    const qreal scale = std::min(target.width() / area.width(), target.height() / area.height());
    painter.save();
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.translate(target.center());
    painter.scale(scale, scale);
    painter.translate(-area.center());
    if (item == PipeItem::Label) {
        paintWholeMarker(painter, area, marker);
    } else {
        paintBands(painter, area, bandsOf(item));
    }
    painter.restore();
}

QImage renderPipeMarker(const PipeMarker& marker, int item, const QSize& pixels)
{
    if (pixels.isEmpty()) {
        return {};
    }
    QImage image(pixels, QImage::Format_RGB32);
    if (image.isNull()) {
        return image;
    }
    image.fill(Qt::white);
    QPainter painter(&image);
    paintPipeMarker(painter, QRectF(image.rect()), marker, item);
    return image;
}

} // namespace SampleHost
