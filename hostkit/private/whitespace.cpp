// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include <whitespace.h>

#include <algorithm>

bool WhiteSpace::isWhiteSpace(const QString& text)
{
    return std::all_of(text.cbegin(), text.cend(),
                       [](QChar character) { return character.isSpace(); });
}
