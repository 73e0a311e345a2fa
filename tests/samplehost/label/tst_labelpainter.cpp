// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/data/chemicalseed.h"
#include "samplehost/label/fittedtext.h"
#include "samplehost/label/labelpainter.h"
#include "samplehost/label/pictogram.h"
#include "samplehost/label/pipemarkerpainter.h"
#include "samplehost/support/labelprints.h"
#include "samplehost/support/pdfpages.h"
#include "support/stricttest.h"

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtGui/QPainter>

#include <functional>

using namespace SampleHost;

namespace {

QString pdfText(const QSizeF& sizeMm, int resolution, const PaintPage& paint)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("page.pdf"));
    QFile file(path);
    if (file.open(QIODevice::WriteOnly)) {
        file.write(printPdf(sizeMm, resolution, paint));
        file.close();
    }
    const QStringList pages = pdfPages(path);
    return pages.size() == 1 ? pages.constFirst() : QString();
}

QString labelText(const Chemical& chemical, const LabelOptions& options, int resolution = 600)
{
    return pdfText(labelSizeMm(options), resolution, [&](QPainter& painter, const QRectF& page) {
        paintLabel(painter, page, chemical, options);
    });
}

// Four pixels to the millimetre.
QImage labelPicture(const Chemical& chemical, const LabelOptions& options)
{
    return renderLabel(chemical, options, (labelSizeMm(options) * 4).toSize());
}

// Whether every pixel of an area, which is in millimetres of a label picture, is white.
bool isWhite(const QImage& picture, const QRectF& areaMm)
{
    const QRect area(QPointF(areaMm.topLeft() * 4).toPoint(), (areaMm.size() * 4).toSize());
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            if (picture.pixel(x, y) != qRgb(255, 255, 255)) {
                return false;
            }
        }
    }
    return true;
}

bool hasColor(const QImage& picture, const QColor& color)
{
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixel(x, y) == color.rgb()) {
                return true;
            }
        }
    }
    return false;
}

Chemical overfullChemical()
{
    Chemical chemical = longestChemical();
    chemical.name = QStringLiteral("A very long product name ").repeated(20);
    for (int i = 0; i < 60; ++i) {
        chemical.hazardCodes.append(QStringLiteral("H335"));
        chemical.precautionCodes.append(QStringLiteral("P305+P351+P338"));
        chemical.pictograms.append(QStringLiteral("GHS0%1").arg(i % 9 + 1));
    }
    return chemical;
}

Chemical unbreakableChemical()
{
    Chemical chemical;
    chemical.name = QString(300, QLatin1Char('W'));
    chemical.casNumber = QString(300, QLatin1Char('9'));
    chemical.signalWord = QString(100, QLatin1Char('M'));
    chemical.hazardCodes = QStringList{QString(2000, QLatin1Char('H'))};
    return chemical;
}

QImage pictogramPicture(const QString& name)
{
    QImage picture(90, 90, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    paintPictogram(painter, QRectF(picture.rect()), name);
    return picture;
}

PipeMarker markerOf(const QString& abbreviation)
{
    for (const PipeMarker& marker : pipeMarkers()) {
        if (marker.abbreviation == abbreviation) {
            return marker;
        }
    }
    return {};
}

} // namespace

class TestLabelPainter : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void labelIsFourByThreeInches();
    void pictureHasTheWantedSize_data();
    void pictureHasTheWantedSize();

    void everyTextIsRealTextInPdf_data();
    void everyTextIsRealTextInPdf();
    void nothingLeavesItsPlace_data();
    void nothingLeavesItsPlace();
    void labelStaysInTheMiddleOfItsTarget();
    void paperShowsThrough();
    void fieldsWithoutValueLeaveTheirPlaceFree();
    void userBackgroundIsOptionalAndNoText();
    void painterIsLeftAsItWas();
    void nothingIsPaintedWithoutTargetOrDevice();

    void everyPictogramHasItsOwnPicture();
    void pictogramWithoutPictureShowsItsName();

    void textFillsItsAreaWithoutBreakingWords();
    void wordIsBrokenBeforeItBecomesTiny();

    void pipeMarkerSizeFollowsThePipe_data();
    void pipeMarkerSizeFollowsThePipe();
    void pipeMarkersOfTheSample();
    void wholeMarkerShowsAllItsParts();
    void tagShowsItsWordOnItsColor_data();
    void tagShowsItsWordOnItsColor();
    void itemThatAMarkerDoesNotHavePaintsNothing_data();
    void itemThatAMarkerDoesNotHavePaintsNothing();
    void markerWithBadValuesIsHarmless();
};

