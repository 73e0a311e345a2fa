// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/support/plainpdftext.h"

#include <QtCore/QtMath>

PlainPdfText::PlainPdfText(const Fonts& fonts, const QByteArray& content) : m_fonts(fonts)
{
    const QByteArrayList words = content.simplified().split(' ');
    for (const QByteArray& word : words) {
        const bool isCommand = !word.isEmpty() && QChar::fromLatin1(word.front()).isLetter();
        if (isCommand) {
            execute(word);
            m_operands.clear();
        } else {
            m_operands.append(word);
        }
    }
}

void PlainPdfText::execute(const QByteArray& command)
{
    if (command == "q") {
        m_saved.append(m_page);
    } else if (command == "Q" && !m_saved.isEmpty()) {
        m_page = m_saved.takeLast();
    } else if (command == "cm") {
        m_page = matrixOperand() * m_page;
    } else if (command == "BT") {
        m_line.reset();
    } else if (command == "Tf") {
        m_font = QString::fromLatin1(m_operands.value(m_operands.size() - 2));
        m_fontSize = operand(1);
    } else if (command == "Tm") {
        m_line = matrixOperand();
    } else if (command == "Td") {
        m_line = QTransform::fromTranslate(operand(2), operand(1)) * m_line;
    } else if (command == "Tj") {
        showText(m_operands.value(m_operands.size() - 1));
    }
}

void PlainPdfText::showText(const QByteArray& glyph)
{
    const QTransform matrix = m_line * m_page;
    const QPointF position = matrix.map(QPointF());
    if (isApart(position, matrix)) {
        m_text.append(QLatin1Char(' '));
    }
    m_lastPosition = position;
    const uint number = glyph.mid(1, glyph.size() - 2).toUInt(nullptr, 16);
    m_text.append(m_fonts.value(m_font).value(number, QStringLiteral("?")));
}

// Whether a glyph does not continue the word of the one before, wherever the line runs.
bool PlainPdfText::isApart(const QPointF& position, const QTransform& matrix) const
{
    const QPointF em = matrix.map(QPointF(m_fontSize, 0)) - position;
    const QPointF step = position - m_lastPosition;
    const qreal square = QPointF::dotProduct(em, em);
    const qreal along = QPointF::dotProduct(step, em) / square;
    const qreal across = QPointF::dotProduct(step, QPointF(-em.y(), em.x())) / square;
    return along < 0 || along > 1.2 || qAbs(across) > 0.3;
}

qreal PlainPdfText::operand(int fromEnd) const
{
    return m_operands.value(m_operands.size() - fromEnd).toDouble();
}

QTransform PlainPdfText::matrixOperand() const
{
    return QTransform(operand(6), operand(5), operand(4), operand(3), operand(2), operand(1));
}
