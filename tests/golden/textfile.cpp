// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "golden/textfile.h"

#include <QtCore/QFile>

bool isRenewing()
{
    return qEnvironmentVariableIsSet("GOLDEN_UPDATE");
}

QString readText(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

bool renewText(const QString& path, const QString& text)
{
    if (readText(path) == text)
        return true;
    QFile file(path);
    const QByteArray bytes = text.toUtf8();
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}
