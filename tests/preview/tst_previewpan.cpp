// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "sizedview.h"
#include "support/stricttest.h"

#include <QtCore/QPointer>
#include <QtGui/QGuiApplication>
#include <QtWidgets/QDialog>
#include <QtWidgets/QMenu>
#include <QtWidgets/QVBoxLayout>

#include <memory>

using PrintPanels::PreviewView;

namespace {

const QColor ground(Qt::magenta);
const QColor ink(Qt::black);

/** Top left corner of the square that a view of targetImage() shows. */
QPoint corner(PreviewView& view)
{
    return extentOf(drawnBy(view, ground), ink).topLeft();
}

void press(PreviewView& view, const QPointF& position, Qt::MouseButton button = Qt::LeftButton)
{
    sendMouse(view, QEvent::MouseButtonPress, position, button, button);
}

void drag(PreviewView& view, const QPointF& position, Qt::MouseButtons buttons = Qt::LeftButton)
{
    sendMouse(view, QEvent::MouseMove, position, Qt::NoButton, buttons);
}

void release(PreviewView& view, const QPointF& position, Qt::MouseButton button = Qt::LeftButton)
{
    sendMouse(view, QEvent::MouseButtonRelease, position, button, Qt::NoButton);
}

bool handIsClosed()
{
    const QCursor* cursor = QGuiApplication::overrideCursor();
    return cursor && cursor->shape() == Qt::ClosedHandCursor;
}

/** Takes away and counts the override cursors that are left. */
int cursorsLeft()
{
    int count = 0;
    for (; QGuiApplication::overrideCursor(); ++count)
        QGuiApplication::restoreOverrideCursor();
    return count;
}

/** A shown view in a shown window, fitted at scale 2. */
class ShownView
{
public:
    ShownView() : view(new PreviewView(targetImage(), QSize(200, 200)))
    {
        auto* layout = new QVBoxLayout(&window);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(view);
        window.resize(200, 200);
        window.show();
    }

    QWidget window;
    QPointer<PreviewView> view;
};

} // namespace

class tst_PreviewPan : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() override;
    void dragMovesTheImageWithTheMouse_data();
    void dragMovesTheImageWithTheMouse();
    void everyButtonDrags_data();
    void everyButtonDrags();
    void positionsAreRoundedToWholePixels_data();
    void positionsAreRoundedToWholePixels();
    void stepsAddUpAndEndWhereTheMouseIs();
    void imageMayBeDraggedOutOfSight();
    void zoomKeepsThePanInImagePixels();
    void pressTurnsTrackingOnAndReleaseOff();
    void movesWithoutAPressDoNotArrive();
    void movesBetweenPressAndReleaseNeedNoButton();
    void pressShowsTheClosedHandUntilRelease();
    void doubleClickCountsAsAPress();
    void everyPressPushesOneCursor();
    void releaseWithoutAPressTakesOneCursorBack();
    void cursorOfTheHostComesBack();
    void closedHandNeverOutlivesTheDrag_data();
    void closedHandNeverOutlivesTheDrag();
    void releaseThatAMenuTookEndsTheDrag_data();
    void releaseThatAMenuTookEndsTheDrag();
    void hidingTakesBackWhatWasPushedAndNoMore();
    void viewThatWasHiddenInADragDoesNotPan();
    void viewMayBeDeletedWhileItDrags();
};

void tst_PreviewPan::cleanup()
{
    QCOMPARE(cursorsLeft(), 0);
}

void tst_PreviewPan::dragMovesTheImageWithTheMouse_data()
{
    QTest::addColumn<double>("scale");
    addRow("1", 1.0);
    addRow("2", 2.0);
    addRow("a half", 0.5);
    addRow("4", 4.0);
}

