// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_HOSTKIT_APPLICATIONFONT_H
#define PRINTPANELS_HOSTKIT_APPLICATIONFONT_H

#include <hostkit_export.h>

#include <QtGui/QFont>

/** The fonts of the host application's panels, based on QGuiApplication::font(). */
class HOSTKIT_EXPORT ApplicationFont
{
public:
    ApplicationFont() = delete;

    /**
     * Returns the font for labels, buttons and input fields in rows 35 pixels high. Its size is 15
     * pixels if @p prominent is true, otherwise 14 pixels.
     */
    static QFont getWidgetFont(bool prominent);

    /**
     * Returns the font for secondary text. Its size is 13 pixels if @p prominent is true, otherwise
     * 12 pixels.
     */
    static QFont getWidgetFontSmall(bool prominent);
};

#endif
