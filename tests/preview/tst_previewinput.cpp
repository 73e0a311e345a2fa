// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "livepanel.h"
#include "referencecanvas.h"
#include "support/stricttest.h"

#include <previewinput.h>
#include <printpanels/multipageprintdialog.h>
#include <printpanels/printpreviewdialog.h>

#include <QtGui/QCursor>
#include <QtGui/QGuiApplication>
#include <QtGui/QNativeGestureEvent>
#include <QtGui/QPointingDevice>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>

#include <cmath>
#include <memory>

using Create = QWidget* (*)();
Q_DECLARE_METATYPE(Create)

/** Keys and fingers in the preview windows, as the examples and the sample host offer them. */
class tst_PreviewInput : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_screen = QTest::createTouchDevice(); }
    void cleanup() override;
    void keysZoomAndFit_data() { addWindows(); }
    void keysZoomAndFit();
    void keysMoveTheView_data() { addWindows(); }
    void keysMoveTheView();
    void keysReachAPopup();
    void editsKeepTheirKeys();
    void fingerDragsThePicture_data() { addWindows(); }
    void fingerDragsThePicture();
    void twoFingersZoom_data() { addWindows(); }
    void twoFingersZoom();
    void secondFingerEndsTheDrag_data() { addWindows(); }
    void secondFingerEndsTheDrag();
    void noCursorIsLeft_data();
    void noCursorIsLeft();
    void padPinchesToo_data() { addWindows(); }
    void padPinchesToo();
    void windowWithoutAPreviewIsLeftAlone();

private:
    static void addWindows();

    QPointingDevice* m_screen = nullptr;
};

namespace {

const QColor ink(Qt::green); // that of the windows' pictures

/** A window with a preview and keys and fingers for it. */
struct Shown
{
    explicit Shown(Create create) : window(create())
    {
        view = part<QWidget>(*window, "PreviewView");
        if (auto* popup = qobject_cast<PrintPreviewDialog*>(window.get())) {
            input = new PreviewInput(popup);
            return;
        }
        auto* dialog = qobject_cast<MultiPagePrintDialog*>(window.get());
        QImage picture(40, 30, QImage::Format_RGB32);
        picture.fill(ink);
        input = new PreviewInput(dialog, [=] { dialog->setPreviewImage(picture); });
    }

    /** Where the picture is in the view. */
    QRect place() const { return extentOf(view->grab().toImage(), ink); }
    QPoint middle() const { return view->rect().center(); }
    void press(Qt::Key key)
    {
        QTest::keyClick(QApplication::focusWidget(), key, Qt::ControlModifier);
    }

    std::unique_ptr<QWidget> window;
    QWidget* view = nullptr;
    PreviewInput* input = nullptr;
};

bool isNear(double one, double other)
{
    return std::abs(one - other) <= 2;
}

} // namespace

void tst_PreviewInput::addWindows()
{
    addColumns<Create>("create");
    addRow("popup", Create(newPreviewPopup));
    addRow("dialog", Create(newMultiPageDialog));
}

void tst_PreviewInput::cleanup()
{
    QVERIFY(!QGuiApplication::overrideCursor());
}

void tst_PreviewInput::keysZoomAndFit()
{
    QFETCH(const Create, create);
    Shown shown(create);
    QVERIFY(showActive(*shown.window));
    const int fitted = shown.place().height();
    shown.press(Qt::Key_Minus);
    QVERIFY(isNear(shown.place().height(), fitted / 1.1));
    shown.press(Qt::Key_Minus); // one step below the fit is the least
    QVERIFY(isNear(shown.place().height(), fitted / 1.1));
    shown.press(Qt::Key_Plus);
    QVERIFY(isNear(shown.place().height(), fitted));
    shown.press(Qt::Key_Minus);
    shown.press(Qt::Key_Equal);
    QVERIFY(isNear(shown.place().height(), fitted));
    shown.press(Qt::Key_Minus);
    shown.press(Qt::Key_Right);
    shown.press(Qt::Key_0);
    QVERIFY(isNear(shown.place().height(), fitted));
    QVERIFY(isNear(shown.place().center().x(), shown.middle().x()));
}

