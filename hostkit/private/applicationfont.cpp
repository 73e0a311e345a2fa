// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include <applicationfont.h>

#include <QtGui/QGuiApplication>

namespace {
QFont applicationFont(int pixelSize)
{
    QFont font = QGuiApplication::font();
    font.setPixelSize(pixelSize);
    return font;
}
} // namespace

QFont ApplicationFont::getWidgetFont(bool prominent)
{
    return applicationFont(prominent ? 15 : 14);
}

QFont ApplicationFont::getWidgetFontSmall(bool prominent)
{
    return applicationFont(prominent ? 13 : 12);
}
