// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/pdf/pdftest.h"
#include "samplehost/pdf/sheets/sheetlayout.h"

using namespace SampleHost;

namespace {

constexpr qreal pointsPerMm = 72 / 25.4;

/** A page of 400 by 600 points with a black mark at its lower left corner and entries of its own.
 */
PdfSamples::Page marked(const char* entries = "")
{
    return {QSizeF(400, 600), "0 g 40 30 100 50 re f " + PdfSamples::words("Marked", 60, 500),
            entries};
}

PageBox box(const QSizeF& size, int turns = 0)
{
    PageBox box;
    box.visible = QRectF(QPointF(), size);
    box.turns = turns;
    return box;
}

} // namespace

class TestPdfSheet : public PdfTest
{
    Q_OBJECT

private Q_SLOTS:
    void placesPages_data();
    void placesPages();
    void mapsCorners_data();
    void mapsCorners();
    void printsWhatWasLaidOut_data();
    void printsWhatWasLaidOut();
    void printsTurnedPages_data();
    void printsTurnedPages();
    void cropsPages();
    void rotatesTheText();
    void previewShowsTheSheet();
};

void TestPdfSheet::placesPages_data()
{
    addColumns<QSizeF, SheetOptions, QSizeF, QRectF>("page", "options", "sheet", "rect");

    const QSizeF paper(600, 800);
    const QMarginsF margins(10, 20, 30, 40);
    const auto options = [](const QSizeF& size, bool fit, const QMarginsF& unprintable) {
        SheetOptions made;
        made.paper = size;
        made.fitToPage = fit;
        made.unprintable = unprintable;
        return made;
    };
    addRow("own paper", QSizeF(300, 500), options(QSizeF(), false, {}), QSizeF(300, 500),
           QRectF(0, 0, 300, 500));
    addRow("own paper, fitted", QSizeF(300, 500), options(QSizeF(), true, {}), QSizeF(300, 500),
           QRectF(0, 0, 300, 500));
    addRow("small page", QSizeF(300, 500), options(paper, false, {}), paper,
           QRectF(150, 150, 300, 500));
    addRow("small page keeps its size within margins", QSizeF(300, 500),
           options(paper, false, margins), paper, QRectF(150, 150, 300, 500));
    addRow("large page", QSizeF(700, 1000), options(paper, false, {}), paper,
           QRectF(-50, -100, 700, 1000));
    addRow("scaled up", QSizeF(300, 500), options(paper, true, {}), paper, QRectF(60, 0, 480, 800));
    addRow("scaled down", QSizeF(1200, 1400), options(paper, true, {}), paper,
           QRectF(0, 50, 600, 700));
    addRow("scaled within margins", QSizeF(280, 370), options(paper, true, margins), paper,
           QRectF(10, 20, 560, 740));
    addRow("margins larger than the paper", QSizeF(300, 400),
           options(paper, true, QMarginsF(300, 400, 300, 400)), paper, QRectF(0, 0, 600, 800));
    addRow("lying page turns the paper", QSizeF(500, 300), options(paper, false, {}),
           QSizeF(800, 600), QRectF(150, 150, 500, 300));
    addRow("upright page turns the paper", QSizeF(300, 500), options(QSizeF(800, 600), true, {}),
           paper, QRectF(60, 0, 480, 800));
    addRow("square page leaves the paper", QSizeF(300, 300), options(QSizeF(800, 600), true, {}),
           QSizeF(800, 600), QRectF(100, 0, 600, 600));
}

void TestPdfSheet::placesPages()
{
    QFETCH(QSizeF, page);
    QFETCH(SheetOptions, options);
    QFETCH(QSizeF, sheet);
    QFETCH(QRectF, rect);
    const SheetLayout layout(box(page), options);
    QCOMPARE(layout.sheetSize(), sheet);
    QCOMPARE(layout.pageRect(), rect);

    // Turned over it stands at the same place.
    options.rotated180 = true;
    QCOMPARE(SheetLayout(box(page), options).pageRect(), rect);
}

