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
    const char* sender;
    /** SIGNAL() text. */
    const char* signal;
    /** May find the panel deleted between any two of its steps. */
    std::function<void(const QPointer<QWidget>&)> act;
    /** Whether the window loses the keyboard by it. Qt goes on with a window that does. */
    bool leavesWindow = false;
};

/** For every signal of every panel, every way in which a user can cause it. */
QList<UserAction> userActions();

#endif
