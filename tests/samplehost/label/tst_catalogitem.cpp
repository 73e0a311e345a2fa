// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/designs/catalogdesign.h"
#include "samplehost/designs/catalogsize.h"
#include "samplehost/label/catalogpainter.h"
#include "samplehost/label/pictogram.h"
#include "samplehost/support/hostfixture.h"
#include "support/stricttest.h"

#include <QtCore/QFile>
#include <QtGui/QPainter>
#include <QtGui/QPdfWriter>

#include <cmath>
#include <limits>

using namespace SampleHost;

namespace {

QImage painted(const CatalogItem& item, const QSizeF& sizeMm, const QSize& pixels)
{
    QImage image(pixels, QImage::Format_RGB32);
    image.fill(Qt::magenta);
    QPainter painter(&image);
    paintCatalogItem(painter, QRectF(image.rect()), item, sizeMm);
    return image;
}

} // namespace

Q_DECLARE_METATYPE(SampleHost::CatalogItem)

/** The items of the catalogue, and the sizes in which they can be had. */
class TestCatalogItem : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void itemsAreComplete_data();
    void itemsAreComplete();
    void itemsAreFoundByName();
    void itemsFillTheirSize_data();
    void itemsFillTheirSize();
    void textIsRealText_data();
    void textIsRealText();
    void differentSizesAreLaidOutAnew();
    void nothingIsPaintedWithoutRoom();
    void designFollowsTheSelection();
    void sizesAreJudged_data();
    void sizesAreJudged();
};

void TestCatalogItem::itemsAreComplete_data()
{
    QTest::addColumn<CatalogItem>("item");
    for (const CatalogItem& item : catalogItems()) {
        QTest::newRow(qPrintable(item.text)) << item;
    }
}

void TestCatalogItem::itemsAreComplete()
{
    QFETCH(CatalogItem, item);
    QVERIFY(!item.text.isEmpty());
    QCOMPARE(item.text, item.text.toUpper());
    QCOMPARE(CatalogSize::problem(item.sizeMm, true), QString());
    QVERIFY(item.legend != item.field);
    QCOMPARE(item.header.isEmpty(), !item.headerField.isValid());
    QCOMPARE(item.symbol.isEmpty(), hasPictogram(item.pictogram));
    QCOMPARE(!item.symbol.isEmpty(),
             QFile::exists(QStringLiteral(":/symbols/%1.svg").arg(item.symbol)));
}

void TestCatalogItem::itemsAreFoundByName()
{
    for (int i = 0; i < catalogItems().size(); ++i) {
        QCOMPARE(catalogIndexOf(catalogItems().at(i).text), i);
    }
    QCOMPARE(catalogIndexOf(QStringLiteral("exit")), 0);
    QCOMPARE(catalogIndexOf(QStringLiteral("EXI")), -1);
    QCOMPARE(catalogIndexOf(QString()), -1);
    for (const char* name : {"EXIT", "NO SMOKING", "EYE WASH STATION"}) {
        QVERIFY2(catalogIndexOf(QString::fromLatin1(name)) >= 0, name);
    }
}

void TestCatalogItem::itemsFillTheirSize_data()
{
    itemsAreComplete_data();
}

void TestCatalogItem::itemsFillTheirSize()
{
    QFETCH(CatalogItem, item);
    for (const QSizeF& size : {item.sizeMm, QSizeF(300, 30), QSizeF(30, 300), QSizeF(10, 10)}) {
        const QImage image = painted(item, size, (size * 2).toSize());
        QSet<QRgb> colors;
        for (int x = 0; x < image.width(); ++x) {
            for (int y = 0; y < image.height(); ++y) {
                colors.insert(image.pixel(x, y));
            }
        }
        QVERIFY(!colors.contains(QColor(Qt::magenta).rgb()));
        QVERIFY(colors.contains(item.field.rgb()));
        QVERIFY(colors.size() > 2);
    }
}

void TestCatalogItem::textIsRealText_data()
{
    itemsAreComplete_data();
}

void TestCatalogItem::textIsRealText()
{
    QFETCH(CatalogItem, item);
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("item.pdf"));
    {
        QPdfWriter writer(path);
        writer.setResolution(300);
        writer.setPageSize(QPageSize(item.sizeMm, QPageSize::Millimeter));
        writer.setPageMargins(QMarginsF());
        QPainter painter(&writer);
        paintCatalogItem(painter, QRectF(0, 0, writer.width(), writer.height()), item, item.sizeMm);
    }
    // Large letters may be read as words of their own.
    QString text = pdfPages(path).value(0);
    text.remove(QLatin1Char(' '));
    QString expected = item.header + item.text;
    expected.remove(QLatin1Char(' '));
    QCOMPARE(text, expected);
}

