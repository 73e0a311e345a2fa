// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef REFERENCECANVAS_H
#define REFERENCECANVAS_H

#include <QtCore/QEvent>
#include <QtCore/QPointF>
#include <QtCore/QRect>
#include <QtCore/QSize>
#include <QtGui/QColor>
#include <QtGui/QImage>

class QWidget;

/**
 * What the canvas has to show, computed without it: the same operations on plain numbers, and two
 * ways to turn the numbers into pixels.
 */
class ReferenceCanvas
{
public:
    ReferenceCanvas(const QImage& image, const QSize& viewSize);

    void setImage(const QImage& image);
    void resize(const QSize& viewSize) { m_viewSize = viewSize; }
    void fit();
    void reset();
    void zoomIn();
    void zoomOut();
    void scaleBy(double factor) { m_zoom *= factor; }
    /** Positions are those of the events, in fractions of pixels. */
    void press(const QPointF& position);
    void moveTo(const QPointF& position);

    double zoom() const { return m_zoom; }
    double minZoom() const { return m_minZoom; }
    double fitZoom() const { return m_fitZoom; }
    QPointF pan() const { return m_pan; }

    /** The view painted with a QPainter onto @p ground. */
    QImage painted(const QColor& ground) const;

    /**
     * The number of pixels in @p picture that differ from the source pixel that lies under the
     * middle of each, or from @p ground outside the image. Pixels too close to an edge to tell are
     * left out; their number goes to @p undecided.
     */
    int wrongPixels(const QImage& picture, const QColor& ground, int* undecided) const;

private:
    QPointF centre() const;
    QPointF sourcePoint(int x, int y) const;

    QImage m_image;
    QSize m_viewSize;
    double m_zoom = 1.0;
    double m_minZoom = 1.0;
    double m_fitZoom = 1.0;
    QPointF m_pan;
    QPointF m_last;
};

/** What a view of this size, fitted to @p image, shows on @p ground. */
QImage fittedPicture(const QImage& image, const QSize& viewSize, const QColor& ground);

/** What @p view itself draws, onto @p ground: no background of its own or of a parent. */
QImage drawnBy(QWidget& view, const QColor& ground);

/** An image of single-coloured pixels in which no two neighbours are alike. */
QImage speckledImage(const QSize& size,
                     QImage::Format format = QImage::Format_ARGB32_Premultiplied);

/** A white image of 100 x 100 pixels with a black square of 10 x 10 in its middle. */
QImage targetImage();

/** The smallest rectangle around all pixels of @p color; a null rectangle without one. */
QRect extentOf(const QImage& picture, const QColor& color);

/** One notch, or part of one, of a wheel in the middle of @p view. True if the event was accepted.
 */
bool turnWheel(QWidget& view, const QPoint& angleDelta);

/** A mouse event at a position in fractions of pixels, which QTest's own functions cannot give. */
void sendMouse(QWidget& view, QEvent::Type type, const QPointF& position, Qt::MouseButton button,
               Qt::MouseButtons buttons);

/** Presses the left button. */
void pressMouse(QWidget& view, const QPointF& position);

/** Presses the left button, moves the mouse and releases the button. */
void dragMouse(QWidget& view, const QPointF& from, const QPointF& to);

#endif
