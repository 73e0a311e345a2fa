// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "preview/previewview.h"

#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtGui/QWheelEvent>

#include <algorithm>
#include <cmath>

namespace PrintPanels {

namespace {

constexpr double zoomInFactor = 1.1;
// Stored, not computed: scales are multiplied by it and never divided by 1.1, so that one step out
// from a fit lands exactly on the lower limit.
constexpr double zoomOutFactor = 0.9090909090909091;
constexpr double zoomInCeiling = 17.4495;

// Painting looks every pixel's index up in the image's colour table without asking whether the
// table goes that far. A table without any colour means grey, as it does when an image is
// converted.
void completeColorTable(QImage& image)
{
    const bool isIndexed = image.format() == QImage::Format_Indexed8 ||
                           image.format() == QImage::Format_Mono ||
                           image.format() == QImage::Format_MonoLSB;
    const int indices = isIndexed ? 1 << image.depth() : 0;
    if (image.colorCount() >= indices)
        return;
    QList<QRgb> colors = image.colorTable();
    const bool isGrey = colors.isEmpty();
    for (int i = int(colors.size()); i < indices; ++i) {
        const int level = 255 * i / (indices - 1);
        colors.append(isGrey ? qRgb(level, level, level) : qRgba(0, 0, 0, 0));
    }
    image.setColorTable(colors);
}

} // namespace

PreviewView::PreviewView(const QImage& picture, const QSize& size) : preferredSize(size), drag(this)
{
    setObjectName(QStringLiteral("PreviewView"));
    takeImage(picture);
}

PreviewView::~PreviewView() = default;

void PreviewView::setImage(const QImage& picture)
{
    takeImage(picture);
    fitToView();
}

void PreviewView::takeImage(const QImage& picture)
{
    image = picture;
    // Scales count image pixels, also in an image that was rendered for a high-resolution screen.
    image.setDevicePixelRatio(1.0);
    completeColorTable(image);
    imageRect = QRectF(image.rect());
    imageRect.translate(-imageRect.center());
    zoom = 1.0;
    centre();
}

void PreviewView::centre()
{
    lastMousePos = QPointF();
    panOffset = QPointF();
}

void PreviewView::zoomIn()
{
    if (zoom < zoomInCeiling)
        scaleBy(zoomInFactor);
}

void PreviewView::zoomOut()
{
    if (zoom > minZoom)
        scaleBy(zoomOutFactor);
}

void PreviewView::resetZoom()
{
    zoom = fitZoom;
    centre();
    update();
}

void PreviewView::scaleBy(double factor)
{
    if (!std::isfinite(factor))
        return;
    zoom *= factor;
    update();
}

void PreviewView::fitToView()
{
    // A null image has no size to divide by.
    fitZoom =
        image.isNull() ? 1.0 : std::min(width() / imageRect.width(), height() / imageRect.height());
    minZoom = fitZoom * zoomOutFactor;
    resetZoom();
}

QSize PreviewView::sizeHint() const
{
    return preferredSize;
}

// A double-click is a press as well: QWidget hands it on to here.
void PreviewView::mousePressEvent(QMouseEvent* event)
{
    lastMousePos = event->position().toPoint();
    drag.press();
}

void PreviewView::mouseReleaseEvent(QMouseEvent*)
{
    drag.release();
}

// Does not ask for buttons: moves arrive only between press and release.
void PreviewView::mouseMoveEvent(QMouseEvent* event)
{
    const QPointF position = event->position().toPoint();
    const QPointF way = position - lastMousePos;
    lastMousePos = position;
    // Divided one by one: QPointF asserts that a divisor is not about zero, as the scale is in a
    // view without a size. There no way on the screen is one on the image.
    const QPointF imageWay(way.x() / zoom, way.y() / zoom);
    if (std::isfinite(imageWay.x()) && std::isfinite(imageWay.y()))
        panOffset += imageWay;
    update();
}

// One event is one step about the view's centre. A delta of 0, from a wheel that is tilted, zooms
// out.
void PreviewView::wheelEvent(QWheelEvent* event)
{
    if (event->angleDelta().y() > 0)
        zoomIn();
    else
        zoomOut();
}

void PreviewView::paintEvent(QPaintEvent*)
{
    if (image.isNull() || !std::isfinite(zoom))
        return;
    QPainter painter(this);
    painter.translate(QPointF(rect().center()));
    painter.scale(zoom, zoom);
    painter.translate(panOffset);
    painter.drawImage(imageRect.topLeft(), image);
}

void PreviewView::showEvent(QShowEvent* event)
{
    fitToView();
    QWidget::showEvent(event);
}

} // namespace PrintPanels
