// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/label/fittedtext.h"

#include "samplehost/label/labelfont.h"

#include <QtGui/QPainter>
#include <QtGui/QTextLayout>

#include <algorithm>
#include <memory>
#include <vector>

namespace SampleHost {

namespace {

// Free space above a statement and above a heading, in font sizes.
constexpr qreal statementSpace = 0.22;
constexpr qreal headingSpace = 0.55;

// The smallest fraction of the largest size at which words are kept whole.
constexpr qreal smallestWholeWords = 0.25;

QList<QTextLayout::FormatRange> formats(int boldLength, const QColor& color, int length)
{
    QTextCharFormat bold;
    bold.setFontWeight(QFont::Bold);
    QTextCharFormat colored;
    if (color.isValid()) {
        colored.setForeground(color);
        bold.setForeground(color);
    }
    return {{0, boldLength, bold}, {boldLength, length - boldLength, colored}};
}

} // namespace

/** All lines of a text at one font size and width. */
class FittedText::Layout
{
public:
    Layout(const FittedText& text, const Fit& fit, qreal width, Qt::Alignment alignment)
    {
        QFont font(text.m_font);
        font.setPixelSize(fit.fontSize);
        // The constructor that takes an alignment also takes the direction of the application.
        QTextOption option;
        option.setAlignment(alignment & Qt::AlignHorizontal_Mask);
        option.setTextDirection(Qt::LayoutDirectionAuto);
        option.setWrapMode(fit.breaksWords ? QTextOption::WrapAtWordBoundaryOrAnywhere
                                           : QTextOption::WordWrap);
        for (const Paragraph& paragraph : text.m_paragraphs) {
            if (m_height > 0) {
                m_height += paragraph.spaceBefore * fit.fontSize;
            }
            addParagraph(paragraph, font, option, width);
        }
    }

    qreal height() const { return m_height; }

    // Whether no line is wider than the width, which happens when a single word is.
    bool fitsWidth() const { return m_fitsWidth; }

    void paint(QPainter& painter, const QPointF& topLeft) const
    {
        for (const auto& layout : m_layouts) {
            layout->draw(&painter, topLeft);
        }
    }

private:
    void addParagraph(const Paragraph& paragraph, const QFont& font, const QTextOption& option,
                      qreal width)
    {
        auto layout = std::make_unique<QTextLayout>(paragraph.text, font);
        layout->setTextOption(option);
        layout->setFormats(formats(paragraph.boldLength, paragraph.color,
                                   static_cast<int>(paragraph.text.size())));
        layout->setPosition(QPointF(0, m_height));
        qreal height = 0;
        layout->beginLayout();
        for (QTextLine line = layout->createLine(); line.isValid(); line = layout->createLine()) {
            line.setLineWidth(width);
            line.setPosition(QPointF(0, height));
            height += line.height();
            m_fitsWidth = m_fitsWidth && line.naturalTextWidth() <= width;
        }
        layout->endLayout();
        m_height += height;
        m_layouts.push_back(std::move(layout));
    }

    std::vector<std::unique_ptr<QTextLayout>> m_layouts;
    qreal m_height = 0;
    bool m_fitsWidth = true;
};

FittedText::FittedText() : m_font(labelFont())
{
    // Letter spacing, however small, disables ligatures. With a ligature for "fl", searching a PDF
    // file for "flammable" would find nothing.
    m_font.setLetterSpacing(QFont::AbsoluteSpacing, 0.02);
}

void FittedText::addParagraph(const QString& text, bool bold)
{
    m_paragraphs.append({text, bold ? static_cast<int>(text.size()) : 0, 0.0, QColor()});
}

void FittedText::addHeading(const QString& text, const QColor& color)
{
    m_paragraphs.append({text, static_cast<int>(text.size()), headingSpace, color});
}

void FittedText::addStatement(const QString& text)
{
    const qsizetype blank = text.indexOf(QLatin1Char(' '));
    const qsizetype codeLength = blank < 0 ? text.size() : blank;
    m_paragraphs.append({text, static_cast<int>(codeLength), statementSpace, QColor()});
}

int FittedText::fittingSize(const QSizeF& size, qreal maximum) const
{
    return fit(size, maximum).fontSize;
}

FittedText::Fit FittedText::fit(const QSizeF& size, qreal maximum) const
{
    const Fit whole{largestSize(size, maximum, false), false};
    if (whole.fontSize >= maximum * smallestWholeWords) {
        return whole;
    }
    const Fit broken{largestSize(size, maximum, true), true};
    return broken.fontSize > whole.fontSize ? broken : whole;
}

int FittedText::largestSize(const QSizeF& size, qreal maximum, bool breaksWords) const
{
    const auto fits = [&](int fontSize) {
        const Layout layout(*this, {fontSize, breaksWords}, size.width(), Qt::AlignLeft);
        return layout.height() <= size.height() && layout.fitsWidth();
    };
    // The largest size known to fit, and the smallest known or assumed not to.
    int good = 1;
    int bad = std::max(2, static_cast<int>(maximum) + 1);
    while (bad - good > 1) {
        const int middle = good + (bad - good) / 2;
        (fits(middle) ? good : bad) = middle;
    }
    return good;
}

void FittedText::paint(QPainter& painter, const QRectF& area, qreal maximum,
                       Qt::Alignment alignment) const
{
    if (area.isEmpty() || isEmpty()) {
        return;
    }
    const Layout layout(*this, fit(area.size(), maximum), area.width(), alignment);
    QPointF topLeft = area.topLeft();
    const qreal free = area.height() - layout.height();
    if (alignment & Qt::AlignVCenter) {
        topLeft.ry() += free / 2;
    } else if (alignment & Qt::AlignBottom) {
        topLeft.ry() += free;
    }
    layout.paint(painter, topLeft);
}

} // namespace SampleHost
