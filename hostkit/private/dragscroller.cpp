// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "dragscroller.h"

#include <QtGui/QMouseEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QScrollBar>

namespace HostKit {

namespace {
bool hasRange(const QScrollBar* bar)
{
    return bar->maximum() > bar->minimum();
}
} // namespace

DragScroller::DragScroller(QWidget* widget) : m_widget(widget) {}

bool DragScroller::press(const QMouseEvent* event)
{
    end();
    if (event->button() != Qt::LeftButton)
        return false;
    m_scrollArea = enclosingScrollArea();
    if (!m_scrollArea)
        return false;
    // In global coordinates, because scrolling moves the widget.
    m_pressPosition = event->globalPosition().toPoint();
    m_pressOffset = QPoint(m_scrollArea->horizontalScrollBar()->value(),
                           m_scrollArea->verticalScrollBar()->value());
    return true;
}

bool DragScroller::move(const QMouseEvent* event)
{
    if (!m_scrollArea || !(event->buttons() & Qt::LeftButton)) {
        end();
        return false;
    }
    const QPoint distance = event->globalPosition().toPoint() - m_pressPosition;
    if (!m_dragging && distance.manhattanLength() < QApplication::startDragDistance())
        return false;
    m_dragging = true;
    const QPoint offset = m_pressOffset - distance;
    const QPointer<QScrollBar> vertical = m_scrollArea->verticalScrollBar();
    // Scrolling may delete this object, so it must not be used from here on.
    m_scrollArea->horizontalScrollBar()->setValue(offset.x());
    if (vertical)
        vertical->setValue(offset.y());
    return true;
}

void DragScroller::end()
{
    m_scrollArea = nullptr;
    m_dragging = false;
}

bool DragScroller::isDragging() const
{
    return m_dragging;
}

QScrollArea* DragScroller::enclosingScrollArea() const
{
    for (QWidget* widget = m_widget; widget && !widget->isWindow();) {
        widget = widget->parentWidget();
        auto* area = qobject_cast<QScrollArea*>(widget);
        if (area && (hasRange(area->horizontalScrollBar()) || hasRange(area->verticalScrollBar())))
            return area;
    }
    return nullptr;
}

} // namespace HostKit
