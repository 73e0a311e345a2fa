// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "support/inputevents.h"
#include "support/stricttest.h"

#include <dragscrollbutton.h>
#include <dragscrollgroupbox.h>

#include <QtCore/QPointer>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QLabel>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QVBoxLayout>

// DragScrollButton and DragScrollGroupBox, which scroll in the same way.
class TestDragScroll : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void dragScrollsTheEnclosingArea_data();
    void dragScrollsTheEnclosingArea();
    void dragScrollsBothWays();
    void draggedButtonIsReleasedButNotClicked();
    void shortMoveIsAClick();
    void nextPressAfterADragClicks();
    void dragStopsAutoRepeat();
    void buttonWithNothingToScrollIsAPlainButton_data();
    void buttonWithNothingToScrollIsAPlainButton();
    void nearestAreaThatCanScrollScrolls();
    void areaBeyondTheButtonsWindowDoesNotScroll();
    void rightButtonDoesNotScroll();
    void hidingDuringTheDragEndsIt();
    void areaDeletedDuringTheDragDoesNotMatter();
    void buttonMayBeDeletedWhenItIsClicked();
    void constructorsAndConnectionsByText();
    void groupBoxPaintsItsStyleSheet();
    void groupBoxTakesOnlyPressesThatCanScroll();
};

namespace {
// A small window on a large surface, scrolled to (100, 100).
struct Scrolled
{
    Scrolled()
    {
        contents->setFixedSize(1000, 1000);
        area.setWidget(contents);
        area.resize(300, 300);
    }

    void showWith(QWidget* child)
    {
        child->setParent(contents);
        child->setGeometry(150, 150, 200, 200);
        area.show();
        area.horizontalScrollBar()->setValue(100);
        area.verticalScrollBar()->setValue(100);
    }

    QPoint offset() const
    {
        return QPoint(area.horizontalScrollBar()->value(), area.verticalScrollBar()->value());
    }

    QScrollArea area;
    QWidget* contents = new QWidget;
};

// With a button that counts its clicks.
struct ScrolledButton : Scrolled
{
    ScrolledButton() { showWith(button); }

    DragScrollButton* button = new DragScrollButton(nullptr);
    QSignalSpy clicked{button, SIGNAL(clicked(bool))};
};

const QPoint startOffset(100, 100);
const QPoint middle(100, 100);
} // namespace

void TestDragScroll::dragScrollsTheEnclosingArea_data()
{
    QTest::addColumn<QString>("kind");
    addRow("button", "button");
    addRow("group box", "group");
    addRow("label in a group box", "label");
}

void TestDragScroll::dragScrollsTheEnclosingArea()
{
    QFETCH(QString, kind);
    Scrolled scrolled;
    QWidget* outer = nullptr;
    if (kind == QLatin1String("button")) {
        outer = new DragScrollButton(QStringLiteral("Print"), nullptr);
    } else {
        outer = new DragScrollGroupBox(nullptr);
        if (kind == QLatin1String("label"))
            (new QVBoxLayout(outer))->addWidget(new QLabel(QStringLiteral("Loaded Supply:")));
    }
    scrolled.showWith(outer);
    MouseDrag drag(outer, middle);
    drag.moveBy(0, -5);
    QCOMPARE(scrolled.offset(), startOffset);
    drag.moveBy(0, -40);
    QCOMPARE(scrolled.offset(), startOffset + QPoint(0, 40));
    drag.moveBy(0, -60);
    QCOMPARE(scrolled.offset(), startOffset + QPoint(0, 60));
    drag.moveBy(0, 0);
    QCOMPARE(scrolled.offset(), startOffset);
    drag.release();
    QTest::mouseMove(scrolled.area.windowHandle(), QPoint(10, 10));
    QCOMPARE(scrolled.offset(), startOffset);
}

void TestDragScroll::dragScrollsBothWays()
{
    ScrolledButton scrolled;
    MouseDrag drag(scrolled.button, middle);
    drag.moveBy(25, -35);
    QCOMPARE(scrolled.offset(), startOffset + QPoint(-25, 35));
    drag.release();
}

