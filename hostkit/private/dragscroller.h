// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_HOSTKIT_DRAGSCROLLER_H
#define PRINTPANELS_HOSTKIT_DRAGSCROLLER_H

#include <QtCore/QPoint>
#include <QtCore/QPointer>

class QMouseEvent;
class QScrollArea;
class QWidget;

namespace HostKit {

/**
 * Turns a press and drag on a widget into scrolling of the scroll area around it. The widget
 * forwards its mouse events and asks what they have become.
 */
class DragScroller
{
public:
    /** Serves @p widget, which owns the scroller. */
    explicit DragScroller(QWidget* widget);

    /** The left button went down; false if there is nothing around the widget that could scroll. */
    bool press(const QMouseEvent* event);

    /**
     * The mouse moved; scrolls and answers true if the press has become a drag. Whoever hears of
     * the scrolling may delete the widget, and with it the scroller.
     */
    bool move(const QMouseEvent* event);

    /** The press is over, or cannot go on. */
    void end();

    /** True from the move that made the press a drag until end(). */
    bool isDragging() const;

private:
    QScrollArea* enclosingScrollArea() const;

    QWidget* m_widget;
    QPointer<QScrollArea> m_scrollArea;
    QPoint m_pressPosition;
    QPoint m_pressOffset;
    bool m_dragging = false;
};

} // namespace HostKit

#endif
