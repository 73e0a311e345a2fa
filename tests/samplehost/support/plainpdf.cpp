// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/support/plainpdf.h"

#include <QtCore/QFile>
#include <QtCore/QRegularExpression>
#include <QtCore/QtEndian>

#include <algorithm>

namespace {

/** The first text that a pattern captures; empty without a match. */
QString captured(const QByteArray& text, const QString& pattern)
{
    return QRegularExpression(pattern).match(QString::fromLatin1(text)).captured(1);
}

/** The numbers of objects that a text refers to. */
QList<int> references(const QString& text)
{
    static const QRegularExpression reference(QStringLiteral("(\\d+) 0 R"));
    QList<int> numbers;
    for (const QRegularExpressionMatch& match : reference.globalMatch(text)) {
        numbers.append(match.captured(1).toInt());
    }
    return numbers;
}

/** The characters that hexadecimal digits, four to each, stand for. */
QString decoded(const QString& hex)
{
    const QByteArray bytes = QByteArray::fromHex(hex.toLatin1());
    QString text;
    for (qsizetype i = 0; i + 1 < bytes.size(); i += 2) {
        text.append(QChar(qFromBigEndian<quint16>(bytes.constData() + i)));
    }
    return text;
}

} // namespace

PlainPdf::PlainPdf(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || !readTable(file.readAll()) || !readPages()) {
        m_pages.clear();
    }
}

bool PlainPdf::readTable(const QByteArray& file)
{
    static const QRegularExpression end(
        QStringLiteral("/Root (\\d+) 0 R\\s*>>\\s*startxref\\s+(\\d+)\\s+%%EOF\\s*$"));
    const auto match = end.match(QString::fromLatin1(file.right(200)));
    const qsizetype table = match.captured(2).toLongLong();
    const qsizetype firstLine = file.indexOf("\n", file.indexOf("\n", table) + 1) + 1;
    const int count = captured(file.mid(table, 40), QStringLiteral("^xref\\s+0 (\\d+)\\s")).toInt();
    constexpr qsizetype lineLength = 20;
    QList<std::pair<qsizetype, int>> places{{table, 0}};
    for (int object = 1; object < count; ++object) {
        const QByteArray line = file.mid(firstLine + object * lineLength, lineLength);
        if (line.mid(17, 1) == "n") {
            places.append({line.left(10).toLongLong(), object});
        }
    }
    std::sort(places.begin(), places.end());
    for (qsizetype i = 0; i + 1 < places.size(); ++i) {
        const auto [start, object] = places.at(i);
        const QByteArray head = QByteArray::number(object) + " 0 obj\n";
        if (file.mid(start, head.size()) != head) {
            return false;
        }
        m_objects.insert(object, file.mid(start, places.at(i + 1).first - start));
    }
    m_root = match.captured(1).toInt();
    return match.hasMatch() && !m_objects.isEmpty();
}

bool PlainPdf::readPages()
{
    const QByteArray tree = dictionary(reference(m_root, "Pages"));
    m_pages = references(captured(tree, QStringLiteral("/Kids\\s*\\[([^]]*)\\]")));
    if (captured(tree, QStringLiteral("/Count (\\d+)")).toInt() != int(m_pages.size())) {
        return false;
    }
    for (qsizetype page = 0; page < m_pages.size(); ++page) {
        if (!dictionary(m_pages.at(page)).contains("/Type /Page\n") || pageSize(page).isEmpty()) {
            return false;
        }
    }
    return true;
}

QByteArray PlainPdf::dictionary(int object) const
{
    const QByteArray bytes = m_objects.value(object);
    const qsizetype end = bytes.indexOf("\nstream\n");
    return end < 0 ? bytes : bytes.left(end);
}

int PlainPdf::reference(int object, const char* key) const
{
    return captured(dictionary(object), QStringLiteral("/%1 (\\d+) 0 R").arg(QLatin1String(key)))
        .toInt();
}

QByteArray PlainPdf::stream(int object) const
{
    const QByteArray head = "\nstream\n";
    const QByteArray bytes = m_objects.value(object);
    const qsizetype start = bytes.indexOf(head) + head.size();
    // The length is in another object if it was not known yet.
    const int lengthObject = reference(object, "Length");
    const int length =
        lengthObject != 0
            ? captured(m_objects.value(lengthObject), QStringLiteral("obj\\s+(\\d+)")).toInt()
            : captured(dictionary(object), QStringLiteral("/Length (\\d+)")).toInt();
    const QByteArray data = bytes.mid(start, length);
    if (!dictionary(object).contains("/Filter /FlateDecode")) {
        return data;
    }
    // qUncompress() wants the size first; it takes a size that is too small as a hint.
    return qUncompress(QByteArray(4, '\0') + data);
}

PlainPdfText::Characters PlainPdf::characters(int font) const
{
    static const QRegularExpression range(
        QStringLiteral("<(\\w+)> <(\\w+)> (?:<(\\w+)>|\\[([^]]*)\\])"));
    static const QRegularExpression entry(QStringLiteral("<(\\w+)>"));
    PlainPdfText::Characters characters;
    const QString map = QString::fromLatin1(stream(reference(font, "ToUnicode")));
    const qsizetype start = map.indexOf(QLatin1String("beginbfrange"));
    for (const QRegularExpressionMatch& match : range.globalMatch(map, qMax<qsizetype>(0, start))) {
        uint glyph = match.captured(1).toUInt(nullptr, 16);
        for (const QRegularExpressionMatch& text : entry.globalMatch(match.captured(4))) {
            characters.insert(glyph++, decoded(text.captured(1)));
        }
        if (match.hasCaptured(3)) {
            const uint last = match.captured(2).toUInt(nullptr, 16);
            for (uint offset = 0; glyph + offset <= last; ++offset) {
                const uint character = match.captured(3).toUInt(nullptr, 16) + offset;
                characters.insert(glyph + offset, QString(QChar(char16_t(character))));
            }
        }
    }
    return characters;
}

PlainPdfText::Fonts PlainPdf::fonts(int page) const
{
    static const QRegularExpression entry(QStringLiteral("(/\\w+) (\\d+) 0 R"));
    PlainPdfText::Fonts fonts;
    const QString list =
        captured(dictionary(reference(page, "Resources")), QStringLiteral("/Font\\s*<<([^>]*)>>"));
    for (const QRegularExpressionMatch& match : entry.globalMatch(list)) {
        fonts.insert(match.captured(1), characters(match.captured(2).toInt()));
    }
    return fonts;
}

QStringList PlainPdf::texts() const
{
    QStringList texts;
    for (const int page : m_pages) {
        const PlainPdfText::Fonts used = fonts(page);
        texts.append(PlainPdfText(used, stream(reference(page, "Contents"))).text());
    }
    return texts;
}

QSizeF PlainPdf::pageSize(qsizetype page0) const
{
    static const QRegularExpression box(
        QStringLiteral("/MediaBox \\[0 0 ([\\d.]+) ([\\d.]+)\\s*\\]"));
    const auto match = box.match(QString::fromLatin1(dictionary(m_pages.value(page0))));
    return {match.captured(1).toDouble(), match.captured(2).toDouble()};
}