void TestLabelPainter::labelIsFourByThreeInches()
{
    LabelOptions options;
    QCOMPARE(labelSizeMm(options), QSizeF(101.6, 76.2));
    options.landscape = false;
    QCOMPARE(labelSizeMm(options), QSizeF(76.2, 101.6));
}

void TestLabelPainter::pictureHasTheWantedSize_data()
{
    addColumns<QSize, QSize>("wanted", "expected");
    addRow("usual", QSize(400, 300), QSize(400, 300));
    addRow("one pixel", QSize(1, 1), QSize(1, 1));
    addRow("flat", QSize(500, 3), QSize(500, 3));
    addRow("none", QSize(0, 300), QSize());
    addRow("negative", QSize(-5, -5), QSize());
    addRow("invalid", QSize(), QSize());
}

void TestLabelPainter::pictureHasTheWantedSize()
{
    QFETCH(QSize, wanted);
    QFETCH(QSize, expected);
    const QImage label = renderLabel(longestChemical(), {}, wanted);
    QCOMPARE(label.isNull(), expected.isNull() || !expected.isValid());
    const QImage marker = renderPipeMarker(pipeMarkers().first(), PipeItem::Label, wanted);
    QCOMPARE(marker.isNull(), label.isNull());
    if (!label.isNull()) {
        QCOMPARE(label.size(), expected);
        QCOMPARE(marker.size(), expected);
    }
}

void TestLabelPainter::everyTextIsRealTextInPdf_data()
{
    addColumns<int, bool>("index", "landscape");
    const QList<Chemical> seed = ChemicalSeed::load();
    for (int i = 0; i < seed.size(); ++i) {
        QTest::addRow("%s, landscape", qPrintable(seed.at(i).name)) << i << true;
        QTest::addRow("%s, portrait", qPrintable(seed.at(i).name)) << i << false;
    }
}

void TestLabelPainter::everyTextIsRealTextInPdf()
{
    QFETCH(int, index);
    QFETCH(bool, landscape);
    const Chemical chemical = ChemicalSeed::load().at(index);
    // A word that is broken after a hyphen or slash at a line's end has a blank in the file's text.
    const auto joined = [](QString text) { return text.remove(QLatin1Char(' ')); };
    const QString text = joined(labelText(chemical, {false, landscape}));
    const QStringList expected = QStringList{chemical.name,
                                             QStringLiteral("CAS ") + chemical.casNumber,
                                             chemical.formula,
                                             chemical.signalWord,
                                             QStringLiteral("Hazard statements"),
                                             QStringLiteral("Precautionary statements")} +
                                 chemical.hazardLines() + chemical.precautionLines();
    for (const QString& part : expected) {
        QVERIFY2(text.contains(joined(part)), qPrintable(part + QLatin1String(" / ") + text));
    }
    const QString unNumber = QStringLiteral("UN") + chemical.unNumber + QChar(0xb7);
    QCOMPARE(text.contains(unNumber), !chemical.unNumber.isEmpty());
}

void TestLabelPainter::nothingLeavesItsPlace_data()
{
    QTest::addColumn<Chemical>("chemical");
    const QList<Chemical> seed = ChemicalSeed::load();
    for (const Chemical& chemical : seed) {
        QTest::newRow(qPrintable(chemical.name)) << chemical;
    }
    addRow("far too much", overfullChemical());
    addRow("words without end", unbreakableChemical());
    addRow("nothing", Chemical());
}

