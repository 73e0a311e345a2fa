// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/label/catalogpainter.h"
#include "samplehost/label/labelpainter.h"
#include "samplehost/label/pipemarkerpainter.h"
#include "samplehost/support/labelprints.h"
#include "samplehost/support/pdfpages.h"
#include "samplehost/support/plainpdf.h"
#include "support/stricttest.h"

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

#include <algorithm>

using namespace SampleHost;

/** Whether the reader that stands in for Qt PDF reads the same in what the host prints. */
class TestPlainPdf : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void readsLabels();
    void readsMarkersAndItems();
    void damagedFileHasNoPages_data();
    void damagedFileHasNoPages();

private:
    void checkPage(const QSizeF& sizeMm, const PaintPage& paint);
    QString write(const QByteArray& bytes) const;

    QTemporaryDir m_folder;
};

QString TestPlainPdf::write(const QByteArray& bytes) const
{
    const QString path = m_folder.filePath(QStringLiteral("page.pdf"));
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() ? path : QString();
}

void TestPlainPdf::checkPage(const QSizeF& sizeMm, const PaintPage& paint)
{
    const QString path = write(printPdf(sizeMm, 600, paint));
    const PlainPdf plain(path);
    QCOMPARE(plain.pageSize(0), pdfPageSize(path));
    // Wide letters look like words of their own to Qt PDF, which also sorts what is side by side.
    const auto letters = [](const QStringList& pages) {
        QString sorted = pages.value(0).remove(QLatin1Char(' '));
        std::sort(sorted.begin(), sorted.end());
        return sorted;
    };
    QCOMPARE(letters(plain.texts()), letters(pdfPages(path)));
    QCOMPARE(plain.texts().size(), qsizetype(1));
    QVERIFY(!plain.texts().constFirst().isEmpty());
}

void TestPlainPdf::readsLabels()
{
    const QList<Chemical> chemicals = ChemicalSeed::load();
    for (const Chemical& chemical : chemicals) {
        const PaintPage paint = [&chemical](QPainter& painter, const QRectF& page) {
            paintLabel(painter, page, chemical);
        };
        checkPage(labelSizeMm({}), paint);
        const QString path = m_folder.filePath(QStringLiteral("page.pdf"));
        QCOMPARE(PlainPdf(path).texts(), pdfPages(path));
    }
}

void TestPlainPdf::readsMarkersAndItems()
{
    for (const CatalogItem& item : catalogItems()) {
        checkPage(item.sizeMm, [&item](QPainter& painter, const QRectF& page) {
            paintCatalogItem(painter, page, item, item.sizeMm);
        });
    }
    for (const PipeMarker& marker : pipeMarkers()) {
        checkPage(pipeMarkerSizeMm(marker), [&marker](QPainter& painter, const QRectF& page) {
            paintPipeMarker(painter, page, marker);
        });
    }
}

void TestPlainPdf::damagedFileHasNoPages_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const QByteArray good =
        printPdf(QSizeF(50, 50), 600, [](QPainter& painter, const QRectF& page) {
            painter.drawText(page, QStringLiteral("Good"));
        });
    QByteArray moved = good;
    moved.insert(moved.indexOf("2 0 obj"), ' ');
    QByteArray fewer = good;
    fewer.replace("/Count 1", "/Count 2");
    QByteArray other = good;
    other.replace("/Type /Page\n", "/Type /Pony\n");
    addRow("empty", QByteArray());
    addRow("cut off", good.chopped(10));
    addRow("half", good.left(good.size() / 2));
    addRow("moved", moved);
    addRow("missing page", fewer);
    addRow("other object", other);
}

void TestPlainPdf::damagedFileHasNoPages()
{
    QFETCH(QByteArray, bytes);
    const PlainPdf plain(write(bytes));
    QCOMPARE(plain.texts(), QStringList());
    QVERIFY(plain.pageSize(0).isEmpty());
}

QTEST_MAIN(TestPlainPdf)

#include "tst_plainpdf.moc"
