// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "svgshapes.h"

#include <QtGui/QPaintDevice>
#include <QtGui/QPaintEngine>
#include <QtGui/QPainter>
#include <QtGui/QPainterPathStroker>
#include <QtSvg/QSvgRenderer>

namespace SampleHost {

namespace {

/** Takes everything that is painted as areas in one coordinate system. */
class ShapeEngine : public QPaintEngine
{
public:
    ShapeEngine() : QPaintEngine(AllFeatures) {}

    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    Type type() const override { return User; }
    void updateState(const QPaintEngineState&) override {}
    void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {}

    void drawPath(const QPainterPath& path) override
    {
        if (state->brush().style() != Qt::NoBrush) {
            add(path, state->brush().color());
        }
        const QPen pen = state->pen();
        if (pen.style() != Qt::NoPen) {
            add(QPainterPathStroker(pen).createStroke(path), pen.color());
        }
    }

    void drawPolygon(const QPointF* points, int count, PolygonDrawMode mode) override
    {
        QPainterPath path(points[0]);
        for (int i = 1; i < count; ++i) {
            path.lineTo(points[i]);
        }
        if (mode != PolylineMode) {
            path.closeSubpath();
        }
        path.setFillRule(mode == WindingMode ? Qt::WindingFill : Qt::OddEvenFill);
        drawPath(path);
    }

    QList<Shape> shapes;

private:
    void add(const QPainterPath& path, QColor color)
    {
        color.setAlphaF(color.alphaF() * float(state->opacity()));
        QPainterPath placed = state->transform().map(path);
        placed.setFillRule(path.fillRule());
        shapes.append({placed, color});
    }
};

class ShapeDevice : public QPaintDevice
{
public:
    explicit ShapeDevice(const QSize& size) : m_size(size) {}

    QPaintEngine* paintEngine() const override { return &engine; }

    mutable ShapeEngine engine;

protected:
    int metric(PaintDeviceMetric metric) const override
    {
        switch (metric) {
        case PdmWidth:
            return m_size.width();
        case PdmHeight:
            return m_size.height();
        case PdmDepth:
            return 32;
        case PdmDpiX:
        case PdmDpiY:
        case PdmPhysicalDpiX:
        case PdmPhysicalDpiY:
            return 96;
        case PdmDevicePixelRatio:
            return 1;
        case PdmDevicePixelRatioScaled:
            return int(devicePixelRatioFScale());
        default:
            return QPaintDevice::metric(metric);
        }
    }

private:
    const QSize m_size;
};

} // namespace

QByteArray shapesOf(QByteArray svg)
{
    QSvgRenderer picture(svg.replace("currentColor", currentColor.name().toLatin1()));
    if (!picture.isValid()) {
        return {};
    }
    const QSizeF size = picture.viewBoxF().size();
    ShapeDevice device(size.toSize());
    QPainter painter(&device);
    picture.render(&painter, QRectF(QPointF(), size));
    painter.end();
    QByteArray shapes;
    QDataStream stream(&shapes, QIODevice::WriteOnly);
    stream.setVersion(shapesVersion);
    stream << size << device.engine.shapes;
    return shapes;
}

} // namespace SampleHost
