// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_HOSTKIT_APPLICATIONFONT_H
#define PRINTPANELS_HOSTKIT_APPLICATIONFONT_H

#include <hostkit_export.h>

#include <QtGui/QFont>

/** The fonts of the host application's panels, in the family of QGuiApplication::font(). */
class HOSTKIT_EXPORT ApplicationFont
{
public:
    ApplicationFont() = delete;

    /**
     * The font of labels, buttons and entries, of a size for rows 35 pixels high: 15 pixels for a
     * @p prominent widget, 14 for others.
     */
    static QFont getWidgetFont(bool prominent);

    /** The font of side information: 13 pixels for a @p prominent widget, 12 for others. */
    static QFont getWidgetFontSmall(bool prominent);
};

#endif
