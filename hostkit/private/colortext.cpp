// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "colortext.h"

#include <QtGui/QColor>
#include <QtGui/QPainter>

namespace HostKit {

namespace {
void fillChequered(QPainter* painter, const QRectF& rect)
{
    constexpr double side = 5;
    painter->fillRect(rect, Qt::white);
    for (int row = 0; row * side < rect.height(); ++row) {
        for (int column = row % 2; column * side < rect.width(); column += 2) {
            const QRectF field(rect.left() + column * side, rect.top() + row * side, side, side);
            painter->fillRect(field.intersected(rect), QColor(0xc6, 0xc6, 0xc6));
        }
    }
}
} // namespace

QString transparentText()
{
    return QStringLiteral("transparent");
}

QString blankText()
{
    return QStringLiteral("blank");
}

bool isColorText(const QString& text)
{
    return QColor::isValidColor(text);
}

QColor contrastColor(const QColor& color)
{
    const double luminance = 0.299 * color.redF() + 0.587 * color.greenF() + 0.114 * color.blueF();
    return luminance * color.alphaF() + (1 - color.alphaF()) > 0.55 ? Qt::black : Qt::white;
}

void fillWithColorText(QPainter* painter, const QRectF& rect, const QString& text)
{
    if (!isColorText(text))
        return;
    const QColor color(text);
    if (color.alpha() < 255)
        fillChequered(painter, rect);
    painter->fillRect(rect, color);
    if (text != transparentText())
        return;
    painter->save();
    painter->setClipRect(rect, Qt::IntersectClip);
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(QColor(0xdc, 0x0b, 0x0b), 2));
    painter->drawLine(rect.bottomLeft(), rect.topRight());
    painter->restore();
}

} // namespace HostKit