void TestDragScroll::draggedButtonIsReleasedButNotClicked()
{
    ScrolledButton scrolled;
    QSignalSpy pressed(scrolled.button, SIGNAL(pressed()));
    QSignalSpy released(scrolled.button, SIGNAL(released()));
    MouseDrag drag(scrolled.button, middle);
    QVERIFY(scrolled.button->isDown());
    drag.moveBy(0, -40);
    QVERIFY(!scrolled.button->isDown());
    drag.moveBy(0, -60);
    drag.release();
    QCOMPARE(pressed.count(), 1);
    QCOMPARE(released.count(), 1);
    QCOMPARE(scrolled.clicked.count(), 0);
    QVERIFY(!scrolled.button->isDown());
}

void TestDragScroll::shortMoveIsAClick()
{
    ScrolledButton scrolled;
    MouseDrag drag(scrolled.button, middle);
    drag.moveBy(2, 3);
    drag.release();
    QCOMPARE(scrolled.clicked.count(), 1);
    QCOMPARE(scrolled.offset(), startOffset);
}

void TestDragScroll::nextPressAfterADragClicks()
{
    ScrolledButton scrolled;
    MouseDrag drag(scrolled.button, middle);
    drag.moveBy(0, -40);
    drag.release();
    MouseDrag click(scrolled.button, middle);
    click.release();
    QCOMPARE(scrolled.clicked.count(), 1);
}

void TestDragScroll::dragStopsAutoRepeat()
{
    ScrolledButton scrolled;
    scrolled.button->setAutoRepeat(true);
    scrolled.button->setAutoRepeatDelay(1);
    scrolled.button->setAutoRepeatInterval(1);
    MouseDrag drag(scrolled.button, middle);
    QTRY_VERIFY(scrolled.clicked.count() > 2);
    drag.moveBy(0, -40);
    const qsizetype before = scrolled.clicked.count();
    QTest::qWait(30);
    drag.moveBy(0, -50);
    QTest::qWait(30);
    drag.release();
    QCOMPARE(scrolled.clicked.count(), before);
    QCOMPARE(scrolled.offset(), startOffset + QPoint(0, 50));
}

void TestDragScroll::buttonWithNothingToScrollIsAPlainButton_data()
{
    QTest::addColumn<bool>("inArea");
    addRow("without a scroll area", false);
    addRow("in a scroll area that shows everything", true);
}

void TestDragScroll::buttonWithNothingToScrollIsAPlainButton()
{
    QFETCH(bool, inArea);
    QScrollArea area;
    QWidget window;
    auto* contents = new QWidget(&window);
    contents->setFixedSize(200, 200);
    auto* button = new DragScrollButton(contents);
    button->setGeometry(0, 0, 200, 200);
    QSignalSpy clicked(button, SIGNAL(clicked()));
    if (inArea)
        area.setWidget(contents);
    QWidget& shown = inArea ? static_cast<QWidget&>(area) : window;
    shown.resize(300, 300);
    shown.show();
    MouseDrag drag(button, middle);
    drag.moveBy(0, -60);
    QVERIFY(button->isDown());
    drag.release();
    QCOMPARE(clicked.count(), 1);
}

void TestDragScroll::nearestAreaThatCanScrollScrolls()
{
    Scrolled outer;
    auto* inner = new QScrollArea;
    auto* button = new DragScrollButton(nullptr);
    button->setFixedSize(50, 50);
    inner->setWidget(button);
    outer.showWith(inner);
    MouseDrag outerDrag(button, QPoint(25, 25));
    outerDrag.moveBy(0, -30);
    QCOMPARE(outer.offset(), startOffset + QPoint(0, 30));
    outerDrag.release();

    button->setFixedSize(150, 1000);
    MouseDrag innerDrag(button, QPoint(25, 75));
    innerDrag.moveBy(0, -30);
    QCOMPARE(inner->verticalScrollBar()->value(), 30);
    QCOMPARE(outer.offset(), startOffset + QPoint(0, 30));
    innerDrag.release();
}

void TestDragScroll::areaBeyondTheButtonsWindowDoesNotScroll()
{
    Scrolled scrolled;
    auto* dialog = new QWidget;
    scrolled.showWith(new QWidget);
    dialog->setParent(scrolled.contents, Qt::Dialog);
    dialog->resize(300, 300);
    auto* button = new DragScrollButton(dialog);
    button->setGeometry(0, 0, 200, 200);
    dialog->show();
    MouseDrag drag(button, middle);
    drag.moveBy(0, -60);
    drag.release();
    QCOMPARE(scrolled.offset(), startOffset);
}

