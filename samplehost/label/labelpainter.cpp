// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/label/labelpainter.h"

#include "samplehost/label/fittedtext.h"
#include "samplehost/label/pictogram.h"
#include "samplehost/label/userbackground.h"

#include <QtGui/QPainter>

#include <algorithm>

namespace SampleHost {

namespace {

const QColor accentOrange(0xfd, 0x78, 0x00);

// All lengths below are in hundredths of a millimetre on a label of its design size.
constexpr qreal unitsPerMm = 100.0;
constexpr qreal frameInset = 120;
constexpr qreal frameWidth = 40;
constexpr qreal headerHeight = 1250;
constexpr qreal accentHeight = 90;
constexpr qreal padding = 260;
constexpr qreal gap = 200;
constexpr qreal signalHeight = 560;

constexpr qreal largestName = 620;
constexpr qreal largestIdentifier = 250;
constexpr qreal largestSignalWord = 420;
constexpr qreal largestStatement = 290;

/** The positions of the parts of a label. */
struct LabelLayout
{
    QRectF frame;
    QRectF header;
    QRectF signalWord;
    QRectF pictograms;
    QRectF statements;
};

// Beside the statements: up to three pictograms below each other, more in two columns.
void layOutLandscape(LabelLayout& layout, const QRectF& body, const Chemical& chemical)
{
    const qreal width = chemical.pictograms.size() > 3 ? 2800 : 2150;
    layout.signalWord = QRectF(body.left(), body.top(), width, signalHeight);
    layout.pictograms = QRectF(body.left(), body.top(), width, body.height());
    if (!chemical.signalWord.isEmpty()) {
        layout.pictograms.setTop(layout.signalWord.bottom() + gap);
    }
    layout.statements = body.adjusted(width + padding, 0, 0, 0);
    if (chemical.signalWord.isEmpty() && chemical.pictograms.isEmpty()) {
        layout.statements = body;
    }
}

// Above the statements, in a row.
void layOutPortrait(LabelLayout& layout, const QRectF& body, const Chemical& chemical)
{
    qreal top = body.top();
    if (!chemical.signalWord.isEmpty()) {
        layout.signalWord = QRectF(body.left(), top, body.width(), signalHeight);
        top = layout.signalWord.bottom() + gap;
    }
    if (!chemical.pictograms.isEmpty()) {
        const qreal count = static_cast<qreal>(chemical.pictograms.size());
        const qreal height = std::min<qreal>(1800, body.width() / std::min<qreal>(count, 5));
        layout.pictograms = QRectF(body.left(), top, body.width(), height);
        top = layout.pictograms.bottom() + gap;
    }
    layout.statements = QRectF(body.left(), top, body.width(), body.bottom() - top);
}

LabelLayout layOut(const QSizeF& size, const Chemical& chemical, bool landscape)
{
    LabelLayout layout;
    layout.frame =
        QRectF(QPointF(), size).adjusted(frameInset, frameInset, -frameInset, -frameInset);
    layout.header = layout.frame;
    layout.header.setHeight(headerHeight);
    const QRectF body =
        layout.frame.adjusted(padding, headerHeight + accentHeight + gap, -padding, -padding);
    if (landscape) {
        layOutLandscape(layout, body, chemical);
    } else {
        layOutPortrait(layout, body, chemical);
    }
    return layout;
}

QString identifiers(const Chemical& chemical)
{
    QStringList parts;
    if (!chemical.casNumber.isEmpty()) {
        parts.append(QStringLiteral("CAS ") + chemical.casNumber);
    }
    if (!chemical.unNumber.isEmpty()) {
        parts.append(QStringLiteral("UN ") + chemical.unNumber);
    }
    if (!chemical.formula.isEmpty()) {
        parts.append(chemical.formula);
    }
    return parts.join(QStringLiteral("   \u00b7   "));
}

void paintHeader(QPainter& painter, const QRectF& header, const Chemical& chemical)
{
    painter.fillRect(header, Qt::black);
    painter.fillRect(QRectF(header.left(), header.bottom(), header.width(), accentHeight),
                     accentOrange);
    painter.setPen(Qt::white);
    const QRectF inner = header.adjusted(padding, 110, -padding, -110);
    const qreal nameHeight = inner.height() * 0.7;
    FittedText name;
    name.addParagraph(chemical.name, true);
    name.paint(painter, QRectF(inner.topLeft(), QSizeF(inner.width(), nameHeight)), largestName,
               Qt::AlignLeft | Qt::AlignVCenter);
    FittedText numbers;
    numbers.addParagraph(identifiers(chemical));
    numbers.paint(painter, inner.adjusted(0, nameHeight, 0, 0), largestIdentifier,
                  Qt::AlignLeft | Qt::AlignBottom);
}

void paintSignalWord(QPainter& painter, const QRectF& area, const QString& word)
{
    if (word.isEmpty()) {
        return;
    }
    painter.fillRect(area, accentOrange);
    painter.setPen(Qt::black);
    FittedText text;
    text.addParagraph(word, true);
    text.paint(painter, area.adjusted(60, 0, -60, 0), largestSignalWord, Qt::AlignCenter);
}

// The number of columns that makes equal squares in area largest.
int bestColumns(const QSizeF& area, int count)
{
    int best = 1;
    qreal bestSide = 0;
    for (int columns = 1; columns <= count; ++columns) {
        const int rows = (count + columns - 1) / columns;
        const qreal side = std::min(area.width() / columns, area.height() / rows);
        if (side > bestSide) {
            bestSide = side;
            best = columns;
        }
    }
    return best;
}

void paintPictograms(QPainter& painter, const QRectF& area, const QStringList& names)
{
    if (names.isEmpty() || area.isEmpty()) {
        return;
    }
    const int count = static_cast<int>(names.size());
    const int columns = bestColumns(area.size(), count);
    const int rows = (count + columns - 1) / columns;
    const qreal side = std::min(area.width() / columns, area.height() / rows);
    for (int i = 0; i < count; ++i) {
        const int row = i / columns;
        const int inRow = std::min(columns, count - row * columns);
        // An incomplete last row is centered.
        const qreal left = area.center().x() + (i % columns - inRow / 2.0) * side;
        paintPictogram(painter, QRectF(left, area.top() + row * side, side, side), names.at(i));
    }
}

void paintStatements(QPainter& painter, const QRectF& area, const Chemical& chemical)
{
    FittedText text;
    const auto addGroup = [&text](const QString& title, const QStringList& lines) {
        if (lines.isEmpty()) {
            return;
        }
        text.addHeading(title, accentOrange);
        for (const QString& line : lines) {
            text.addStatement(line);
        }
    };
    addGroup(QStringLiteral("Hazard statements"), chemical.hazardLines());
    addGroup(QStringLiteral("Precautionary statements"), chemical.precautionLines());
    painter.setPen(Qt::black);
    text.paint(painter, area, largestStatement);
}

// Maps the label's units onto the middle of target.
void fitInto(QPainter& painter, const QRectF& target, const QSizeF& size)
{
    const qreal scale = std::min(target.width() / size.width(), target.height() / size.height());
    painter.translate(target.center());
    painter.scale(scale, scale);
    painter.translate(-size.width() / 2, -size.height() / 2);
}

} // namespace

QSizeF labelSizeMm(const LabelOptions& options)
{
    const QSizeF size(101.6, 76.2);
    return options.landscape ? size : size.transposed();
}

void paintLabel(QPainter& painter, const QRectF& target, const Chemical& chemical,
                const LabelOptions& options)
{
    if (target.isEmpty() || !painter.isActive()) {
        return;
    }
    const QSizeF size = labelSizeMm(options) * unitsPerMm;
    painter.save();
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    fitInto(painter, target, size);
    const LabelLayout layout = layOut(size, chemical, options.landscape);
    if (options.userBackground) {
        paintUserBackground(painter, layout.frame.adjusted(0, headerHeight + accentHeight, 0, 0));
    }
    paintHeader(painter, layout.header, chemical);
    paintSignalWord(painter, layout.signalWord, chemical.signalWord);
    paintPictograms(painter, layout.pictograms, chemical.pictograms);
    paintStatements(painter, layout.statements, chemical);
    painter.setPen(QPen(Qt::black, frameWidth, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(layout.frame);
    painter.restore();
}

QImage renderLabel(const Chemical& chemical, const LabelOptions& options, const QSize& pixels)
{
    if (pixels.isEmpty()) {
        return {};
    }
    QImage image(pixels, QImage::Format_RGB32);
    if (image.isNull()) {
        return image;
    }
    image.fill(Qt::white);
    QPainter painter(&image);
    paintLabel(painter, QRectF(image.rect()), chemical, options);
    return image;
}

} // namespace SampleHost
