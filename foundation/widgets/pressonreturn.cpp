// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "foundation/widgets/pressonreturn.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QPushButton>

namespace PrintPanels {

namespace {

/** The keys that start the default button of a dialog. */
bool isReturn(const QKeyEvent* event)
{
    const Qt::KeyboardModifiers modifiers = event->modifiers();
    return (event->key() == Qt::Key_Return && modifiers == Qt::NoModifier) ||
           (event->key() == Qt::Key_Enter && (modifiers & ~Qt::KeypadModifier) == Qt::NoModifier);
}

} // namespace

PressOnReturn::PressOnReturn(QWidget* panel) : QObject(panel)
{
    const QList<QPushButton*> buttons = panel->findChildren<QPushButton*>();
    for (QPushButton* button : buttons) {
        button->installEventFilter(this);
        // In a host's dialog, Return in an edit must not press a button here.
        button->setAutoDefault(false);
    }
}

// The button gets Space instead, so that it is down while the key is, and repeats if it does so for
// Space. What the keyboard repeats is no press of its own.
bool PressOnReturn::eventFilter(QObject* watched, QEvent* event)
{
    const QEvent::Type type = event->type();
    if (type != QEvent::KeyPress && type != QEvent::KeyRelease)
        return false;
    const auto* key = static_cast<QKeyEvent*>(event);
    if (!isReturn(key))
        return false;
    event->accept();
    if (!key->isAutoRepeat()) {
        QKeyEvent space(type, Qt::Key_Space, Qt::NoModifier, QStringLiteral(" "));
        // Must come last: a handler of the click may delete the panel.
        QCoreApplication::sendEvent(watched, &space);
    }
    return true;
}

} // namespace PrintPanels
