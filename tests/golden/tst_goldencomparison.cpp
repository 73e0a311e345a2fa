// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

// What a comparison of pictures has to find, and what it has to overlook.
#include "golden/comparison.h"
#include "support/stricttest.h"

#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

namespace {

/** A small window as the panels have them. */
class Window : public QWidget
{
public:
    Window() : caption(QStringLiteral("Records to Print:"), this), button(this)
    {
        resize(260, 120);
        caption.setGeometry(10, 10, 240, 30);
        button.setText(QStringLiteral("Print Preview"));
        button.setGeometry(10, 60, 120, 35);
    }
    QImage picture() { return grab().toImage(); }

    QLabel caption;
    QPushButton button;
};

using Change = void (*)(Window&);

void moveButton(Window& window)
{
    window.button.move(window.button.pos() + QPoint(3, 0));
}

void lowerButton(Window& window)
{
    window.button.move(window.button.pos() + QPoint(0, 3));
}

void clipCaption(Window& window)
{
    window.caption.setFixedWidth(window.caption.sizeHint().width() - 12);
}

void clipCaptionBelow(Window& window)
{
    window.caption.setFixedHeight(window.caption.fontMetrics().height() / 2 + 2);
    window.caption.setAlignment(Qt::AlignLeft | Qt::AlignTop);
}

void disableButton(Window& window)
{
    window.button.setEnabled(false);
}

void hideButton(Window& window)
{
    window.button.hide();
}

void changeText(Window& window)
{
    window.caption.setText(QStringLiteral("Records to Point:"));
}

void enlarge(Window& window)
{
    window.resize(window.width() + 1, window.height());
}

// As another font renderer shades the edges of glyphs.
QImage shaded(QImage image)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor color = image.pixelColor(x, y);
            const int shade = (x * 7 + y * 13) % (2 * roughChannel) - roughChannel;
            const int value = qBound(0, color.value() + shade / 2, 255);
            image.setPixelColor(x, y, QColor::fromHsv(color.hue(), color.saturation(), value));
        }
    }
    return image;
}

QImage movedByAPixel(const QImage& image)
{
    QImage moved = image.copy(QRect(QPoint(-1, 0), image.size()));
    for (int y = 0; y < moved.height(); ++y)
        moved.setPixelColor(0, y, image.pixelColor(0, y));
    return moved;
}

} // namespace

Q_DECLARE_METATYPE(Change)

class tst_GoldenComparison : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void faultsAreFound_data();
    void faultsAreFound();
    void equalPicturesPass_data();
    void equalPicturesPass();
    void onePixelFailsExactComparisonOnly();
    void differencesOfRenderersFailExactComparisonOnly_data();
    void differencesOfRenderersFailExactComparisonOnly();
    void theDifferenceShowsWhere();
    void aMissingPictureFails();
};

void tst_GoldenComparison::faultsAreFound_data()
{
    addColumns<Change>("change");
    addRow("button moved to the right", &moveButton);
    addRow("button moved down", &lowerButton);
    addRow("text clipped at its end", &clipCaption);
    addRow("text clipped below", &clipCaptionBelow);
    addRow("two letters of a text changed", &changeText);
    addRow("button disabled", &disableButton);
    addRow("button missing", &hideButton);
    addRow("another size", &enlarge);
}

void tst_GoldenComparison::faultsAreFound()
{
    QFETCH(Change, change);
    Window right;
    Window wrong;
    change(wrong);
    for (const Tolerance tolerance : {Tolerance::None, Tolerance::Rough}) {
        const Comparison comparison = compare(right.picture(), wrong.picture(), 1, tolerance);
        QVERIFY(!comparison.passes);
        QVERIFY(!comparison.message.isEmpty());
        QVERIFY(!comparison.difference.isNull());
    }
}

void tst_GoldenComparison::equalPicturesPass_data()
{
    addColumns<Tolerance>("tolerance");
    addRow("exactly", Tolerance::None);
    addRow("roughly", Tolerance::Rough);
}

void tst_GoldenComparison::equalPicturesPass()
{
    QFETCH(Tolerance, tolerance);
    Window first;
    Window second;
    const Comparison comparison = compare(first.picture(), second.picture(), 1, tolerance);
    QVERIFY2(comparison.passes, qPrintable(comparison.message));
}

void tst_GoldenComparison::onePixelFailsExactComparisonOnly()
{
    const QImage expected = Window().picture();
    QImage actual = expected;
    actual.setPixelColor(200, 100, Qt::red);
    const Comparison exact = compare(expected, actual, 1, Tolerance::None);
    QVERIFY(!exact.passes);
    QCOMPARE(exact.message,
             QStringLiteral("1 pixels differ, up to 1 in a square of 16 x 16 (limit: 0)"));
    QVERIFY(compare(expected, actual, 1, Tolerance::Rough).passes);
}

void tst_GoldenComparison::differencesOfRenderersFailExactComparisonOnly_data()
{
    addColumns<QImage>("actual");
    const QImage picture = Window().picture();
    addRow("edges shaded otherwise", shaded(picture));
    addRow("moved by a pixel", movedByAPixel(picture));
}

void tst_GoldenComparison::differencesOfRenderersFailExactComparisonOnly()
{
    QFETCH(QImage, actual);
    const QImage expected = Window().picture();
    QVERIFY(!compare(expected, actual, 1, Tolerance::None).passes);
    const Comparison rough = compare(expected, actual, 1, Tolerance::Rough);
    QVERIFY2(rough.passes, qPrintable(rough.message));
}

void tst_GoldenComparison::theDifferenceShowsWhere()
{
    const QImage expected = Window().picture();
    QImage actual = expected;
    actual.setPixelColor(200, 100, Qt::red);
    const QImage difference = compare(expected, actual, 1, Tolerance::None).difference;
    QCOMPARE(difference.size(), expected.size());
    QCOMPARE(difference.pixelColor(200, 100), QColor(Qt::red));
    QVERIFY(difference.pixelColor(201, 100) != QColor(Qt::red));
}

void tst_GoldenComparison::aMissingPictureFails()
{
    QVERIFY(!compare(QImage(), Window().picture(), 1, Tolerance::None).passes);
    QVERIFY(!compare(QImage(), Window().picture(), 1, Tolerance::Rough).passes);
}

QTEST_MAIN(tst_GoldenComparison)
#include "tst_goldencomparison.moc"
