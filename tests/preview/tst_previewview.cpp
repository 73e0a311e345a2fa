// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "sizedview.h"
#include "support/stricttest.h"

#include <QtWidgets/QVBoxLayout>

#include <limits>
#include <type_traits>

using PrintPanels::PreviewView;

namespace {

const QColor ground(Qt::magenta);
const QColor paper(Qt::white);
const QColor ink(Qt::black);

/** Side of the square that a view of targetImage() shows. */
int shownSide(PreviewView& view)
{
    const QRect square = extentOf(drawnBy(view, ground), ink);
    return square.width();
}

} // namespace

class tst_PreviewView : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void isAPlainWidgetWithoutAMetaObjectOfItsOwn();
    void sizeHintIsTheConstructorsSize_data();
    void sizeHintIsTheConstructorsSize();
    void sharesThePictureInsteadOfCopyingIt();
    void startsAtScaleOneAroundTheIntegerCentre_data();
    void startsAtScaleOneAroundTheIntegerCentre();
    void zoomOutBeforeTheFirstFitIsHarmless();
    void fitShowsTheWholeImage_data();
    void fitShowsTheWholeImage();
    void showFits();
    void newImageFitsAtOnceAlsoWhileHidden();
    void resizeDoesNotRefitButShowingAgainDoes();
    void stepsMultiplyByTheStoredFactors();
    void oneStepOutOfAFitAndNoMore();
    void roundingIsNeverSnapped();
    void zoomInStopsAtTheFirstStepPastTheCeiling();
    void resetGoesBackToTheLastFit();
    void scaleByHasNoLimits();
    void scaleByIgnoresWhatIsNoNumber_data();
    void scaleByIgnoresWhatIsNoNumber();
    void wheelIsOneStepWhateverItsDelta_data();
    void wheelIsOneStepWhateverItsDelta();
    void drawsNothingBesideTheImage();
    void drawsWithoutSmoothing();
    void drawsOverWhatTheParentPaints();
    void resolutionOfTheImageDoesNotMatter();
    void nullImageDrawsNothing_data();
    void nullImageDrawsNothing();
    void viewWithoutASizeIsHarmless();
    void extremeImages_data();
    void extremeImages();
    void extremeScales_data();
    void extremeScales();
    void everyPictureFormatIsShown_data();
    void everyPictureFormatIsShown();
};

void tst_PreviewView::isAPlainWidgetWithoutAMetaObjectOfItsOwn()
{
    static_assert(std::is_base_of_v<QWidget, PreviewView>);
    static_assert(!std::is_copy_constructible_v<PreviewView>);
    const PreviewView view(targetImage(), QSize(200, 200));
    QCOMPARE(view.metaObject(), &QWidget::staticMetaObject);
    QCOMPARE(view.objectName(), QStringLiteral("PreviewView"));
    QCOMPARE(view.parent(), nullptr);
    QVERIFY(view.children().isEmpty());
    QVERIFY(!view.hasMouseTracking());
    QVERIFY(view.isHidden());
}

void tst_PreviewView::sizeHintIsTheConstructorsSize_data()
{
    QTest::addColumn<QSize>("size");
    addRow("popup", QSize(750, 450));
    addRow("quick print", QSize(200, 200));
    addRow("invalid", QSize(-1, -1));
    addRow("empty", QSize(0, 0));
    addRow("larger than a widget", QSize(100000000, 1));
}

void tst_PreviewView::sizeHintIsTheConstructorsSize()
{
    QFETCH(const QSize, size);
    PreviewView view(targetImage(), size);
    QCOMPARE(view.sizeHint(), size);
    view.resize(33, 44);
    view.setImage(speckledImage(QSize(7, 9)));
    QCOMPARE(view.sizeHint(), size);
}

void tst_PreviewView::sharesThePictureInsteadOfCopyingIt()
{
    QImage picture = targetImage();
    PreviewView view(picture, QSize(100, 100));
    QVERIFY(!picture.isDetached());
    view.resize(100, 100);
    picture.fill(Qt::green);
    QCOMPARE(extentOf(drawnBy(view, ground), ink).size(), QSize(10, 10));

    picture = targetImage();
    view.setImage(picture);
    QVERIFY(!picture.isDetached());
    view.setImage(QImage());
    QVERIFY(picture.isDetached());
}

