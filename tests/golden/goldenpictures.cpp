// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "golden/goldenpictures.h"

#include "golden/pngfile.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtGui/QPainter>

#include <cstring>

namespace {

// What a strip's file says of the picture that it is a part of.
const QString baseKey = QStringLiteral("base");
const QString aboveKey = QStringLiteral("above");
const QString belowKey = QStringLiteral("below");

QImage plain(const QImage& picture)
{
    QImage image = picture.convertToFormat(QImage::Format_RGB32);
    image.setDevicePixelRatio(1);
    return image;
}

bool sameLine(const QImage& a, int lineOfA, const QImage& b, int lineOfB)
{
    return std::memcmp(a.constScanLine(lineOfA), b.constScanLine(lineOfB),
                       size_t(a.width()) * sizeof(QRgb)) == 0;
}

/** How many lines picture @e a has from @e b at the top, and how many others at the bottom. */
struct SharedLines
{
    SharedLines(const QImage& a, const QImage& b);

    int above = 0;
    int below = 0;
};

SharedLines::SharedLines(const QImage& a, const QImage& b)
{
    if (a.width() != b.width())
        return;
    // At least one line is left for the strip.
    const int most = qMin(a.height() - 1, b.height());
    while (above < most && sameLine(a, above, b, above))
        ++above;
    while (above + below < most && sameLine(a, a.height() - 1 - below, b, b.height() - 1 - below))
        ++below;
}

QImage lines(const QImage& picture, int from, int count)
{
    return picture.copy(0, from, picture.width(), count);
}

} // namespace

QString GoldenPictures::file(const QString& name) const
{
    return m_folder + u'/' + name + QStringLiteral(".png");
}

QStringList GoldenPictures::names() const
{
    QStringList names =
        QDir(m_folder).entryList({QStringLiteral("*.png")}, QDir::Files, QDir::Name);
    for (QString& name : names)
        name.chop(4);
    return names;
}

bool GoldenPictures::remove(const QString& name) const
{
    return QFile::remove(file(name));
}

QImage GoldenPictures::load(const QString& name) const
{
    return load(name, 0);
}

QImage GoldenPictures::load(const QString& name, int depth) const
{
    const QImage strip = QImage(file(name));
    const QString baseName = strip.text(baseKey);
    if (strip.isNull() || baseName.isEmpty())
        return plain(strip);
    constexpr int maxDepth = 100; // files that name each other
    const QImage base = depth < maxDepth ? load(baseName, depth + 1) : QImage();
    const int above = strip.text(aboveKey).toInt();
    const int below = strip.text(belowKey).toInt();
    if (base.width() != strip.width() || base.height() < above + below)
        return QImage();
    QImage whole(strip.width(), above + strip.height() + below, QImage::Format_RGB32);
    QPainter painter(&whole);
    painter.drawImage(0, 0, lines(base, 0, above));
    painter.drawImage(0, above, plain(strip));
    painter.drawImage(0, above + strip.height(), lines(base, base.height() - below, below));
    return whole;
}

QImage GoldenPictures::stripOf(const QString& group, const QImage& picture) const
{
    QImage strip = picture;
    for (const Earlier& earlier : m_earlier) {
        const SharedLines shared(picture, earlier.picture);
        const int height = picture.height() - shared.above - shared.below;
        if (earlier.group != group || height >= strip.height())
            continue;
        strip = lines(picture, shared.above, height);
        strip.setText(baseKey, earlier.name);
        strip.setText(aboveKey, QString::number(shared.above));
        strip.setText(belowKey, QString::number(shared.below));
    }
    return strip;
}

bool GoldenPictures::renew(const QString& group, const QString& name, const QImage& picture)
{
    const QImage whole = plain(picture);
    const QImage strip = m_kind == Strips ? stripOf(group, whole) : whole;
    if (m_kind == Strips)
        m_earlier.append({group, name, whole});
    const QImage saved(file(name));
    bool same = !saved.isNull() && plain(saved) == plain(strip);
    for (const QString& key : {baseKey, aboveKey, belowKey})
        same = same && saved.text(key) == strip.text(key);
    return same || savePng(strip, file(name));
}
