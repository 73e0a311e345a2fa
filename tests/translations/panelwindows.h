// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PANELWINDOWS_H
#define PANELWINDOWS_H

#include <QtCore/QList>

#include <memory>

class QWidget;

/** One of the library's windows in one of its states. */
struct PanelWindow
{
    const char* name;
    std::unique_ptr<QWidget> (*create)();
    /** How many texts it shows that are not a host's. */
    int texts;
};

/** The popup in all states that show other texts. */
QList<PanelWindow> popupWindows();

/** Every panel and dialog in all states that show other texts. */
QList<PanelWindow> panelsAndDialogs();

#endif
