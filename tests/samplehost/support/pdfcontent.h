// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PDFCONTENT_H
#define PDFCONTENT_H

#include <QtCore/QByteArray>
#include <QtCore/QFile>
#include <QtCore/QRegularExpression>

/**
 * A PDF file without what differs each time it is printed: its dates and its identifier. Two files
 * with the same content look alike and have the same text. Empty when it cannot be read.
 */
inline QByteArray pdfContent(const QString& path)
{
    static const QRegularExpression variable(
        QStringLiteral("D:\\d{14}[-+Z'\\d]*|/ID\\s*\\[.*?\\]|<xmp:\\w+Date>.*?<"),
        QRegularExpression::DotMatchesEverythingOption);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return QByteArray();
    }
    return QString::fromLatin1(file.readAll()).replace(variable, QString()).toLatin1();
}

#endif
