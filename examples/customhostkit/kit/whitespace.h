// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef CUSTOMKIT_WHITESPACE_H
#define CUSTOMKIT_WHITESPACE_H

#include <QtCore/QString>

/** What counts as an empty entry. */
class WhiteSpace
{
public:
    static bool isWhiteSpace(const QString& text) { return text.trimmed().isEmpty(); }
};

#endif
