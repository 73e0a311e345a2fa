// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef GALLERY_READYPANEL_H
#define GALLERY_READYPANEL_H

#include <printpanels/printwidget.h>

namespace Gallery {

/** The printers that a host offers, in every panel. */
QStringList samplePrinters();

/** A print settings panel of a host with printers and 48 records. The caller owns it. */
PrintWidget* readyPanel(bool testControls = false);

/** The same for the host's module for pipe markers. */
PrintWidget* readyPipePanel();

} // namespace Gallery

#endif
