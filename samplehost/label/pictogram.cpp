// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/label/pictogram.h"

#include "samplehost/label/fittedtext.h"
#include "samplehost/label/svgpicture.h"

#include <QtCore/QFile>
#include <QtCore/QRegularExpression>
#include <QtGui/QPainter>
#include <QtGui/QPolygonF>

namespace SampleHost {

namespace {

const QColor diamondRed(0xdc, 0x0b, 0x0b);

QString pictureFile(const QString& name)
{
    return QStringLiteral(":/pictograms/%1.svg").arg(name.toLower());
}

void paintNamedDiamond(QPainter& painter, const QRectF& square, const QString& name)
{
    const qreal stroke = square.width() / 18;
    const QRectF inner = square.adjusted(stroke, stroke, -stroke, -stroke);
    const QPolygonF diamond(
        {QPointF(inner.center().x(), inner.top()), QPointF(inner.right(), inner.center().y()),
         QPointF(inner.center().x(), inner.bottom()), QPointF(inner.left(), inner.center().y())});
    painter.save();
    painter.setPen(QPen(diamondRed, stroke, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.setBrush(Qt::white);
    painter.drawPolygon(diamond);
    painter.setPen(Qt::black);
    const qreal height = square.height() / 5;
    QRectF line(0, 0, square.width() * 0.6, height);
    line.moveCenter(square.center());
    FittedText text;
    text.addParagraph(name, true);
    text.paint(painter, line, height, Qt::AlignCenter);
    painter.restore();
}

} // namespace

bool hasPictogram(const QString& name)
{
    // The name comes from the user's data and must not refer to other files.
    static const QRegularExpression shape(QStringLiteral("^[A-Za-z0-9]+$"));
    return shape.match(name).hasMatch() && QFile::exists(pictureFile(name));
}

void paintPictogram(QPainter& painter, const QRectF& area, const QString& name)
{
    const QRectF square = squareIn(area);
    if (square.isEmpty()) {
        return;
    }
    if (!hasPictogram(name)) {
        paintNamedDiamond(painter, square, name);
        return;
    }
    paintSvgPicture(painter, square, pictureFile(name));
}

} // namespace SampleHost
