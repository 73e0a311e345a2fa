// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_CATALOGITEM_H
#define SAMPLEHOST_CATALOGITEM_H

#include <QtCore/QList>
#include <QtCore/QSizeF>
#include <QtCore/QString>
#include <QtGui/QColor>

namespace SampleHost {

/** A ready-made sign or hazard label, which is sold in sizes that the buyer chooses. */
struct CatalogItem
{
    /** The text of the sign, in capitals, which is also the name of the item. */
    QString text;
    /** The signal word in the band at the top, "DANGER"; empty without a band. */
    QString header;
    /** Name of the SVG file of the symbol; empty for a GHS pictogram. */
    QString symbol;
    /** Name of the GHS pictogram. */
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
