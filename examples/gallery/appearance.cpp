// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "appearance.h"

#include "states/darkpalette.h"

#include <QtCore/QDir>
#include <QtWidgets/QApplication>

namespace Gallery {

Appearance::Appearance() : m_font(QApplication::font()) {}

void Appearance::setDark(bool dark)
{
    // An empty palette is the style's own.
    QApplication::setPalette(dark ? darkPalette() : QPalette());
}

void Appearance::setRightToLeft(bool on)
{
    QApplication::setLayoutDirection(on ? Qt::RightToLeft : Qt::LeftToRight);
}

void Appearance::setTextSize(int percent)
{
    QFont font = m_font;
    if (font.pixelSize() > 0)
        font.setPixelSize(font.pixelSize() * percent / 100);
    else
        font.setPointSizeF(font.pointSizeF() * percent / 100);
    QApplication::setFont(font);
}

bool Appearance::setLanguage(const QString& code)
{
    QApplication::removeTranslator(&m_translator);
    if (code.isEmpty())
        return true;
    return m_translator.load("printpanels_" + code, TRANSLATIONS) &&
           QApplication::installTranslator(&m_translator);
}

QStringList Appearance::languages() const
{
    QStringList codes;
    const QString prefix = "printpanels_";
    const QStringList files = QDir(TRANSLATIONS).entryList({prefix + "*.qm"}, QDir::Files);
    for (const QString& file : files)
        codes.append(file.mid(prefix.size()).chopped(3));
    return codes;
}

} // namespace Gallery
