// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "foundation/widgets/elidedlabel.h"

#include "foundation/widgets/textdirection.h"

#include <QtGui/QHelpEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QStyle>
#include <QtWidgets/QToolTip>

namespace PrintPanels {

namespace {

// More than any line can show. Keeps measuring fast if a host sets a megabyte of text.
constexpr qsizetype longestLine = 1000;

} // namespace

ElidedLabel::ElidedLabel()
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

QString ElidedLabel::measuredText() const
{
    return text().left(longestLine);
}

QString ElidedLabel::shownText() const
{
    return fontMetrics().elidedText(measuredText().simplified(), Qt::ElideRight,
                                    contentsRect().width());
}

bool ElidedLabel::isElided() const
{
    return shownText() != measuredText().simplified();
}

bool ElidedLabel::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip || !toolTip().isEmpty())
        return QLabel::event(event);
    // Escaped and in a paragraph, so that the tool tip shows markup instead of interpreting it.
    const QString tip =
        isElided() ? QStringLiteral("<p>%1</p>").arg(measuredText().toHtmlEscaped()) : QString();
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), tip, this);
    return true;
}

void ElidedLabel::paintEvent(QPaintEvent* event)
{
    QFrame::paintEvent(event);
    QPainter painter(this);
    const int alignmentFlags = int(startOfLine(this) | (alignment() & Qt::AlignVertical_Mask));
    style()->drawItemText(&painter, contentsRect(), alignmentFlags | readingDirection(text()),
                          palette(), isEnabled(), shownText(), foregroundRole());
}

} // namespace PrintPanels