void TestPdfSheet::mapsCorners_data()
{
    // A page of 400 by 600 at 100, 200 in its own coordinates on a sheet of 1000 by 1000.
    addColumns<int, bool, QPointF, QPointF>("turns", "rotated180", "lowerLeft", "upperRight");
    addRow("upright", 0, false, QPointF(300, 200), QPointF(700, 800));
    addRow("turned right", 1, false, QPointF(200, 700), QPointF(800, 300));
    addRow("upside down", 2, false, QPointF(700, 800), QPointF(300, 200));
    addRow("turned left", 3, false, QPointF(800, 300), QPointF(200, 700));
    addRow("upright, 180", 0, true, QPointF(700, 800), QPointF(300, 200));
    addRow("turned right, 180", 1, true, QPointF(800, 300), QPointF(200, 700));
    addRow("upside down, 180", 2, true, QPointF(300, 200), QPointF(700, 800));
    addRow("turned left, 180", 3, true, QPointF(200, 700), QPointF(800, 300));
}

void TestPdfSheet::mapsCorners()
{
    QFETCH(int, turns);
    QFETCH(bool, rotated180);
    QFETCH(QPointF, lowerLeft);
    QFETCH(QPointF, upperRight);
    PageBox page = box(QSizeF(400, 600), turns);
    page.visible.moveTo(100, 200);
    SheetOptions options;
    options.paper = QSizeF(1000, 1000);
    options.rotated180 = rotated180;
    const QTransform map = SheetLayout(page, options).pageToSheet();
    QCOMPARE(map.map(QPointF(100, 200)), lowerLeft);
    QCOMPARE(map.map(QPointF(500, 800)), upperRight);
}

void TestPdfSheet::printsWhatWasLaidOut_data()
{
    // The mark is 40 from the left and 520 to 570 from the top of its page of 400 by 600.
    addColumns<QSizeF, bool, bool, QSizeF, QRectF>("paper", "fit", "rotated180", "sheet", "mark");

    const QSizeF large(800, 1500);
    addRow("own paper", QSizeF(), false, false, QSizeF(400, 600), QRectF(40, 520, 100, 50));
    addRow("own paper, 180", QSizeF(), false, true, QSizeF(400, 600), QRectF(260, 30, 100, 50));
    addRow("own size, centred", large, false, false, large, QRectF(240, 970, 100, 50));
    addRow("own size, 180", large, false, true, large, QRectF(460, 480, 100, 50));
    addRow("fitted up", large, true, false, large, QRectF(80, 1190, 200, 100));
    addRow("fitted up, 180", large, true, true, large, QRectF(520, 210, 200, 100));
    addRow("fitted down", QSizeF(200, 400), true, false, QSizeF(200, 400), QRectF(20, 310, 50, 25));
    addRow("fitted on lying paper", QSizeF(1500, 800), true, false, large,
           QRectF(80, 1190, 200, 100));
}

void TestPdfSheet::printsWhatWasLaidOut()
{
    QFETCH(QSizeF, paper);
    QFETCH(bool, fit);
    QFETCH(bool, rotated180);
    QFETCH(QSizeF, sheet);
    QFETCH(QRectF, mark);
    PdfPrintRequest request;
    request.paperMm = paper / pointsPerMm;
    request.fitToPage = fit;
    request.rotated180 = rotated180;
    PdfSamples::Page page = marked();
    page.content = "0 g 40 30 100 50 re f";
    QVERIFY(open(PdfSamples::pages({page})));
    QVERIFY(print(request));

    const QSizeF printed = PdfOutput::pageSize(m_output);
    QVERIFY(qAbs(printed.width() - sheet.width()) < 0.01);
    QVERIFY(qAbs(printed.height() - sheet.height()) < 0.01);
    const QRectF ink = PdfOutput::ink(m_output);
    QVERIFY2(PdfOutput::agree(ink, mark), PdfOutput::described(ink).constData());
}

