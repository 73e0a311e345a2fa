// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplepictures.h"

#include <QtGui/QPainter>

namespace Gallery {

namespace {

QImage createPaper(const QSize& size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::white);
    return image;
}

// Bars stand for lines of text. The last one is shorter.
void paintLines(QPainter& painter, const QRect& area, int count)
{
    const int pitch = area.height() / count;
    for (int i = 0; i < count; ++i) {
        const int width = i + 1 < count ? area.width() : area.width() * 3 / 5;
        painter.fillRect(area.x(), area.y() + i * pitch, width, pitch / 2, QColor(0x404040));
    }
}

void paintPictogram(QPainter& painter, const QRect& area)
{
    const QPolygon diamond(
        {QPoint(area.center().x(), area.top()), QPoint(area.right(), area.center().y()),
         QPoint(area.center().x(), area.bottom()), QPoint(area.left(), area.center().y())});
    painter.setBrush(Qt::white);
    painter.setPen(QPen(QColor(0xdc0b0b), area.width() / 12.0));
    painter.drawPolygon(diamond);
    const int dot = area.width() / 4;
    painter.fillRect(area.center().x() - dot / 2, area.center().y() - dot / 2, dot, dot, Qt::black);
}

} // namespace

QImage sampleLabel(const QSize& size)
{
    QImage image = createPaper(size);
    QPainter painter(&image);
    const int unit = qMin(size.width(), size.height()) / 20;
    const QRect inside = image.rect().adjusted(unit, unit, -unit, -unit);
    painter.fillRect(QRect(inside.topLeft(), QSize(inside.width(), unit * 4)), QColor(0xfedb00));
    painter.setPen(QPen(Qt::black, unit / 2.0));
    painter.drawRect(inside);
    const QRect pictogram(inside.left() + unit, inside.top() + unit * 6, unit * 7, unit * 7);
    paintPictogram(painter, pictogram);
    const QRect lines(pictogram.right() + unit * 2, pictogram.top(),
                      inside.right() - pictogram.right() - unit * 3, unit * 7);
    paintLines(painter, lines, 5);
    paintLines(
        painter,
        QRect(pictogram.left(), pictogram.bottom() + unit * 2, inside.width() - unit * 2, unit * 3),
        2);
    return image;
}

QImage samplePage()
{
    QImage image = createPaper(QSize(680, 880));
    QPainter painter(&image);
    painter.fillRect(QRect(60, 60, 360, 40), QColor(0x0018a8));
    paintLines(painter, QRect(60, 140, 560, 160), 6);
    paintPictogram(painter, QRect(60, 330, 180, 180));
    paintLines(painter, QRect(280, 340, 340, 160), 6);
    paintLines(painter, QRect(60, 550, 560, 240), 9);
    return image;
}

} // namespace Gallery
