// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/window/controlaction.h"

#include <QtCore/QEvent>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QScrollArea>

namespace SampleHost {

void reveal(QWidget& widget)
{
    for (QWidget* parent = widget.parentWidget(); parent != nullptr;
         parent = parent->parentWidget()) {
        if (auto* area = qobject_cast<QScrollArea*>(parent)) {
            area->ensureWidgetVisible(&widget);
        }
    }
}

ControlAction::ControlAction(const QString& text, QObject* parent) : QAction(text, parent)
{
    setEnabled(false);
    connect(this, &QAction::triggered, this, &ControlAction::operate);
}

void ControlAction::setControl(QWidget* control)
{
    if (m_control == control) {
        return;
    }
    if (m_control != nullptr) {
        m_control->removeEventFilter(this);
        m_control->disconnect(this);
    }
    m_control = control;
    if (m_control != nullptr) {
        m_control->installEventFilter(this);
        connect(m_control, &QObject::destroyed, this, [this] { setEnabled(false); });
    }
    joinWindow();
    updateEnabled();
}

void ControlAction::joinWindow()
{
    QWidget* window = m_control != nullptr ? m_control->window() : nullptr;
    if (window == m_window) {
        return;
    }
    if (m_window != nullptr) {
        m_window->removeAction(this);
    }
    m_window = window;
    if (m_window != nullptr) {
        m_window->addAction(this);
    }
}

void ControlAction::updateEnabled()
{
    setEnabled(m_control != nullptr && m_control->isVisible() && m_control->isEnabled());
}

bool ControlAction::eventFilter(QObject* watched, QEvent* event)
{
    const QEvent::Type type = event->type();
    if (type == QEvent::Show) {
        joinWindow();
    }
    if (type == QEvent::Show || type == QEvent::Hide || type == QEvent::EnabledChange) {
        updateEnabled();
    }
    return QAction::eventFilter(watched, event);
}

void ControlAction::operate()
{
    if (m_control == nullptr) {
        return;
    }
    auto* button = qobject_cast<QAbstractButton*>(m_control);
    if (button == nullptr || button->isCheckable()) {
        // A choice, which the user wants to see.
        reveal(*m_control);
    }
    if (button != nullptr) {
        button->click();
    } else if (auto* combo = qobject_cast<QComboBox*>(m_control)) {
        combo->showPopup();
    }
}

} // namespace SampleHost
