// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/data/statements.h"

#include <QtCore/QFile>
#include <QtCore/QHash>

namespace SampleHost {

namespace {

QHash<QString, QString> readWordings()
{
    QHash<QString, QString> wordings;
    QFile file(QStringLiteral(":/samplehost/seed/statements.tsv"));
    if (!file.open(QIODevice::ReadOnly)) {
        return wordings;
    }
    const QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
    // The first line holds the titles.
    for (qsizetype i = 1; i < lines.size(); ++i) {
        const qsizetype tab = lines.at(i).indexOf(QLatin1Char('\t'));
        if (tab > 0) {
            wordings.insert(lines.at(i).left(tab), lines.at(i).mid(tab + 1).trimmed());
        }
    }
    return wordings;
}

} // namespace

QString statementWording(const QString& code)
{
    static const QHash<QString, QString> wordings = readWordings();
    return wordings.value(code);
}

QStringList statementLines(const QStringList& codes)
{
    QStringList lines;
    lines.reserve(codes.size());
    for (const QString& code : codes) {
        const QString wording = statementWording(code);
        lines.append(wording.isEmpty() ? code : code + QLatin1Char(' ') + wording);
    }
    return lines;
}

} // namespace SampleHost
