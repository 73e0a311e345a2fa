// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/label/safetysymbol.h"

#include "samplehost/label/pictogram.h"
#include "samplehost/label/svgpicture.h"

namespace SampleHost {

namespace {

QString symbolFile(CatalogSymbol symbol)
{
    switch (symbol) {
    case CatalogSymbol::Arrow:
        return QStringLiteral(":/symbols/arrow.svg");
    case CatalogSymbol::NoSmoking:
        return QStringLiteral(":/symbols/nosmoking.svg");
    case CatalogSymbol::EyeWash:
        return QStringLiteral(":/symbols/eyewash.svg");
    case CatalogSymbol::FirstAid:
        return QStringLiteral(":/symbols/firstaid.svg");
    case CatalogSymbol::Extinguisher:
        return QStringLiteral(":/symbols/extinguisher.svg");
    case CatalogSymbol::HighVoltage:
        return QStringLiteral(":/symbols/highvoltage.svg");
    case CatalogSymbol::HotSurface:
        return QStringLiteral(":/symbols/hotsurface.svg");
    case CatalogSymbol::Pictogram:
        break;
    }
    return QString();
}

} // namespace

void paintSafetySymbol(QPainter& painter, const QRectF& area, const CatalogItem& item)
{
    if (item.symbol == CatalogSymbol::Pictogram) {
        paintPictogram(painter, area, item.pictogram);
    } else {
        paintSvgPicture(painter, area, symbolFile(item.symbol), item.legend);
    }
}

} // namespace SampleHost
