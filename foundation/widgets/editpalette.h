// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_EDITPALETTE_H
#define PRINTPANELS_EDITPALETTE_H

class QPalette;

namespace PrintPanels {

/**
 * The colours in which an edit differs from the palette @p shown around it, for hosts that do not
 * set them: a disabled edit looks disabled, and example texts and selected text can be read.
 */
QPalette editPalette(const QPalette& shown);

} // namespace PrintPanels

#endif