void tst_PreviewView::startsAtScaleOneAroundTheIntegerCentre_data()
{
    addColumns<QSize, QSize, QRect>("viewSize", "imageSize", "expected");
    // The centre of a view is ((width - 1) / 2, (height - 1) / 2), as whole numbers.
    addRow("odd view, even image", QSize(101, 61), QSize(10, 4), QRect(45, 28, 10, 4));
    addRow("even view, even image", QSize(100, 60), QSize(10, 4), QRect(44, 27, 10, 4));
    addRow("view of one pixel", QSize(1, 1), QSize(2, 2), QRect(0, 0, 1, 1));
    addRow("image as large as the view", QSize(20, 20), QSize(20, 20), QRect(0, 0, 19, 19));
}

void tst_PreviewView::startsAtScaleOneAroundTheIntegerCentre()
{
    QFETCH(const QSize, viewSize);
    QFETCH(const QSize, imageSize);
    QImage image(imageSize, QImage::Format_RGB32);
    image.fill(ink);
    SizedView view(viewSize, image);
    QTEST(extentOf(drawnBy(view, ground), ink), "expected");
}

void tst_PreviewView::zoomOutBeforeTheFirstFitIsHarmless()
{
    SizedView view(QSize(200, 200));
    QCOMPARE(shownSide(view), 10);
    view.zoomOut();
    QCOMPARE(shownSide(view), 10);
    view.zoomIn();
    view.zoomIn();
    QCOMPARE(shownSide(view), 12);
    view.resetZoom();
    QCOMPARE(shownSide(view), 10);
}

void tst_PreviewView::fitShowsTheWholeImage_data()
{
    addColumns<QSize, QSize, QSize>("viewSize", "imageSize", "expected");
    addRow("wide image fits across", QSize(201, 201), QSize(400, 100), QSize(201, 50));
    addRow("tall image fits down", QSize(201, 201), QSize(100, 400), QSize(50, 201));
    addRow("small image grows", QSize(201, 201), QSize(3, 3), QSize(201, 201));
    addRow("same shape", QSize(151, 91), QSize(1510, 910), QSize(151, 91));
    addRow("one pixel", QSize(101, 51), QSize(1, 1), QSize(51, 51));
}

void tst_PreviewView::fitShowsTheWholeImage()
{
    QFETCH(const QSize, viewSize);
    QFETCH(const QSize, imageSize);
    QFETCH(const QSize, expected);
    QImage image(imageSize, QImage::Format_RGB32);
    image.fill(ink);
    FittedView view(viewSize, image);
    // The centre is a whole pixel, so half a pixel of the image may fall outside.
    const QSize shown = extentOf(drawnBy(view, ground), ink).size();
    QVERIFY2(qAbs(shown.width() - expected.width()) <= 1,
             qPrintable(QString::number(shown.width())));
    QVERIFY2(qAbs(shown.height() - expected.height()) <= 1,
             qPrintable(QString::number(shown.height())));
    QCOMPARE(drawnBy(view, ground), fittedPicture(image, viewSize, ground));
}

void tst_PreviewView::showFits()
{
    PreviewView view(targetImage(), QSize(400, 400));
    view.resize(400, 400);
    QCOMPARE(shownSide(view), 10);
    view.show();
    QCOMPARE(view.size(), QSize(400, 400));
    QCOMPARE(shownSide(view), 40);
}

void tst_PreviewView::newImageFitsAtOnceAlsoWhileHidden()
{
    SizedView view(QSize(400, 300), speckledImage(QSize(30, 20)));
    view.setImage(targetImage());
    QCOMPARE(shownSide(view), 30);
    dragMouse(view, QPointF(10, 10), QPointF(90, 60));
    view.zoomIn();
    view.setImage(targetImage());
    QCOMPARE(drawnBy(view, ground), fittedPicture(targetImage(), view.size(), ground));
}

