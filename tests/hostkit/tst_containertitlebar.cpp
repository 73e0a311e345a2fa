// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "support/inputevents.h"
#include "support/stricttest.h"

#include <containertitlebar.h>

#include <QtGui/QPainter>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QLabel>
#include <QtWidgets/QVBoxLayout>

class TestContainerTitleBar : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void holdsTitleAndCloseButton();
    void titleCanBeReplaced();
    void titleFontIsTheGivenSizeUntilSetFont();
    void titleIsPaintedInTheFontOfTheBar_data();
    void titleIsPaintedInTheFontOfTheBar();
    void barIsAsHighAsItsFontNeeds();
    void titleThatIsTooWideIsPaintedSmaller();
    void sizeThatIsNotPositiveKeepsTheFont_data();
    void sizeThatIsNotPositiveKeepsTheFont();
    void longTitleIsElidedAndStretchesNothing();
    void titleIsPlainText();
    void elidedTitleIsTheToolTip();
    void onlyTheBeginningOfATitleIsPainted();
    void closeButtonEmits();
    void closeButtonHasItsPicture();
    void dragReportsTheNewCornerOfTheWindow();
    void dragOfABarInsideItsWindowReportsTheWindowsCorner();
    void windowFollowsTheDrag();
    void pressAloneEmitsNothing();
    void dragOnTheCloseButtonEmitsNothing();
    void rightButtonEmitsNothing();
    void moveAfterTheReleaseEmitsNothing();
    void lostReleaseEndsTheDrag();
    void hidingDuringTheDragEndsIt();
    void windowMayBeDeletedByTheSignals();
    void connectsByText();
    void barIsDark();
};

namespace {
struct Window
{
    Window()
    {
        widget.setWindowFlag(Qt::FramelessWindowHint);
        widget.setGeometry(100, 150, 400, 200);
        bar->setParent(&widget);
        bar->setGeometry(0, 0, 400, 40);
        widget.show();
    }

    QWidget widget;
    ContainerTitleBar* bar =
        new ContainerTitleBar(nullptr, QStringLiteral("Preview"), QString(), 14);
    QSignalSpy moves{bar, SIGNAL(signalMove(int, int))};
};

QAbstractButton* closeButton(const ContainerTitleBar* bar)
{
    return bar->findChild<QAbstractButton*>();
}

// The size of what is painted in white.
QSize inkOf(const QImage& image)
{
    QRect ink;
    for (int x = 0; x < image.width(); ++x) {
        for (int y = 0; y < image.height(); ++y) {
            if (qGray(image.pixel(x, y)) > 160)
                ink |= QRect(x, y, 1, 1);
        }
    }
    return ink.size();
}

QSize inkOfTitle(ContainerTitleBar* bar)
{
    return inkOf(bar->grab(bar->findChild<QLabel*>()->geometry()).toImage());
}

QSize inkOfText(const QFont& font, const QString& text)
{
    const QRect box = QFontMetrics(font).boundingRect(text);
    QImage image(box.size() + QSize(20, 20), QImage::Format_RGB32);
    image.fill(QColor(0x33, 0x33, 0x33));
    QPainter painter(&image);
    painter.setPen(Qt::white);
    painter.setFont(font);
    painter.drawText(QPoint(10, 10) - box.topLeft(), text);
    painter.end();
    return inkOf(image);
}

bool areAlike(const QSize& one, const QSize& other)
{
    const QSize difference = one - other;
    return qAbs(difference.width()) <= 1 && qAbs(difference.height()) <= 1;
}
} // namespace

void TestContainerTitleBar::holdsTitleAndCloseButton()
{
    QWidget parent;
    const auto* bar =
        new ContainerTitleBar(&parent, QStringLiteral("Preview"), QStringLiteral("Close this"), 14);
    QCOMPARE(bar->parentWidget(), &parent);
    QCOMPARE(bar->title(), QStringLiteral("Preview"));
    QCOMPARE(closeButton(bar)->toolTip(), QStringLiteral("Close this"));
    QVERIFY(!closeButton(bar)->accessibleName().isEmpty());

    const ContainerTitleBar empty(nullptr, QString(), QString(), 14);
    QCOMPARE(empty.title(), QString());
    QCOMPARE(closeButton(&empty)->toolTip(), QString());
}

void TestContainerTitleBar::titleCanBeReplaced()
{
    Window window;
    const QImage before = window.bar->grab().toImage();
    window.bar->setTitle(QStringLiteral("Other"));
    QCOMPARE(window.bar->title(), QStringLiteral("Other"));
    QVERIFY(window.bar->grab().toImage() != before);
    window.bar->setTitle(QStringLiteral("Preview"));
    QCOMPARE(window.bar->grab().toImage(), before);
}

