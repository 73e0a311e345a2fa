// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/label/safetysymbol.h"

#include "samplehost/label/pictogram.h"

#include <QtGui/QPainter>
#include <QtGui/QPainterPath>
#include <QtGui/QPolygonF>

#include <algorithm>

namespace SampleHost {

namespace {

// All symbols are drawn in a square of this side.
constexpr qreal side = 100;

const QColor ringRed(0xc8, 0x10, 0x2e);
const QColor warningYellow(0xff, 0xd1, 0x00);

QPen stroke(const QColor& color, qreal width)
{
    return QPen(color, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
}

void paintArrow(QPainter& painter, const QColor& legend)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(legend);
    painter.drawPolygon(
        QPolygonF({{4, 38}, {54, 38}, {54, 16}, {96, 50}, {54, 84}, {54, 62}, {4, 62}}));
}

void paintCigarette(QPainter& painter)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::black);
    painter.drawRect(QRectF(18, 54, 50, 11));
    painter.setBrush(ringRed);
    painter.drawRect(QRectF(71, 54, 8, 11));
    painter.setBrush(Qt::NoBrush);
    painter.setPen(stroke(Qt::black, 4));
    for (const qreal x : {68.0, 77.0}) {
        QPainterPath smoke(QPointF(x, 48));
        smoke.cubicTo(x + 10, 38, x - 10, 34, x, 24);
        painter.drawPath(smoke);
    }
}

void paintNoSmoking(QPainter& painter)
{
    paintCigarette(painter);
    painter.setPen(QPen(ringRed, 9, Qt::SolidLine, Qt::FlatCap));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(QRectF(6, 6, 88, 88));
    painter.drawLine(QPointF(19, 19), QPointF(81, 81));
}

QPainterPath eyeOutline()
{
    QPainterPath eye(QPointF(14, 30));
    eye.quadTo(50, -2, 86, 30);
    eye.quadTo(50, 62, 14, 30);
    return eye;
}

void paintEyeWash(QPainter& painter, const CatalogItem& item)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(item.legend);
    painter.drawPath(eyeOutline());
    painter.setBrush(item.field);
    painter.drawEllipse(QPointF(50, 30), 12, 12);
    painter.setBrush(item.legend);
    painter.drawEllipse(QPointF(50, 30), 5, 5);
    painter.drawChord(QRectF(12, 58, 76, 48), 180 * 16, 180 * 16);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(stroke(item.legend, 5));
    for (const qreal direction : {-1.0, 1.0}) {
        QPainterPath jet(QPointF(50 + 30 * direction, 76));
        jet.quadTo(50 + 34 * direction, 46, 50 + 8 * direction, 54);
        painter.drawPath(jet);
    }
}

void paintCross(QPainter& painter, const QColor& legend)
{
    painter.fillRect(QRectF(35, 5, 30, 90), legend);
    painter.fillRect(QRectF(5, 35, 90, 30), legend);
}

void paintExtinguisher(QPainter& painter, const CatalogItem& item)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(item.legend);
    painter.drawRoundedRect(QRectF(38, 34, 34, 62), 10, 10);
    painter.drawRect(QRectF(49, 20, 12, 16));
    // The handle, a lever with a grip under it.
    painter.drawPolygon(QPolygonF({{46, 12}, {82, 4}, {84, 10}, {64, 18}, {46, 18}}));
    painter.setBrush(Qt::NoBrush);
    painter.setPen(stroke(item.legend, 6));
    QPainterPath hose(QPointF(48, 22));
    hose.cubicTo(20, 20, 22, 44, 24, 70);
    painter.drawPath(hose);
    painter.setPen(Qt::NoPen);
    painter.setBrush(item.legend);
    painter.drawPolygon(QPolygonF({{20, 68}, {28, 68}, {32, 90}, {16, 90}}));
}

void paintTriangle(QPainter& painter)
{
    painter.setPen(QPen(Qt::black, 7, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(warningYellow);
    painter.drawPolygon(QPolygonF({{50, 10}, {94, 88}, {6, 88}}));
}

void paintHighVoltage(QPainter& painter)
{
    paintTriangle(painter);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::black);
    painter.drawPolygon(
        QPolygonF({{54, 28}, {38, 56}, {49, 56}, {43, 82}, {63, 49}, {51, 49}, {60, 31}}));
}

void paintHotSurface(QPainter& painter)
{
    paintTriangle(painter);
    painter.fillRect(QRectF(26, 74, 48, 6), Qt::black);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(stroke(Qt::black, 5));
    for (const qreal x : {38.0, 50.0, 62.0}) {
        QPainterPath heat(QPointF(x, 69));
        heat.cubicTo(x - 8, 60, x + 8, 56, x, 47);
        painter.drawPath(heat);
    }
}

void paintInSquare(QPainter& painter, const CatalogItem& item)
{
    switch (item.symbol) {
    case CatalogSymbol::Arrow:
        return paintArrow(painter, item.legend);
    case CatalogSymbol::NoSmoking:
        return paintNoSmoking(painter);
    case CatalogSymbol::EyeWash:
        return paintEyeWash(painter, item);
    case CatalogSymbol::FirstAid:
        return paintCross(painter, item.legend);
    case CatalogSymbol::Extinguisher:
        return paintExtinguisher(painter, item);
    case CatalogSymbol::HighVoltage:
        return paintHighVoltage(painter);
    case CatalogSymbol::HotSurface:
        return paintHotSurface(painter);
    case CatalogSymbol::Pictogram:
        return paintPictogram(painter, QRectF(0, 0, side, side), item.pictogram);
    }
}

} // namespace

void paintSafetySymbol(QPainter& painter, const QRectF& area, const CatalogItem& item)
{
    const qreal scale = std::min(area.width(), area.height()) / side;
    if (scale <= 0) {
        return;
    }
    painter.save();
    painter.translate(area.center());
    painter.scale(scale, scale);
    painter.translate(-side / 2, -side / 2);
    paintInSquare(painter, item);
    painter.restore();
}

} // namespace SampleHost
