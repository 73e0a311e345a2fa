// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PANELSINUSE_H
#define PANELSINUSE_H

#include <QtCore/QList>
#include <QtWidgets/QWidget>

#include <functional>

/** Something that a user has begun on a panel in an active window, and not ended. */
struct PanelInUse
{
    const char* name;
    /** Builds the panel. */
    QWidget* (*create)();
    std::function<void(QWidget&)> begin;
    std::function<bool(const QWidget&)> isGoingOn;
    /** Whether begin() runs an event loop until it has ended. */
    bool loops = false;
};

/** Lists and menus that are open, tool tips that are shown, buttons and drags that are held. */
QList<PanelInUse> panelsInUse();

#endif
