// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/window/hosticons.h"

#include <QtGui/QPainter>

namespace SampleHost {

namespace {

const QColor ink(0x2b, 0x2b, 0x2b);
const QColor accent(0xfd, 0x78, 0x00);

// The pictures are painted on a grid of this side.
constexpr int gridSide = 16;

/** An icon sharp on any screen, painted because the system may have no pictures. */
template <typename Paint>
QIcon paintedIcon(Paint paint)
{
    QIcon icon;
    for (const int scale : {1, 2, 3, 4}) {
        QPixmap picture(gridSide * scale, gridSide * scale);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(scale, scale);
        painter.setPen(QPen(ink, 1));
        painter.setBrush(Qt::white);
        paint(painter);
        icon.addPixmap(picture);
    }
    return icon;
}

} // namespace

QIcon printIcon()
{
    return paintedIcon([](QPainter& painter) {
        painter.drawRect(QRectF(4.5, 1.5, 7, 5));
        painter.setBrush(ink);
        painter.drawRoundedRect(QRectF(1.5, 5.5, 13, 6), 1, 1);
        painter.fillRect(QRectF(11.5, 7, 1.5, 1.5), accent);
        painter.setBrush(Qt::white);
        painter.drawRect(QRectF(4.5, 9.5, 7, 5));
    });
}

QIcon previewIcon()
{
    return paintedIcon([](QPainter& painter) {
        painter.drawRect(QRectF(2.5, 1.5, 9, 13));
        painter.setPen(QPen(accent, 2, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(QPointF(11.5, 11.5), QPointF(14.5, 14.5));
        painter.setPen(QPen(accent, 1.5));
        painter.drawEllipse(QPointF(9, 9), 3.5, 3.5);
    });
}

} // namespace SampleHost
