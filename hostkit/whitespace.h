// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_HOSTKIT_WHITESPACE_H
#define PRINTPANELS_HOSTKIT_WHITESPACE_H

#include <hostkit_export.h>

#include <QtCore/QString>

/** The host application's rule for texts that hold nothing. */
class HOSTKIT_EXPORT WhiteSpace
{
public:
    WhiteSpace() = delete;

    /** True if @p text is empty or every character of it is white space (QChar::isSpace()). */
    static bool isWhiteSpace(const QString& text);
};

#endif
