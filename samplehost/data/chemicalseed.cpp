// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/data/chemicalseed.h"

#include <QtCore/QFile>

namespace SampleHost {

namespace {

constexpr qsizetype columnCount = 8;

QString value(const QString& column)
{
    const QString text = column.trimmed();
    return text == QLatin1String("-") ? QString() : text;
}

QStringList codes(const QString& column)
{
    return value(column).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

Chemical fromColumns(const QStringList& columns)
{
    return {value(columns.at(0)), value(columns.at(1)), value(columns.at(2)), value(columns.at(3)),
            value(columns.at(4)), codes(columns.at(5)), codes(columns.at(6)), codes(columns.at(7))};
}

} // namespace

QList<Chemical> ChemicalSeed::load()
{
    QFile file(QStringLiteral(":/samplehost/seed/chemicals.tsv"));
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    return parse(file.readAll());
}

QList<Chemical> ChemicalSeed::parse(const QByteArray& table, QList<int>* badLines)
{
    QList<Chemical> chemicals;
    const QStringList lines = QString::fromUtf8(table).split(QLatin1Char('\n'));
    for (qsizetype i = 1; i < lines.size(); ++i) {
        if (lines.at(i).trimmed().isEmpty()) {
            continue;
        }
        const QStringList columns = lines.at(i).split(QLatin1Char('\t'));
        if (columns.size() == columnCount) {
            chemicals.append(fromColumns(columns));
        } else if (badLines) {
            badLines->append(static_cast<int>(i + 1));
        }
    }
    return chemicals;
}

} // namespace SampleHost
