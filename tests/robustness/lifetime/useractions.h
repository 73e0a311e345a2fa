// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef USERACTIONS_H
#define USERACTIONS_H

#include <QtCore/QList>
#include <QtCore/QPointer>
#include <QtWidgets/QWidget>

#include <functional>

/** Something that a user does to a panel in an active window, and the signal that tells of it. */
struct UserAction
{
    const char* name;
    /** Builds the panel that the action is done to. */
    QWidget* (*create)();
    /** The object that emits, found by name in what create() built; empty for that itself. */
    const char* emitter;
    /** SIGNAL() text. */
    const char* signal;
    /** May find the panel deleted between any two of its steps. */
    std::function<void(const QPointer<QWidget>&)> act;
    /** Whether the signal reports the click of a button. Its handler may delete at once. */
    bool clicksAButton = false;
};

/** What emits the signal of @p action: @p panel, which the action built, or a part of it. */
QWidget* emitterOf(const UserAction& action, QWidget& panel);

/** For every signal of every panel, every way in which a user can cause it. */
QList<UserAction> userActions();

#endif
