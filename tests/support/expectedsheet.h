// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef EXPECTEDSHEET_H
#define EXPECTEDSHEET_H

#include <QtCore/QString>

/** The text that the style sheet with this role must have; "no such sheet" if it cannot be read. */
QString expectedSheet(const char* role);

#endif
