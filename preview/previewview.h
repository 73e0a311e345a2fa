// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_PREVIEWVIEW_H
#define PRINTPANELS_PREVIEWVIEW_H

#include "foundation/widgets/accessibleparts.h"
#include "preview/dragguard.h"

#include <QtCore/QPointF>
#include <QtCore/QRectF>
#include <QtCore/QSize>
#include <QtGui/QImage>
#include <QtWidgets/QWidget>

namespace PrintPanels {

/**
 * The canvas that shows one image, zoomed with the wheel or by its owner's buttons and dragged with
 * the mouse.
 *
 * It draws only the image; whatever the parent paints behind the view surrounds it. Showing the
 * view and setting an image fit the image, resizing the view does not. A null image shows nothing.
 */
class PreviewView : public QWidget, public AccessiblePart
{
    Q_DISABLE_COPY_MOVE(PreviewView)

public:
    /**
     * Creates a view of @p image without a parent: the owner's layout gives it one. @p sizeHint is
     * what sizeHint() returns, in pixels.
     */
    PreviewView(const QImage& image, const QSize& sizeHint);
    /** Ends a drag in progress, so that no override cursor is left behind. */
    ~PreviewView() override;

    /** Shows another image, fitted and centred. The view shares the pixels and does not copy them.
     */
    void setImage(const QImage& image);

    /** Zooms in by one step of 1.1, unless the scale has reached 17.4495. */
    void zoomIn();
    /** Zooms out by one step of 0.9090909090909091, at most to one step below the fit. */
    void zoomOut();
    /** Goes back to the scale of the last fit, centred. */
    void resetZoom();
    /** Multiplies the scale by @p factor without any limit. Infinity and NaN are ignored. */
    void scaleBy(double factor);
    /** Scales the image so that all of it just fits into the view, and centres it. */
    void fitToView();

    /** The size of the image in its own pixels; empty without an image. */
    QSize imageSize() const;
    /** Screen pixels per image pixel. */
    double zoom() const;

    /** The size given to the constructor. */
    QSize sizeHint() const override;

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    QAccessibleInterface* createAccessible() override;
    void takeImage(const QImage& image);
    void centre();
    void showZoom();

    QImage m_image;
    // The image's rectangle around the origin, in image pixels.
    QRectF m_imageRect;
    // Whole pixels of the view.
    QPointF m_lastMousePos;
    // In image pixels, so it is added before scaling.
    QPointF m_panOffset;
    // Screen pixels per image pixel. They start at 1.0, so that the view works before the first
    // fit.
    double m_minZoom = 1.0;
    double m_zoom = 1.0;
    double m_fitZoom = 1.0;
    QSize m_sizeHint;
    DragGuard m_drag;
};

} // namespace PrintPanels

#endif
