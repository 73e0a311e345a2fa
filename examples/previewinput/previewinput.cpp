// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "previewinput.h"

#include <printpanels/printpreviewdialog.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QLineF>
#include <QtGui/QGuiApplication>
#include <QtGui/QMouseEvent>
#include <QtGui/QNativeGestureEvent>
#include <QtGui/QShortcut>
#include <QtGui/QTouchEvent>
#include <QtGui/QWheelEvent>
#include <QtWidgets/QWidget>

#include <algorithm>

namespace {

constexpr double zoomStep = 1.1; // that of the preview
constexpr int panStep = 40;

QWidget* viewIn(const QWidget* window)
{
    return window->findChild<QWidget*>(QStringLiteral("PreviewView"));
}

void turnWheel(QWidget* view, int notches)
{
    if (!view)
        return;
    const QPointF middle = QRectF(view->rect()).center();
    QWheelEvent event(middle, view->mapToGlobal(middle), QPoint(), QPoint(0, 120 * notches),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(view, &event);
}

void sendMouse(QWidget* view, QEvent::Type type, const QPointF& position, Qt::MouseButtons held)
{
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, position, view->mapToGlobal(position), button, held, Qt::NoModifier);
    QCoreApplication::sendEvent(view, &event);
}

} // namespace

PreviewInput::PreviewInput(PrintPreviewDialog* popup)
    : PreviewInput(
          popup, [popup] { popup->zoomIn(); }, [popup] { popup->zoomOut(); },
          [popup] { popup->zoomFit(); })
{
}

PreviewInput::PreviewInput(QWidget* window, const std::function<void()>& fit)
    : PreviewInput(
          window, [this] { turnWheel(m_view, 1); }, [this] { turnWheel(m_view, -1); }, fit)
{
}

PreviewInput::PreviewInput(QWidget* window, const std::function<void()>& zoomIn,
                           const std::function<void()>& zoomOut, const std::function<void()>& fit)
    : QObject(window), m_view(viewIn(window)), m_zoomIn(zoomIn), m_zoomOut(zoomOut)
{
    if (!m_view)
        return;
    m_view->setAttribute(Qt::WA_AcceptTouchEvents);
    m_view->installEventFilter(this);
    addKeys(window, fit);
}

void PreviewInput::addKeys(QWidget* window, const std::function<void()>& fit)
{
    const auto add = [&](const QList<Qt::Key>& keys, const std::function<void()>& act) {
        QList<QKeySequence> sequences;
        for (const Qt::Key key : keys)
            sequences.append(QKeySequence(Qt::CTRL | key));
        auto* shortcut = new QShortcut(window);
        // Not that of the window: a popup never is the active window.
        shortcut->setContext(Qt::WidgetWithChildrenShortcut);
        shortcut->setKeys(sequences);
        connect(shortcut, &QShortcut::activated, this, act);
    };
    // Ctrl and the key with the plus, whether or not that needs Shift.
    add({Qt::Key_Plus, Qt::Key_Equal}, m_zoomIn);
    add({Qt::Key_Minus}, m_zoomOut);
    add({Qt::Key_0}, fit);
    add({Qt::Key_Left}, [this] { moveView(-panStep, 0); });
    add({Qt::Key_Right}, [this] { moveView(panStep, 0); });
    add({Qt::Key_Up}, [this] { moveView(0, -panStep); });
    add({Qt::Key_Down}, [this] { moveView(0, panStep); });
}

// Drags the picture the other way, unless the user is dragging it.
void PreviewInput::moveView(int right, int down)
{
    if (!m_view || m_isPressed || QGuiApplication::mouseButtons() != Qt::NoButton)
        return;
    press(QRectF(m_view->rect()).center());
    move(m_position - QPointF(right, down));
    release();
}

bool PreviewInput::eventFilter(QObject*, QEvent* event)
{
    switch (event->type()) {
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
        touch(static_cast<QTouchEvent*>(event)->points());
        event->accept();
        return true;
    case QEvent::TouchCancel:
        touch({});
        return true;
    case QEvent::NativeGesture:
        padGesture(static_cast<QNativeGestureEvent*>(event));
        return true;
    case QEvent::EnabledChange:
    case QEvent::Hide:
    case QEvent::WindowBlocked:
        // The preview lets go of the picture by itself. A release now would be one too many.
        m_isPressed = m_isPressed && event->type() == QEvent::EnabledChange && m_view->isEnabled();
        return false;
    default:
        return false;
    }
}

void PreviewInput::touch(const QList<QEventPoint>& points)
{
    QList<QPointF> fingers;
    for (const QEventPoint& point : points) {
        if (point.state() != QEventPoint::Released)
            fingers.append(point.position());
    }
    if (fingers.size() == 1 && m_isPressed)
        move(fingers.first());
    else if (fingers.size() == 1)
        press(fingers.first());
    else
        release();
    if (fingers.size() >= 2)
        pinch(QLineF(fingers.at(0), fingers.at(1)).length());
    else
        m_span = 0;
}

// A touch pad tells how much the distance has grown, not the distance.
void PreviewInput::padGesture(const QNativeGestureEvent* gesture)
{
    constexpr double anySpan = 100;
    if (gesture->gestureType() == Qt::ZoomNativeGesture) {
        if (m_span <= 0)
            m_padSpan = m_span = anySpan;
        m_padSpan *= 1 + gesture->value();
        pinch(m_padSpan);
    } else if (gesture->gestureType() == Qt::EndNativeGesture) {
        m_span = 0;
    }
}

// Zooms step by step, as the preview does. The first distance is what the next ones are compared
// to.
void PreviewInput::pinch(double span)
{
    span = std::max(span, 1.0);
    if (m_span <= 0)
        m_span = span;
    for (; span >= m_span * zoomStep; m_span *= zoomStep)
        m_zoomIn();
    for (; span <= m_span / zoomStep; m_span /= zoomStep)
        m_zoomOut();
}

void PreviewInput::press(const QPointF& position)
{
    m_isPressed = true;
    m_position = position;
    sendMouse(m_view, QEvent::MouseButtonPress, position, Qt::LeftButton);
}

void PreviewInput::move(const QPointF& position)
{
    m_position = position;
    sendMouse(m_view, QEvent::MouseMove, position, Qt::LeftButton);
}

// Exactly one for each press, because the preview shows another cursor between the two.
void PreviewInput::release()
{
    if (!m_isPressed)
        return;
    m_isPressed = false;
    sendMouse(m_view, QEvent::MouseButtonRelease, m_position, Qt::NoButton);
}
