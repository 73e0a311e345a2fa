// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef GALLERY_APPEARANCE_H
#define GALLERY_APPEARANCE_H

#include <QtCore/QStringList>
#include <QtCore/QTranslator>
#include <QtGui/QFont>

namespace Gallery {

/** How the application looks and what language its panels speak. */
class Appearance
{
public:
    Appearance();

    void setDark(bool dark);
    void setRightToLeft(bool on);
    /** Sets the size of texts, in percent of the application's. */
    void setTextSize(int percent);
    /** Sets the panels' language, such as "de"; empty for English. False if it is not known. */
    bool setLanguage(const QString& code);
    /** The languages that the panels are translated into. */
    QStringList languages() const;

private:
    QFont m_font;
    QTranslator m_translator;
};

} // namespace Gallery

#endif
