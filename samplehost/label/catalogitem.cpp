// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/label/catalogitem.h"

namespace SampleHost {

namespace {

const QColor safetyGreen(0x00, 0x84, 0x3d);
const QColor safetyRed(0xc8, 0x10, 0x2e);
const QColor safetyYellow(0xff, 0xd1, 0x00);

// The usual sizes of signs are whole inches: 10 x 7, 10 x 5, 4 x 12, 4 x 4.
constexpr QSizeF mediumSign(254.0, 177.8);
constexpr QSizeF wideSign(254.0, 127.0);
constexpr QSizeF highSign(101.6, 304.8);
constexpr QSizeF squareLabel(101.6, 101.6);

CatalogItem sign(const QString& text, const QString& symbol, const QColor& field,
                 const QColor& legend, const QSizeF& sizeMm)
{
    CatalogItem item;
    item.text = text;
    item.symbol = symbol;
    item.field = field;
    item.legend = legend;
    item.sizeMm = sizeMm;
    return item;
}

CatalogItem warning(const QString& header, const QString& text, const QString& symbol,
                    const QColor& headerField, const QColor& headerLegend)
{
    CatalogItem item = sign(text, symbol, Qt::white, Qt::black, mediumSign);
    item.header = header;
    item.headerField = headerField;
    item.headerLegend = headerLegend;
    return item;
}

CatalogItem hazardLabel(const QString& text, const QString& pictogram)
{
    CatalogItem item = sign(text, QString(), Qt::white, Qt::black, squareLabel);
    item.pictogram = pictogram;
    return item;
}

QList<CatalogItem> makeItems()
{
    return {
        sign(QStringLiteral("EXIT"), QStringLiteral("arrow"), safetyGreen, Qt::white, wideSign),
        sign(QStringLiteral("NO SMOKING"), QStringLiteral("nosmoking"), Qt::white, Qt::black,
             mediumSign),
        sign(QStringLiteral("EYE WASH STATION"), QStringLiteral("eyewash"), safetyGreen, Qt::white,
             mediumSign),
        sign(QStringLiteral("FIRST AID"), QStringLiteral("firstaid"), safetyGreen, Qt::white,
             mediumSign),
        sign(QStringLiteral("FIRE EXTINGUISHER"), QStringLiteral("extinguisher"), safetyRed,
             Qt::white, highSign),
        warning(QStringLiteral("DANGER"), QStringLiteral("HIGH VOLTAGE"),
                QStringLiteral("highvoltage"), safetyRed, Qt::white),
        warning(QStringLiteral("CAUTION"), QStringLiteral("HOT SURFACE"),
                QStringLiteral("hotsurface"), safetyYellow, Qt::black),
        hazardLabel(QStringLiteral("FLAMMABLE LIQUID"), QStringLiteral("GHS02")),
        hazardLabel(QStringLiteral("COMPRESSED GAS"), QStringLiteral("GHS04")),
        hazardLabel(QStringLiteral("CORROSIVE"), QStringLiteral("GHS05")),
        hazardLabel(QStringLiteral("TOXIC"), QStringLiteral("GHS06")),
    };
}

} // namespace

const QList<CatalogItem>& catalogItems()
{
    static const QList<CatalogItem> items = makeItems();
    return items;
}

int catalogIndexOf(const QString& text)
{
    const QList<CatalogItem>& items = catalogItems();
    for (int index = 0; index < items.size(); ++index) {
        if (items.at(index).text.compare(text, Qt::CaseInsensitive) == 0) {
            return index;
        }
    }
    return -1;
}

} // namespace SampleHost
