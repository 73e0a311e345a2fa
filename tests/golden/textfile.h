// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef TEXTFILE_H
#define TEXTFILE_H

#include <QtCore/QString>

/** Whether the tests renew what they would compare with. */
bool isRenewing();

/** The text of a file; empty if it cannot be read. */
QString readText(const QString& file);
/** Writes a text file unless it has this text. Returns whether the file has it now. */
bool renewText(const QString& file, const QString& text);

#endif
