// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "colorswatch.h"

#include "colortext.h"
#include "plaintooltip.h"

#include <QtGui/QHelpEvent>
#include <QtGui/QPainter>
#include <QtGui/QPainterPath>

namespace HostKit {

namespace {
constexpr QColor accent(0xfd, 0x78, 0x00);
constexpr QColor line(0x99, 0x98, 0x98);
constexpr double cornerRadius = 5;

QPainterPath rounded(const QRectF& rect, double radius)
{
    QPainterPath path;
    path.addRoundedRect(rect, radius, radius);
    return path;
}
} // namespace

ColorSwatch::ColorSwatch(const QString& name, const QString& code, QWidget* parent)
    : DragScrollButton(parent), m_code(code)
{
    setObjectName(code);
    setToolTip(name);
    setAccessibleName(name.isEmpty() ? code : name);
    setAccessibleDescription(code);
    setCheckable(true);
    setAutoDefault(false);
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

ColorSwatch::~ColorSwatch() = default;

QString ColorSwatch::code() const
{
    return m_code;
}

QSize ColorSwatch::minimumSizeHint() const
{
    return QSize(touchSize, touchSize);
}

QSize ColorSwatch::sizeHint() const
{
    return minimumSizeHint();
}

bool ColorSwatch::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip) {
        showPlainToolTip(this, static_cast<QHelpEvent*>(event));
        return true;
    }
    return DragScrollButton::event(event);
}

void ColorSwatch::nextCheckState() {}

void ColorSwatch::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (!isEnabled())
        painter.setOpacity(0.4);
    const QRectF frame = QRectF(rect()).adjusted(1, 1, -1, -1);
    // A gap between the ring of a checked swatch and its colour, so that it stands out from orange.
    const double inset = isChecked() ? 4 : (isDown() ? 3 : 1.5);
    const QRectF field = frame.adjusted(inset, inset, -inset, -inset);
    if (isChecked()) {
        painter.setPen(QPen(accent, 2.5));
        painter.setBrush(Qt::white);
        painter.drawPath(rounded(frame.adjusted(0.5, 0.5, -0.5, -0.5), cornerRadius + 1));
    }
    painter.save();
    painter.setClipPath(rounded(field, cornerRadius - 1));
    fillWithColorText(&painter, field, m_code);
    painter.restore();
    const bool hovered = underMouse() && isEnabled();
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(hovered ? accent : line, hovered ? 2 : 1));
    painter.drawPath(rounded(field, cornerRadius - 1));
    if (isChecked())
        paintCheckMark(&painter, field);
    if (hasFocus())
        paintFocus(&painter);
}

// Dark and light, so that it stands out from the colour and from what is around.
void ColorSwatch::paintFocus(QPainter* painter) const
{
    const QRectF edge(rect());
    painter->setPen(QPen(Qt::white, 2));
    painter->drawPath(rounded(edge.adjusted(3, 3, -3, -3), cornerRadius - 1));
    painter->setPen(QPen(QColor(0x06, 0x06, 0x06), 2));
    painter->drawPath(rounded(edge.adjusted(1, 1, -1, -1), cornerRadius + 1));
}

void ColorSwatch::paintCheckMark(QPainter* painter, const QRectF& field) const
{
    const QPointF centre = field.center();
    const QPolygonF mark(
        {centre + QPointF(-6, 0), centre + QPointF(-2, 4.5), centre + QPointF(6.5, -5)});
    const QColor color = contrastColor(QColor(m_code));
    QPen pen(color == Qt::black ? Qt::white : Qt::black, 5, Qt::SolidLine, Qt::RoundCap,
             Qt::RoundJoin);
    if (m_code == transparentText()) {
        painter->setPen(pen);
        painter->drawPolyline(mark);
    }
    pen.setColor(color);
    pen.setWidthF(2.5);
    painter->setPen(pen);
    painter->drawPolyline(mark);
}

} // namespace HostKit
