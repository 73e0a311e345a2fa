// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "preview/dragguard.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>
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
    cancel();
}

void DragGuard::press()
{
    // The whole application, because an open list gets the release itself.
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

void DragGuard::cancel()
{
    while (m_pushed > 0)
        release();
}

// A window receives the release before the widget in it does, and the first release after a list
// has closed reaches no widget at all. Whether a button is still held is known once it was
// delivered.
void DragGuard::releasedElsewhere(bool toWidget)
{
    if (toWidget) {
        cancel();
        return;
    }
    const auto cancelUnlessHeld = [this] {
        if (QGuiApplication::mouseButtons() == Qt::NoButton)
            cancel();
    };
    QMetaObject::invokeMethod(this, cancelUnlessHeld, Qt::QueuedConnection);
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
        cancel();
    return false;
}

} // namespace PrintPanels
