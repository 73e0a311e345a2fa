// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef INPUTEVENTS_H
#define INPUTEVENTS_H

#include <QtCore/QCoreApplication>
#include <QtGui/QHelpEvent>
#include <QtGui/QMouseEvent>
#include <QtGui/QTextDocumentFragment>
#include <QtGui/QWheelEvent>
#include <QtTest/QTest>
#include <QtTest/qtestspontaneevent.h>
#include <QtWidgets/QToolTip>
#include <QtWidgets/QWidget>

/**
 * Turns the wheel over the middle of @p widget, as a device does: by one notch away from the user,
 * or by another @p angle.
 */
inline void turnWheelOver(QWidget* widget, int angle = 120)
{
    const QPointF position = QRectF(widget->rect()).center();
    QWheelEvent event(position, widget->mapToGlobal(position), QPoint(), QPoint(0, angle),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    // Only an event from a device moves the focus and goes on to the parents; sendEvent() would
    // make it one that the program sent.
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(widget, &event);
}

/** Rests the mouse at @p position of @p widget until a tool tip is asked for. */
inline void askForToolTip(QWidget* widget, const QPoint& position)
{
    QToolTip::hideText();
    QHelpEvent event(QEvent::ToolTip, position, widget->mapToGlobal(position));
    QCoreApplication::sendEvent(widget, &event);
}

/** What a reader of the visible tool tip sees; empty without one. */
inline QString visibleToolTip()
{
    const QString text = QToolTip::isVisible() ? QToolTip::text() : QString();
    return Qt::mightBeRichText(text) ? QTextDocumentFragment::fromHtml(text).toPlainText() : text;
}

/**
 * Moves the mouse to @p position of @p widget with @p buttons held, whether or not that widget was
 * pressed before; for what happens when a release got lost.
 */
inline void moveMouse(QWidget* widget, const QPoint& position, Qt::MouseButtons buttons)
{
    QMouseEvent event(QEvent::MouseMove, position, widget->mapToGlobal(position), Qt::NoButton,
                      buttons, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
}

/** Presses @p button on @p widget; true if the widget itself takes the press. */
inline bool takesPress(QWidget* widget, const QPoint& position, Qt::MouseButton button)
{
    QMouseEvent event(QEvent::MouseButtonPress, position, widget->mapToGlobal(position), button,
                      button, Qt::NoModifier);
    // Past the application, which would go on to the parents.
    static_cast<QObject*>(widget)->event(&event);
    return event.isAccepted();
}

/**
 * The left mouse button in the window of @p widget, dispatched as Qt dispatches what the window
 * system reports: the widget that was pressed gets everything up to the release. Positions are the
 * widget's at the time of press().
 */
class MouseDrag
{
public:
    explicit MouseDrag(QWidget* widget, const QPoint& position)
        : m_window(widget->window()->windowHandle()),
          m_origin(widget->mapTo(widget->window(), position))
    {
        QTest::mousePress(m_window, Qt::LeftButton, {}, m_origin);
    }

    void moveBy(int dx, int dy)
    {
        m_position = m_origin + QPoint(dx, dy);
        QTest::mouseMove(m_window, m_position);
    }

    void release() { QTest::mouseRelease(m_window, Qt::LeftButton, {}, m_position); }

private:
    QWindow* m_window;
    QPoint m_origin;
    QPoint m_position = m_origin;
};

#endif
