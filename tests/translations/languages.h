// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef LANGUAGES_H
#define LANGUAGES_H

#include <QtCore/QStringList>
#include <QtCore/QTranslator>

#include <memory>

/** Every language with a file of translations, English as "en" and "pseudo". */
QStringList languages();

/** Translates into @p language during its lifetime. */
class Language
{
    Q_DISABLE_COPY_MOVE(Language)

public:
    explicit Language(const QString& language);
    ~Language();

    /** Returns false if the texts stay English because the file cannot be read. */
    bool isInstalled() const { return m_isInstalled; }

private:
    std::unique_ptr<QTranslator> m_translator;
    bool m_isInstalled = false;
};

#endif
