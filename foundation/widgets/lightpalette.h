// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_LIGHTPALETTE_H
#define PRINTPANELS_LIGHTPALETTE_H

class QComboBox;
class QWidget;

namespace PrintPanels {

/**
 * Gives a widget whose ground a style sheet makes light, and the widgets on it, colours that can be
 * read there, whatever the application's palette is. A host's own sheet still wins where it names
 * colours.
 */
void setLightPalette(QWidget* ground);

/** The same for a white combo box and its list. */
void setLightPalette(QComboBox* combo);

} // namespace PrintPanels

#endif
