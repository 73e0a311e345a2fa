// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "preview/previewview.h"

#include "preview/accessiblepreview.h"

#include <QtGui/QAccessible>
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

// Painting looks up every pixel in the image's colour table without checking the table's size. An
// empty table means grey, as it does when an image is converted.
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

PreviewView::PreviewView(const QImage& image, const QSize& sizeHint)
    : m_sizeHint(sizeHint), m_drag(this)
{
    setObjectName(QStringLiteral("PreviewView"));
    takeImage(image);
}

PreviewView::~PreviewView() = default;

void PreviewView::setImage(const QImage& image)
{
    takeImage(image);
    fitToView();
}

void PreviewView::takeImage(const QImage& image)
{
    m_image = image;
    // Scales count image pixels, also in an image that was rendered for a high-resolution screen.
    m_image.setDevicePixelRatio(1.0);
    completeColorTable(m_image);
    m_imageRect = QRectF(m_image.rect());
    m_imageRect.translate(-m_imageRect.center());
    m_zoom = 1.0;
    centre();
}

void PreviewView::centre()
{
    m_lastMousePos = QPointF();
    m_panOffset = QPointF();
}

void PreviewView::zoomIn()
{
    if (m_zoom < zoomInCeiling)
        scaleBy(zoomInFactor);
}

void PreviewView::zoomOut()
{
    if (m_zoom > m_minZoom)
        scaleBy(zoomOutFactor);
}

void PreviewView::resetZoom()
{
    m_zoom = m_fitZoom;
    centre();
    showZoom();
}

void PreviewView::scaleBy(double factor)
{
    if (!std::isfinite(factor))
        return;
    m_zoom *= factor;
    showZoom();
}

// Assistive technology asks for the description, which contains the scale, when it wants to.
void PreviewView::showZoom()
{
    update();
    if (QAccessible::isActive()) {
        QAccessibleEvent event(this, QAccessible::DescriptionChanged);
        QAccessible::updateAccessibility(&event);
    }
}

void PreviewView::fitToView()
{
    // A null image has no size to divide by.
    m_fitZoom = m_image.isNull()
                    ? 1.0
                    : std::min(width() / m_imageRect.width(), height() / m_imageRect.height());
    m_minZoom = m_fitZoom * zoomOutFactor;
    resetZoom();
}

QSize PreviewView::imageSize() const
{
    return m_image.size();
}

double PreviewView::zoom() const
{
    return m_zoom;
}

QAccessibleInterface* PreviewView::createAccessible()
{
    return new AccessiblePreview(this);
}

QSize PreviewView::sizeHint() const
{
    return m_sizeHint;
}

// Also called for a double-click, which QWidget handles as a press.
void PreviewView::mousePressEvent(QMouseEvent* event)
{
    m_lastMousePos = event->position().toPoint();
    m_drag.press();
}

void PreviewView::mouseReleaseEvent(QMouseEvent*)
{
    m_drag.release();
}

// Does not check the buttons: moves arrive only between press and release.
void PreviewView::mouseMoveEvent(QMouseEvent* event)
{
    const QPointF position = event->position().toPoint();
    const QPointF distance = position - m_lastMousePos;
    m_lastMousePos = position;
    // Divided one by one, because QPointF asserts that a divisor is not close to zero, as the scale
    // is in a view without a size. No distance on the screen is one on the image then.
    const QPointF imageDistance(distance.x() / m_zoom, distance.y() / m_zoom);
    if (std::isfinite(imageDistance.x()) && std::isfinite(imageDistance.y()))
        m_panOffset += imageDistance;
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
    if (m_image.isNull() || !std::isfinite(m_zoom))
        return;
    QPainter painter(this);
    painter.translate(QPointF(rect().center()));
    painter.scale(m_zoom, m_zoom);
    painter.translate(m_panOffset);
    painter.drawImage(m_imageRect.topLeft(), m_image);
}

void PreviewView::showEvent(QShowEvent* event)
{
    fitToView();
    QWidget::showEvent(event);
}

} // namespace PrintPanels
