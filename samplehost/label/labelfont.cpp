// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/label/labelfont.h"

#include <QtCore/QStringList>

namespace SampleHost {

QFont labelFont()
{
    // Which font a general name such as "Sans Serif" stands for depends on the user's language.
    QFont font(QStringList{QStringLiteral("DejaVu Sans"), QStringLiteral("Liberation Sans"),
                           QStringLiteral("Arial"), QStringLiteral("Helvetica")});
    font.setStyleHint(QFont::SansSerif);
    // A painter replaces whatever is not set by that of the application's font.
    font.setWeight(QFont::Normal);
    font.setStyle(QFont::StyleNormal);
    font.setStretch(QFont::Unstretched);
    font.setUnderline(false);
    font.setStrikeOut(false);
    font.setCapitalization(QFont::MixedCase);
    // Hinting rounds the widths of glyphs to the pixels of a device, but lines must break at the
    // same places on all devices.
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

} // namespace SampleHost
