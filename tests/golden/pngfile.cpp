// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "golden/pngfile.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QHash>
#include <QtCore/QtEndian>

namespace {

constexpr int maxColors = 256;
constexpr char colorTable = 3;
constexpr char redGreenBlue = 2;

QByteArray number(quint32 value)
{
    QByteArray bytes(4, '\0');
    qToBigEndian(value, bytes.data());
    return bytes;
}

quint32 checksum(const QByteArray& bytes)
{
    quint32 sum = 0xffffffff;
    for (const char byte : bytes) {
        sum ^= quint8(byte);
        for (int bit = 0; bit < 8; ++bit)
            sum = (sum >> 1) ^ ((sum & 1) != 0 ? 0xedb88320 : 0);
    }
    return ~sum;
}

QByteArray chunk(const char* type, const QByteArray& data)
{
    const QByteArray content = type + data;
    return number(quint32(data.size())) + content + number(checksum(content));
}

// The PNG compression is zlib's, for which Qt has a function. It puts the size before.
QByteArray compressed(const QByteArray& lines)
{
    return qCompress(lines, 9).mid(4);
}

const QRgb* lineOf(const QImage& picture, int y)
{
    return reinterpret_cast<const QRgb*>(picture.constScanLine(y));
}

/** The colours of a picture in the order of their first use; more than maxColors if there are. */
QHash<QRgb, int> colorsOf(const QImage& picture)
{
    QHash<QRgb, int> colors;
    for (int y = 0; y < picture.height() && colors.size() <= maxColors; ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (!colors.contains(lineOf(picture, y)[x]))
                colors.insert(lineOf(picture, y)[x], int(colors.size()));
        }
    }
    return colors;
}

void append(QByteArray& bytes, QRgb color)
{
    bytes.append(char(qRed(color))).append(char(qGreen(color))).append(char(qBlue(color)));
}

QByteArray palette(const QHash<QRgb, int>& colors)
{
    QList<QRgb> table(colors.size());
    for (auto color = colors.cbegin(); color != colors.cend(); ++color)
        table[color.value()] = color.key();
    QByteArray bytes;
    for (const QRgb color : std::as_const(table))
        append(bytes, color);
    return bytes;
}

QByteArray pixels(const QImage& picture, const QHash<QRgb, int>& colors, bool indexed)
{
    QByteArray lines;
    for (int y = 0; y < picture.height(); ++y) {
        lines.append('\0'); // not filtered
        for (int x = 0; x < picture.width(); ++x) {
            const QRgb color = lineOf(picture, y)[x];
            if (indexed)
                lines.append(char(colors.value(color)));
            else
                append(lines, color);
        }
    }
    return compressed(lines);
}

QByteArray encoded(const QImage& picture)
{
    const QHash<QRgb, int> colors = colorsOf(picture);
    const bool indexed = colors.size() <= maxColors;
    QByteArray png("\x89PNG\r\n\x1a\n");
    const char form[] = {8, indexed ? colorTable : redGreenBlue, 0, 0, 0};
    png += chunk("IHDR", number(quint32(picture.width())) + number(quint32(picture.height())) +
                             QByteArray(form, sizeof form));
    for (const QString& key : picture.textKeys())
        png += chunk("tEXt", key.toLatin1() + '\0' + picture.text(key).toLatin1());
    if (indexed)
        png += chunk("PLTE", palette(colors));
    return png + chunk("IDAT", pixels(picture, colors, indexed)) + chunk("IEND", QByteArray());
}

} // namespace

bool savePng(const QImage& picture, const QString& path)
{
    QFile file(path);
    const QByteArray bytes = encoded(picture.convertToFormat(QImage::Format_RGB32));
    return QDir().mkpath(QFileInfo(path).path()) && file.open(QIODevice::WriteOnly) &&
           file.write(bytes) == bytes.size();
}
