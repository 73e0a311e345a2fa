// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "golden/renderer.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QFile>
#include <QtCore/QLibrary>
#include <QtCore/QStringList>

namespace {

const QString unknown = QStringLiteral("unknown");

// Asks the library that the system's Qt uses. A Qt with a FreeType of its own need not have one.
QString freeTypeVersion()
{
    using Init = int (*)(void**);
    using Version = void (*)(void*, int*, int*, int*);
    using Done = int (*)(void*);
    QLibrary library(QStringLiteral("freetype"), 6);
    const auto init = reinterpret_cast<Init>(library.resolve("FT_Init_FreeType"));
    const auto version = reinterpret_cast<Version>(library.resolve("FT_Library_Version"));
    const auto done = reinterpret_cast<Done>(library.resolve("FT_Done_FreeType"));
    void* handle = nullptr;
    if (init == nullptr || version == nullptr || done == nullptr || init(&handle) != 0)
        return unknown;
    int major = 0;
    int minor = 0;
    int patch = 0;
    version(handle, &major, &minor, &patch);
    done(handle);
    return QStringLiteral("%1.%2.%3").arg(major).arg(minor).arg(patch);
}

QString harfBuzzVersion()
{
    using Version = const char* (*)();
    QLibrary library(QStringLiteral("harfbuzz"), 0);
    const auto version = reinterpret_cast<Version>(library.resolve("hb_version_string"));
    return version == nullptr ? unknown : QString::fromLatin1(version());
}

QString fontconfigVersion()
{
    using Version = int (*)();
    QLibrary library(QStringLiteral("fontconfig"), 1);
    const auto version = reinterpret_cast<Version>(library.resolve("FcGetVersion"));
    if (version == nullptr)
        return unknown;
    const int number = version();
    return QStringLiteral("%1.%2.%3").arg(number / 10000).arg(number / 100 % 100).arg(number % 100);
}

// The number of the package says less: it is the same file in many of them.
QString fontDigest()
{
    QFile file(QStringLiteral(GOLDEN_FONT));
    QCryptographicHash hash(QCryptographicHash::Sha256);
    if (!file.open(QIODevice::ReadOnly) || !hash.addData(&file))
        return unknown;
    return QString::fromLatin1(hash.result().toHex());
}

} // namespace

QString rendererDescription()
{
    const QStringList lines = {QStringLiteral("Qt %1").arg(QLatin1String(qVersion())),
                               QStringLiteral("FreeType %1").arg(freeTypeVersion()),
                               QStringLiteral("HarfBuzz %1").arg(harfBuzzVersion()),
                               QStringLiteral("fontconfig %1").arg(fontconfigVersion()),
                               QStringLiteral("DejaVuSans.ttf %1").arg(fontDigest())};
    return lines.join(u'\n') + u'\n';
}
