// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include <dragscrollgroupbox.h>

#include "dragscroller.h"

#include <QtGui/QMouseEvent>

DragScrollGroupBox::DragScrollGroupBox(QWidget* parent)
    : QWidget(parent), m_scroller(std::make_unique<HostKit::DragScroller>(this))
{
    setAttribute(Qt::WA_StyledBackground);
}

DragScrollGroupBox::~DragScrollGroupBox() = default;

void DragScrollGroupBox::hideEvent(QHideEvent* event)
{
    m_scroller->end();
    QWidget::hideEvent(event);
}

void DragScrollGroupBox::mousePressEvent(QMouseEvent* event)
{
    if (m_scroller->press(event))
        event->accept();
    else
        QWidget::mousePressEvent(event);
}

void DragScrollGroupBox::mouseMoveEvent(QMouseEvent* event)
{
    if (m_scroller->move(event))
        event->accept();
    else
        QWidget::mouseMoveEvent(event);
}

void DragScrollGroupBox::mouseReleaseEvent(QMouseEvent* event)
{
    m_scroller->end();
    QWidget::mouseReleaseEvent(event);
}