void TestContainerTitleBar::titleFontIsTheGivenSizeUntilSetFont()
{
    ContainerTitleBar bar(nullptr, QStringLiteral("Preview"), QString(), 14);
    const auto* label = bar.findChild<QLabel*>();
    QCOMPARE(label->font().pixelSize(), 14);
    QFont font = bar.font();
    font.setPixelSize(22);
    font.setItalic(true);
    bar.setFont(font);
    QCOMPARE(label->font().pixelSize(), 22);
    QVERIFY(label->font().italic());
}

void TestContainerTitleBar::titleIsPaintedInTheFontOfTheBar_data()
{
    addColumns<QString, bool>("windowSheet", "fontFirst");
    const QString frameSheet = QStringLiteral("QWidget#frame { border: 1px solid red; }");
    const QString labelSheet = QStringLiteral("QLabel { font: bold 30px; }");
    addRow("font, title", QString(), true);
    addRow("title, font", QString(), false);
    addRow("font, title, in a window with a sheet", frameSheet, true);
    addRow("title, font, in a window with a sheet", frameSheet, false);
    addRow("font, title, in a window with a sheet for labels", labelSheet, true);
    addRow("title, font, in a window with a sheet for labels", labelSheet, false);
}

void TestContainerTitleBar::titleIsPaintedInTheFontOfTheBar()
{
    QFETCH(QString, windowSheet);
    QFETCH(bool, fontFirst);
    Window window;
    window.widget.setStyleSheet(windowSheet);
    const QString title = QStringLiteral("Print Preview (%1)");
    for (int size = 7; size <= 16; ++size) {
        QFont font;
        font.setPointSize(size);
        font.setItalic(size % 2 == 0);
        if (fontFirst)
            window.bar->setFont(font);
        window.bar->setTitle(title.arg(size));
        if (!fontFirst)
            window.bar->setFont(font);
        const QSize expected = inkOfText(font, title.arg(size));
        const QSize painted = inkOfTitle(window.bar);
        QVERIFY2(areAlike(painted, expected),
                 qPrintable(QStringLiteral("%1 pt: %2 x %3, not %4 x %5")
                                .arg(size)
                                .arg(painted.width())
                                .arg(painted.height())
                                .arg(expected.width())
                                .arg(expected.height())));
    }
}

void TestContainerTitleBar::barIsAsHighAsItsFontNeeds()
{
    QWidget widget;
    widget.setStyleSheet(QStringLiteral("QWidget { color: black; }"));
    auto* layout = new QVBoxLayout(&widget);
    auto* bar = new ContainerTitleBar(nullptr, QStringLiteral("Preview"), QString(), 14);
    layout->addWidget(bar);
    widget.show();
    const int height = bar->height();
    QFont font;
    font.setPixelSize(60);
    bar->setFont(font);
    QTRY_VERIFY(bar->height() > height);
    QVERIFY(bar->findChild<QLabel*>()->height() >= QFontMetrics(font).height());
}

void TestContainerTitleBar::titleThatIsTooWideIsPaintedSmaller()
{
    Window window;
    QFont font;
    font.setPixelSize(24);
    window.bar->setFont(font);
    const QString title = QStringLiteral("Print Preview of a Large Label");
    const auto* label = window.bar->findChild<QLabel*>();
    QVERIFY(QFontMetrics(font).horizontalAdvance(title) > label->width());
    window.bar->setTitle(title);
    askForToolTip(window.bar, QPoint(20, 20));
    QCOMPARE(visibleToolTip(), QString());
    do {
        font.setPixelSize(font.pixelSize() - 1);
    } while (QFontMetrics(font).horizontalAdvance(title) > label->width());
    QVERIFY(font.pixelSize() > 9);
    QVERIFY(areAlike(inkOfTitle(window.bar), inkOfText(font, title)));

    // As soon as there is room, it has its size again.
    window.bar->setTitle(QStringLiteral("Print Preview"));
    QVERIFY(areAlike(inkOfTitle(window.bar),
                     inkOfText(window.bar->font(), QStringLiteral("Print Preview"))));
}

void TestContainerTitleBar::sizeThatIsNotPositiveKeepsTheFont_data()
{
    QTest::addColumn<int>("size");
    addRow("zero", 0);
    addRow("negative", -14);
}

void TestContainerTitleBar::sizeThatIsNotPositiveKeepsTheFont()
{
    QFETCH(int, size);
    const ContainerTitleBar bar(nullptr, QStringLiteral("Preview"), QString(), size);
    QCOMPARE(bar.findChild<QLabel*>()->font(), QWidget().font());
}