void tst_PreviewInput::keysMoveTheView()
{
    QFETCH(const Create, create);
    Shown shown(create);
    QVERIFY(showActive(*shown.window));
    shown.press(Qt::Key_Minus); // so that every edge is in the view
    const struct
    {
        Qt::Key key;
        QPoint moves;
    } keys[] = {{Qt::Key_Right, {-40, 0}}, {Qt::Key_Left, {40, 0}}};
    for (const auto& [key, moves] : keys) {
        QWidget* focused = QApplication::focusWidget();
        const QPoint before = shown.place().topLeft();
        shown.press(key);
        const QPoint distance = shown.place().topLeft() - before;
        QVERIFY2((distance - moves).manhattanLength() <= 2,
                 qPrintable(QStringLiteral("%1 %2").arg(distance.x()).arg(distance.y())));
        QCOMPARE(QApplication::focusWidget(), focused);
        QVERIFY(!QGuiApplication::overrideCursor());
    }
    const int bottom = shown.place().bottom();
    shown.press(Qt::Key_Down);
    QVERIFY(isNear(shown.place().bottom(), bottom - 40));
    const int top = shown.place().top();
    shown.press(Qt::Key_Up);
    shown.press(Qt::Key_Up);
    QVERIFY(shown.place().top() > top);
}

// A popup has the keyboard, but the window behind it stays the active one.
void tst_PreviewInput::keysReachAPopup()
{
    QWidget behind;
    QVERIFY(showActive(behind));
    Shown shown(newPreviewPopup);
    shown.window->setWindowFlags(Qt::Popup);
    shown.window->show();
    QVERIFY(QTest::qWaitForWindowExposed(shown.window.get()));
    part<QWidget>(*shown.window, "printButton")->setFocus();
    const int fitted = shown.place().height();
    QTest::keyClick(part<QWidget>(*shown.window, "printButton"), Qt::Key_Minus,
                    Qt::ControlModifier);
    QVERIFY(isNear(shown.place().height(), fitted / 1.1));
}

void tst_PreviewInput::editsKeepTheirKeys()
{
    Shown shown(newMultiPageDialog);
    QVERIFY(showActive(*shown.window));
    part<QAbstractButton>(*shown.window, "selectionRadio")->click();
    auto* edit = part<QLineEdit>(*shown.window, "pageListEdit");
    edit->setText(QStringLiteral("1-4,7"));
    edit->setFocus();
    const QRect place = shown.place();
    shown.press(Qt::Key_Left);
    QCOMPARE(edit->cursorPosition(), 4);
    QCOMPARE(shown.place(), place);
    shown.press(Qt::Key_Minus);
    QVERIFY(shown.place() != place);
    QCOMPARE(edit->text(), QStringLiteral("1-4,7"));
    QCOMPARE(part<QLineEdit>(*shown.window, "copiesEdit")->text(), QStringLiteral("1"));
}

void tst_PreviewInput::fingerDragsThePicture()
{
    QFETCH(const Create, create);
    Shown shown(create);
    QVERIFY(showActive(*shown.window));
    shown.press(Qt::Key_Minus);
    const QRect before = shown.place();
    QTest::touchEvent(shown.view, m_screen).press(0, shown.middle(), shown.view);
    QCOMPARE(QGuiApplication::overrideCursor()->shape(), Qt::ClosedHandCursor);
    for (int x = 5; x <= 30; x += 5)
        QTest::touchEvent(shown.view, m_screen).move(0, shown.middle() + QPoint(x, 0), shown.view);
    QTest::touchEvent(shown.view, m_screen).release(0, shown.middle() + QPoint(30, 0), shown.view);
    QVERIFY(isNear(shown.place().left(), before.left() + 30));
    QCOMPARE(shown.place().height(), before.height());
    QVERIFY(!QGuiApplication::overrideCursor());
}

void tst_PreviewInput::twoFingersZoom()
{
    QFETCH(const Create, create);
    Shown shown(create);
    QVERIFY(showActive(*shown.window));
    const int fitted = shown.place().height();
    const QPoint middle = shown.middle();
    const auto spread = [&](int from, int to) {
        QTest::touchEvent(shown.view, m_screen)
            .press(0, middle - QPoint(from, 0), shown.view)
            .press(1, middle + QPoint(from, 0), shown.view);
        const int step = to > from ? 1 : -1;
        for (int x = from; x != to; x += step) {
            QTest::touchEvent(shown.view, m_screen)
                .move(0, middle - QPoint(x + step, 0), shown.view)
                .move(1, middle + QPoint(x + step, 0), shown.view);
        }
        QTest::touchEvent(shown.view, m_screen)
            .release(0, middle - QPoint(to, 0), shown.view)
            .release(1, middle + QPoint(to, 0), shown.view);
    };
    spread(100, 80); // a factor of 0.8 is two steps; the limit allows one
    QVERIFY(isNear(shown.place().height(), fitted / 1.1));
    spread(100, 112); // one step
    QVERIFY(isNear(shown.place().height(), fitted));
    QVERIFY(isNear(shown.place().center().x(), middle.x()));
    spread(20, 100); // a factor of 5
    QCOMPARE(shown.place().height(), shown.view->height());
    QVERIFY(shown.place().width() > 4 * fitted / 3 + 10);
    QVERIFY(!QGuiApplication::overrideCursor());
}

