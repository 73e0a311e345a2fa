// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_CATALOGITEM_H
#define SAMPLEHOST_CATALOGITEM_H

#include <QtCore/QList>
#include <QtCore/QSizeF>
#include <QtCore/QString>
#include <QtGui/QColor>

namespace SampleHost {

/** The picture on a catalogue item. */
enum class CatalogSymbol {
    Arrow,        ///< An arrow to the exit.
    NoSmoking,    ///< A cigarette in a prohibition ring.
    EyeWash,      ///< An eye over two jets of water.
    FirstAid,     ///< A cross.
    Extinguisher, ///< A fire extinguisher.
    HighVoltage,  ///< A lightning bolt in a warning triangle.
    HotSurface,   ///< Rising heat in a warning triangle.
    Pictogram     ///< The GHS pictogram that the item names.
};

/** A ready-made sign or hazard label, which is sold in sizes that the buyer chooses. */
struct CatalogItem
{
    /** The text of the sign, in capitals, which is also the name of the item. */
    QString text;
    /** The signal word in the band at the top, "DANGER"; empty without a band. */
    QString header;
    CatalogSymbol symbol = CatalogSymbol::Arrow;
    /** Name of the GHS pictogram, for CatalogSymbol::Pictogram. */
    QString pictogram;
    /** Colour of the field. */
    QColor field = Qt::white;
    /** Colour of text and symbol on it. */
    QColor legend = Qt::black;
    /** Colour of the band. */
    QColor headerField;
    /** Colour of the signal word on it. */
    QColor headerLegend;
    /** The size in which the item is listed, in millimetres. */
    QSizeF sizeMm;
};

/** The items of the sample. Their texts differ. */
const QList<CatalogItem>& catalogItems();

/** The 0-based index of the item with this text, ignoring case; -1 if there is none. */
int catalogIndexOf(const QString& text);

} // namespace SampleHost

#endif
