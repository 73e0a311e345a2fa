// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/printing/windowscroller.h"

#include <QtCore/QEvent>
#include <QtGui/QScreen>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QStyle>

#include <algorithm>
#include <utility>

namespace SampleHost {

namespace {

/** The corner of a window of that size in the middle of another one, but inside the screen. */
QPoint cornerInside(const QSize& size, const QPoint& middle, const QRect& available)
{
    const QPoint corner = middle - QPoint((size.width() - 1) / 2, (size.height() - 1) / 2);
    const QPoint last = available.bottomRight() - QPoint(size.width() - 1, size.height() - 1);
    return {std::max(available.left(), std::min(corner.x(), last.x())),
            std::max(available.top(), std::min(corner.y(), last.y()))};
}

bool fits(const QSize& size, const QRect& available)
{
    return size.width() <= available.width() && size.height() <= available.height();
}

} // namespace

WindowScroller::WindowScroller(QWidget& window, QWidget& host, Move move)
    : QObject(&window),
      m_window(window),
      m_host(host),
      m_move(std::move(move)),
      m_flags(window.windowFlags())
{
    m_window.installEventFilter(this);
}

void WindowScroller::open()
{
    open(m_host.screen()->availableGeometry());
}

void WindowScroller::open(const QRect& available)
{
    if (!m_window.isVisible()) {
        place(available);
        m_window.show();
    }
    QWidget* front = m_window.window();
    front->show();
    front->raise();
    front->activateWindow();
}

void WindowScroller::place(const QRect& available)
{
    m_available = available;
    const QPoint middle = m_host.window()->frameGeometry().center();
    if (fits(m_window.size(), available)) {
        takeFromArea();
        const QPoint corner = cornerInside(m_window.size(), middle, available);
        m_move(corner.x(), corner.y());
    } else {
        putIntoArea();
        m_area->move(cornerInside(m_area->size(), middle, available));
    }
}

void WindowScroller::putIntoArea()
{
    if (m_area == nullptr) {
        m_area = new QScrollArea(m_window.parentWidget());
        m_area->setWindowFlags(m_flags);
        m_area->setWindowTitle(m_window.windowTitle());
        area()->setFrameShape(QFrame::NoFrame);
        m_area->installEventFilter(this);
        area()->setWidget(&m_window);
    }
    // One scroll bar takes room from the other direction.
    QSize size = m_window.size();
    const int bar = area()->verticalScrollBar()->sizeHint().width();
    const bool tooWide = size.width() > m_available.width();
    const bool tooHigh = size.height() > m_available.height();
    size += QSize(tooHigh ? bar : 0, tooWide ? bar : 0);
    m_area->resize(size.boundedTo(m_available.size()));
    area()->horizontalScrollBar()->setValue(0);
    area()->verticalScrollBar()->setValue(0);
}

void WindowScroller::takeFromArea()
{
    if (m_area != nullptr) {
        m_area->removeEventFilter(this);
        area()->takeWidget();
        m_window.setParent(m_area->parentWidget(), m_flags);
        delete m_area;
    }
}

// The window's title bar moves the window where the scroll area should stand.
void WindowScroller::moveArea()
{
    const QPoint scrolled(-area()->horizontalScrollBar()->value(),
                          -area()->verticalScrollBar()->value());
    const QRect place = QStyle::visualRect(m_area->layoutDirection(), area()->viewport()->rect(),
                                           QRect(scrolled, m_window.size()));
    if (m_window.pos() != place.topLeft()) {
        const QRect wanted(m_window.pos(), m_area->size());
        m_window.move(place.topLeft());
        m_area->move(cornerInside(wanted.size(), wanted.center(), m_available));
    }
}

QScrollArea* WindowScroller::area() const
{
    return static_cast<QScrollArea*>(m_area.data());
}

bool WindowScroller::eventFilter(QObject* watched, QEvent* event)
{
    const QEvent::Type type = event->type();
    if (watched == &m_window && m_area != nullptr) {
        if (type == QEvent::HideToParent) {
            m_area->hide();
        } else if (type == QEvent::Move && m_area->isVisible()) {
            moveArea();
        }
    } else if (type == QEvent::Close && watched == m_area) { // not while the area is destroyed
        // Closed by the system instead of its own controls.
        m_window.close();
    }
    return QObject::eventFilter(watched, event);
}

} // namespace SampleHost
