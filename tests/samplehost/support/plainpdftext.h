// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PLAINPDFTEXT_H
#define PLAINPDFTEXT_H

#include <QtCore/QByteArrayList>
#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QString>
#include <QtGui/QTransform>

/** The text of a page of a PlainPdf, from the operators that draw it. */
class PlainPdfText
{
public:
    /** What the glyphs of a font stand for. */
    using Characters = QHash<uint, QString>;
    /** The fonts of a page by their names. */
    using Fonts = QHash<QString, Characters>;

    /** Executes a page's operators. */
    PlainPdfText(const Fonts& fonts, const QByteArray& content);

    /** Words with single blanks, also between what is on different lines or far apart. */
    QString text() const { return m_text.simplified(); }

private:
    void execute(const QByteArray& command);
    void showText(const QByteArray& glyph);
    bool isApart(const QPointF& position, const QTransform& matrix) const;
    qreal operand(int fromEnd) const;
    QTransform matrixOperand() const;

    const Fonts& m_fonts;
    QByteArrayList m_operands;
    QList<QTransform> m_saved;
    QTransform m_page;
    QTransform m_line;
    QString m_font;
    qreal m_fontSize = 0;
    QPointF m_lastPosition;
    QString m_text;
};

#endif