void TestLabelPainter::nothingLeavesItsPlace()
{
    QFETCH(Chemical, chemical);
    // Between frame and content there is a strip that must stay free; below the header, too.
    const QImage landscape = labelPicture(chemical, {false, true});
    QVERIFY(isWhite(landscape, QRectF(2, 15.5, 1.5, 58)));
    QVERIFY(isWhite(landscape, QRectF(98, 15.5, 1.5, 58)));
    QVERIFY(isWhite(landscape, QRectF(2, 72.7, 97.5, 1.2)));
    QVERIFY(isWhite(landscape, QRectF(2, 15.2, 97.5, 1)));
    const QImage portrait = labelPicture(chemical, {false, false});
    QVERIFY(isWhite(portrait, QRectF(2, 15.5, 1.5, 83.5)));
    QVERIFY(isWhite(portrait, QRectF(72.7, 15.5, 1.5, 83.5)));
    QVERIFY(isWhite(portrait, QRectF(2, 98.1, 72, 1.2)));
    QVERIFY(isWhite(portrait, QRectF(2, 15.2, 72, 1)));
}

void TestLabelPainter::labelStaysInTheMiddleOfItsTarget()
{
    QImage picture(600, 500, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    // 406.4 x 304.8 fit into the middle of 406.4 x 404.8, which leaves 50 above and below.
    paintLabel(painter, QRectF(100, 20, 406.4, 404.8), longestChemical());
    painter.end();
    QRect painted;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixel(x, y) != qRgb(255, 255, 255)) {
                painted |= QRect(x, y, 1, 1);
            }
        }
    }
    // The frame lies 1 mm inside the label.
    QCOMPARE(painted, QRect(QPoint(104, 74), QPoint(502, 370)));
}

void TestLabelPainter::paperShowsThrough()
{
    QImage picture(406, 305, QImage::Format_RGB32);
    picture.fill(Qt::yellow);
    QPainter painter(&picture);
    paintLabel(painter, QRectF(picture.rect()), longestChemical());
    painter.end();
    QCOMPARE(picture.pixelColor(1, 1), QColor(Qt::yellow));
    QCOMPARE(picture.pixelColor(398, 298), QColor(Qt::yellow));
}

void TestLabelPainter::fieldsWithoutValueLeaveTheirPlaceFree()
{
    Chemical chemical;
    chemical.name = QStringLiteral("Water");
    QCOMPARE(labelText(chemical, {}), QStringLiteral("Water"));
    QVERIFY(isWhite(labelPicture(chemical, {}), QRectF(2, 15.5, 97, 58)));
    chemical.unNumber = QStringLiteral("1234");
    QCOMPARE(labelText(chemical, {}), QStringLiteral("Water UN 1234"));
    chemical.precautionCodes = QStringList{QStringLiteral("P405")};
    const QString text = labelText(chemical, {});
    QVERIFY(text.contains(QLatin1String("Precautionary statements P405 Store locked up.")));
    QVERIFY(!text.contains(QLatin1String("Hazard statements")));
}

void TestLabelPainter::userBackgroundIsOptionalAndNoText()
{
    const Chemical chemical = ChemicalSeed::load().first();
    for (const bool landscape : {true, false}) {
        const QImage plain = labelPicture(chemical, {false, landscape});
        const QImage backed = labelPicture(chemical, {true, landscape});
        QVERIFY(plain != backed);
        // It lies under the label, inside its frame.
        QCOMPARE(backed.pixel(0, 0), plain.pixel(0, 0));
        QCOMPARE(backed.pixelColor(100, 10), plain.pixelColor(100, 10));
        QCOMPARE(labelText(chemical, {true, landscape}), labelText(chemical, {false, landscape}));
    }
}

