// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/label/catalogpainter.h"

#include "samplehost/label/fittedtext.h"
#include "samplehost/label/pictogram.h"
#include "samplehost/label/svgpicture.h"

#include <QtCore/QStringList>
#include <QtGui/QPainter>

#include <algorithm>

namespace SampleHost {

namespace {

// Font sizes are whole units, so small units allow sizes close to the best one.
constexpr qreal unitsPerMm = 100.0;
// Fractions of the shorter side.
constexpr qreal insetShare = 0.03;
constexpr qreal frameShare = 0.012;
constexpr qreal paddingShare = 0.06;
// A fraction of the height of the sign.
constexpr qreal headerShare = 0.27;
// The ratio of width to height above which the symbol is beside the text.
constexpr qreal wide = 1.25;

// An upper bound for the font size, so that the longest word is not broken: the average width of
// bold capitals is less than two thirds of their size.
qreal largestText(const QString& text, const QSizeF& size)
{
    qsizetype longest = 1;
    const QStringList words = text.split(QLatin1Char(' '));
    for (const QString& word : words) {
        longest = std::max(longest, word.size());
    }
    return std::min(size.height(), 1.6 * size.width() / static_cast<qreal>(longest));
}

void paintText(QPainter& painter, const QRectF& area, const QString& words, const QColor& color)
{
    painter.setPen(color);
    FittedText text;
    text.addParagraph(words, true);
    text.paint(painter, area, largestText(words, area.size()), Qt::AlignCenter);
}

// Paints the band at the top of body and removes it from body.
void paintHeader(QPainter& painter, QRectF& body, const CatalogItem& item)
{
    if (item.header.isEmpty()) {
        return;
    }
    QRectF band = body;
    band.setHeight(std::min(body.height() * headerShare, body.width() * 0.3));
    painter.fillRect(band, item.headerField);
    const qreal margin = band.height() * 0.1;
    paintText(painter, band.adjusted(margin, margin, -margin, -margin), item.header,
              item.headerLegend);
    body.setTop(band.bottom());
}

void paintBody(QPainter& painter, const QRectF& body, const CatalogItem& item, qreal padding)
{
    const QRectF room = body.adjusted(padding, padding, -padding, -padding);
    QRectF symbol = room;
    QRectF text = room;
    if (room.width() > wide * room.height()) {
        symbol.setWidth(std::min(room.height(), room.width() * 0.4));
        text.setLeft(symbol.right() + padding);
    } else {
        // On a very high sign both are kept together in the middle.
        symbol.setHeight(std::min(room.width(), room.height() * 0.62));
        const qreal rest = room.height() - symbol.height() - padding / 2;
        text.setHeight(std::min(rest, room.width() * 0.75));
        symbol.moveTop(room.top() + (rest - text.height()) / 2);
        text.moveTop(symbol.bottom() + padding / 2);
    }
    if (item.symbol.isEmpty()) {
        paintPictogram(painter, symbol, item.pictogram);
    } else {
        const QString file = QStringLiteral(":/symbols/%1.svg").arg(item.symbol);
        paintSvgPicture(painter, symbol, file, item.legend);
    }
    paintText(painter, text, item.text, item.legend);
}

void paintWhole(QPainter& painter, const QRectF& area, const CatalogItem& item)
{
    const qreal shorter = std::min(area.width(), area.height());
    painter.fillRect(area, item.field);
    const qreal inset = shorter * insetShare;
    const qreal frame = shorter * frameShare;
    QRectF body = area.adjusted(inset, inset, -inset, -inset);
    paintHeader(painter, body, item);
    paintBody(painter, body, item, shorter * paddingShare);
    painter.setPen(QPen(item.legend, frame));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(area.adjusted(inset, inset, -inset, -inset));
}

} // namespace

void paintCatalogItem(QPainter& painter, const QRectF& target, const CatalogItem& item,
                      const QSizeF& sizeMm)
{
    if (target.isEmpty() || sizeMm.isEmpty() || !painter.isActive()) {
        return;
    }
    const QRectF area(QPointF(), sizeMm * unitsPerMm);
    painter.save();
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.translate(target.topLeft());
    painter.scale(target.width() / area.width(), target.height() / area.height());
    paintWhole(painter, area, item);
    painter.restore();
}

} // namespace SampleHost
