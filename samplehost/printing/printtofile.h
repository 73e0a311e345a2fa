// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_PRINTTOFILE_H
#define SAMPLEHOST_PRINTTOFILE_H

#include <QtCore/QString>

namespace SampleHost {

/**
 * The next free file that a test print goes to instead of a printer: guest/logs/printTest_001.prn
 * under outputFolder, then 002 and so on. Folders are made as needed. Empty, with the reason in
 * problem, when there is no such file to be had.
 */
QString nextPrintTestFile(const QString& outputFolder, QString& problem);

} // namespace SampleHost

#endif