// The remaining finger goes on dragging from where it is.
void tst_PreviewInput::secondFingerEndsTheDrag()
{
    QFETCH(const Create, create);
    Shown shown(create);
    QVERIFY(showActive(*shown.window));
    shown.press(Qt::Key_Minus);
    const QRect before = shown.place();
    const QPoint one = shown.middle();
    const QPoint other = one + QPoint(50, 0);
    QTest::touchEvent(shown.view, m_screen).press(0, one, shown.view);
    QTest::touchEvent(shown.view, m_screen).move(0, one, shown.view).press(1, other, shown.view);
    QVERIFY(!QGuiApplication::overrideCursor());
    QTest::touchEvent(shown.view, m_screen).release(0, one, shown.view).move(1, other, shown.view);
    QVERIFY(QGuiApplication::overrideCursor());
    for (int x = 2; x <= 10; x += 2)
        QTest::touchEvent(shown.view, m_screen).move(1, other + QPoint(x, 0), shown.view);
    QTest::touchEvent(shown.view, m_screen).release(1, other + QPoint(10, 0), shown.view);
    QVERIFY(isNear(shown.place().left(), before.left() + 10));
    QVERIFY(!QGuiApplication::overrideCursor());
}

void tst_PreviewInput::noCursorIsLeft_data()
{
    addColumns<Create, QByteArray>("create", "end");
    for (const QByteArray& end : {QByteArray("hidden"), QByteArray("disabled"),
                                  QByteArray("cancelled"), QByteArray("deleted")}) {
        QTest::addRow("popup %s", end.constData()) << Create(newPreviewPopup) << end;
        QTest::addRow("dialog %s", end.constData()) << Create(newMultiPageDialog) << end;
    }
}

// Nor is one taken away that the host had set.
void tst_PreviewInput::noCursorIsLeft()
{
    QFETCH(const Create, create);
    QFETCH(const QByteArray, end);
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    {
        Shown shown(create);
        QVERIFY(showActive(*shown.window));
        QTest::touchEvent(shown.view, m_screen).press(0, shown.middle(), shown.view);
        QCOMPARE(QGuiApplication::overrideCursor()->shape(), Qt::ClosedHandCursor);
        if (end == "hidden") {
            shown.window->hide();
        } else if (end == "disabled") {
            shown.window->setEnabled(false);
        } else if (end == "cancelled") {
            QTouchEvent cancel(QEvent::TouchCancel, m_screen);
            QCoreApplication::sendEvent(shown.view, &cancel);
        }
        if (end != "deleted") {
            QCOMPARE(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
            QTouchEvent late(QEvent::TouchEnd, m_screen);
            QCoreApplication::sendEvent(shown.view, &late);
            QCOMPARE(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
            QTest::touchEvent(shown.window.get(), m_screen)
                .release(0, shown.middle(), shown.window.get());
        }
    }
    QCOMPARE(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
    QGuiApplication::restoreOverrideCursor();
}

void tst_PreviewInput::padPinchesToo()
{
    QFETCH(const Create, create);
    Shown shown(create);
    QVERIFY(showActive(*shown.window));
    const int fitted = shown.place().height();
    const auto gesture = [&](Qt::NativeGestureType type, double value) {
        const QPointF middle(shown.middle());
        QNativeGestureEvent event(type, QPointingDevice::primaryPointingDevice(), 2, middle, middle,
                                  shown.view->mapToGlobal(middle), value, QPointF());
        QCoreApplication::sendEvent(shown.view, &event);
    };
    // Many small changes make a step.
    gesture(Qt::BeginNativeGesture, 0);
    for (int i = 0; i < 6; ++i)
        gesture(Qt::ZoomNativeGesture, -0.02);
    gesture(Qt::EndNativeGesture, 0);
    QVERIFY(isNear(shown.place().height(), fitted / 1.1));
    for (int i = 0; i < 6; ++i)
        gesture(Qt::ZoomNativeGesture, 0.02);
    QVERIFY(isNear(shown.place().height(), fitted));
    gesture(Qt::ZoomNativeGesture, -5); // no sense, so as far out as it goes
    QVERIFY(shown.place().height() < fitted - 5);
}

void tst_PreviewInput::windowWithoutAPreviewIsLeftAlone()
{
    QWidget window;
    new PreviewInput(&window, [] {});
    QVERIFY(showActive(window));
    QTest::keyClick(&window, Qt::Key_Plus, Qt::ControlModifier);
    QVERIFY(!window.testAttribute(Qt::WA_AcceptTouchEvents));
}

QTEST_MAIN(tst_PreviewInput)
#include "tst_previewinput.moc"
