// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "hostilevalues.h"

#include <colormenu.h>

#include <QtCore/QMetaEnum>

#include <limits>

namespace Monkey {

namespace {

constexpr int lowest = std::numeric_limits<int>::min();
constexpr int highest = std::numeric_limits<int>::max();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double infinite = std::numeric_limits<double>::infinity();

const char16_t* const oddTexts[] = {
    u"",
    u" ",
    u"Label printer",
    u"<b>bold</b> &amp; <img src=x>",
    u"a\nb\r\n\tc",
    u"\u202eright to left\u202c",
    u"\u0645\u0631\u062d\u0628\u0627 123",
    u"%1 %2 %n",
    u"&Mnemonic && more",
    u"\xd800 lone surrogate",
    u"e\u0301\u0323\u0301\u0301\u0301",
    u"\U0001F5A8\uFE0F",
    u"No printer",
};

const char* const printerNames[] = {"Alpha", "Beta", "Gamma 300", "alpha", "No printer", "B&eta"};

const char* const colorCodes[] = {"#ffffff", "#000000",     "#dc0b0b", "#fedb00",     "#00FFFF",
                                  "#fffffe", "#FFFFFE",     "#0018a8", "transparent", "blank",
                                  "",        "not a color", "red",     "#12345",      "#80ff0000"};

const char* const recordLists[] = {"1",    "1,4-5,11-20,33", "9-2",   "3,3", "4-4", "1,",
                                   "9999", "20-11",          "12-15", "7",   "",    "2-9999"};

QImage largeImage(RandomSource& random)
{
    // One bit a pixel where both sides are long: this much is a poster in a fine resolution.
    if (random.oneIn(40))
        return QImage(QSize(8000, 8000), QImage::Format_Mono);
    return random.coin() ? QImage(30000, 8, QImage::Format_ARGB32)
                         : QImage(8, 30000, QImage::Format_RGB16);
}

} // namespace

bool Hostile::flag(RandomSource& random)
{
    return random.coin();
}

int Hostile::number(RandomSource& random)
{
    const int odd[] = {lowest, lowest + 1, -99999, -2,    -1,          0,
                       1,      999,        1000,   99999, highest - 1, highest};
    return random.oneIn(3) ? random.pick(odd) : random.between(0, 12);
}

int Hostile::tagMask(RandomSource& random)
{
    return random.oneIn(4) ? number(random) : random.between(0, 15);
}

unsigned char Hostile::byte(RandomSource& random)
{
    const unsigned char values[] = {0, 1, 2, 255};
    return random.pick(values);
}

double Hostile::real(RandomSource& random)
{
    const double odd[] = {notANumber, infinite, -infinite, -1.0,     0.0,
                          -0.0,       1e-300,   1e300,     999999.0, 1000000.0};
    return random.oneIn(3) ? random.pick(odd) : random.between(0, 100000) / 1000.0;
}

QSizeF Hostile::size(RandomSource& random)
{
    const double width = real(random);
    return QSizeF(width, real(random));
}

QString Hostile::text(RandomSource& random)
{
    if (random.oneIn(40))
        return QString(u'a') + QChar(u'\0') + u'b';
    if (random.oneIn(1500))
        return QStringLiteral("<p>long &text \u202e").repeated(60000);
    if (random.oneIn(60))
        return QStringLiteral("word ").repeated(random.between(1, 400));
    return QString::fromUtf16(random.pick(oddTexts));
}

QString Hostile::printer(RandomSource& random)
{
    return random.oneIn(4) ? text(random) : QString::fromLatin1(random.pick(printerNames));
}

QStringList Hostile::printers(RandomSource& random)
{
    int count = random.below(6);
    if (random.oneIn(1500))
        count = 100000;
    else if (random.oneIn(150))
        count = 1000;
    QStringList names;
    names.reserve(count);
    for (int i = 0; i < count; ++i)
        names.append(i < 6 ? printer(random) : QStringLiteral("Printer %1").arg(i));
    return names;
}

QString Hostile::color(RandomSource& random)
{
    return random.oneIn(50) ? text(random) : QString::fromLatin1(random.pick(colorCodes));
}

QStringList Hostile::colors(RandomSource& random)
{
    const int count = random.oneIn(300) ? 1000 : random.below(8);
    QStringList codes;
    for (int i = 0; i < count; ++i)
        codes.append(color(random));
    return codes;
}

QString Hostile::recordList(RandomSource& random)
{
    return random.oneIn(10) ? text(random) : QString::fromLatin1(random.pick(recordLists));
}

QImage Hostile::image(RandomSource& random)
{
    if (random.oneIn(200))
        return largeImage(random);
    if (random.oneIn(6))
        return QImage();
    const QSize sizes[] = {{1, 1}, {1, 300}, {300, 1}, {30, 20}, {200, 100}, {750, 450}};
    const QSize chosen = random.pick(sizes);
    QImage image(chosen, QImage::Format(random.between(1, QImage::NImageFormats - 1)));
    image.fill(random.coin() ? Qt::red : Qt::transparent);
    if (random.oneIn(5))
        image.setDevicePixelRatio(random.coin() ? 2.5 : 0.01);
    return image;
}

JxModuleInfo::JxModuleTypes Hostile::module(RandomSource& random)
{
    // As far as the type goes; what lies beyond is no value of it.
    const int odd[] = {11, 15};
    return JxModuleInfo::JxModuleTypes(random.oneIn(20) ? random.pick(odd) : random.below(11));
}

ColorMenu* Hostile::menu(RandomSource& random)
{
    return random.oneIn(4) ? nullptr : new ColorMenu;
}

} // namespace Monkey
