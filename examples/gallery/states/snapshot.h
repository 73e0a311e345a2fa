// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef GALLERY_SNAPSHOT_H
#define GALLERY_SNAPSHOT_H

#include <QtGui/QImage>

namespace Gallery {

struct PanelState;

/** Shows a state in a window of its own for a moment; returns what it looks like. */
QImage snapshot(const PanelState& state);

} // namespace Gallery

#endif
