// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "languages.h"

#include "support/pseudotranslator.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>

QStringList languages()
{
    QStringList names = {QStringLiteral("en"), QStringLiteral("pseudo")};
    const QStringList files = QDir(QStringLiteral(SOURCE_DIR "/translations"))
                                  .entryList({QStringLiteral("printpanels_*.ts")});
    for (const QString& file : files)
        names.append(file.section(u'_', 1).section(u'.', 0, 0));
    return names;
}

Language::Language(const QString& language)
{
    if (language == QLatin1String("en")) {
        m_isInstalled = true;
        return;
    }
    if (language == QLatin1String("pseudo")) {
        m_translator = std::make_unique<PseudoTranslator>();
    } else {
        m_translator = std::make_unique<QTranslator>();
        if (!m_translator->load(QStringLiteral(QM_DIR "/printpanels_%1.qm").arg(language)))
            return;
    }
    m_isInstalled = QCoreApplication::installTranslator(m_translator.get());
}

Language::~Language()
{
    if (m_translator)
        QCoreApplication::removeTranslator(m_translator.get());
}
