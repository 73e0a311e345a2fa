// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PREVIEWINPUT_H
#define PREVIEWINPUT_H

#include <QtCore/QObject>
#include <QtCore/QPointF>
#include <QtCore/QPointer>

#include <functional>

class PrintPreviewDialog;
class QEventPoint;
class QNativeGestureEvent;
class QWidget;

/**
 * Lets keys and fingers handle the picture in a preview window: Ctrl with plus and minus zooms,
 * Ctrl+0 fits, Ctrl with an arrow key moves the view over the picture; one finger drags the
 * picture, and two zoom it, on the screen or on a touch pad. In an edit, Ctrl+Left and Ctrl+Right
 * still go from word to word.
 *
 * To be copied into a host; it needs no more than the public interface. The window owns it.
 */
class PreviewInput : public QObject
{
    Q_DISABLE_COPY_MOVE(PreviewInput)

public:
    /** For the popup, which has slots for all that. */
    explicit PreviewInput(PrintPreviewDialog* popup);

    /**
     * For any other window with a preview, such as MultiPagePrintDialog: turns the wheel over the
     * preview to zoom. @p fit shows the picture again, with setPreviewImage(), which fits it.
     */
    PreviewInput(QWidget* window, const std::function<void()>& fit);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    PreviewInput(QWidget* window, const std::function<void()>& zoomIn,
                 const std::function<void()>& zoomOut, const std::function<void()>& fit);

    void addKeys(QWidget* window, const std::function<void()>& fit);
    void moveView(int right, int down);
    void touch(const QList<QEventPoint>& points);
    void padGesture(const QNativeGestureEvent* gesture);
    void pinch(double span);
    void press(const QPointF& position);
    void move(const QPointF& position);
    void release();

    QPointer<QWidget> m_view;
    std::function<void()> m_zoomIn;
    std::function<void()> m_zoomOut;
    /** Distance of two fingers at the last step of the zoom; 0 without two fingers. */
    double m_span = 0;
    double m_padSpan = 0;
    /** Where the picture was grabbed or dragged to last. */
    QPointF m_position;
    bool m_isPressed = false;
};

#endif