void tst_PreviewView::resizeDoesNotRefitButShowingAgainDoes()
{
    SizedView view(QSize(200, 200));
    view.show();
    QCOMPARE(shownSide(view), 20);
    view.resize(500, 400);
    QTest::qWait(0);
    QCOMPARE(shownSide(view), 20);
    view.resetZoom();
    QCOMPARE(shownSide(view), 20);
    dragMouse(view, QPointF(10, 10), QPointF(50, 20));
    view.hide();
    QCOMPARE(shownSide(view), 20);
    view.show();
    QCOMPARE(shownSide(view), 40);
    QCOMPARE(drawnBy(view, ground), fittedPicture(targetImage(), QSize(500, 400), ground));
}

void tst_PreviewView::stepsMultiplyByTheStoredFactors()
{
    FittedView view(QSize(1000, 1000));
    QCOMPARE(shownSide(view), 100);
    view.zoomIn();
    QCOMPARE(shownSide(view), 110);
    view.zoomIn();
    QCOMPARE(shownSide(view), 121);
    view.zoomOut();
    QCOMPARE(shownSide(view), 110);
}

void tst_PreviewView::oneStepOutOfAFitAndNoMore()
{
    FittedView view(QSize(1000, 1000));
    view.zoomOut();
    QVERIFY(qAbs(shownSide(view) - 91) <= 1);
    const QImage once = drawnBy(view, ground);
    view.zoomOut();
    QCOMPARE(drawnBy(view, ground), once);
    view.fitToView();
    QCOMPARE(shownSide(view), 100);
}

// In and out again may land a hair above or below the fit. Above it, one more step out is allowed;
// whoever snaps the scale, or divides by 1.1, gets another number of steps.
void tst_PreviewView::roundingIsNeverSnapped()
{
    const QImage image = speckledImage(QSize(97, 97));
    int oneStep = 0;
    int twoSteps = 0;
    for (int side = 60; side < 180; ++side) {
        ReferenceCanvas reference(image, QSize(side, side));
        SizedView view(QSize(side, side), image);
        reference.fit();
        view.fitToView();
        reference.zoomIn();
        view.zoomIn();
        for (int step = 0; step < 3; ++step) {
            reference.zoomOut();
            view.zoomOut();
        }
        (reference.zoom() < reference.minZoom() * 0.95 ? twoSteps : oneStep)++;
        QCOMPARE(drawnBy(view, ground), reference.painted(ground));
    }
    QVERIFY(oneStep > 0);
    QVERIFY(twoSteps > 0);
}

void tst_PreviewView::zoomInStopsAtTheFirstStepPastTheCeiling()
{
    FittedView view(QSize(100, 100));
    // 1.1 to the 30th is 17.4494, just below the ceiling of 17.4495; one more step makes 19.1943.
    for (int step = 0; step < 30; ++step)
        view.zoomIn();
    view.resize(300, 300);
    QCOMPARE(shownSide(view), 174);
    view.zoomIn();
    QCOMPARE(shownSide(view), 192);
    const QImage highest = drawnBy(view, ground);
    view.zoomIn();
    QCOMPARE(drawnBy(view, ground), highest);
    QVERIFY(turnWheel(view, QPoint(0, 120)));
    QCOMPARE(drawnBy(view, ground), highest);
    view.zoomOut();
    QCOMPARE(shownSide(view), 174);
}

void tst_PreviewView::resetGoesBackToTheLastFit()
{
    FittedView view(QSize(200, 200));
    const QImage fitted = drawnBy(view, ground);
    view.scaleBy(3.7);
    dragMouse(view, QPointF(0, 0), QPointF(1000, -70));
    QVERIFY(drawnBy(view, ground) != fitted);
    view.resetZoom();
    QCOMPARE(drawnBy(view, ground), fitted);
}

void tst_PreviewView::scaleByHasNoLimits()
{
    FittedView view(QSize(400, 400));
    QCOMPARE(shownSide(view), 40);
    view.scaleBy(0.25);
    QCOMPARE(shownSide(view), 10);
    view.zoomOut();
    QCOMPARE(shownSide(view), 10);
    view.scaleBy(30.0);
    QCOMPARE(shownSide(view), 300);
    view.zoomIn();
    QCOMPARE(shownSide(view), 300);
    view.resetZoom();
    QCOMPARE(shownSide(view), 40);
}

void tst_PreviewView::scaleByIgnoresWhatIsNoNumber_data()
{
    QTest::addColumn<double>("factor");
    addRow("not a number", std::numeric_limits<double>::quiet_NaN());
    addRow("infinity", std::numeric_limits<double>::infinity());
    addRow("minus infinity", -std::numeric_limits<double>::infinity());
}

