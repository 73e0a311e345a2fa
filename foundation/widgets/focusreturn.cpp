// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "foundation/widgets/focusreturn.h"

#include <QtGui/QFocusEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QPushButton>

namespace PrintPanels {

namespace {

bool canHoldFocus(const QWidget* widget)
{
    return widget->isEnabled() && widget->isVisible();
}

/** Whether a widget that loses the focus for this reason gets it back by itself. */
bool isTemporary(Qt::FocusReason reason)
{
    return reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason ||
           reason == Qt::MenuBarFocusReason;
}

} // namespace

FocusReturn::FocusReturn(QWidget* panel) : QObject(panel)
{
    const QList<QPushButton*> buttons = panel->findChildren<QPushButton*>();
    for (QPushButton* button : buttons)
        button->installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget*, QWidget* to) { followFocus(to); });
}

bool FocusReturn::eventFilter(QObject* watched, QEvent* event)
{
    // Not as a push button: one that is being deleted is only a widget by then.
    auto* button = static_cast<QWidget*>(watched);
    switch (event->type()) {
    case QEvent::FocusIn:
        m_focused = button;
        break;
    case QEvent::FocusOut:
        focusLost(button, static_cast<QFocusEvent*>(event)->reason());
        break;
    case QEvent::EnabledChange:
        if (button->isEnabled())
            enabled(button);
        else
            disabled(button);
        break;
    default:
        break;
    }
    return false;
}

// A button that is being disabled is disabled already when it loses the focus.
void FocusReturn::focusLost(QWidget* button, Qt::FocusReason reason)
{
    if (!button->isEnabled()) {
        lose(button);
        m_isBeingDisabled = true;
    } else if (!isTemporary(reason)) {
        m_focused = nullptr;
    }
}

// A button that held the focus for another one only passes it on.
void FocusReturn::lose(QWidget* button)
{
    m_focused = nullptr;
    if (!m_lost || button != m_holder)
        m_lost = button;
}

// In a window that is not active, the focus moves without an event.
void FocusReturn::disabled(QWidget* button)
{
    m_isBeingDisabled = false;
    if (button == m_focused)
        lose(button);
    if (button == m_lost || button == m_holder)
        m_holder = button->window()->focusWidget();
}

void FocusReturn::enabled(QWidget* button)
{
    if (button != m_lost)
        return;
    m_lost = nullptr;
    if (button->isVisible() && button->window()->focusWidget() == m_holder)
        button->setFocus(Qt::OtherFocusReason);
}

// Disabling one control after the other moves the focus from one to the next. Any other move inside
// the window is the user's. Other windows, such as one that shows the progress, do not count.
void FocusReturn::followFocus(QWidget* to)
{
    if (!m_lost || !to || to->window() != m_lost->window() || to == m_holder)
        return;
    if (m_isBeingDisabled || (m_holder && !canHoldFocus(m_holder)))
        m_holder = to;
    else
        m_lost = nullptr;
}

} // namespace PrintPanels
