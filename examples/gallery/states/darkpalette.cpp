// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "darkpalette.h"

namespace Gallery {

QPalette darkPalette()
{
    const QColor text(0xe6e6e6);
    const QColor disabled(0x808080);
    QPalette palette(text, QColor(0x3c3c3c), QColor(0x606060), QColor(0x1e1e1e), QColor(0x323232),
                     text, Qt::white, QColor(0x232323), QColor(0x2d2d2d));
    palette.setColor(QPalette::AlternateBase, QColor(0x2a2a2a));
    palette.setColor(QPalette::Highlight, QColor(0x2a82da));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::ToolTipBase, QColor(0x3c3c3c));
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::PlaceholderText, QColor(0x9a9a9a));
    palette.setColor(QPalette::Link, QColor(0x6cb4ff));
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, disabled);
    return palette;
}

} // namespace Gallery
