// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_CAPTION_H
#define PRINTPANELS_CAPTION_H

class QLabel;
class QString;

namespace PrintPanels {

/** A label in the panels' font that names the controls beside or below it. */
QLabel* createCaption(const QString& text);

} // namespace PrintPanels

#endif