void tst_PreviewPan::dragMovesTheImageWithTheMouse()
{
    QFETCH(const double, scale);
    SizedView view(QSize(400, 300));
    view.scaleBy(scale);
    const QPoint before = corner(view);
    press(view, QPointF(100, 100));
    drag(view, QPointF(137, 88));
    QCOMPARE(corner(view) - before, QPoint(37, -12));
    drag(view, QPointF(37, 188));
    QCOMPARE(corner(view) - before, QPoint(-63, 88));
    release(view, QPointF(37, 188));
    QCOMPARE(corner(view) - before, QPoint(-63, 88));
}

void tst_PreviewPan::everyButtonDrags_data()
{
    QTest::addColumn<int>("button");
    addRow("left", int(Qt::LeftButton));
    addRow("right", int(Qt::RightButton));
    addRow("middle", int(Qt::MiddleButton));
    addRow("back", int(Qt::BackButton));
}

void tst_PreviewPan::everyButtonDrags()
{
    QFETCH(const int, button);
    const auto which = Qt::MouseButton(button);
    SizedView view(QSize(300, 300));
    const QPoint before = corner(view);
    press(view, QPointF(10, 10), which);
    QVERIFY(handIsClosed());
    drag(view, QPointF(30, 60), which);
    release(view, QPointF(30, 60), which);
    QVERIFY(!handIsClosed());
    QCOMPARE(corner(view) - before, QPoint(20, 50));
}

void tst_PreviewPan::positionsAreRoundedToWholePixels_data()
{
    addColumns<QPointF, QPointF, QPoint>("from", "to", "moved");
    addRow("down", QPointF(10.4, 10.4), QPointF(30.3, 40.2), QPoint(20, 30));
    addRow("up", QPointF(10.6, 10.6), QPointF(30.7, 40.9), QPoint(20, 30));
    addRow("halves away from zero", QPointF(10.5, -10.5), QPointF(10.0, -10.0), QPoint(-1, 1));
    addRow("less than a pixel", QPointF(10.1, 10.1), QPointF(10.4, 9.6), QPoint(0, 0));
    addRow("over an edge between pixels", QPointF(10.4, 10.4), QPointF(10.6, 10.6), QPoint(1, 1));
}

void tst_PreviewPan::positionsAreRoundedToWholePixels()
{
    QFETCH(const QPointF, from);
    QFETCH(const QPointF, to);
    QFETCH(const QPoint, moved);
    SizedView view(QSize(300, 300));
    const QPoint before = corner(view);
    press(view, from);
    drag(view, to);
    release(view, to);
    QCOMPARE(corner(view) - before, moved);
}

void tst_PreviewPan::stepsAddUpAndEndWhereTheMouseIs()
{
    SizedView view(QSize(300, 300));
    view.scaleBy(1.7);
    const QPoint before = corner(view);
    press(view, QPointF(0, 0));
    for (int x = 1; x <= 60; ++x)
        drag(view, QPointF(x, x / 2));
    release(view, QPointF(60, 30));
    QCOMPARE(corner(view) - before, QPoint(60, 30));
}

void tst_PreviewPan::imageMayBeDraggedOutOfSight()
{
    FittedView view(QSize(300, 300));
    const QPoint before = corner(view);
    press(view, QPointF(0, 0));
    drag(view, QPointF(100000, -100000));
    release(view, QPointF(100000, -100000));
    QImage empty(view.size(), QImage::Format_ARGB32_Premultiplied);
    empty.fill(ground);
    QCOMPARE(drawnBy(view, ground), empty);
    view.resetZoom();
    QCOMPARE(corner(view), before);
}

void tst_PreviewPan::zoomKeepsThePanInImagePixels()
{
    SizedView view(QSize(401, 401));
    press(view, QPointF(0, 0));
    drag(view, QPointF(20, 10));
    release(view, QPointF(20, 10));
    // The corner lies 5 image pixels left of and above the middle of the image.
    QCOMPARE(corner(view), QPoint(200 + 20 - 5, 200 + 10 - 5));
    view.scaleBy(2.0);
    QCOMPARE(corner(view), QPoint(200 + 40 - 10, 200 + 20 - 10));
    turnWheel(view, QPoint(0, 120));
    QCOMPARE(corner(view), QPoint(200 + 44 - 11, 200 + 22 - 11));
}

