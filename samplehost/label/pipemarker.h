// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_PIPEMARKER_H
#define SAMPLEHOST_PIPEMARKER_H

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtGui/QColor>

namespace SampleHost {

/** The part of a pipe marker that is printed. The values are those of "Item To Print". */
namespace PipeItem {
constexpr int Label = 0;        ///< The whole marker.
constexpr int HighPressure = 1; ///< The tag "HIGH".
constexpr int LowPressure = 2;  ///< The tag "LOW".
constexpr int VaporState = 4;   ///< The tag "VAP".
constexpr int LiquidState = 8;  ///< The tag "LIQ".
} // namespace PipeItem

/** A marker for one kind of pipe. */
struct PipeMarker
{
    /** The content of the pipe, in capitals: "AMMONIA", "CHILLED WATER SUPPLY". */
    QString content;
    /** The line's service in words, "High Pressure Liquid"; empty if the content is enough. */
    QString service;
    /** The short name of the line on the marker, "HPL"; may be empty. */
    QString abbreviation;
    /** The tags that go with the marker: PipeItem values or-ed together; 0 for none. */
    int tags = 0;
    /** Outside diameter of the pipe in millimetres; sets the marker's size. */
    qreal diameterMm = 60.3;
    /** Colour of the field. */
    QColor field = Qt::white;
    /** Colour of the legend on it. */
    QColor legend = Qt::black;

    /** The name for lists: content, abbreviation and service, except empty ones. */
    QString title() const;
};

/** The markers of the sample, ammonia lines first. */
const QList<PipeMarker>& pipeMarkers();

} // namespace SampleHost

#endif