void tst_PreviewView::scaleByIgnoresWhatIsNoNumber()
{
    QFETCH(const double, factor);
    FittedView view(QSize(200, 200));
    view.scaleBy(factor);
    QCOMPARE(shownSide(view), 20);
}

void tst_PreviewView::wheelIsOneStepWhateverItsDelta_data()
{
    addColumns<QPoint, int>("delta", "expected");
    addRow("one notch away", QPoint(0, 120), 110);
    addRow("smallest turn away", QPoint(0, 1), 110);
    addRow("many notches away", QPoint(0, 12000), 110);
    addRow("away and tilted", QPoint(-240, 8), 110);
    addRow("one notch near", QPoint(0, -120), 91);
    addRow("smallest turn near", QPoint(0, -1), 91);
    addRow("many notches near", QPoint(0, -12000), 91);
    addRow("tilted right", QPoint(120, 0), 91);
    addRow("tilted left", QPoint(-120, 0), 91);
    addRow("not turned at all", QPoint(0, 0), 91);
}

void tst_PreviewView::wheelIsOneStepWhateverItsDelta()
{
    QFETCH(const QPoint, delta);
    QFETCH(const int, expected);
    FittedView view(QSize(1000, 1000));
    QVERIFY(turnWheel(view, delta));
    QVERIFY2(qAbs(shownSide(view) - expected) <= 1, qPrintable(QString::number(shownSide(view))));
    // The lower limit holds for the wheel, too.
    if (expected < 100) {
        const QImage once = drawnBy(view, ground);
        QVERIFY(turnWheel(view, delta));
        QCOMPARE(drawnBy(view, ground), once);
    }
}

void tst_PreviewView::drawsNothingBesideTheImage()
{
    QImage image(10, 10, QImage::Format_RGB32);
    image.fill(ink);
    SizedView view(QSize(100, 80), image);
    const QImage picture = drawnBy(view, ground);
    int pixels = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            pixels += picture.pixelColor(x, y) == ground ? 0 : 1;
    }
    QCOMPARE(pixels, 100);
}

void tst_PreviewView::drawsWithoutSmoothing()
{
    QImage image(2, 1, QImage::Format_RGB32);
    image.setPixelColor(0, 0, ink);
    image.setPixelColor(1, 0, paper);
    FittedView view(QSize(101, 51), image);
    view.scaleBy(0.77);
    const QImage picture = drawnBy(view, ground);
    for (int x = 0; x < picture.width(); ++x) {
        const QColor color = picture.pixelColor(x, 25);
        QVERIFY2(color == ink || color == paper || color == ground, qPrintable(color.name()));
    }
}

void tst_PreviewView::drawsOverWhatTheParentPaints()
{
    QWidget frame;
    frame.setStyleSheet(QStringLiteral("background-color: #C2C1C1;"));
    auto* view = new PreviewView(targetImage(), QSize(200, 100));
    auto* layout = new QVBoxLayout(&frame);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(view);
    frame.resize(200, 100);
    frame.show();
    QCOMPARE(view->parentWidget(), &frame);
    const QImage picture = frame.grab().toImage();
    QCOMPARE(picture.pixelColor(5, 50), QColor(0xc2, 0xc1, 0xc1));
    QCOMPARE(picture.pixelColor(60, 50), paper);
    QCOMPARE(picture.pixelColor(99, 49), ink);
}

void tst_PreviewView::resolutionOfTheImageDoesNotMatter()
{
    QImage image = targetImage();
    FittedView view(QSize(200, 200), image);
    const QImage expected = drawnBy(view, ground);
    image.setDevicePixelRatio(2.5);
    image.setDotsPerMeterX(100);
    image.setOffset(QPoint(40, 40));
    view.setImage(image);
    QCOMPARE(drawnBy(view, ground), expected);
    QCOMPARE(image.devicePixelRatio(), 2.5);
}

void tst_PreviewView::nullImageDrawsNothing_data()
{
    QTest::addColumn<bool>("fromTheStart");
    addRow("from the start", true);
    addRow("later", false);
}