void TestLabelPainter::painterIsLeftAsItWas()
{
    QImage picture(400, 300, QImage::Format_RGB32);
    QPainter painter(&picture);
    painter.setPen(Qt::green);
    painter.setBrush(Qt::blue);
    painter.translate(3, 4);
    painter.setClipRect(QRectF(0, 0, 300, 200));
    const QFont font = painter.font();
    const QTransform transform = painter.transform();
    paintLabel(painter, QRectF(0, 0, 200, 150), longestChemical(), {true, true});
    paintPipeMarker(painter, QRectF(0, 0, 200, 150), pipeMarkers().first());
    paintPictogram(painter, QRectF(0, 0, 20, 20), QStringLiteral("unknown"));
    QCOMPARE(painter.pen(), QPen(Qt::green));
    QCOMPARE(painter.brush(), QBrush(Qt::blue));
    QCOMPARE(painter.transform(), transform);
    QCOMPARE(painter.font(), font);
    QCOMPARE(painter.clipBoundingRect(), QRectF(0, 0, 300, 200));
}

void TestLabelPainter::nothingIsPaintedWithoutTargetOrDevice()
{
    QPainter inactive;
    paintLabel(inactive, QRectF(0, 0, 100, 100), longestChemical());
    paintPipeMarker(inactive, QRectF(0, 0, 100, 100), pipeMarkers().first());
    QImage picture(50, 50, QImage::Format_RGB32);
    picture.fill(Qt::white);
    const QImage before = picture.copy();
    QPainter painter(&picture);
    for (const QRectF& target : {QRectF(), QRectF(0, 0, -5, 10), QRectF(0, 0, 10, 0)}) {
        paintLabel(painter, target, longestChemical(), {true, true});
        paintPipeMarker(painter, target, pipeMarkers().first());
        paintPictogram(painter, target, QStringLiteral("GHS01"));
        paintPictogram(painter, target, QStringLiteral("unknown"));
    }
    painter.end();
    QCOMPARE(picture, before);
}

void TestLabelPainter::everyPictogramHasItsOwnPicture()
{
    QList<QImage> pictures;
    for (int i = 1; i <= 9; ++i) {
        const QString name = QStringLiteral("GHS0%1").arg(i);
        QVERIFY2(hasPictogram(name), qPrintable(name));
        const QImage picture = pictogramPicture(name);
        QVERIFY(!pictures.contains(picture));
        // A diamond: red in the middle of each edge, nothing in the corners of the square.
        const QColor edge = picture.pixelColor(24, 24);
        QVERIFY2(edge.red() > 180 && edge.green() < 80 && edge.blue() < 80, qPrintable(name));
        QCOMPARE(picture.pixelColor(5, 5), QColor(Qt::white));
        QCOMPARE(picture.pixelColor(84, 84), QColor(Qt::white));
        QVERIFY(hasColor(picture, Qt::black));
        pictures.append(picture);
    }
}

void TestLabelPainter::pictogramWithoutPictureShowsItsName()
{
    QVERIFY(!hasPictogram(QStringLiteral("GHS10")));
    QVERIFY(!hasPictogram(QString()));
    QVERIFY(!hasPictogram(QStringLiteral("../pictograms/ghs01")));
    QVERIFY(hasColor(pictogramPicture(QStringLiteral("GHS10")), QColor(0xdc, 0x0b, 0x0b)));
    const QString text = pdfText(QSizeF(50, 50), 600, [](QPainter& painter, const QRectF& page) {
        paintPictogram(painter, page, QStringLiteral("GHS10"));
    });
    QCOMPARE(text, QStringLiteral("GHS10"));
}

void TestLabelPainter::textFillsItsAreaWithoutBreakingWords()
{
    FittedText text;
    QVERIFY(text.isEmpty());
    text.addParagraph(QStringLiteral("two words"));
    QVERIFY(!text.isEmpty());
    const int wide = text.fittingSize(QSizeF(10000, 1000), 1000);
    QVERIFY(wide > 500 && wide < 1000);
    // Half as wide, the words stand below each other; each is still whole.
    const int narrow = text.fittingSize(QSizeF(1000, 10000), 1000);
    FittedText longer;
    longer.addParagraph(QStringLiteral("words"));
    QCOMPARE(longer.fittingSize(QSizeF(1000, 10000), 1000), narrow);
    QCOMPARE(text.fittingSize(QSizeF(10000, 1000), 300), 300);
    QCOMPARE(text.fittingSize(QSizeF(0, 0), 300), 1);
    QCOMPARE(text.fittingSize(QSizeF(100, 100), -3), 1);
}

