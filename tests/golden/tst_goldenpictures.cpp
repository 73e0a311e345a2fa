// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "golden/goldenpictures.h"
#include "golden/pngfile.h"
#include "support/stricttest.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

namespace {

const QString group = QStringLiteral("Panel");

// Lines of one colour each.
QImage lines(const QList<QRgb>& colors)
{
    QImage picture(40, int(colors.size()), QImage::Format_RGB32);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            picture.setPixel(x, y, colors.at(y));
    }
    return picture;
}

QImage colorful()
{
    QImage picture(40, 40, QImage::Format_RGB32);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            picture.setPixel(x, y, qRgb(x * 6, y * 6, (x * y) % 251));
    }
    return picture;
}

constexpr QRgb red = 0xffff0000;
constexpr QRgb green = 0xff00ff00;
constexpr QRgb blue = 0xff0000ff;
constexpr QRgb black = 0xff000000;

} // namespace

class tst_GoldenPictures : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void aSavedPictureIsReadBack_data();
    void aSavedPictureIsReadBack();
    void aStripIsPutTogether_data();
    void aStripIsPutTogether();
    void wholePicturesStandAlone();
    void picturesOfOtherGroupsAreNoBase();
    void anUnchangedPictureIsNotWritten();
    void aMissingBaseMakesNoPicture();
    void filesThatNameEachOtherMakeNoPicture();
};

void tst_GoldenPictures::aSavedPictureIsReadBack_data()
{
    addColumns<QImage>("picture");
    addRow("few colours", lines({red, green, blue, black}));
    addRow("many colours", colorful());
    addRow("one pixel", lines({green}).copy(0, 0, 1, 1));
}

void tst_GoldenPictures::aSavedPictureIsReadBack()
{
    QFETCH(QImage, picture);
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("below/picture.png"));
    picture.setText(QStringLiteral("key"), QStringLiteral("some text"));
    QVERIFY(savePng(picture, file));
    const QImage read(file);
    QCOMPARE(read.convertToFormat(QImage::Format_RGB32), picture);
    QCOMPARE(read.text(QStringLiteral("key")), QStringLiteral("some text"));
}

void tst_GoldenPictures::aStripIsPutTogether_data()
{
    addColumns<QList<QRgb>, int>("colors", "stored");
    using Colors = QList<QRgb>;
    addRow("line changed", Colors{red, black, blue}, 1);
    addRow("line inserted", Colors{red, green, black, blue}, 1);
    addRow("line repeated", Colors{red, green, green, blue}, 1);
    addRow("line removed", Colors{red, blue}, 1);
    addRow("lines appended", Colors{red, green, blue, black, red}, 2);
    addRow("nothing changed", Colors{red, green, blue}, 1);
    addRow("everything changed", Colors{black, red, green}, 3);
}

void tst_GoldenPictures::aStripIsPutTogether()
{
    QFETCH(QList<QRgb>, colors);
    QFETCH(int, stored);
    const QTemporaryDir folder;
    GoldenPictures pictures(folder.path(), GoldenPictures::Strips);
    QVERIFY(pictures.renew(group, QStringLiteral("first"), lines({red, green, blue})));
    QVERIFY(pictures.renew(group, QStringLiteral("second"), lines(colors)));
    QCOMPARE(QImage(pictures.file(QStringLiteral("second"))).height(), stored);

    const GoldenPictures later(folder.path(), GoldenPictures::Strips);
    QCOMPARE(later.load(QStringLiteral("second")), lines(colors));
    QCOMPARE(later.names(), QStringList({QStringLiteral("first"), QStringLiteral("second")}));
}

void tst_GoldenPictures::wholePicturesStandAlone()
{
    const QTemporaryDir folder;
    GoldenPictures pictures(folder.path(), GoldenPictures::Whole);
    for (const char* name : {"first", "second"})
        QVERIFY(pictures.renew(group, QLatin1String(name), lines({red, green, blue})));
    QVERIFY(pictures.remove(QStringLiteral("first")));
    QCOMPARE(pictures.load(QStringLiteral("second")), lines({red, green, blue}));
}

void tst_GoldenPictures::picturesOfOtherGroupsAreNoBase()
{
    const QTemporaryDir folder;
    GoldenPictures pictures(folder.path(), GoldenPictures::Strips);
    QVERIFY(pictures.renew(QStringLiteral("Other"), QStringLiteral("first"), lines({red, green})));
    QVERIFY(pictures.renew(group, QStringLiteral("second"), lines({red, green})));
    QVERIFY(pictures.remove(QStringLiteral("first")));
    QCOMPARE(pictures.load(QStringLiteral("second")), lines({red, green}));
}

void tst_GoldenPictures::anUnchangedPictureIsNotWritten()
{
    const QTemporaryDir folder;
    GoldenPictures pictures(folder.path(), GoldenPictures::Whole);
    const QString name = QStringLiteral("picture");
    QVERIFY(pictures.renew(group, name, lines({red, green})));
    // Another encoder's file of the same picture stays.
    QVERIFY(lines({red, green}).save(pictures.file(name)));
    const qint64 size = QFileInfo(pictures.file(name)).size();
    QVERIFY(pictures.renew(group, name, lines({red, green})));
    QCOMPARE(QFileInfo(pictures.file(name)).size(), size);
    QVERIFY(pictures.renew(group, name, lines({red, blue})));
    QCOMPARE(pictures.load(name), lines({red, blue}));
}

void tst_GoldenPictures::aMissingBaseMakesNoPicture()
{
    const QTemporaryDir folder;
    GoldenPictures pictures(folder.path(), GoldenPictures::Strips);
    QVERIFY(pictures.renew(group, QStringLiteral("first"), lines({red, green})));
    QVERIFY(pictures.renew(group, QStringLiteral("second"), lines({red, blue})));
    QVERIFY(pictures.remove(QStringLiteral("first")));
    QVERIFY(pictures.load(QStringLiteral("second")).isNull());
    QVERIFY(pictures.load(QStringLiteral("first")).isNull());
}

void tst_GoldenPictures::filesThatNameEachOtherMakeNoPicture()
{
    const QTemporaryDir folder;
    const GoldenPictures pictures(folder.path(), GoldenPictures::Strips);
    QImage strip = lines({red});
    strip.setText(QStringLiteral("base"), QStringLiteral("itself"));
    QVERIFY(savePng(strip, pictures.file(QStringLiteral("itself"))));
    QVERIFY(pictures.load(QStringLiteral("itself")).isNull());
}

QTEST_GUILESS_MAIN(tst_GoldenPictures)
#include "tst_goldenpictures.moc"
