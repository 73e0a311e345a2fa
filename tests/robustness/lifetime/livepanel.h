// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef LIVEPANEL_H
#define LIVEPANEL_H

#include "support/panelfixture.h"

#include <QtCore/QStringList>
#include <QtWidgets/QWidget>

// Panels on which everything can be done, on the heap because their host may delete them at any
// time. They are not shown yet.
QWidget* newPrintPanel();
QWidget* newQuickPanel();
QWidget* newMultiPagePanel();
/** With a multi-page panel in it. */
QWidget* newMultiPageDialog();
QWidget* newPreviewPopup();

/** A panel, or a window around one. */
struct PanelKind
{
    const char* name;
    QWidget* (*create)();
};

/** One for each of the functions above. */
QList<PanelKind> panelKinds();

/** A window of a host that holds @p panel two levels down. */
QWidget* newWindowAround(QWidget* panel);

/** Class names of what is alive once all that was to be deleted later is deleted. */
QStringList widgetsLeft();

/** Deletes whatever a failed test left, so that it does not make others fail. */
void deleteWidgetsLeft();

#endif
