// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PANELDOCUMENT_H
#define PANELDOCUMENT_H

#include <QtCore/QString>

namespace Gallery {
struct PanelState;
}

/// The documentation of the panels: text, and tables of their states between the comments
/// "<!-- states of CLASS -->" and "<!-- end of states -->".
/// @{

/** Returns @p document with the tables made anew; all else stays as it is. */
QString withStates(const QString& document, const QList<Gallery::PanelState>& states);

/** The classes whose states @p document has a table for, in its order. */
QStringList documentedPanels(const QString& document);

/** The pictures that @p document shows, as it names them. */
QStringList shownPictures(const QString& document);

/// @}

#endif
