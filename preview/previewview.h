// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_PREVIEWVIEW_H
#define PRINTPANELS_PREVIEWVIEW_H

#include "preview/dragguard.h"

#include <QtCore/QPointF>
#include <QtCore/QRectF>
#include <QtCore/QSize>
#include <QtGui/QImage>
#include <QtWidgets/QWidget>

namespace PrintPanels {

/**
 * The canvas that shows one image, to be zoomed with the wheel or by its owner's buttons and
 * dragged with the mouse.
 *
 * It draws the image and nothing else: what surrounds the image is whatever the parent paints
 * behind the view. Showing the view and giving it an image fit the image; a resize does not.
 * A null image shows nothing.
 */
class PreviewView : public QWidget
{
    Q_DISABLE_COPY_MOVE(PreviewView)

public:
    /**
     * Creates a view of @p image without a parent: the owner's layout gives it one. @p sizeHint is
     * what sizeHint() answers, in pixels.
     */
    PreviewView(const QImage& image, const QSize& sizeHint);
    /** Ends a drag that is still going on, so that no override cursor is left behind. */
    ~PreviewView() override;

    /** Shows another image, fitted and centred. The view shares the picture and does not copy it.
     */
    void setImage(const QImage& image);

    /** One step closer, by 1.1, unless the scale has reached 17.4495. */
    void zoomIn();
    /** One step away, by 0.9090909090909091, but not further than one step beyond the fit. */
    void zoomOut();
    /** Back to the scale of the last fit, centred. */
    void resetZoom();
    /** Multiplies the scale by @p factor without any limit. A factor that is no number is ignored.
     */
    void scaleBy(double factor);
    /** Scales the image so that the whole of it just fits into the view, and centres it. */
    void fitToView();

    /** The size given at construction. */
    QSize sizeHint() const override;

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void takeImage(const QImage& picture);
    void centre();

    QImage image;
    // The image's rectangle around the origin, in image pixels.
    QRectF imageRect;
    // Whole pixels of the view.
    QPointF lastMousePos;
    // In image pixels, so it is added before scaling.
    QPointF panOffset;
    // Screen pixels per image pixel. They start at 1.0, so that nothing breaks before the first
    // fit.
    double minZoom = 1.0;
    double zoom = 1.0;
    double fitZoom = 1.0;
    QSize preferredSize;
    DragGuard drag;
};

} // namespace PrintPanels

#endif
