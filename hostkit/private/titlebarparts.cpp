// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "titlebarparts.h"

#include <QtGui/QPainter>

namespace HostKit {

namespace {

// More than a title bar can show. Keeps painting fast if the host sets a megabyte of text.
constexpr qsizetype maxTitleLength = 1000;

} // namespace

TitleBarLabel::TitleBarLabel(const QString& text, QWidget* parent) : QLabel(text, parent)
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

bool TitleBarLabel::isElided() const
{
    return fontMetrics().horizontalAdvance(text().left(maxTitleLength)) > width();
}

QSize TitleBarLabel::minimumSizeHint() const
{
    return QSize(0, fontMetrics().height());
}

void TitleBarLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setPen(isEnabled() ? QColor(Qt::white) : QColor(0x84, 0x84, 0x84));
    const QString shown =
        fontMetrics().elidedText(text().left(maxTitleLength), Qt::ElideRight, width());
    painter.drawText(rect(), Qt::AlignVCenter | Qt::AlignLeading | Qt::TextSingleLine, shown);
}

TitleBarButton::TitleBarButton(QWidget* parent)
    : QAbstractButton(parent),
      m_cross(QStringLiteral(":/hostkit/close.png")),
      m_pressedCross(QStringLiteral(":/hostkit/close-pressed.png"))
{
    setObjectName(QStringLiteral("CloseButton"));
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_Hover);
    setFixedSize(sizeHint());
}

QSize TitleBarButton::sizeHint() const
{
    return QSize(35, 35);
}

void TitleBarButton::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    if (underMouse() && !isDown())
        painter.fillRect(rect(), QColor(255, 255, 255, 40));
    const QIcon& cross = isDown() ? m_pressedCross : m_cross;
    cross.paint(&painter, rect(), Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);
}

} // namespace HostKit
