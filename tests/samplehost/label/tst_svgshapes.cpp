// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/label/shapes/svgshapes.h"
#include "samplehost/label/svgpicture.h"
#include "support/stricttest.h"

#include <QtCore/QDir>
#include <QtCore/QTemporaryDir>
#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtSvg/QSvgRenderer>
#include <QtTest/QTest>

using namespace SampleHost;

/** The pictures of a host that is built without Qt Svg. */
class tst_SvgShapes : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void looksLikeTheSvgPicture_data();
    void looksLikeTheSvgPicture();
    void whatIsNoPictureHasNoShapes();
    void aMissingFilePaintsNothing();
};

namespace {

constexpr QSize canvas(230, 200);
const QRectF place(20, 10, 180, 170);
const QColor tint(0, 102, 51);

QImage painted(const std::function<void(QPainter&)>& paint)
{
    QImage image(canvas, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    paint(painter);
    return image;
}

/** The pixels that differ by more than a tenth. Where edges meet, single ones are rounded
 * otherwise. */
int differences(const QImage& first, const QImage& second)
{
    const auto isFar = [](int a, int b) { return qAbs(a - b) > 25; };
    int count = 0;
    for (int y = 0; y < first.height(); ++y) {
        for (int x = 0; x < first.width(); ++x) {
            const QRgb a = first.pixel(x, y);
            const QRgb b = second.pixel(x, y);
            count +=
                isFar(qRed(a), qRed(b)) || isFar(qGreen(a), qGreen(b)) || isFar(qBlue(a), qBlue(b));
        }
    }
    return count;
}

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

void tst_SvgShapes::looksLikeTheSvgPicture_data()
{
    QTest::addColumn<QString>("path");
    int pictures = 0;
    for (const char* folder : {"pictograms", "symbols"}) {
        const QDir dir(QStringLiteral(PICTURES) + u'/' + QLatin1String(folder));
        for (const QFileInfo& file : dir.entryInfoList({QStringLiteral("*.svg")})) {
            QTest::newRow(qPrintable(file.fileName())) << file.filePath();
            ++pictures;
        }
    }
    QVERIFY(pictures > 0);
}

void tst_SvgShapes::looksLikeTheSvgPicture()
{
    QFETCH(const QString, path);
    QByteArray svg = contentOf(path);
    QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("shapes"));
    QFile shapes(file);
    QVERIFY(shapes.open(QIODevice::WriteOnly));
    QVERIFY(shapes.write(shapesOf(svg)) > 0);
    shapes.close();

    QSvgRenderer renderer(svg.replace("currentColor", tint.name().toLatin1()));
    renderer.setAspectRatioMode(Qt::KeepAspectRatio);
    const QImage expected =
        painted([&renderer](QPainter& painter) { renderer.render(&painter, place); });
    const QImage actual =
        painted([&file](QPainter& painter) { paintSvgPicture(painter, place, file, tint); });
    QVERIFY(differences(expected, painted([](QPainter&) {})) > 500);
    const int others = differences(actual, expected);
    QVERIFY2(others <= 10, QByteArray::number(others).constData());
}

void tst_SvgShapes::whatIsNoPictureHasNoShapes()
{
    QCOMPARE(shapesOf("not a picture"), QByteArray());
}

void tst_SvgShapes::aMissingFilePaintsNothing()
{
    const QImage image = painted([](QPainter& painter) {
        paintSvgPicture(painter, place, QStringLiteral("no such file"), tint);
    });
    QCOMPARE(image, painted([](QPainter&) {}));
}

QTEST_MAIN(tst_SvgShapes)
#include "tst_svgshapes.moc"
