// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "preview/previewview.h"
#include "referencecanvas.h"
#include "support/stricttest.h"

#include <QtCore/QRandomGenerator>

#include <cmath>

using PrintPanels::PreviewView;

namespace {

const QColor ground(0xc2, 0xc1, 0xc1);

/** One way through the canvas's operations, the same for the canvas and for the reference. */
class Walk
{
public:
    Walk(quint32 seed, const QSize& imageSize, const QSize& viewSize)
        : random(seed),
          image(speckledImage(imageSize)),
          view(image, QSize(200, 200)),
          reference(image, viewSize)
    {
        view.resize(viewSize);
        view.fitToView();
        reference.fit();
    }

    void step()
    {
        const int kind = random.bounded(100);
        if (kind < 25)
            zoomStep();
        else if (kind < 50)
            wheelStep();
        else if (kind < 90)
            dragStep();
        else
            rareStep(kind);
    }

    QRandomGenerator random;
    QImage image;
    PreviewView view;
    ReferenceCanvas reference;

private:
    void zoomStep()
    {
        if (random.bounded(2) == 0) {
            view.zoomIn();
            reference.zoomIn();
        } else {
            view.zoomOut();
            reference.zoomOut();
        }
    }

    void wheelStep()
    {
        const int delta = random.bounded(-240, 241) / (random.bounded(3) == 0 ? 1000 : 1);
        turnWheel(view, QPoint(random.bounded(-50, 50), delta));
        if (delta > 0)
            reference.zoomIn();
        else
            reference.zoomOut();
    }

    void dragStep()
    {
        QPointF position = somewhere();
        pressMouse(view, position);
        reference.press(position);
        for (int moves = random.bounded(4); moves > 0; --moves) {
            position = somewhere();
            sendMouse(view, QEvent::MouseMove, position, Qt::NoButton, Qt::LeftButton);
            reference.moveTo(position);
        }
        sendMouse(view, QEvent::MouseButtonRelease, position, Qt::LeftButton, Qt::NoButton);
    }

    void rareStep(int kind)
    {
        if (kind < 93) {
            view.resetZoom();
            reference.reset();
        } else if (kind < 96) {
            const double factor = 0.5 + random.generateDouble();
            view.scaleBy(factor);
            reference.scaleBy(factor);
        } else if (kind < 98) {
            const QSize size(random.bounded(1, 260), random.bounded(1, 220));
            view.resize(size);
            reference.resize(size);
        } else {
            image = speckledImage(QSize(random.bounded(1, 120), random.bounded(1, 120)));
            view.setImage(image);
            reference.setImage(image);
        }
    }

    QPointF somewhere()
    {
        return QPointF(view.width() * random.generateDouble(),
                       view.height() * random.generateDouble());
    }
};

} // namespace

class tst_PreviewPixels : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void randomWalkMatchesTheReferencePainting_data();
    void randomWalkMatchesTheReferencePainting();
    void everyPixelShowsTheSourcePixelUnderItsMiddle_data();
    void everyPixelShowsTheSourcePixelUnderItsMiddle();
    void randomWalkInAShownViewRepaintsItself();

private:
    static void addWalks();
};

void tst_PreviewPixels::addWalks()
{
    addColumns<quint32, QSize, QSize>("seed", "imageSize", "viewSize");
    const QSize images[] = {QSize(40, 30), QSize(81, 57), QSize(300, 20), QSize(1, 1)};
    const QSize views[] = {QSize(200, 200), QSize(151, 98)};
    quint32 seed = 20240;
    for (const QSize& imageSize : images) {
        for (const QSize& viewSize : views) {
            ++seed;
            QTest::addRow("seed %u: image %dx%d in %dx%d", seed, imageSize.width(),
                          imageSize.height(), viewSize.width(), viewSize.height())
                << seed << imageSize << viewSize;
        }
    }
}

void tst_PreviewPixels::randomWalkMatchesTheReferencePainting_data()
{
    addWalks();
}

void tst_PreviewPixels::randomWalkMatchesTheReferencePainting()
{
    QFETCH(const quint32, seed);
    QFETCH(const QSize, imageSize);
    QFETCH(const QSize, viewSize);
    Walk walk(seed, imageSize, viewSize);
    for (int step = 0; step < 250; ++step) {
        walk.step();
        QVERIFY2(drawnBy(walk.view, ground) == walk.reference.painted(ground),
                 qPrintable(QStringLiteral("step %1").arg(step)));
    }
}

void tst_PreviewPixels::everyPixelShowsTheSourcePixelUnderItsMiddle_data()
{
    addWalks();
}

// No painter involved: the colours are looked up in the image, one by one.
void tst_PreviewPixels::everyPixelShowsTheSourcePixelUnderItsMiddle()
{
    QFETCH(const quint32, seed);
    QFETCH(const QSize, imageSize);
    QFETCH(const QSize, viewSize);
    Walk walk(seed, imageSize, viewSize);
    int decided = 0;
    for (int step = 0; step < 60; ++step) {
        walk.step();
        const QImage picture = drawnBy(walk.view, ground);
        int undecided = 0;
        QCOMPARE(walk.reference.wrongPixels(picture, ground, &undecided), 0);
        decided += picture.width() * picture.height() - undecided;
    }
    QVERIFY(decided > 60 * 1000);
}

// What stands on the screen after the event loop has run, not what a fresh painting would give.
void tst_PreviewPixels::randomWalkInAShownViewRepaintsItself()
{
    Walk walk(7, QSize(64, 48), QSize(180, 120));
    walk.view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&walk.view));
    class PaintCounter : public QObject
    {
    public:
        bool eventFilter(QObject*, QEvent* event) override
        {
            paints += event->type() == QEvent::Paint ? 1 : 0;
            return false;
        }
        int paints = 0;
    } counter;
    walk.view.installEventFilter(&counter);
    for (int step = 0; step < 60; ++step) {
        const double zoom = walk.reference.zoom();
        const QPointF pan = walk.reference.pan();
        QCoreApplication::processEvents();
        counter.paints = 0;
        walk.step();
        QCoreApplication::processEvents();
        if (walk.reference.zoom() != zoom || walk.reference.pan() != pan)
            QVERIFY2(counter.paints > 0, qPrintable(QStringLiteral("step %1").arg(step)));
    }
}

QTEST_MAIN(tst_PreviewPixels)
#include "tst_previewpixels.moc"