void TestPdfSheet::printsTurnedPages_data()
{
    QTest::addColumn<QByteArray>("entries");
    addRow("plain", QByteArray());
    addRow("turned right", QByteArray("/Rotate 90"));
    addRow("upside down", QByteArray("/Rotate 180"));
    addRow("turned left", QByteArray("/Rotate 270"));
    addRow("cropped", QByteArray("/CropBox [ 20 10 300 400 ]"));
    addRow("cropped and turned", QByteArray("/Rotate 90 /CropBox [ 20 10 300 400 ]"));
}

// On paper of its own every page looks exactly as viewers show it.
void TestPdfSheet::printsTurnedPages()
{
    QFETCH(QByteArray, entries);
    QVERIFY(open(PdfSamples::pages({marked(entries.constData())})));
    QVERIFY(print(PdfPrintRequest()));
    const QImage shown = PdfOutput::picture(m_document.path());
    const QImage printed = PdfOutput::picture(m_output);
    QVERIFY(!shown.isNull());
    QCOMPARE(printed.size(), shown.size());
    int different = 0;
    for (int y = 0; y < shown.height(); ++y) {
        for (int x = 0; x < shown.width(); ++x) {
            const int distance = qGray(shown.pixel(x, y)) - qGray(printed.pixel(x, y));
            different += qAbs(distance) > 64 ? 1 : 0;
        }
    }
    QCOMPARE(different, 0);
}

void TestPdfSheet::cropsPages()
{
    // What lies outside the visible part must not come out on larger paper either.
    PdfSamples::Page page = marked("/CropBox [ 200 300 400 600 ]");
    page.content = "0 g 0 0 400 600 re f";
    PdfPrintRequest request;
    request.paperMm = QSizeF(600, 800) / pointsPerMm;
    QVERIFY(open(PdfSamples::pages({page})));
    QVERIFY(print(request));
    const QRectF ink = PdfOutput::ink(m_output);
    QVERIFY2(PdfOutput::agree(ink, QRectF(200, 250, 200, 300)),
             PdfOutput::described(ink).constData());
}

void TestPdfSheet::rotatesTheText()
{
    PdfPrintRequest request;
    request.rotated180 = true;
    QVERIFY(open(PdfSamples::pages({marked()})));
    QVERIFY(print(request));
    QCOMPARE(PdfOutput::texts(m_output), QStringList{QStringLiteral("Marked")});
    const QImage upright = PdfOutput::picture(m_document.path());
    const QImage turned = PdfOutput::picture(m_output).mirrored(true, true);
    QCOMPARE(turned.size(), upright.size());
    // The middle of the mark and the paper beside it.
    QCOMPARE(turned.pixelColor(90 * 4, 545 * 4), QColor(Qt::black));
    QCOMPARE(upright.pixelColor(90 * 4, 545 * 4), QColor(Qt::black));
    QCOMPARE(turned.pixelColor(300 * 4, 545 * 4), QColor(Qt::white));
}

void TestPdfSheet::previewShowsTheSheet()
{
    PdfPrintRequest request;
    QVERIFY(open(PdfSamples::pages({marked()})));
    QVERIFY(print(request));
    request.paperMm = QSizeF(800, 1500) / pointsPerMm;
    request.fitToPage = true;
    request.rotated180 = true;
    const QImage preview = previewPdfSheet(m_document, request, 0, QSize(800, 1500));
    QCOMPARE(preview.size(), QSize(800, 1500));
    QCOMPARE(preview.pixelColor(620, 260), QColor(Qt::black));
    QCOMPARE(preview.pixelColor(180, 1240), QColor(Qt::white));

    QCOMPARE(previewPdfSheet(m_document, request, 0, QSize(300, 300)).size(), QSize(160, 300));
    QVERIFY(previewPdfSheet(m_document, request, 1, QSize(300, 300)).isNull());
    QVERIFY(previewPdfSheet(m_document, request, -1, QSize(300, 300)).isNull());
    QVERIFY(previewPdfSheet(m_document, request, 0, QSize()).isNull());
    QVERIFY(previewPdfSheet(PdfDocument(), request, 0, QSize(300, 300)).isNull());
}

QTEST_MAIN(TestPdfSheet)

#include "tst_pdfsheet.moc"
