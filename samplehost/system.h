// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_SYSTEM_H
#define SAMPLEHOST_SYSTEM_H

#include <QtCore/QString>

#include <cstdio>

namespace SampleHost {

/**
 * Chooses the platform plugin for a run with or without a user. Called before the application
 * object is created.
 */
void choosePlatform(bool headless);

/** Closes the console window if it was opened only for this program, which has a user's window. */
void closeOwnConsole();

/** Writes a line to stdout or stderr. */
void printLine(std::FILE* stream, const QString& text);

} // namespace SampleHost

#endif
