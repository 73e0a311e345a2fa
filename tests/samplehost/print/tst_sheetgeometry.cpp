// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/print/sheetgeometry.h"
#include "support/stricttest.h"

using namespace SampleHost;

class TestSheetGeometry : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void singleLabelIsThePage();
    void sheetGrowsWithItsLabels();
    void labelsKeepTheirSizeOnLargePaper();
    void labelsStayOnThePaper_data();
    void labelsStayOnThePaper();
    void unusableInputFallsBack();
};

void TestSheetGeometry::singleLabelIsThePage()
{
    const SheetGeometry sheet(QSizeF(100, 60), NupLayout{});
    QCOMPARE(sheet.sheetSizeMm(), QSizeF(100, 60));
    QCOMPARE(sheet.labelRectMm(0), QRectF(0, 0, 100, 60));

    const SheetGeometry samePaper(QSizeF(100, 60), NupLayout{}, QSizeF(100, 60));
    QCOMPARE(samePaper.labelRectMm(0), QRectF(0, 0, 100, 60));
}

void TestSheetGeometry::sheetGrowsWithItsLabels()
{
    const SheetGeometry sheet(QSizeF(100, 60), NupLayout{2, 3});
    QCOMPARE(sheet.sheetSizeMm(), QSizeF(5 + 100 + 3 + 100 + 3 + 100 + 5, 5 + 60 + 3 + 60 + 5));
    QCOMPARE(sheet.labelRectMm(0), QRectF(5, 5, 100, 60));
    QCOMPARE(sheet.labelRectMm(2), QRectF(211, 5, 100, 60));
    QCOMPARE(sheet.labelRectMm(3), QRectF(5, 68, 100, 60));
    QCOMPARE(sheet.labelRectMm(5), QRectF(211, 68, 100, 60));
}

void TestSheetGeometry::labelsKeepTheirSizeOnLargePaper()
{
    const QSizeF a4(210, 297);
    const SheetGeometry single(QSizeF(100, 60), NupLayout{}, a4);
    QCOMPARE(single.sheetSizeMm(), a4);
    QCOMPARE(single.labelRectMm(0), QRectF(55, 118.5, 100, 60));
    const SheetGeometry sheet(QSizeF(90, 60), NupLayout{3, 2}, a4);
    QCOMPARE(sheet.labelRectMm(5).size(), QSizeF(90, 60));
}

void TestSheetGeometry::labelsStayOnThePaper_data()
{
    addColumns<QSizeF, QSizeF, int, int>("label", "paper", "rows", "columns");

    addRow("shrunk", QSizeF(200, 150), QSizeF(210, 297), 4, 2);
    addRow("hundred", QSizeF(100, 75), QSizeF(210, 297), 10, 10);
    addRow("tiny paper", QSizeF(100, 75), QSizeF(4, 3), 10, 10);
    addRow("long label", QSizeF(600, 40), QSizeF(216, 279), 3, 1);
    addRow("no paper", QSizeF(70, 30), QSizeF(), 3, 4);
}

void TestSheetGeometry::labelsStayOnThePaper()
{
    QFETCH(QSizeF, label);
    QFETCH(QSizeF, paper);
    QFETCH(int, rows);
    QFETCH(int, columns);

    const SheetGeometry sheet(label, NupLayout{rows, columns}, paper);
    const QRectF page(QPointF(), sheet.sheetSizeMm());
    QList<QRectF> seen;
    for (int i = 0; i < sheet.labelsPerPage(); ++i) {
        const QRectF rect = sheet.labelRectMm(i);
        QVERIFY(!rect.isEmpty());
        QVERIFY(page.contains(rect));
        QVERIFY(rect.width() <= label.width() + 1e-9);
        QVERIFY(qAbs(rect.width() / rect.height() - label.width() / label.height()) < 1e-6);
        for (const QRectF& other : seen) {
            QVERIFY(!other.intersects(rect));
        }
        seen.append(rect);
    }
    QCOMPARE(seen.size(), qsizetype(rows) * columns);
}

void TestSheetGeometry::unusableInputFallsBack()
{
    const SheetGeometry sheet(QSizeF(-1, 0), NupLayout{0, 0});
    QCOMPARE(sheet.sheetSizeMm(), QSizeF(100, 75));
    QVERIFY(sheet.labelRectMm(-1).isEmpty());
    QVERIFY(sheet.labelRectMm(1).isEmpty());
    QCOMPARE(SheetGeometry().sheetSizeMm(), QSizeF(100, 75));
}

QTEST_GUILESS_MAIN(TestSheetGeometry)

#include "tst_sheetgeometry.moc"
