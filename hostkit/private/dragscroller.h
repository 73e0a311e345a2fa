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
 * Scrolls the area around a widget when the user drags the widget, which forwards its mouse events.
 */
class DragScroller
{
public:
    /** Creates a scroller for @p widget, which owns it. */
    explicit DragScroller(QWidget* widget);

    /**
     * Handles a mouse press. Returns true if it is with the left button, and the widget is inside a
     * scroll area whose contents do not fit.
     */
    bool press(const QMouseEvent* event);

    /**
     * Handles a mouse move. Scrolls and returns true if the press has become a drag. A slot that is
     * called because of the scrolling may delete the widget, and the scroller with it.
     */
    bool move(const QMouseEvent* event);

    /** Ends a press or drag, if there is one. */
    void end();

    /** Returns true while the user drags: from the first move() that returns true until end(). */
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