void TestCatalogItem::differentSizesAreLaidOutAnew()
{
    const CatalogItem& item = catalogItems().at(catalogIndexOf(QStringLiteral("FIRST AID")));
    const QColor field = item.field;
    const QColor legend = item.legend;
    // The middle of the cross lies beside the text, or above it, with nothing below the text.
    const QImage wide = painted(item, QSizeF(200, 100), QSize(400, 200));
    QCOMPARE(wide.pixelColor(91, 100), legend);
    const QImage high = painted(item, QSizeF(100, 200), QSize(200, 400));
    QCOMPARE(high.pixelColor(100, 135), legend);
    QCOMPARE(high.pixelColor(40, 100), field);
    QCOMPARE(high.pixelColor(100, 370), field);
}

void TestCatalogItem::nothingIsPaintedWithoutRoom()
{
    const CatalogItem& item = catalogItems().constFirst();
    QImage image(20, 20, QImage::Format_RGB32);
    image.fill(Qt::magenta);
    const QImage before = image;
    QPainter painter(&image);
    paintCatalogItem(painter, QRectF(), item, QSizeF(100, 50));
    paintCatalogItem(painter, QRectF(image.rect()), item, QSizeF());
    painter.end();
    paintCatalogItem(painter, QRectF(image.rect()), item, QSizeF(100, 50));
    QCOMPARE(image, before);
}

void TestCatalogItem::designFollowsTheSelection()
{
    CatalogDesign design;
    QCOMPARE(design.currentIndex(), 0);
    QCOMPARE(design.sizeMm(), catalogItems().at(0).sizeMm);
    design.setSizeMm(QSizeF(50, 60));
    design.setSizeMm(QSizeF());
    QCOMPARE(design.sizeMm(), QSizeF(50, 60));
    design.setCurrentIndex(-1);
    design.setCurrentIndex(999);
    QCOMPARE(design.currentIndex(), 0);
    QCOMPARE(design.sizeMm(), QSizeF(50, 60));
    design.setCurrentIndex(4);
    QCOMPARE(design.sizeMm(), catalogItems().at(4).sizeMm);
    PrintRequest request;
    request.sequenceStart = -1;
    request.nup = NupLayout{2, 2};
    request.customRecordsList = QStringLiteral("1-3");
    design.complete(request);
    QCOMPARE(request.sequenceStart, 5);
    QCOMPARE(request.sequenceEnd, -1);
    QCOMPARE(request.customRecordsList, QString());
    QCOMPARE(request.nup.labelsPerPage(), 1);
}

void TestCatalogItem::sizesAreJudged_data()
{
    addColumns<QSizeF, bool, QString>("size", "metric", "problem");

    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinity = std::numeric_limits<double>::infinity();
    const QString noLength = QStringLiteral("The length has to be a number greater than 0.");
    const QString noWidth = QStringLiteral("The width has to be a number greater than 0.");
    addRow("good inches", QSizeF(10, 7), false, QString());
    addRow("good millimetres", QSizeF(254, 178), true, QString());
    addRow("not a number", QSizeF(-1, 7), false, noLength);
    addRow("width not a number", QSizeF(10, -1), false, noWidth);
    addRow("both", QSizeF(-1, -1), false, noLength);
    addRow("zero", QSizeF(0, 7), false, noLength);
    addRow("negative zero", QSizeF(7, -0.0), false, noWidth);
    addRow("NaN", QSizeF(nan, 7), false, noLength);
    addRow("NaN width", QSizeF(7, nan), false, noWidth);
    addRow("infinite", QSizeF(7, infinity), false, noWidth);
    addRow("minus infinity", QSizeF(-infinity, 7), true, noLength);
    addRow("greatest inches", QSizeF(36, 12), false, QString());
    addRow("greatest millimetres", QSizeF(914.4, 304.8), true, QString());
    addRow("least millimetres", QSizeF(10, 10), true, QString());
    addRow("least inches as shown", QSizeF(0.39, 0.39), false, QString());
    addRow("too long", QSizeF(36.01, 7), false,
           "A length of 36.01 in is too long to be printed; the greatest is 36.00 "
           "in.");
    addRow("too wide", QSizeF(300, 305), true,
           "A width of 305 mm is too wide to be printed; the greatest is 304.80 "
           "mm.");
    addRow("huge", QSizeF(1e300, 7), false,
           "A length of 1e+300 in is too long to be printed; the greatest is 36.00 "
           "in.");
    addRow("too short", QSizeF(9.99, 20), true,
           "A length of 9.99 mm is too short to be printed; the least is 10.00 mm.");
    addRow("too narrow", QSizeF(10, 0.1), false,
           "A width of 0.1 in is too narrow to be printed; the least is 0.39 in.");
}

void TestCatalogItem::sizesAreJudged()
{
    QFETCH(QSizeF, size);
    QFETCH(bool, metric);
    QTEST(CatalogSize::problem(size, metric), "problem");
}

QTEST_MAIN(TestCatalogItem)

#include "tst_catalogitem.moc"
