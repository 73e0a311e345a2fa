// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_LANGUAGES_H
#define SAMPLEHOST_LANGUAGES_H

#include <QtCore/QStringList>

namespace SampleHost {

/** The languages of the program: English, and those that the panels are translated to. */
namespace Languages {

/** Where translations are searched: beside the program, in the build tree and installed. */
QStringList folders();

/** The codes of all languages, such as "de", with "en" first. */
QStringList codes(const QStringList& folders = Languages::folders());

/** The first of the user's languages that is among the codes; "en" if none is. */
QString ofSystem(const QStringList& userLanguages, const QStringList& codes);

/**
 * Translates what is created from now on: the panels, the program and Qt itself, as far as there
 * are translations. Languages written from right to left turn the layouts. Returns false if the
 * panels have no translation; English needs none.
 */
bool install(const QString& code, const QStringList& folders = Languages::folders());

/** The code that the user has chosen for the next start; empty for that of the system. */
QString stored();

} // namespace Languages

} // namespace SampleHost

#endif
