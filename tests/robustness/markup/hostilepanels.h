// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef HOSTILEPANELS_H
#define HOSTILEPANELS_H

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtWidgets/QWidget>

#include <memory>

/** A panel with one text in every place where it shows what a host gives it. */
struct HostilePanel
{
    const char* name;
    std::unique_ptr<QWidget> (*create)(const QString& text);
};

/** Every panel, the dialogs and the popup. */
QList<HostilePanel> hostilePanels();

#endif
