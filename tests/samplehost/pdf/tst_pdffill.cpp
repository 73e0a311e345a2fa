// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/pdf/pdftest.h"

#include <QtPdf/QPdfDocument>
#include <QtPdf/QPdfSelection>

using namespace SampleHost;

namespace {

PdfPrintRequest wholeDocument(bool formFillOnly)
{
    PdfPrintRequest request;
    request.startPage = 1;
    request.endPage = 99999;
    request.formFillOnly = formFillOnly;
    return request;
}

QStringList sortedWords(const QString& text)
{
    QStringList words = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    words.sort();
    return words;
}

bool isNear(QRgb pixel, const QColor& color)
{
    return qAbs(qRed(pixel) - color.red()) < 60 && qAbs(qGreen(pixel) - color.green()) < 60 &&
           qAbs(qBlue(pixel) - color.blue()) < 60;
}

int pixelsNear(const QImage& image, const QRectF& points, const QColor& color)
{
    const QRect area = QRectF(points.topLeft() * 4, points.size() * 4).toRect() & image.rect();
    int count = 0;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            count += isNear(image.pixel(x, y), color) ? 1 : 0;
        }
    }
    return count;
}

const QRectF wholeSheet(0, 0, 900, 900);
const QColor frameRed(255, 0, 0);
const QColor fieldGrey(204, 204, 204);
const QColor printedGreen(0, 255, 0);
const QColor textBlue(0, 0, 255);

} // namespace

class TestPdfFill : public PdfTest
{
    Q_OBJECT

private Q_SLOTS:
    void printsTheWholeForm();
    void printsOnlyWhatIsFilledIn();
    void printsNoPictureOfTheForm();
    void keepsPlaces();
    void marksTickedBoxes();
    void turnsWithThePage();
    void drawsFieldsThatHaveNoLook();
    void fitsAndRotates();
    void documentWithoutFieldsIsPrintedWhole();
    void previewShowsOnlyTheFilling();
};

void TestPdfFill::printsTheWholeForm()
{
    QVERIFY(open(PdfSamples::form()));
    QVERIFY(print(wholeDocument(false)));
    const QStringList texts = PdfOutput::texts(m_output);
    QCOMPARE(texts.size(), qsizetype(3));
    for (const char* text : {"Order printed", "Alice filled", "Red filled", "Xfilled", "Push me",
                             "Signed", "Small Medium Large"}) {
        QVERIFY2(texts.at(0).contains(QLatin1String(text)), text);
    }
    QVERIFY(!texts.at(0).contains(QStringLiteral("Hidden")));
    QVERIFY(!texts.at(0).contains(QStringLiteral("Screen")));
    QCOMPARE(texts.at(1), QStringLiteral("Terms printed"));
    QVERIFY(texts.at(2).contains(QStringLiteral("Third filled")));
    const QImage page = PdfOutput::picture(m_output);
    QVERIFY(pixelsNear(page, wholeSheet, frameRed) > 1000);
    QVERIFY(pixelsNear(page, wholeSheet, fieldGrey) > 1000);
    QVERIFY(pixelsNear(page, wholeSheet, printedGreen) > 1000);
}

void TestPdfFill::printsOnlyWhatIsFilledIn()
{
    QVERIFY(open(PdfSamples::form()));
    QVERIFY(print(wholeDocument(true)));
    const QStringList texts = PdfOutput::texts(m_output);
    // Every page keeps its sheet, so that the filling meets the sheets with the form on them.
    QCOMPARE(texts.size(), qsizetype(3));
    QCOMPARE(sortedWords(texts.at(0)),
             sortedWords(QStringLiteral(
                 "Alice filled Plain filled Red filled Medium filled, Large filled Xfilled")));
    QCOMPARE(texts.at(1), QString());
    QCOMPARE(texts.at(2), QStringLiteral("Third filled"));
}

void TestPdfFill::printsNoPictureOfTheForm()
{
    QVERIFY(open(PdfSamples::form()));
    QVERIFY(print(wholeDocument(true)));
    for (int page = 0; page < 3; ++page) {
        const QImage image = PdfOutput::picture(m_output, page);
        QCOMPARE(pixelsNear(image, wholeSheet, frameRed), 0);
        QCOMPARE(pixelsNear(image, wholeSheet, printedGreen), 0);
    }
    QVERIFY(PdfOutput::ink(m_output, 1).isEmpty());
    // Grey comes up along the edges of letters, but not between them.
    const QImage first = PdfOutput::picture(m_output);
    QCOMPARE(first.pixelColor(290 * 4, 132 * 4), QColor(Qt::white));
    QVERIFY(pixelsNear(first, wholeSheet, textBlue) > 100);
}

void TestPdfFill::keepsPlaces()
{
    QVERIFY(open(PdfSamples::form()));
    QVERIFY(print(wholeDocument(true)));
    const QImage whole = PdfOutput::picture(m_document.path());
    const QImage filled = PdfOutput::picture(m_output);
    QCOMPARE(filled.size(), whole.size());
    // The text of the first field, in its own colour, and nothing of it elsewhere in the field.
    const QRectF field(100, 122, 200, 20);
    const QRectF text(102, 122, 80, 20);
    const int blue = pixelsNear(filled, text, textBlue);
    QVERIFY(blue > 100);
    QCOMPARE(pixelsNear(filled, field, textBlue), blue);

    QPdfDocument document;
    QCOMPARE(document.load(m_output), QPdfDocument::Error::None);
    const QString all = document.getAllText(0).text();
    const auto place = [&document, &all](const char* words) {
        const int start = int(all.indexOf(QLatin1String(words)));
        return document.getSelectionAtIndex(0, start, int(qstrlen(words))).boundingRectangle();
    };
    QVERIFY(field.contains(place("Alice filled")));
    QVERIFY(QRectF(100, 162, 200, 20).contains(place("Plain filled").center()));
    QVERIFY(QRectF(100, 202, 200, 20).contains(place("Red filled")));
    QVERIFY(QRectF(100, 242, 200, 80).contains(place("Medium filled").center()));
}

