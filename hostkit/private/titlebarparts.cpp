// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "titlebarparts.h"

#include <QtCore/QFile>
#include <QtCore/QtMath>
#include <QtGui/QFontInfo>
#include <QtGui/QPainter>

namespace HostKit {

namespace {

// More than a title bar can show. Keeps painting fast if the host sets a megabyte of text.
constexpr qsizetype maxTitleLength = 1000;
// The sizes to try for a title that is too wide. Smaller text is hard to read.
constexpr int minTitlePixelSize = 9;
constexpr int maxTitlePixelSize = 100;

// The image that is large enough for a device pixel ratio. An icon of all of them would choose the
// one that is closest in size, and enlarge it at ratios such as 1.5.
QString imageFor(const QString& file, qreal devicePixelRatio)
{
    for (int scale = qCeil(devicePixelRatio); scale > 1; --scale) {
        const QString variant =
            QString(file).insert(file.lastIndexOf(u'.'), QStringLiteral("@%1x").arg(scale));
        if (QFile::exists(variant))
            return variant;
    }
    return file;
}

} // namespace

TitleBarLabel::TitleBarLabel(const QString& text, QWidget* parent) : QLabel(text, parent)
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setTitleFont(parent->font());
}

// In a window with a style sheet, a label does not inherit the font of its parent.
void TitleBarLabel::setTitleFont(const QFont& font)
{
    m_titleFont = font;
    m_titleFont.setResolveMask(QFont::AllPropertiesResolved);
    setFont(m_titleFont);
    updateGeometry();
    update();
}

QString TitleBarLabel::paintedText() const
{
    return text().left(maxTitleLength);
}

// The largest font that is not larger than the bar's and shows the whole text. If there is none,
// the bar's own: what is left of an elided title should at least be easy to read.
QFont TitleBarLabel::fittedFont() const
{
    const auto fits = [this](const QFont& font) {
        return QFontMetrics(font).horizontalAdvance(paintedText()) <= width();
    };
    QFont font = m_titleFont;
    int size = qMin(QFontInfo(m_titleFont).pixelSize(), maxTitlePixelSize + 1);
    while (!fits(font)) {
        if (--size < minTitlePixelSize)
            return m_titleFont;
        font.setPixelSize(size);
    }
    return font;
}

bool TitleBarLabel::isElided() const
{
    return QFontMetrics(fittedFont()).horizontalAdvance(paintedText()) > width();
}

QSize TitleBarLabel::sizeHint() const
{
    return QFontMetrics(m_titleFont).size(Qt::TextSingleLine, paintedText());
}

QSize TitleBarLabel::minimumSizeHint() const
{
    return QSize(0, QFontMetrics(m_titleFont).height());
}

void TitleBarLabel::paintEvent(QPaintEvent*)
{
    const QFont font = fittedFont();
    QPainter painter(this);
    painter.setFont(font);
    painter.setPen(isEnabled() ? QColor(Qt::white) : QColor(0x84, 0x84, 0x84));
    const QString shown = QFontMetrics(font).elidedText(paintedText(), Qt::ElideRight, width());
    // At the start of the line, and in the direction of the text.
    const Qt::Alignment start =
        Qt::AlignAbsolute | (isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft);
    const int direction =
        text().isRightToLeft() ? Qt::TextForceRightToLeft : Qt::TextForceLeftToRight;
    painter.drawText(rect(), int(start) | Qt::AlignVCenter | Qt::TextSingleLine | direction, shown);
}

TitleBarButton::TitleBarButton(QWidget* parent) : QAbstractButton(parent)
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
    const QString file = imageFor(isDown() ? QStringLiteral(":/hostkit/close-pressed.png")
                                           : QStringLiteral(":/hostkit/close.png"),
                                  devicePixelRatioF());
    QIcon& cross = m_crosses[file];
    if (cross.isNull())
        cross = QIcon(file);
    cross.paint(&painter, rect(), Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);
}

} // namespace HostKit
