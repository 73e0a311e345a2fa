// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef CUSTOMKIT_APPLICATIONFONT_H
#define CUSTOMKIT_APPLICATIONFONT_H

#include <QtGui/QFont>
#include <QtGui/QGuiApplication>

/** The fonts of the panels. What the bool means is the kit's business; here it tells nothing. */
class ApplicationFont
{
public:
    static QFont getWidgetFont(bool) { return sized(15); }
    static QFont getWidgetFontSmall(bool) { return sized(12); }

private:
    static QFont sized(int pixels)
    {
        QFont font = QGuiApplication::font();
        font.setPixelSize(pixels);
        return font;
    }
};

#endif