void TestPdfFill::marksTickedBoxes()
{
    QVERIFY(open(PdfSamples::form()));
    QVERIFY(print(wholeDocument(true)));
    const QImage filled = PdfOutput::picture(m_output);
    const QRectF strokes(400, 122, 20, 20);
    const QRectF letters(400, 162, 20, 20);
    const QRectF unticked(400, 202, 20, 20);
    QVERIFY(pixelsNear(filled, strokes, Qt::black) > 50);
    QVERIFY(pixelsNear(filled, letters, Qt::black) > 20);
    QCOMPARE(pixelsNear(filled, unticked, Qt::black), 0);
    QCOMPARE(pixelsNear(filled, unticked, Qt::white), 80 * 80);
}

void TestPdfFill::turnsWithThePage()
{
    QVERIFY(open(PdfSamples::form()));
    QVERIFY(print(wholeDocument(true)));
    QCOMPARE(PdfOutput::pageSize(m_output, 2), QSizeF(842, 595));
    // The field is 100 to 300 from the left and 122 to 142 from the top before the page is turned.
    const QRectF ink = PdfOutput::ink(m_output, 2);
    QVERIFY2(QRectF(842 - 142, 100, 20, 200).contains(ink), PdfOutput::described(ink).constData());
    QVERIFY(ink.height() > 40);
}

void TestPdfFill::drawsFieldsThatHaveNoLook()
{
    QVERIFY(open(PdfSamples::formWithoutAppearances()));
    QVERIFY(m_document.hasFormFields());
    QVERIFY(print(wholeDocument(true)));
    const QStringList texts = PdfOutput::texts(m_output);
    QCOMPARE(texts.size(), qsizetype(3));
    QCOMPARE(sortedWords(texts.at(0)),
             sortedWords(QStringLiteral(
                 "Alice filled Plain filled Red filled Medium filled, Large filled Xfilled")));
    QCOMPARE(texts.at(2), QStringLiteral("Third filled"));

    // Printing again is no different.
    QVERIFY(print(wholeDocument(true)));
    QCOMPARE(PdfOutput::texts(m_output), texts);
    const QImage filled = PdfOutput::picture(m_output);
    QVERIFY(pixelsNear(filled, QRectF(400, 122, 20, 20), Qt::black) > 50);
    QCOMPARE(pixelsNear(filled, QRectF(400, 202, 20, 20), Qt::black), 0);

    QVERIFY(print(wholeDocument(false)));
    const QString whole = PdfOutput::texts(m_output).value(0);
    QVERIFY(whole.contains(QStringLiteral("Order printed")));
    QVERIFY(whole.contains(QStringLiteral("Alice filled")));
    QVERIFY(!whole.contains(QStringLiteral("Secret")));
}

void TestPdfFill::fitsAndRotates()
{
    QVERIFY(open(PdfSamples::form()));
    PdfPrintRequest request = wholeDocument(true);
    request.endPage = 1;
    QVERIFY(print(request));
    const QRectF plain = PdfOutput::ink(m_output);

    request.rotated180 = true;
    QVERIFY(print(request));
    const QRectF turned = PdfOutput::ink(m_output);
    const QRectF expected(595 - plain.right(), 842 - plain.bottom(), plain.width(), plain.height());
    QVERIFY2(PdfOutput::agree(turned, expected), PdfOutput::described(turned).constData());

    request.rotated180 = false;
    request.fitToPage = true;
    request.paperMm = QSizeF(595, 842) / (72 / 25.4) / 2;
    QVERIFY(print(request));
    const QRectF half = PdfOutput::ink(m_output);
    QVERIFY2(PdfOutput::agree(half, QRectF(plain.topLeft() / 2, plain.size() / 2)),
             PdfOutput::described(half).constData());
}

void TestPdfFill::documentWithoutFieldsIsPrintedWhole()
{
    const PdfSamples::Page page{QSizeF(300, 300), PdfSamples::words("No form", 50, 50), {}};
    QVERIFY(open(PdfSamples::pages({page})));
    QVERIFY(print(wholeDocument(true)));
    QCOMPARE(PdfOutput::texts(m_output), QStringList{QStringLiteral("No form")});
}

void TestPdfFill::previewShowsOnlyTheFilling()
{
    QVERIFY(open(PdfSamples::form()));
    const QSize bounds(595 * 4, 842 * 4);
    const QImage whole = previewPdfSheet(m_document, wholeDocument(false), 0, bounds);
    const QImage filled = previewPdfSheet(m_document, wholeDocument(true), 0, bounds);
    QCOMPARE(whole.size(), bounds);
    QCOMPARE(filled.size(), bounds);
    QVERIFY(pixelsNear(whole, wholeSheet, printedGreen) > 1000);
    QCOMPARE(pixelsNear(filled, wholeSheet, printedGreen), 0);
    QVERIFY(pixelsNear(filled, wholeSheet, textBlue) > 100);
}

QTEST_MAIN(TestPdfFill)

#include "tst_pdffill.moc"