void TestContainerTitleBar::longTitleIsElidedAndStretchesNothing()
{
    Window window;
    const int width = window.bar->minimumSizeHint().width();
    const QString title(5000, QLatin1Char('W'));
    window.bar->setTitle(title);
    QCOMPARE(window.bar->title(), title);
    QCOMPARE(window.bar->minimumSizeHint().width(), width);
    QVERIFY(width < 100);

    // What is painted is the text with dots, and none of it behind the button.
    const QLabel* label = window.bar->findChild<QLabel*>();
    const QString shown = label->fontMetrics().elidedText(title, Qt::ElideRight, label->width());
    const QImage elided = window.bar->grab().toImage();
    window.bar->setTitle(shown);
    QCOMPARE(window.bar->grab().toImage(), elided);
}

void TestContainerTitleBar::titleIsPlainText()
{
    Window window;
    window.bar->setTitle(QStringLiteral("<b>x</b>"));
    const QImage marked = window.bar->grab().toImage();
    window.bar->setTitle(QStringLiteral("x"));
    const QImage plain = window.bar->grab().toImage();
    // White pixels, roughly: eight characters paint more of them than one.
    const auto ink = [](const QImage& image) {
        int count = 0;
        for (int x = 0; x < 300; ++x) {
            for (int y = 0; y < image.height(); ++y)
                count += qGray(image.pixel(x, y)) > 160 ? 1 : 0;
        }
        return count;
    };
    QVERIFY(ink(plain) > 0);
    QVERIFY(ink(marked) > 3 * ink(plain));
}

// Else a megabyte of text takes as long as a page of it at every painting.
void TestContainerTitleBar::onlyTheBeginningOfATitleIsPainted()
{
    const QString start(1000, QChar(0x200b));
    ContainerTitleBar bar(nullptr, start, QString(), 14);
    bar.resize(300, 30);
    const QImage none = bar.grab().toImage();
    bar.setTitle(start + QStringLiteral("W"));
    QCOMPARE(bar.grab().toImage(), none);
    bar.setTitle(start.left(999) + QStringLiteral("W"));
    QVERIFY(bar.grab().toImage() != none);
}

void TestContainerTitleBar::elidedTitleIsTheToolTip()
{
    Window window;
    askForToolTip(window.bar, QPoint(20, 20));
    QCOMPARE(visibleToolTip(), QString());
    const QString title = QStringLiteral("<i>x</i>") + QString(200, QLatin1Char('W'));
    window.bar->setTitle(title);
    askForToolTip(window.bar, QPoint(20, 20));
    QCOMPARE(visibleToolTip(), title);
}

void TestContainerTitleBar::closeButtonEmits()
{
    Window window;
    QSignalSpy closed(window.bar, SIGNAL(closeButtonClicked()));
    QTest::mouseClick(closeButton(window.bar), Qt::LeftButton);
    QCOMPARE(closed.count(), 1);
    QVERIFY(window.widget.isVisible());
    QTest::mouseClick(window.bar, Qt::LeftButton, {}, QPoint(20, 20));
    QCOMPARE(closed.count(), 1);
}

void TestContainerTitleBar::closeButtonHasItsPicture()
{
    Window window;
    QAbstractButton* button = closeButton(window.bar);
    const QImage picture(QStringLiteral(":/hostkit/close.png"));
    const QImage pressedPicture(QStringLiteral(":/hostkit/close-pressed.png"));
    QVERIFY(!picture.isNull());
    QVERIFY(!pressedPicture.isNull());
    const QImage released = button->grab().toImage();
    button->setDown(true);
    QVERIFY(button->grab().toImage() != released);
    QVERIFY(button->width() >= 35);
    QVERIFY(button->height() >= 35);
}

void TestContainerTitleBar::dragReportsTheNewCornerOfTheWindow()
{
    Window window;
    MouseDrag drag(window.bar, QPoint(50, 20));
    QCOMPARE(window.moves.count(), 0);
    drag.moveBy(3, 2);
    QCOMPARE(window.moves.count(), 1);
    QCOMPARE(window.moves.at(0), QVariantList({103, 152}));
    drag.moveBy(-20, 10);
    QCOMPARE(window.moves.at(1), QVariantList({80, 160}));
    drag.release();
    QCOMPARE(window.moves.count(), 2);
    // Nothing moved by itself.
    QCOMPARE(window.widget.pos(), QPoint(100, 150));
}

void TestContainerTitleBar::dragOfABarInsideItsWindowReportsTheWindowsCorner()
{
    Window window;
    window.bar->move(0, 60);
    MouseDrag drag(window.bar, QPoint(50, 20));
    drag.moveBy(7, -9);
    drag.release();
    QCOMPARE(window.moves.count(), 1);
    QCOMPARE(window.moves.at(0), QVariantList({107, 141}));
}

