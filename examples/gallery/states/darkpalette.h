// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef GALLERY_DARKPALETTE_H
#define GALLERY_DARKPALETTE_H

#include <QtGui/QPalette>

namespace Gallery {

/** The palette of an application with light text on dark grey. */
QPalette darkPalette();

} // namespace Gallery

#endif