void TestLabelPainter::wordIsBrokenBeforeItBecomesTiny()
{
    FittedText text;
    text.addParagraph(QString(400, QLatin1Char('W')));
    // On one line of 1000 units the letters would be less than 3 units wide.
    QVERIFY(text.fittingSize(QSizeF(1000, 1000), 200) > 20);
}

void TestLabelPainter::pipeMarkerSizeFollowsThePipe_data()
{
    addColumns<qreal, qreal, qreal>("diameter", "letters", "length");
    addRow("thin", 21.3, 13.0, 203.0);
    addRow("limit of the thin", 32.0, 13.0, 203.0);
    addRow("two inches", 50.0, 19.0, 203.0);
    addRow("six inches", 150.0, 32.0, 305.0);
    addRow("ten inches", 250.0, 64.0, 610.0);
    addRow("larger", 251.0, 89.0, 813.0);
    addRow("senseless", -1.0, 13.0, 203.0);
    addRow("beyond all limits", 1e12, 89.0, 813.0);
    addRow("not a number", qQNaN(), 89.0, 813.0);
}

void TestLabelPainter::pipeMarkerSizeFollowsThePipe()
{
    QFETCH(qreal, diameter);
    QFETCH(qreal, letters);
    QFETCH(qreal, length);
    QCOMPARE(pipeLegendHeightMm(diameter), letters);
    PipeMarker marker;
    marker.content = QStringLiteral("STEAM");
    marker.diameterMm = diameter;
    QCOMPARE(pipeMarkerSizeMm(marker), QSizeF(length, letters * 2.2));
    // State, abbreviation and pressure make a marker longer instead of squeezing its content.
    marker.tags = PipeItem::HighPressure | PipeItem::LiquidState;
    marker.abbreviation = QStringLiteral("HPL");
    QCOMPARE(pipeMarkerSizeMm(marker), QSizeF(length + 2.4 * letters * 2.2, letters * 2.2));
    QCOMPARE(pipeMarkerSizeMm(marker, PipeItem::LiquidState),
             QSizeF(2 * letters * 2.2, letters * 2.2));
}

void TestLabelPainter::pipeMarkersOfTheSample()
{
    int ammonia = 0;
    int others = 0;
    for (const PipeMarker& marker : pipeMarkers()) {
        const bool isAmmonia = marker.content == QLatin1String("AMMONIA");
        // An ammonia line has exactly one pressure level and at least one state.
        const int pressure = marker.tags & 3;
        QCOMPARE(pressure == 1 || pressure == 2, isAmmonia);
        QCOMPARE((marker.tags & 12) != 0, isAmmonia);
        QCOMPARE(marker.tags & ~15, 0);
        QCOMPARE(marker.abbreviation.isEmpty(), !isAmmonia);
        QVERIFY(!pipeMarkerSizeMm(marker).isEmpty());
        ++(isAmmonia ? ammonia : others);
    }
    QVERIFY(ammonia >= 4);
    QVERIFY(others >= 2);
    QCOMPARE(markerOf(QStringLiteral("HPL")).tags, 9);
    QCOMPARE(markerOf(QStringLiteral("LPS")).tags, 6);
    QCOMPARE(markerOf(QStringLiteral("HPL")).title(),
             QString::fromUtf8("AMMONIA \u2013 HPL \u2013 High Pressure Liquid"));
    QCOMPARE(pipeMarkers().at(8).title(), QStringLiteral("CHILLED WATER SUPPLY"));
}

