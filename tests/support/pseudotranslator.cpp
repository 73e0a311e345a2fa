// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "support/pseudotranslator.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QStringList>

namespace {

// As wide as the plain letters, and some of them taller.
QChar accented(QChar letter)
{
    static const QString plain = QStringLiteral("ACDEGIKLNORSTUWYZacdeghijklnorstuwyz");
    static const QString accents = QStringLiteral("ÅÇĎÉĞÎĶĻÑÖŘŠŤÛŴÝŽåçďéğĥîĵķļñöřšťûŵýž");
    const qsizetype index = plain.indexOf(letter);
    return index < 0 ? letter : accents.at(index);
}

QRegularExpression placeMarker()
{
    return QRegularExpression(QStringLiteral("%(L?\\d{1,2}|n)"));
}

// The line with accents, and the letters that make it longer.
QString longer(const QString& line)
{
    const QString letters = QString(line).remove(placeMarker()).remove(u'&').simplified();
    QString result;
    for (qsizetype i = 0; i < line.size();) {
        const auto marker = placeMarker().match(line, i, QRegularExpression::NormalMatch,
                                                QRegularExpression::AnchorAtOffsetMatchOption);
        result += marker.hasMatch() ? marker.captured() : QString(accented(line.at(i)));
        i += marker.hasMatch() ? marker.capturedLength() : 1;
    }
    if (letters.isEmpty())
        return result;
    const qsizetype more = (line.size() * 4 + 9) / 10;
    for (qsizetype i = 0; i < more; ++i)
        result += accented(letters.at(i % letters.size()));
    return result;
}

bool isQtsOwn(const QByteArray& context)
{
    return context.size() > 1 && context.at(0) == 'Q' && context != "QObject" &&
           (context.at(1) == 't' || QChar::fromLatin1(context.at(1)).isUpper());
}

} // namespace

QString PseudoTranslator::pseudo(const QString& text)
{
    const QString core = text.trimmed();
    if (core.isEmpty())
        return text;
    QStringList lines;
    for (const QString& line : core.split(u'\n'))
        lines.append(longer(line));
    const qsizetype start = text.indexOf(core);
    return text.left(start) + u'[' + lines.join(u'\n') + u']' + text.mid(start + core.size());
}

QString PseudoTranslator::translate(const char* context, const char* text, const char*, int) const
{
    return isQtsOwn(context) ? QString() : pseudo(QString::fromUtf8(text));
}
