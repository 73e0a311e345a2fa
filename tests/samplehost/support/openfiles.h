// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef TESTS_SAMPLEHOST_OPENFILES_H
#define TESTS_SAMPLEHOST_OPENFILES_H

#include <QtCore/QtGlobal>

/** Whether the system lets a database be renamed, replaced or deleted while it is open. */
#ifdef Q_OS_WIN
constexpr bool openFilesCanBeRemoved = false;
#else
constexpr bool openFilesCanBeRemoved = true;
#endif

#endif
