// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/label/pipemarker.h"

namespace SampleHost {

namespace {

const QColor orange(0xf2, 0x80, 0x00);
const QColor yellow(0xfe, 0xdb, 0x00);
const QColor green(0x24, 0x8d, 0x4f);
const QColor blue(0x00, 0x18, 0xa8);
const QColor red(0xdc, 0x0b, 0x0b);

PipeMarker ammonia(const QString& service, const QString& abbreviation, int tags, qreal diameterMm)
{
    return {QStringLiteral("AMMONIA"), service, abbreviation, tags, diameterMm, orange, Qt::black};
}

PipeMarker other(const QString& content, qreal diameterMm, const QColor& field,
                 const QColor& legend)
{
    return {content, QString(), QString(), 0, diameterMm, field, legend};
}

QList<PipeMarker> makeMarkers()
{
    using namespace PipeItem;
    return {
        ammonia(QStringLiteral("High Pressure Liquid"), QStringLiteral("HPL"),
                HighPressure | LiquidState, 60.3),
        ammonia(QStringLiteral("Low Pressure Suction"), QStringLiteral("LPS"),
                LowPressure | VaporState, 168.3),
        ammonia(QStringLiteral("Hot Gas Defrost"), QStringLiteral("HGD"), HighPressure | VaporState,
                88.9),
        ammonia(QStringLiteral("High Stage Discharge"), QStringLiteral("HSD"),
                HighPressure | VaporState, 219.1),
        ammonia(QStringLiteral("High Temperature Recirculated Suction"), QStringLiteral("HTRS"),
                LowPressure | VaporState | LiquidState, 114.3),
        ammonia(QStringLiteral("Low Temperature Recirculated Liquid"), QStringLiteral("LTRL"),
                LowPressure | LiquidState, 48.3),
        ammonia(QStringLiteral("Thermosyphon Return"), QStringLiteral("TSR"),
                HighPressure | VaporState | LiquidState, 88.9),
        ammonia(QStringLiteral("Relief Vent"), QStringLiteral("RV"), LowPressure | VaporState,
                26.7),
        other(QStringLiteral("CHILLED WATER SUPPLY"), 114.3, green, Qt::white),
        other(QStringLiteral("CONDENSER WATER RETURN"), 168.3, green, Qt::white),
        other(QStringLiteral("COMPRESSED AIR"), 33.4, blue, Qt::white),
        other(QStringLiteral("NATURAL GAS"), 60.3, yellow, Qt::black),
        other(QStringLiteral("FIRE PROTECTION WATER"), 219.1, red, Qt::white),
    };
}

} // namespace

QString PipeMarker::title() const
{
    QString text = content;
    for (const QString& part : {abbreviation, service}) {
        if (!part.isEmpty()) {
            text += QStringLiteral(" \u2013 ") + part;
        }
    }
    return text;
}

const QList<PipeMarker>& pipeMarkers()
{
    static const QList<PipeMarker> markers = makeMarkers();
    return markers;
}

} // namespace SampleHost
