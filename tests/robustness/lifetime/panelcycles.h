// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PANELCYCLES_H
#define PANELCYCLES_H

#include <QtCore/QList>

/** The life of a panel: created, shown, used a little and destroyed. */
struct PanelCycle
{
    const char* name;
    void (*run)();
};

/** One for each panel, two where the panel is deleted in a handler, one for the kit. */
QList<PanelCycle> panelCycles();

/** Runs @p cycle this often, with all that was to be deleted later deleted after each. */
void runCycles(const PanelCycle& cycle, int times);

#endif
