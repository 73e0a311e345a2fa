// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/label/labelpainter.h"
#include "samplehost/support/labelprints.h"
#include "support/stricttest.h"

#include <QtCore/QLineF>
#include <QtCore/QRegularExpression>
#include <QtPdf/QPdfDocument>
#include <QtPdf/QPdfSelection>

using namespace SampleHost;

namespace {

/** A PDF file that is opened for reading; it must have one page. */
class PdfPage
{
public:
    explicit PdfPage(const QByteArray& content)
    {
        m_buffer.setData(content);
        m_buffer.open(QIODevice::ReadOnly);
        m_document.load(&m_buffer);
        if (m_document.pageCount() == 1) {
            m_text = m_document.getAllText(0).text();
        }
    }

    // The text, with blanks and line ends made single blanks.
    QString text() const { return m_text.simplified(); }

    // Where each word of the text starts, in points.
    QList<QPointF> wordPositions()
    {
        static const QRegularExpression word(QStringLiteral("\\S+"));
        QList<QPointF> positions;
        QRegularExpressionMatchIterator words = word.globalMatch(m_text);
        while (words.hasNext()) {
            const int start = static_cast<int>(words.next().capturedStart());
            const QPdfSelection first = m_document.getSelectionAtIndex(0, start, 1);
            positions.append(first.boundingRectangle().bottomLeft());
        }
        return positions;
    }

private:
    QBuffer m_buffer;
    QPdfDocument m_document;
    QString m_text;
};

} // namespace

/** Where the words of a label are, which only Qt PDF tells. */
class TestLabelLines : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void linesBreakAlikeAtEveryResolution();
};

void TestLabelLines::linesBreakAlikeAtEveryResolution()
{
    const Chemical chemical = longestChemical();
    const auto print = [&](int resolution) {
        return printPdf(labelSizeMm({}), resolution, [&](QPainter& painter, const QRectF& page) {
            paintLabel(painter, page, chemical);
        });
    };
    PdfPage fine(print(1200));
    const QList<QPointF> expected = fine.wordPositions();
    QVERIFY(expected.size() > 100);
    for (const int resolution : {72, 203, 600}) {
        PdfPage other(print(resolution));
        QCOMPARE(other.text(), fine.text());
        const QList<QPointF> positions = other.wordPositions();
        QCOMPARE(positions.size(), expected.size());
        for (qsizetype i = 0; i < expected.size(); ++i) {
            const QLineF shift(positions.at(i), expected.at(i));
            QVERIFY2(shift.length() < 1.0, qPrintable(QString::number(shift.length())));
        }
    }
}

QTEST_MAIN(TestLabelLines)

#include "tst_labellines.moc"
