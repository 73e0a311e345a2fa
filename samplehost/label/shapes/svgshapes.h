// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_SVGSHAPES_H
#define SAMPLEHOST_SVGSHAPES_H

#include <QtCore/QByteArray>
#include <QtCore/QDataStream>
#include <QtGui/QColor>
#include <QtGui/QPainterPath>

namespace SampleHost {

/** An area of an SVG picture that is filled with one colour. Strokes are areas, too. */
struct Shape
{
    QPainterPath path;
    QColor color;
};

/** Stands for the SVG colour "currentColor". No picture uses it for anything else. */
constexpr QColor currentColor(1, 2, 3);

/** The format of a picture's shapes: its size as QSizeF, then QList<Shape>. */
constexpr QDataStream::Version shapesVersion = QDataStream::Qt_6_0;

inline QDataStream& operator<<(QDataStream& stream, const Shape& shape)
{
    return stream << shape.path << shape.color;
}

inline QDataStream& operator>>(QDataStream& stream, Shape& shape)
{
    return stream >> shape.path >> shape.color;
}

/** The shapes of an SVG file in the order in which they are painted; empty if it cannot be read. */
QByteArray shapesOf(QByteArray svg);

} // namespace SampleHost

#endif
