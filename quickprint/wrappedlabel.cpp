// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "quickprint/wrappedlabel.h"

#include <QtGui/QTextLayout>

namespace PrintPanels {

namespace {

constexpr qsizetype mostLines = 4;

} // namespace

WrappedLabel::WrappedLabel()
{
    setWordWrap(true);
    QSizePolicy policy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

QStringList WrappedLabel::shownLines(int width) const
{
    const QString text = measuredText().replace(u'\n', QChar(QChar::LineSeparator));
    QTextLayout layout(text, font());
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);

    QStringList lines;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        const int start = line.textStart();
        if (lines.size() + 1 < mostLines) {
            lines.append(text.mid(start, line.textLength()).trimmed());
            continue;
        }
        const QString rest = text.mid(start).simplified();
        lines.append(fontMetrics().elidedText(rest, Qt::ElideRight, width));
        break;
    }
    layout.endLayout();
    return lines;
}

QString WrappedLabel::shownText() const
{
    return shownLines(contentsRect().width()).join(u'\n');
}

bool WrappedLabel::isElided() const
{
    constexpr char16_t ellipsis = u'\u2026';
    return text().size() > measuredText().size() || shownText().endsWith(ellipsis);
}

int WrappedLabel::heightOf(qsizetype lines) const
{
    const QMargins margins = contentsMargins();
    // Measured as any label is: lines and the leading between them are rounded in a way of their
    // own.
    return fontMetrics().size(0, QString(lines - 1, u'\n')).height() + margins.top() +
           margins.bottom();
}

QSize WrappedLabel::sizeHint() const
{
    return QSize(0, heightOf(1));
}

QSize WrappedLabel::minimumSizeHint() const
{
    return sizeHint();
}

int WrappedLabel::heightForWidth(int width) const
{
    const QMargins margins = contentsMargins();
    const qsizetype lines = shownLines(width - margins.left() - margins.right()).size();
    return heightOf(qMax(lines, qsizetype(1)));
}

} // namespace PrintPanels
