#include "preview/dragguard.h"

#include <QtCore/QEvent>
#include <QtGui/QGuiApplication>
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
    ++m_pushed;
    QGuiApplication::setOverrideCursor(Qt::ClosedHandCursor);
    m_dragged->setMouseTracking(true);
}

void DragGuard::release()
{
    if (m_pushed > 0)
        --m_pushed;
    QGuiApplication::restoreOverrideCursor();
    m_dragged->setMouseTracking(false);
}

void DragGuard::abandon()
{
    while (m_pushed > 0)
        release();
}

bool DragGuard::eventFilter(QObject* watched, QEvent* event)
{
    const QEvent::Type type = event->type();
    const bool disabled = type == QEvent::EnabledChange && !m_dragged->isEnabled();
    if (watched == m_dragged && (disabled || type == QEvent::Hide || type == QEvent::WindowBlocked))
        abandon();
    return false;
}

} // namespace PrintPanels
