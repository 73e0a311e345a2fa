// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_FITTEDTEXT_H
#define SAMPLEHOST_FITTEDTEXT_H

#include <QtCore/QList>
#include <QtCore/QRectF>
#include <QtCore/QString>
#include <QtGui/QColor>
#include <QtGui/QFont>

QT_BEGIN_NAMESPACE
class QPainter;
QT_END_NAMESPACE

namespace SampleHost {

/**
 * Paragraphs that are painted as large as their rectangle allows. Lengths are in the painter's
 * units, which should be small compared to the text, for example 0.01 mm, because font sizes are
 * whole numbers. Left is left in every interface; a paragraph runs in the direction of its text.
 */
class FittedText
{
public:
    /** A text without paragraphs, in the font of labels. */
    FittedText();

    /** Appends a paragraph, bold or plain, in the painter's pen colour. */
    void addParagraph(const QString& text, bool bold = false);

    /** Appends a bold paragraph in its own colour, with space above it. */
    void addHeading(const QString& text, const QColor& color);

    /** Appends a paragraph whose first word, a statement's code, is bold. */
    void addStatement(const QString& text);

    /** Whether there is no paragraph. */
    bool isEmpty() const { return m_paragraphs.isEmpty(); }

    /**
     * The largest font size, in whole units from 1 to maximum, at which all lines fit into size; 1
     * if none does. Lines break between words; they break within words only if a very long word
     * would make the text too small.
     */
    int fittingSize(const QSizeF& size, qreal maximum) const;

    /**
     * Paints the text at its fitting size. Alignment places the lines (left, centre, right) and the
     * whole (top, centre, bottom) in area. An empty area paints nothing.
     */
    void paint(QPainter& painter, const QRectF& area, qreal maximum,
               Qt::Alignment alignment = Qt::AlignLeft | Qt::AlignTop) const;

private:
    struct Paragraph
    {
        QString text;
        // The number of leading characters that are bold.
        int boldLength = 0;
        // Free space above, in font sizes.
        qreal spaceBefore = 0.0;
        // Invalid for the painter's pen.
        QColor color;
    };

    struct Fit
    {
        int fontSize = 1;
        bool breaksWords = false;
    };

    class Layout;

    Fit fit(const QSizeF& size, qreal maximum) const;
    int largestSize(const QSizeF& size, qreal maximum, bool breaksWords) const;

    QFont m_font;
    QList<Paragraph> m_paragraphs;
};

} // namespace SampleHost

#endif