void TestContainerTitleBar::windowFollowsTheDrag()
{
    Window window;
    connect(window.bar, &ContainerTitleBar::signalMove, &window.widget,
            qOverload<int, int>(&QWidget::move));
    const auto send = [&](QEvent::Type type, const QPoint& global) {
        const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent event(type, window.bar->mapFromGlobal(QPointF(global)), QPointF(global), button,
                          Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(window.bar, &event);
    };
    // Though the window moves under the pointer, it stays with it.
    send(QEvent::MouseButtonPress, QPoint(150, 170));
    for (int step = 1; step <= 50; ++step) {
        send(QEvent::MouseMove, QPoint(150 + step, 170 + 2 * step));
        QCOMPARE(window.widget.pos(), QPoint(100 + step, 150 + 2 * step));
    }
    QCOMPARE(window.moves.count(), 50);
}

void TestContainerTitleBar::pressAloneEmitsNothing()
{
    Window window;
    MouseDrag drag(window.bar, QPoint(50, 20));
    moveMouse(window.bar, QPoint(50, 20), Qt::LeftButton);
    drag.release();
    QCOMPARE(window.moves.count(), 0);
}

void TestContainerTitleBar::dragOnTheCloseButtonEmitsNothing()
{
    Window window;
    MouseDrag drag(closeButton(window.bar), QPoint(10, 10));
    drag.moveBy(0, 30);
    drag.release();
    QCOMPARE(window.moves.count(), 0);
}

void TestContainerTitleBar::rightButtonEmitsNothing()
{
    Window window;
    QWindow* handle = window.widget.windowHandle();
    QTest::mousePress(handle, Qt::RightButton, {}, QPoint(50, 20));
    QTest::mouseMove(handle, QPoint(60, 25));
    QTest::mouseRelease(handle, Qt::RightButton, {}, QPoint(60, 25));
    QCOMPARE(window.moves.count(), 0);
}

void TestContainerTitleBar::moveAfterTheReleaseEmitsNothing()
{
    Window window;
    MouseDrag drag(window.bar, QPoint(50, 20));
    drag.moveBy(5, 5);
    drag.release();
    QCOMPARE(window.moves.count(), 1);
    moveMouse(window.bar, QPoint(90, 25), Qt::LeftButton);
    QCOMPARE(window.moves.count(), 1);
}

void TestContainerTitleBar::lostReleaseEndsTheDrag()
{
    Window window;
    MouseDrag drag(window.bar, QPoint(50, 20));
    moveMouse(window.bar, QPoint(80, 25), Qt::RightButton);
    moveMouse(window.bar, QPoint(90, 25), Qt::LeftButton);
    QCOMPARE(window.moves.count(), 0);
    drag.release();
}

void TestContainerTitleBar::hidingDuringTheDragEndsIt()
{
    Window window;
    MouseDrag drag(window.bar, QPoint(50, 20));
    drag.moveBy(5, 5);
    window.bar->hide();
    window.bar->show();
    moveMouse(window.bar, QPoint(90, 20), Qt::LeftButton);
    QCOMPARE(window.moves.count(), 1);
    drag.release();
}

void TestContainerTitleBar::windowMayBeDeletedByTheSignals()
{
    for (const bool byDrag : {true, false}) {
        auto* window = new QWidget;
        window->setGeometry(100, 150, 400, 200);
        auto* bar = new ContainerTitleBar(window, QString(), QString(), 14);
        bar->setGeometry(0, 0, 400, 40);
        bool deleted = false;
        const auto end = [&] {
            delete window;
            deleted = true;
        };
        connect(bar, &ContainerTitleBar::signalMove, this, end);
        connect(bar, &ContainerTitleBar::closeButtonClicked, this, end);
        window->show();
        const QPoint press = byDrag ? QPoint(50, 20) : closeButton(bar)->geometry().center();
        MouseDrag drag(bar, press);
        if (byDrag)
            drag.moveBy(5, 5);
        else
            drag.release();
        QVERIFY(deleted);
    }
}

void TestContainerTitleBar::connectsByText()
{
    ContainerTitleBar bar(nullptr, QString(), QString(), 14);
    QWidget target;
    QVERIFY(connect(&bar, SIGNAL(closeButtonClicked()), &target, SLOT(close())));
    QVERIFY(connect(&bar, SIGNAL(signalMove(int, int)), &bar, SIGNAL(signalMove(int, int))));
    disconnect(&bar, SIGNAL(signalMove(int, int)), nullptr, nullptr);
}

void TestContainerTitleBar::barIsDark()
{
    Window window;
    window.bar->setTitle(QString());
    const QImage image = window.bar->grab().toImage();
    QVERIFY(qGray(image.pixel(5, 0)) < 0x60);
    QVERIFY(qGray(image.pixel(5, image.height() - 3)) < qGray(image.pixel(5, 0)));
}

QTEST_MAIN(TestContainerTitleBar)
#include "tst_containertitlebar.moc"
