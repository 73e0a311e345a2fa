// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "preview/dragguard.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>
#include <QtCore/QMetaObject>
#include <QtGui/QGuiApplication>
#include <QtGui/QMouseEvent>
#include <QtWidgets/QWidget>

namespace PrintPanels {

DragGuard::DragGuard(QWidget* dragged) : m_dragged(dragged)
{
    dragged->installEventFilter(this);
}

DragGuard::~DragGuard()
{
    abandon();
}

void DragGuard::press()
{
    // All of the application, because an open list takes the release for itself.
    if (m_pushed++ == 0)
        QCoreApplication::instance()->installEventFilter(this);
    QGuiApplication::setOverrideCursor(Qt::ClosedHandCursor);
    m_dragged->setMouseTracking(true);
}

void DragGuard::release()
{
    if (m_pushed > 0 && --m_pushed == 0)
        QCoreApplication::instance()->removeEventFilter(this);
    QGuiApplication::restoreOverrideCursor();
    m_dragged->setMouseTracking(false);
}

void DragGuard::abandon()
{
    while (m_pushed > 0)
        release();
}

// A window gets the release before a widget in it does, and sometimes no widget gets it then: the
// first one after a list has closed goes nowhere.
void DragGuard::releasedElsewhere(bool arrived)
{
    if (arrived) {
        abandon();
        return;
    }
    const auto abandonIfReleased = [this] {
        if (QGuiApplication::mouseButtons() == Qt::NoButton)
            abandon();
    };
    QMetaObject::invokeMethod(this, abandonIfReleased, Qt::QueuedConnection);
}

bool DragGuard::eventFilter(QObject* watched, QEvent* event)
{
    const QEvent::Type type = event->type();
    if (watched != m_dragged) {
        if (type == QEvent::MouseButtonRelease &&
            static_cast<QMouseEvent*>(event)->buttons() == Qt::NoButton)
            releasedElsewhere(watched->isWidgetType());
        return false;
    }
    const bool disabled = type == QEvent::EnabledChange && !m_dragged->isEnabled();
    if (disabled || type == QEvent::Hide || type == QEvent::WindowBlocked)
        abandon();
    return false;
}

} // namespace PrintPanels
