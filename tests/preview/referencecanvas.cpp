// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "referencecanvas.h"

#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtGui/QWheelEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

#include <algorithm>
#include <cmath>

ReferenceCanvas::ReferenceCanvas(const QImage& image, const QSize& viewSize)
    : m_image(image), m_viewSize(viewSize)
{
}

void ReferenceCanvas::setImage(const QImage& image)
{
    m_image = image;
    fit();
}

void ReferenceCanvas::fit()
{
    m_fitZoom = 1.0;
    if (!m_image.isNull()) {
        const double across = double(m_viewSize.width()) / double(m_image.width());
        const double down = double(m_viewSize.height()) / double(m_image.height());
        m_fitZoom = across < down ? across : down;
    }
    m_minZoom = m_fitZoom * 0.9090909090909091;
    reset();
}

void ReferenceCanvas::reset()
{
    m_zoom = m_fitZoom;
    m_pan = m_last = QPointF(0.0, 0.0);
}

void ReferenceCanvas::zoomIn()
{
    if (m_zoom < 17.4495)
        m_zoom = m_zoom * 1.1;
}

void ReferenceCanvas::zoomOut()
{
    if (m_zoom > m_minZoom)
        m_zoom = m_zoom * 0.9090909090909091;
}

static QPointF wholePixels(const QPointF& position)
{
    return QPointF(std::round(position.x()), std::round(position.y()));
}

void ReferenceCanvas::press(const QPointF& position)
{
    m_last = wholePixels(position);
}

void ReferenceCanvas::moveTo(const QPointF& position)
{
    const QPointF now = wholePixels(position);
    m_pan += QPointF((now.x() - m_last.x()) / m_zoom, (now.y() - m_last.y()) / m_zoom);
    m_last = now;
}

QPointF ReferenceCanvas::centre() const
{
    return QPointF((m_viewSize.width() - 1) / 2, (m_viewSize.height() - 1) / 2);
}

QImage ReferenceCanvas::painted(const QColor& ground) const
{
    QImage picture(m_viewSize, QImage::Format_ARGB32_Premultiplied);
    picture.fill(ground);
    QPainter painter(&picture);
    painter.translate(centre());
    painter.scale(m_zoom, m_zoom);
    painter.translate(m_pan);
    painter.drawImage(QPointF(-m_image.width() / 2.0, -m_image.height() / 2.0), m_image);
    return picture;
}

QPointF ReferenceCanvas::sourcePoint(int x, int y) const
{
    const QPointF fromCentre = QPointF(x + 0.5, y + 0.5) - centre();
    return fromCentre / m_zoom - m_pan + QPointF(m_image.width() / 2.0, m_image.height() / 2.0);
}

// The raster engine steps through the source in fixed-point numbers, and it may leave out the last
// pixel on the screen along an outer edge of the image.
static bool isUndecided(double source, int length, double zoom)
{
    const bool betweenPixels = std::abs(source - std::round(source)) < 0.05;
    const bool alongTheEdge = std::min(std::abs(source), std::abs(source - length)) * zoom < 1.0;
    return betweenPixels || alongTheEdge;
}

int ReferenceCanvas::wrongPixels(const QImage& picture, const QColor& ground, int* undecided) const
{
    int wrong = 0;
    *undecided = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QPointF source = sourcePoint(x, y);
            if (isUndecided(source.x(), m_image.width(), m_zoom) ||
                isUndecided(source.y(), m_image.height(), m_zoom)) {
                ++*undecided;
                continue;
            }
            const QPoint pixel(int(std::floor(source.x())), int(std::floor(source.y())));
            const QColor expected = m_image.valid(pixel) ? m_image.pixelColor(pixel) : ground;
            if (picture.pixelColor(x, y) != expected)
                ++wrong;
        }
    }
    return wrong;
}

QImage fittedPicture(const QImage& image, const QSize& viewSize, const QColor& ground)
{
    ReferenceCanvas reference(image, viewSize);
    reference.fit();
    return reference.painted(ground);
}

QImage drawnBy(QWidget& view, const QColor& ground)
{
    QImage picture(view.size(), QImage::Format_ARGB32_Premultiplied);
    picture.fill(ground);
    view.render(&picture, QPoint(), QRegion(), QWidget::RenderFlags());
    return picture;
}

QImage speckledImage(const QSize& size, QImage::Format format)
{
    QImage image(size, format);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            image.setPixelColor(x, y,
                                QColor((x * 67 + 20) % 256, (y * 41 + 90) % 256,
                                       ((x + y) % 2) * 200 + (x * y) % 50));
    }
    return image;
}

QImage targetImage()
{
    QImage image(100, 100, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter(&image).fillRect(45, 45, 10, 10, Qt::black);
    return image;
}

QRect extentOf(const QImage& picture, const QColor& color)
{
    QRect extent;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixelColor(x, y) == color)
                extent |= QRect(x, y, 1, 1);
        }
    }
    return extent;
}

bool turnWheel(QWidget& view, const QPoint& angleDelta)
{
    const QPointF middle = QRectF(view.rect()).center();
    QWheelEvent event(middle, view.mapToGlobal(middle), QPoint(), angleDelta, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&view, &event);
    return event.isAccepted();
}

void sendMouse(QWidget& view, QEvent::Type type, const QPointF& position, Qt::MouseButton button,
               Qt::MouseButtons buttons)
{
    QMouseEvent event(type, position, view.mapToGlobal(position), button, buttons, Qt::NoModifier);
    QApplication::sendEvent(&view, &event);
}

void pressMouse(QWidget& view, const QPointF& position)
{
    sendMouse(view, QEvent::MouseButtonPress, position, Qt::LeftButton, Qt::LeftButton);
}

void dragMouse(QWidget& view, const QPointF& from, const QPointF& to)
{
    pressMouse(view, from);
    sendMouse(view, QEvent::MouseMove, to, Qt::NoButton, Qt::LeftButton);
    sendMouse(view, QEvent::MouseButtonRelease, to, Qt::LeftButton, Qt::NoButton);
}
