// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_WINDOWSTATE_H
#define SAMPLEHOST_WINDOWSTATE_H

#include <QtCore/QRect>

class QMainWindow;

namespace SampleHost {

/** What the next start needs to know of the window: where it stood, and its docks. */
namespace WindowState {

/** The rectangle nearest to the wanted one that lies inside the available one. */
QRect inside(const QRect& wanted, const QRect& available);

/**
 * Brings a window that is not shown yet where store() found the last one, but inside the available
 * part of the screen, which it fills if that is too small for it. Stored values that make no sense
 * are ignored.
 */
void restore(QMainWindow& window, const QRect& available);

/** Stores the state of a window. Returns false if that fails. */
bool store(const QMainWindow& window);

} // namespace WindowState

} // namespace SampleHost

#endif