void tst_PreviewPan::pressTurnsTrackingOnAndReleaseOff()
{
    PreviewView view(targetImage(), QSize());
    QVERIFY(!view.testAttribute(Qt::WA_MouseTracking));
    press(view, QPointF(1, 1));
    QVERIFY(view.testAttribute(Qt::WA_MouseTracking));
    release(view, QPointF(1, 1));
    QVERIFY(!view.testAttribute(Qt::WA_MouseTracking));
}

void tst_PreviewPan::movesWithoutAPressDoNotArrive()
{
    SizedView view(QSize(200, 200));
    const QPoint before = corner(view);
    drag(view, QPointF(50, 50), Qt::NoButton);
    press(view, QPointF(0, 0));
    release(view, QPointF(0, 0));
    drag(view, QPointF(70, 50), Qt::NoButton);
    QCOMPARE(corner(view), before);
}

void tst_PreviewPan::movesBetweenPressAndReleaseNeedNoButton()
{
    SizedView view(QSize(200, 200));
    const QPoint before = corner(view);
    press(view, QPointF(0, 0));
    drag(view, QPointF(15, 25), Qt::NoButton);
    release(view, QPointF(15, 25));
    QCOMPARE(corner(view) - before, QPoint(15, 25));
}

void tst_PreviewPan::pressShowsTheClosedHandUntilRelease()
{
    ShownView shown;
    QVERIFY(!handIsClosed());
    QTest::mousePress(shown.view, Qt::LeftButton, Qt::NoModifier, QPoint(20, 20));
    QVERIFY(handIsClosed());
    drag(*shown.view, QPointF(40, 40));
    QVERIFY(handIsClosed());
    QTest::mouseRelease(shown.view, Qt::LeftButton, Qt::NoModifier, QPoint(40, 40));
    QVERIFY(!QGuiApplication::overrideCursor());
}

void tst_PreviewPan::doubleClickCountsAsAPress()
{
    ShownView shown;
    const QPoint before = corner(*shown.view);
    press(*shown.view, QPointF(20, 20));
    release(*shown.view, QPointF(20, 20));
    sendMouse(*shown.view, QEvent::MouseButtonDblClick, QPointF(24, 20), Qt::LeftButton,
              Qt::LeftButton);
    QVERIFY(handIsClosed());
    drag(*shown.view, QPointF(34, 40));
    release(*shown.view, QPointF(34, 40));
    QCOMPARE(corner(*shown.view) - before, QPoint(10, 20));
}

void tst_PreviewPan::everyPressPushesOneCursor()
{
    PreviewView view(targetImage(), QSize());
    press(view, QPointF(0, 0), Qt::LeftButton);
    press(view, QPointF(0, 0), Qt::RightButton);
    QCOMPARE(cursorsLeft(), 2);
    // They are gone by now, which the releases do not mind.
    release(view, QPointF(0, 0), Qt::RightButton);
    release(view, QPointF(0, 0), Qt::LeftButton);
    QCOMPARE(cursorsLeft(), 0);
}