void tst_PreviewView::nullImageDrawsNothing()
{
    QFETCH(const bool, fromTheStart);
    SizedView view(QSize(200, 200), fromTheStart ? QImage() : targetImage());
    if (!fromTheStart)
        view.setImage(QImage());
    QImage empty(view.size(), QImage::Format_ARGB32_Premultiplied);
    empty.fill(ground);
    view.show();
    for (int round = 0; round < 5; ++round) {
        view.zoomIn();
        view.zoomOut();
        view.zoomOut();
        view.scaleBy(1.5);
        view.fitToView();
        turnWheel(view, QPoint(0, -120));
        dragMouse(view, QPointF(0, 0), QPointF(30, 20));
        QCOMPARE(drawnBy(view, ground), empty);
        view.resetZoom();
        QCOMPARE(drawnBy(view, ground), empty);
    }
    view.setImage(targetImage());
    QCOMPARE(shownSide(view), 20);
}

// At scale 0 no way of the mouse is long enough; what it does must not outlast the next fit.
void tst_PreviewView::viewWithoutASizeIsHarmless()
{
    FittedView view(QSize(0, 0));
    view.zoomIn();
    view.zoomOut();
    pressMouse(view, QPointF(0, 0));
    sendMouse(view, QEvent::MouseMove, QPointF(0, 0), Qt::NoButton, Qt::LeftButton);
    sendMouse(view, QEvent::MouseMove, QPointF(30, 20), Qt::NoButton, Qt::LeftButton);
    sendMouse(view, QEvent::MouseButtonRelease, QPointF(30, 20), Qt::LeftButton, Qt::NoButton);
    view.resize(200, 200);
    QCOMPARE(shownSide(view), 0);
    view.fitToView();
    QCOMPARE(shownSide(view), 20);
}

void tst_PreviewView::extremeImages_data()
{
    QTest::addColumn<QSize>("size");
    addRow("1x1", QSize(1, 1));
    addRow("30000x1", QSize(30000, 1));
    addRow("1x30000", QSize(1, 30000));
    addRow("30000x2000", QSize(30000, 2000));
}

void tst_PreviewView::extremeImages()
{
    QFETCH(const QSize, size);
    QImage image(size, QImage::Format_Grayscale8);
    image.fill(0);
    FittedView view(QSize(320, 240), image);
    QVERIFY(!drawnBy(view, ground).isNull());
    for (int step = 0; step < 120; ++step)
        view.zoomIn();
    // Close up, the image covers the middle, however thin it is.
    QCOMPARE(drawnBy(view, ground).pixelColor(159, 119), ink);
    ReferenceCanvas reference(image, view.size());
    reference.fit();
    for (int step = 0; step < 120; ++step)
        reference.zoomIn();
    QCOMPARE(drawnBy(view, ground), reference.painted(ground));
}

void tst_PreviewView::extremeScales_data()
{
    QTest::addColumn<double>("factor");
    for (const double factor : {0.0, 1e-300, 1e-9, 1e6, 1e12, 1e300, -1.0, -1e300})
        QTest::addRow("%g", factor) << factor;
}

void tst_PreviewView::extremeScales()
{
    QFETCH(const double, factor);
    FittedView view(QSize(320, 240));
    for (int round = 0; round < 3; ++round) {
        view.scaleBy(factor);
        QVERIFY(!drawnBy(view, ground).isNull());
        dragMouse(view, QPointF(0, 0), QPointF(50, 50));
        QVERIFY(!drawnBy(view, ground).isNull());
        view.zoomIn();
        view.zoomOut();
    }
    view.fitToView();
    QCOMPARE(shownSide(view), 24);
}

void tst_PreviewView::everyPictureFormatIsShown_data()
{
    QTest::addColumn<int>("format");
    for (int format = QImage::Format_Mono; format < QImage::NImageFormats; ++format)
        QTest::addRow("%d", format) << format;
}

void tst_PreviewView::everyPictureFormatIsShown()
{
    QFETCH(const int, format);
    const QImage image = targetImage().convertToFormat(QImage::Format(format));
    QVERIFY(!image.isNull());
    FittedView view(QSize(200, 200), image);
    QCOMPARE(drawnBy(view, ground), fittedPicture(image, view.size(), ground));
}

QTEST_MAIN(tst_PreviewView)
#include "tst_previewview.moc"
