// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/commandline/languages.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QLibraryInfo>
#include <QtCore/QLocale>
#include <QtCore/QSettings>
#include <QtCore/QTranslator>
#include <QtGui/QGuiApplication>

#include <memory>

namespace SampleHost {

namespace {

const QString english = QStringLiteral("en");
const QString panelPrefix = QStringLiteral("printpanels_");
const QString suffix = QStringLiteral(".qm");

/** Installs a translation of one library; it goes with the application. */
bool installFrom(const QStringList& folders, const QString& name)
{
    auto translator = std::make_unique<QTranslator>(QCoreApplication::instance());
    for (const QString& folder : folders) {
        // The full name, because load() would accept a similar language otherwise.
        const QString file = QDir(folder).filePath(name + suffix);
        if (QFile::exists(file) && translator->load(file)) {
            return QCoreApplication::installTranslator(translator.release());
        }
    }
    return false;
}

} // namespace

QStringList Languages::folders()
{
    const QDir program(QCoreApplication::applicationDirPath());
    return {program.filePath(QStringLiteral("translations")),
            program.filePath(QStringLiteral("../translations")),
            program.filePath(QStringLiteral("../share/printpanels/translations"))};
}

QStringList Languages::codes(const QStringList& folders)
{
    QStringList found;
    for (const QString& folder : folders) {
        const QStringList files =
            QDir(folder).entryList({panelPrefix + QLatin1Char('*') + suffix}, QDir::Files);
        for (const QString& file : files) {
            found.append(file.sliced(panelPrefix.size()).chopped(suffix.size()));
        }
    }
    found.removeDuplicates();
    found.removeAll(english);
    found.sort();
    return QStringList{english} + found;
}

QString Languages::ofSystem(const QStringList& userLanguages, const QStringList& codes)
{
    for (const QString& language : userLanguages) {
        // For example "de-Latn-AT".
        const QStringList parts = language.split(QLatin1Char('-'));
        const QString region = parts.constFirst() + QLatin1Char('_') + parts.constLast();
        for (const QString& code : {region, parts.constFirst()}) {
            if (codes.contains(code)) {
                return code;
            }
        }
    }
    return english;
}

bool Languages::install(const QString& code, const QStringList& folders)
{
    if (code == english) {
        return true;
    }
    installFrom({QLibraryInfo::path(QLibraryInfo::TranslationsPath)},
                QStringLiteral("qtbase_") + code);
    installFrom(folders, QStringLiteral("samplehost_") + code);
    const bool installed = installFrom(folders, panelPrefix + code);
    if (installed && QLocale(code).textDirection() == Qt::RightToLeft) {
        QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    }
    return installed;
}

QString Languages::stored()
{
    return QSettings().value(QStringLiteral("view/language")).toString();
}

} // namespace SampleHost