void tst_PreviewPan::releaseWithoutAPressTakesOneCursorBack()
{
    PreviewView view(targetImage(), QSize());
    release(view, QPointF(0, 0));
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    QGuiApplication::setOverrideCursor(Qt::BusyCursor);
    release(view, QPointF(0, 0));
    QVERIFY(QGuiApplication::overrideCursor());
    QCOMPARE(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
    release(view, QPointF(0, 0));
    QVERIFY(!QGuiApplication::overrideCursor());
}

void tst_PreviewPan::cursorOfTheHostComesBack()
{
    PreviewView view(targetImage(), QSize());
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    press(view, QPointF(0, 0));
    QVERIFY(handIsClosed());
    release(view, QPointF(0, 0));
    QVERIFY(QGuiApplication::overrideCursor());
    QCOMPARE(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
    QCOMPARE(cursorsLeft(), 1);
}

void tst_PreviewPan::closedHandNeverOutlivesTheDrag_data()
{
    QTest::addColumn<QByteArray>("what");
    for (const char* what : {"view hidden", "window hidden", "window closed", "view disabled",
                             "window disabled", "modal window opened", "view deleted"})
        QTest::newRow(what) << QByteArray(what);
}

void tst_PreviewPan::closedHandNeverOutlivesTheDrag()
{
    QFETCH(const QByteArray, what);
    ShownView shown;
    QDialog modal;
    modal.setModal(true);
    press(*shown.view, QPointF(10, 10), Qt::LeftButton);
    press(*shown.view, QPointF(10, 10), Qt::RightButton);
    drag(*shown.view, QPointF(30, 30));
    QVERIFY(handIsClosed());

    if (what == "view hidden")
        shown.view->hide();
    else if (what == "window hidden")
        shown.window.hide();
    else if (what == "window closed")
        shown.window.close();
    else if (what == "view disabled")
        shown.view->setEnabled(false);
    else if (what == "window disabled")
        shown.window.setEnabled(false);
    else if (what == "modal window opened")
        modal.show();
    else
        delete shown.view;

    QCOMPARE(cursorsLeft(), 0);
    if (shown.view)
        QVERIFY(!shown.view->hasMouseTracking());
}

void tst_PreviewPan::releaseThatAMenuTookEndsTheDrag_data()
{
    QTest::addColumn<bool>("closed");
    addRow("menu is open", false);
    addRow("menu was closed again", true);
}

void tst_PreviewPan::releaseThatAMenuTookEndsTheDrag()
{
    QFETCH(const bool, closed);
    ShownView shown;
    QVERIFY(QTest::qWaitForWindowExposed(&shown.window));
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    QWindow* window = shown.window.windowHandle();
    QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, QPoint(50, 50));
    QVERIFY(handIsClosed());
    QMenu menu;
    menu.addAction(QStringLiteral("entry"));
    menu.popup(shown.window.mapToGlobal(QPoint(100, 100)));
    if (closed)
        menu.close();
    QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, QPoint(60, 60));
    QTRY_VERIFY(!shown.view->hasMouseTracking());
    QCOMPARE(cursorsLeft(), 1);
}

void tst_PreviewPan::hidingTakesBackWhatWasPushedAndNoMore()
{
    ShownView shown;
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    press(*shown.view, QPointF(10, 10));
    shown.view->hide();
    QCOMPARE(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
    shown.view->show();
    shown.view->hide();
    QVERIFY(QGuiApplication::overrideCursor());
    press(*shown.view, QPointF(10, 10));
    release(*shown.view, QPointF(10, 10));
    shown.view->hide();
    delete shown.view;
    QCOMPARE(cursorsLeft(), 1);
}

void tst_PreviewPan::viewThatWasHiddenInADragDoesNotPan()
{
    ShownView shown;
    press(*shown.view, QPointF(10, 10));
    shown.view->hide();
    shown.view->show();
    const QPoint before = corner(*shown.view);
    drag(*shown.view, QPointF(80, 80), Qt::NoButton);
    QCOMPARE(corner(*shown.view), before);
}

void tst_PreviewPan::viewMayBeDeletedWhileItDrags()
{
    auto view = std::make_unique<PreviewView>(targetImage(), QSize());
    press(*view, QPointF(10, 10));
    drag(*view, QPointF(30, 10));
    view.reset();
    QVERIFY(!QGuiApplication::overrideCursor());
}

QTEST_MAIN(tst_PreviewPan)
#include "tst_previewpan.moc"
