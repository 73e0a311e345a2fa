// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_HOSTKIT_WHITESPACE_H
#define PRINTPANELS_HOSTKIT_WHITESPACE_H

#include <hostkit_export.h>

#include <QtCore/QString>

/** The host application's test for blank texts. */
class HOSTKIT_EXPORT WhiteSpace
{
public:
    WhiteSpace() = delete;

    /** Returns true if @p text is empty or consists of white space only; see QChar::isSpace(). */
    static bool isWhiteSpace(const QString& text);
};

#endif