void TestLabelPainter::wholeMarkerShowsAllItsParts()
{
    const PipeMarker marker = markerOf(QStringLiteral("HTRS"));
    const QString text =
        pdfText(pipeMarkerSizeMm(marker), 300, [&](QPainter& painter, const QRectF& page) {
            paintPipeMarker(painter, page, marker);
        });
    for (const QString& part :
         {QStringLiteral("VAP"), QStringLiteral("LIQ"), QStringLiteral("HTRS"),
          QStringLiteral("AMMONIA"), QStringLiteral("High Temperature Recirculated Suction"),
          QStringLiteral("LOW")}) {
        QVERIFY2(text.contains(part), qPrintable(text));
    }
    QVERIFY2(!text.contains(QLatin1String("HIGH")), qPrintable(text));
    const QImage picture = renderPipeMarker(marker, PipeItem::Label, QSize(700, 100));
    for (const QColor& color : {QColor(0xf2, 0x80, 0x00), QColor(0x41, 0xb6, 0xe6),
                                QColor(0xfe, 0xdb, 0x00), QColor(0x24, 0x8d, 0x4f)}) {
        QVERIFY2(hasColor(picture, color), qPrintable(color.name()));
    }
    QVERIFY(!hasColor(picture, QColor(0xdc, 0x0b, 0x0b)));
}

void TestLabelPainter::tagShowsItsWordOnItsColor_data()
{
    addColumns<int, QString, QColor>("item", "word", "color");
    addRow("high pressure", 1, "HIGH", QColor(0xdc, 0x0b, 0x0b));
    addRow("low pressure", 2, "LOW", QColor(0x24, 0x8d, 0x4f));
    addRow("vapor state", 4, "VAP", QColor(0x41, 0xb6, 0xe6));
    addRow("liquid state", 8, "LIQ", QColor(0xfe, 0xdb, 0x00));
}

void TestLabelPainter::tagShowsItsWordOnItsColor()
{
    QFETCH(int, item);
    QFETCH(QString, word);
    QFETCH(QColor, color);
    PipeMarker marker = pipeMarkers().first();
    marker.tags = 15;
    QVERIFY(hasPipeItem(marker, item));
    const QString text =
        pdfText(pipeMarkerSizeMm(marker, item), 300, [&](QPainter& painter, const QRectF& page) {
            paintPipeMarker(painter, page, marker, item);
        });
    QCOMPARE(text, word);
    const QImage picture = renderPipeMarker(marker, item, QSize(200, 100));
    QCOMPARE(picture.pixelColor(4, 4), color);
    QCOMPARE(picture.pixelColor(195, 95), color);
}

void TestLabelPainter::itemThatAMarkerDoesNotHavePaintsNothing_data()
{
    addColumns<QString, int>("abbreviation", "item");
    addRow("tag of the other pressure", "HPL", 2);
    addRow("tag of the other state", "HPL", 4);
    addRow("two tags at once", "HPL", 9);
    addRow("unknown", "HPL", 16);
    addRow("negative", "HPL", -1);
    addRow("no tags at all", QString(), 1);
}

void TestLabelPainter::itemThatAMarkerDoesNotHavePaintsNothing()
{
    QFETCH(QString, abbreviation);
    QFETCH(int, item);
    const PipeMarker marker = markerOf(abbreviation);
    QVERIFY(!hasPipeItem(marker, item));
    QVERIFY(pipeMarkerSizeMm(marker, item).isEmpty());
    QImage white(200, 100, QImage::Format_RGB32);
    white.fill(Qt::white);
    QCOMPARE(renderPipeMarker(marker, item, white.size()), white);
}

void TestLabelPainter::markerWithBadValuesIsHarmless()
{
    PipeMarker marker;
    QVERIFY(hasPipeItem(marker, PipeItem::Label));
    QCOMPARE(renderPipeMarker(marker, PipeItem::Label, QSize(300, 50)).size(), QSize(300, 50));
    marker.content = QString(500, QLatin1Char('W'));
    marker.service = marker.content;
    marker.abbreviation = marker.content;
    marker.tags = -1;
    marker.field = QColor();
    marker.legend = QColor();
    QCOMPARE(renderPipeMarker(marker, PipeItem::Label, QSize(300, 50)).size(), QSize(300, 50));
    QCOMPARE(marker.title().count(QLatin1Char('W')), 1500);
}

QTEST_MAIN(TestLabelPainter)
#include "tst_labelpainter.moc"
