// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef LABELPRINTS_H
#define LABELPRINTS_H

#include "samplehost/data/chemicalseed.h"

#include <QtCore/QBuffer>
#include <QtGui/QPageSize>
#include <QtGui/QPainter>
#include <QtGui/QPdfWriter>

#include <algorithm>
#include <functional>

using PaintPage = std::function<void(QPainter&, const QRectF&)>;

/** A PDF file of one page. */
inline QByteArray printPdf(const QSizeF& sizeMm, int resolution, const PaintPage& paint)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setResolution(resolution);
    writer.setPageSize(QPageSize(sizeMm, QPageSize::Millimeter));
    writer.setPageMargins(QMarginsF());
    QPainter painter(&writer);
    paint(painter, QRectF(0, 0, writer.width(), writer.height()));
    painter.end();
    return buffer.data();
}

/** The chemical with the most text. */
inline SampleHost::Chemical longestChemical()
{
    using SampleHost::Chemical;
    const QList<Chemical> seed = SampleHost::ChemicalSeed::load();
    return *std::max_element(seed.cbegin(), seed.cend(), [](const Chemical& a, const Chemical& b) {
        return a.hazardLines().join(QString()).size() + a.precautionLines().join(QString()).size() <
               b.hazardLines().join(QString()).size() + b.precautionLines().join(QString()).size();
    });
}

#endif
