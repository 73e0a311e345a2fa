// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_ERRORMESSAGES_H
#define SAMPLEHOST_ERRORMESSAGES_H

#include <QtCore/QString>

namespace SampleHost {

/** The highest number of a print error; the lowest is 0. */
constexpr int lastPrintError = 25;

/**
 * What the host tells its user of a print error: one sentence of what happened and, except for
 * number 0, one of what to do. A number that stands for no error gets a text that says so.
 */
QString printErrorMessage(int number);

} // namespace SampleHost

#endif
