// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_ERRORMESSAGES_H
#define SAMPLEHOST_ERRORMESSAGES_H

#include <QtCore/QString>

namespace SampleHost {

/** The highest number of a print error; the lowest is 0. */
constexpr int lastPrintError = 25;

/**
 * The text of a print error for the user: what happened and, except for number 0, what to do. For
 * an unknown number, the text says so.
 */
QString printErrorMessage(int number);

} // namespace SampleHost

#endif
