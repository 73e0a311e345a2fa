// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include <dragscrollbutton.h>

#include "dragscroller.h"

#include <QtCore/QPointer>
#include <QtGui/QMouseEvent>

DragScrollButton::DragScrollButton(QWidget* parent) : DragScrollButton(QString(), parent) {}

DragScrollButton::DragScrollButton(const QString& text, QWidget* parent)
    : QPushButton(text, parent), m_scroller(std::make_unique<HostKit::DragScroller>(this))
{
}

DragScrollButton::~DragScrollButton() = default;

void DragScrollButton::hideEvent(QHideEvent* event)
{
    m_scroller->end();
    QPushButton::hideEvent(event);
}

void DragScrollButton::mousePressEvent(QMouseEvent* event)
{
    m_scroller->press(event);
    QPushButton::mousePressEvent(event);
}

void DragScrollButton::mouseMoveEvent(QMouseEvent* event)
{
    const bool wasDragging = m_scroller->isDragging();
    const QPointer<DragScrollButton> guard(this);
    if (!m_scroller->move(event)) {
        QPushButton::mouseMoveEvent(event);
        return;
    }
    event->accept();
    if (guard && !wasDragging && isDown()) {
        // A button that is not down does not auto-repeat, and does not click on mouse release.
        setDown(false);
        Q_EMIT released();
    }
}

void DragScrollButton::mouseReleaseEvent(QMouseEvent* event)
{
    // First, because a slot connected to clicked() may delete the button.
    m_scroller->end();
    QPushButton::mouseReleaseEvent(event);
}
