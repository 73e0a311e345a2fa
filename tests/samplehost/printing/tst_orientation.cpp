// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/designs/labeldesign.h"
#include "samplehost/designs/lengthunit.h"
#include "samplehost/designs/pipedesign.h"
#include "samplehost/designs/requestsheet.h"
#include "support/stricttest.h"

#include <QtGui/QPainter>

using namespace SampleHost;

namespace {

/** Two labels of 60 x 40 mm, red on the left half and blue on the right; a third cannot be painted.
 */
class HalvesDesign : public LabelDesign
{
public:
    QString title() const override { return QStringLiteral("halves"); }
    int currentIndex() const override { return 0; }
    int recordCount() const override { return 3; }
    void complete(PrintRequest&) const override {}
    QSizeF labelSizeMm(const PrintRequest& request) const override
    {
        const QSizeF size(60, 40);
        return request.labelTurned ? size.transposed() : size;
    }
    LabelPainter painter(const PrintRequest& request) const override
    {
        const LabelPainter upright = [](QPainter& painter, const QRectF& area, int record,
                                        QString& problem) {
            if (record > 2) {
                problem = QStringLiteral("no such label");
                return false;
            }
            painter.fillRect(area, Qt::blue);
            painter.fillRect(QRectF(area.topLeft(), QSizeF(area.width() / 2, area.height())),
                             Qt::red);
            return true;
        };
        return request.labelTurned ? turnedPainter(upright) : upright;
    }
};

} // namespace

/** Sheets in the orientation that a user chooses. */
class TestOrientation : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void sheetsTurn_data();
    void sheetsTurn();
    void turnedLabelsReadUpwards();
    void picturesKeepTheProportions_data();
    void picturesKeepTheProportions();
    void problemsAreWrittenInThePicture();
    void turnedMarkersExchangeTheirSides();
    void unitsConvertBackAndForth();
};

void TestOrientation::sheetsTurn_data()
{
    addColumns<int, int, QSizeF, bool, QSizeF, QSizeF>("rows", "columns", "paper", "portrait",
                                                       "sheet", "label");

    const QSizeF a4(210, 297);
    addRow("as designed", 1, 1, QSizeF(), false, QSizeF(60, 40), QSizeF(60, 40));
    addRow("turned", 1, 1, QSizeF(), true, QSizeF(40, 60), QSizeF(40, 60));
    // Margins of 5 mm and gaps of 3 mm.
    addRow("sheet as designed", 1, 2, QSizeF(), false, QSizeF(133, 50), QSizeF(60, 40));
    addRow("sheet turned", 1, 2, QSizeF(), true, QSizeF(50, 133), QSizeF(40, 60));
    addRow("upright sheet turned", 3, 1, QSizeF(), false, QSizeF(136, 70), QSizeF(40, 60));
    addRow("paper as it is", 1, 1, a4, true, a4, QSizeF(60, 40));
    addRow("paper turned", 1, 1, a4, false, QSizeF(297, 210), QSizeF(60, 40));
    addRow("paper turned under rows", 2, 3, a4, false, QSizeF(297, 210), QSizeF(60, 40));
}

void TestOrientation::sheetsTurn()
{
    QFETCH(QSizeF, paper);
    QFETCH(bool, portrait);
    PrintRequest request;
    QFETCH(int, rows);
    QFETCH(int, columns);
    request.nup = NupLayout{rows, columns};
    request.paperMm = paper;
    const HalvesDesign design;
    const PrintRequest turned = oriented(design, request, portrait);
    const SheetGeometry sheet = sheetOf(design, turned);
    QTEST(sheet.sheetSizeMm(), "sheet");
    QTEST(sheet.labelRectMm(0).size(), "label");
    QCOMPARE(sheet.labelsPerPage(), rows * columns);
    QCOMPARE(isPortrait(sheet.sheetSizeMm()), portrait);
}

void TestOrientation::turnedLabelsReadUpwards()
{
    const HalvesDesign design;
    const PrintRequest turned = oriented(design, PrintRequest(), true);
    const QImage image = renderFirstSheet(design, turned, QSize(120, 120));
    QCOMPARE(image.size(), QSize(80, 120));
    // What was left is at the bottom.
    QCOMPARE(image.pixelColor(40, 10), QColor(Qt::blue));
    QCOMPARE(image.pixelColor(40, 110), QColor(Qt::red));
}

void TestOrientation::picturesKeepTheProportions_data()
{
    addColumns<QSize, QSize>("room", "size");

    addRow("wide", QSize(1000, 40), QSize(60, 40));
    addRow("high", QSize(60, 1000), QSize(60, 40));
    addRow("tiny", QSize(1, 1), QSize(1, 1));
    addRow("none", QSize(0, 0), QSize(0, 0));
    addRow("invalid", QSize(), QSize(0, 0));
}

void TestOrientation::picturesKeepTheProportions()
{
    QFETCH(QSize, room);
    QTEST(renderFirstSheet(HalvesDesign(), PrintRequest(), room).size(), "size");
}

void TestOrientation::problemsAreWrittenInThePicture()
{
    PrintRequest request;
    request.sequenceStart = 3;
    const QImage image = renderFirstSheet(HalvesDesign(), request, QSize(300, 200));
    int inked = 0;
    for (int x = 0; x < image.width(); ++x) {
        for (int y = 0; y < image.height(); ++y) {
            inked += image.pixelColor(x, y) != QColor(Qt::white) ? 1 : 0;
        }
    }
    QVERIFY(inked > 20);
    QVERIFY(inked < 300 * 200 / 4);
}

void TestOrientation::turnedMarkersExchangeTheirSides()
{
    PipeDesign design;
    PrintRequest request;
    design.complete(request);
    const QSizeF size = design.labelSizeMm(request);
    QVERIFY(size.width() > size.height());
    const PrintRequest turned = oriented(design, request, true);
    QVERIFY(turned.labelTurned);
    QCOMPARE(design.labelSizeMm(turned), size.transposed());
    const QImage flat = renderFirstSheet(design, request, QSize(400, 400));
    const QImage upright = renderFirstSheet(design, turned, QSize(400, 400));
    QCOMPARE(upright.size(), flat.size().transposed());
}

void TestOrientation::unitsConvertBackAndForth()
{
    QCOMPARE(LengthUnit::fromMm(QSizeF(254, 50.8), false), QSizeF(10, 2));
    QCOMPARE(LengthUnit::fromMm(QSizeF(254, 50.8), true), QSizeF(254, 50.8));
    QCOMPARE(LengthUnit::toMm(QSizeF(10, 2), false), QSizeF(254, 50.8));
    QCOMPARE(LengthUnit::toMm(QSizeF(10, 2), true), QSizeF(10, 2));
}

QTEST_MAIN(TestOrientation)

#include "tst_orientation.moc"