void TestDragScroll::rightButtonDoesNotScroll()
{
    ScrolledButton scrolled;
    QWindow* window = scrolled.area.windowHandle();
    const QPoint start = scrolled.button->mapTo(&scrolled.area, middle);
    QTest::mousePress(window, Qt::RightButton, {}, start);
    QTest::mouseMove(window, start - QPoint(0, 60));
    QTest::mouseRelease(window, Qt::RightButton, {}, start - QPoint(0, 60));
    QCOMPARE(scrolled.offset(), startOffset);
}

void TestDragScroll::hidingDuringTheDragEndsIt()
{
    ScrolledButton scrolled;
    MouseDrag drag(scrolled.button, middle);
    drag.moveBy(0, -40);
    scrolled.button->hide();
    scrolled.button->show();
    moveMouse(scrolled.button, middle + QPoint(0, -80), Qt::LeftButton);
    QCOMPARE(scrolled.offset(), startOffset + QPoint(0, 40));
    drag.release();
    QCOMPARE(scrolled.clicked.count(), 0);
}

void TestDragScroll::areaDeletedDuringTheDragDoesNotMatter()
{
    QWidget window;
    window.resize(300, 300);
    auto* area = new QScrollArea(&window);
    area->resize(300, 300);
    auto* contents = new QWidget;
    contents->setFixedSize(1000, 1000);
    auto* button = new DragScrollButton(contents);
    button->setGeometry(0, 0, 200, 200);
    area->setWidget(contents);
    window.show();
    MouseDrag drag(button, middle);
    drag.moveBy(0, -40);
    contents = area->takeWidget();
    contents->setParent(&window);
    delete area;
    contents->show();
    drag.moveBy(0, -60);
    drag.release();
    QVERIFY(!button->isDown());
}

void TestDragScroll::buttonMayBeDeletedWhenItIsClicked()
{
    Scrolled scrolled;
    QPointer<DragScrollButton> button = new DragScrollButton(nullptr);
    connect(button, &QPushButton::clicked, this, [&] { delete button; });
    scrolled.showWith(button);
    MouseDrag drag(button, middle);
    drag.release();
    QVERIFY(!button);
}

void TestDragScroll::constructorsAndConnectionsByText()
{
    const DragScrollButton plain(nullptr);
    QCOMPARE(plain.text(), QString());
    QWidget parent;
    auto* button = new DragScrollButton(QStringLiteral("       Print       "), &parent);
    QCOMPARE(button->text(), QStringLiteral("       Print       "));
    QCOMPARE(button->parentWidget(), &parent);
    QWidget target;
    QVERIFY(connect(button, SIGNAL(clicked()), &target, SLOT(close())));
    QVERIFY(connect(button, SIGNAL(clicked(bool)), &target, SLOT(setEnabled(bool))));
}

void TestDragScroll::groupBoxPaintsItsStyleSheet()
{
    QWidget panel;
    panel.setStyleSheet(QStringLiteral("QWidget#stackGroup { background-color: #12ab34; "
                                       "border: 2px solid #3412ab; }"));
    auto* group = new DragScrollGroupBox(&panel);
    group->setObjectName(QStringLiteral("stackGroup"));
    group->resize(20, 20);
    const QImage image = group->grab().toImage();
    QCOMPARE(image.pixelColor(10, 10), QColor(0x12, 0xab, 0x34));
    QCOMPARE(image.pixelColor(0, 10), QColor(0x34, 0x12, 0xab));
}

void TestDragScroll::groupBoxTakesOnlyPressesThatCanScroll()
{
    Scrolled scrolled;
    auto* group = new DragScrollGroupBox(nullptr);
    scrolled.showWith(group);
    QVERIFY(takesPress(group, middle, Qt::LeftButton));
    QVERIFY(!takesPress(group, middle, Qt::RightButton));
    DragScrollGroupBox alone(nullptr);
    alone.resize(200, 200);
    QVERIFY(!takesPress(&alone, middle, Qt::LeftButton));
}

QTEST_MAIN(TestDragScroll)
#include "tst_dragscroll.moc"
