// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_PRINTTOFILE_H
#define SAMPLEHOST_PRINTTOFILE_H

#include <QtCore/QString>

namespace SampleHost {

/**
 * The next unused file for a test print: guest/logs/printTest_001.prn below outputFolder, then 002
 * and so on. Creates the folders. If there is no such file, returns an empty path and sets problem.
 */
QString nextPrintTestFile(const QString& outputFolder, QString& problem);

} // namespace SampleHost

#endif
