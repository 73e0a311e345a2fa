// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "support/inputevents.h"
#include "support/stricttest.h"

#include <jxcombobox.h>

#include <QtTest/QSignalSpy>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QListView>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QStyleOptionComboBox>
#include <QtWidgets/QVBoxLayout>

class TestJxComboBox : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void pickingAnItemWithTheMouseReportsItsText_data();
    void pickingAnItemWithTheMouseReportsItsText();
    void pickingTheCurrentItemReportsItAgain();
    void theIndexSignalStaysReachable();
    void changesByTheProgramEmitNothing();
    void connectsByText();
    void wheelOverUnfocusedBoxScrollsTheAreaAroundIt_data();
    void wheelOverUnfocusedBoxScrollsTheAreaAroundIt();
    void wheelChangesTheFocusedBox();
    void ownToolTipIsShownLetterForLetter_data();
    void ownToolTipIsShownLetterForLetter();
    void itemToolTipIsShownLetterForLetter_data();
    void itemToolTipIsShownLetterForLetter();
    void textThatDoesNotFitIsTheItemsToolTip();
    void toolTipsWorkInAReplacedList();
    void endlessToolTipIsCutOff();
    void hintHasRoomForTheWholeText_data();
    void hintHasRoomForTheWholeText();
    void longTextIsElidedAndStretchesNothing();
    void onlyTheBeginningOfATextIsPainted();
    void lineBreaksAreShownAsBlanks();
    void rowsHaveTheHeightOfTheStyleSheet();
    void emptyBoxDoesNothing();
    void placeholderIsShownWithoutACurrentItem();
};

namespace {
const QString threeNames[] = {QStringLiteral("One"), QStringLiteral("Two"),
                              QStringLiteral("Three")};

struct Window
{
    Window()
    {
        for (const QString& name : threeNames)
            combo->addItem(name);
        widget.resize(300, 200);
        widget.show();
    }

    // Opens the list and clicks on the item, like a user.
    void pick(int row)
    {
        QTest::mouseClick(combo, Qt::LeftButton);
        QAbstractItemView* view = combo->view();
        QTRY_VERIFY(view->isVisible());
        // Qt takes a release soon after the press for the end of the click that opened the list.
        QTest::qWait(QApplication::doubleClickInterval() + 50);
        const QRect place = view->visualRect(combo->model()->index(row, 0));
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, place.center());
        QTRY_VERIFY(!view->isVisible());
    }

    QWidget widget;
    JxComboBox* combo = new JxComboBox(&widget);
};

QStringList hostTexts()
{
    return {QStringLiteral("Printer A"), QStringLiteral("<b>x</b>"),
            QStringLiteral("<img src=\"x.png\">"), QStringLiteral("a & b &amp; c"),
            QStringLiteral("<a href='x'>link</a> and more")};
}

void addHostTexts()
{
    QTest::addColumn<QString>("text");
    const QStringList texts = hostTexts();
    for (const QString& text : texts)
        QTest::newRow(qPrintable(text)) << text;
}

QImage picture(const QString& text)
{
    JxComboBox combo(nullptr);
    combo.addItem(text);
    combo.resize(160, 35);
    return combo.grab().toImage();
}
} // namespace

void TestJxComboBox::pickingAnItemWithTheMouseReportsItsText_data()
{
    QTest::addColumn<int>("policy");
    addRow("as created", int(Qt::StrongFocus));
    addRow("without focus", int(Qt::NoFocus));
}

void TestJxComboBox::pickingAnItemWithTheMouseReportsItsText()
{
    QFETCH(int, policy);
    Window window;
    QCOMPARE(window.combo->focusPolicy(), Qt::StrongFocus);
    window.combo->setFocusPolicy(Qt::FocusPolicy(policy));
    QSignalSpy texts(window.combo, SIGNAL(activated(QString)));
    window.pick(2);
    QCOMPARE(window.combo->currentIndex(), 2);
    QCOMPARE(texts.count(), 1);
    QCOMPARE(texts.at(0).at(0).toString(), QStringLiteral("Three"));
}

void TestJxComboBox::pickingTheCurrentItemReportsItAgain()
{
    Window window;
    window.combo->setCurrentIndex(1);
    QSignalSpy texts(window.combo, SIGNAL(activated(QString)));
    window.pick(1);
    QCOMPARE(texts.count(), 1);
    QCOMPARE(texts.at(0).at(0).toString(), QStringLiteral("Two"));
}

void TestJxComboBox::theIndexSignalStaysReachable()
{
    Window window;
    int picked = -1;
    QString pickedText;
    connect(window.combo, qOverload<int>(&JxComboBox::activated), this,
            [&](int index) { picked = index; });
    connect(window.combo, qOverload<const QString&>(&JxComboBox::activated), this,
            [&](const QString& text) { pickedText = text; });
    window.pick(2);
    QCOMPARE(picked, 2);
    QCOMPARE(pickedText, QStringLiteral("Three"));
}

void TestJxComboBox::changesByTheProgramEmitNothing()
{
    Window window;
    QSignalSpy texts(window.combo, SIGNAL(activated(QString)));
    window.combo->setCurrentIndex(1);
    window.combo->setCurrentText(QStringLiteral("Three"));
    window.combo->insertItem(0, QStringLiteral("Zero"));
    window.combo->clear();
    QCOMPARE(texts.count(), 0);
}

void TestJxComboBox::connectsByText()
{
    JxComboBox combo(nullptr);
    QLabel target;
    QVERIFY(connect(&combo, SIGNAL(activated(QString)), &target, SLOT(setText(QString))));
    QVERIFY(connect(&combo, SIGNAL(activated(int)), &target, SLOT(setNum(int))));
    QVERIFY(connect(&combo, SIGNAL(currentIndexChanged(int)), &target, SLOT(setNum(int))));
}

void TestJxComboBox::wheelOverUnfocusedBoxScrollsTheAreaAroundIt_data()
{
    QTest::addColumn<int>("policy");
    addRow("as created", int(Qt::StrongFocus));
    addRow("without focus", int(Qt::NoFocus));
}

void TestJxComboBox::wheelOverUnfocusedBoxScrollsTheAreaAroundIt()
{
    QFETCH(int, policy);
    QScrollArea area;
    auto* contents = new QWidget;
    auto* combo = new JxComboBox(contents);
    combo->addItems({threeNames[0], threeNames[1], threeNames[2]});
    combo->setCurrentIndex(1);
    combo->setFocusPolicy(Qt::FocusPolicy(policy));
    combo->move(0, 300);
    contents->setFixedSize(100, 1000);
    area.setWidget(contents);
    area.resize(200, 200);
    area.show();
    area.verticalScrollBar()->setValue(250);

    turnWheelOver(combo);
    QCOMPARE(combo->currentIndex(), 1);
    QVERIFY(!combo->hasFocus());
    QVERIFY(area.verticalScrollBar()->value() < 250);
}

void TestJxComboBox::wheelChangesTheFocusedBox()
{
    Window window;
    window.combo->setCurrentIndex(1);
    window.widget.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window.widget));
    window.combo->setFocus();
    QTRY_VERIFY(window.combo->hasFocus());
    turnWheelOver(window.combo);
    QCOMPARE(window.combo->currentIndex(), 0);
}

void TestJxComboBox::ownToolTipIsShownLetterForLetter_data()
{
    addHostTexts();
}

void TestJxComboBox::ownToolTipIsShownLetterForLetter()
{
    QFETCH(QString, text);
    Window window;
    window.combo->setToolTip(text);
    askForToolTip(window.combo, QPoint(5, 5));
    QCOMPARE(visibleToolTip(), text);
    QCOMPARE(window.combo->toolTip(), text);
}

void TestJxComboBox::itemToolTipIsShownLetterForLetter_data()
{
    addHostTexts();
}

void TestJxComboBox::itemToolTipIsShownLetterForLetter()
{
    QFETCH(QString, text);
    Window window;
    window.combo->setItemData(1, text, Qt::ToolTipRole);
    window.combo->showPopup();
    QAbstractItemView* view = window.combo->view();
    askForToolTip(view->viewport(), view->visualRect(window.combo->model()->index(1, 0)).center());
    QCOMPARE(visibleToolTip(), text);
    QCOMPARE(window.combo->itemData(1, Qt::ToolTipRole).toString(), text);

    askForToolTip(view->viewport(), view->visualRect(window.combo->model()->index(0, 0)).center());
    QTRY_COMPARE(visibleToolTip(), QString());
}

void TestJxComboBox::textThatDoesNotFitIsTheItemsToolTip()
{
    Window window;
    // The list grows with its texts, but not beyond the screen.
    const QString name = QStringLiteral("<i>x</i> ") + QString(1000, QLatin1Char('W'));
    window.combo->setItemText(1, name);
    window.combo->showPopup();
    QAbstractItemView* view = window.combo->view();
    askForToolTip(view->viewport(), view->visualRect(window.combo->model()->index(1, 0)).center());
    QCOMPARE(visibleToolTip(), name);
}

void TestJxComboBox::toolTipsWorkInAReplacedList()
{
    Window window;
    window.combo->setView(new QListView);
    window.combo->setItemData(1, QStringLiteral("<b>x</b>"), Qt::ToolTipRole);
    window.combo->showPopup();
    QAbstractItemView* view = window.combo->view();
    askForToolTip(view->viewport(), view->visualRect(window.combo->model()->index(1, 0)).center());
    QCOMPARE(visibleToolTip(), QStringLiteral("<b>x</b>"));
}

// A tip as long as its text would be too wide to be painted.
void TestJxComboBox::endlessToolTipIsCutOff()
{
    Window window;
    window.combo->setToolTip(QString(1000000, u'x'));
    askForToolTip(window.combo, QPoint(5, 5));
    QCOMPARE(visibleToolTip(), QString(2000, u'x') + QChar(0x2026));
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* tip : windows) {
        QVERIFY(tip->width() < 32767);
        QVERIFY(!tip->grab().isNull());
    }
    QCOMPARE(window.combo->toolTip().size(), 1000000);
}

void TestJxComboBox::hintHasRoomForTheWholeText_data()
{
    addColumns<QString>("styleSheet");
    addRow("plain", QString());
    addRow("with a sheet",
           QStringLiteral("QComboBox { border: 1px solid #c6c6c6; min-height: 35px; }"
                          "QComboBox::drop-down { border: 0px; width: 32px; }"));
}

void TestJxComboBox::hintHasRoomForTheWholeText()
{
    QFETCH(QString, styleSheet);
    for (const char* text : {"High Pressure Tag", "Vapor", "Tiff", "f"}) {
        for (int size = 7; size <= 16; ++size) {
            JxComboBox combo(nullptr);
            combo.setStyleSheet(styleSheet);
            QFont font;
            font.setPointSize(size);
            combo.setFont(font);
            combo.addItem(QString::fromLatin1(text));
            combo.resize(combo.sizeHint());
            QStyleOptionComboBox option;
            option.initFrom(&combo);
            const QRect field = combo.style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                              QStyle::SC_ComboBoxEditField, &combo);
            const QImage narrow = combo.grab(field).toImage();
            combo.resize(combo.sizeHint() + QSize(100, 0));
            QVERIFY2(narrow == combo.grab(field).toImage(),
                     qPrintable(QStringLiteral("%1, %2 pt").arg(combo.currentText()).arg(size)));
        }
    }
}

void TestJxComboBox::longTextIsElidedAndStretchesNothing()
{
    JxComboBox combo(nullptr);
    combo.addItem(QString(1000, QLatin1Char('W')));
    QVERIFY(combo.sizeHint().width() <= 320);
    QVERIFY(combo.minimumSizeHint().width() <= 120);
    QCOMPARE(combo.currentText().size(), 1000);

    // An elided text ends in dots, so the picture is not that of a text which is just cut off.
    QStyleOptionComboBox option;
    option.initFrom(&combo);
    option.rect = QRect(0, 0, 160, 35);
    const QRect arrow = combo.style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                      QStyle::SC_ComboBoxArrow, &combo);
    const QImage full = picture(QString(1000, QLatin1Char('W')));
    QCOMPARE(full.copy(arrow), picture(QString()).copy(arrow));
    QVERIFY(full !=
            picture(QString(1000, QLatin1Char('W')).replace(QLatin1Char('W'), QLatin1Char('V'))));
    const QString dots = combo.fontMetrics().elidedText(combo.currentText(), Qt::ElideRight, 100);
    QVERIFY(dots.endsWith(QChar(0x2026)));
    const int dotsWidth = combo.fontMetrics().horizontalAdvance(QChar(0x2026));
    const QRect field = combo.style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                      QStyle::SC_ComboBoxEditField, &combo);
    const QRect upperEnd(field.right() - dotsWidth, field.top() + 4, dotsWidth, field.height() / 3);
    QCOMPARE(full.copy(upperEnd), picture(QString()).copy(upperEnd));
}

// Else a megabyte of text takes as long as a page of it at every painting.
void TestJxComboBox::onlyTheBeginningOfATextIsPainted()
{
    JxComboBox box;
    box.resize(300, 35);
    const QString start(1000, QChar(0x200b));
    box.addItems({start, start + QStringLiteral("W"), start.left(999) + QStringLiteral("W")});
    const QImage none = box.grab().toImage();
    box.setCurrentIndex(1);
    QCOMPARE(box.grab().toImage(), none);
    box.setCurrentIndex(2);
    QVERIFY(box.grab().toImage() != none);
}

void TestJxComboBox::lineBreaksAreShownAsBlanks()
{
    QCOMPARE(picture(QStringLiteral("First\nsecond")), picture(QStringLiteral("First second")));
    QVERIFY(picture(QStringLiteral("First\nsecond")) != picture(QStringLiteral("First")));
}

void TestJxComboBox::rowsHaveTheHeightOfTheStyleSheet()
{
    Window window;
    window.combo->setStyleSheet(
        QStringLiteral("QComboBox QAbstractItemView::item { min-height: 35px; }"));
    window.combo->showPopup();
    QAbstractItemView* view = window.combo->view();
    QVERIFY(view->visualRect(window.combo->model()->index(0, 0)).height() >= 35);
}

void TestJxComboBox::emptyBoxDoesNothing()
{
    JxComboBox combo(nullptr);
    combo.show();
    QSignalSpy texts(&combo, SIGNAL(activated(QString)));
    QTest::mouseClick(&combo, Qt::LeftButton);
    turnWheelOver(&combo);
    askForToolTip(&combo, QPoint(3, 3));
    QTest::keyClick(&combo, Qt::Key_Down);
    QVERIFY(!combo.grab().isNull());
    QCOMPARE(visibleToolTip(), QString());
    QCOMPARE(texts.count(), 0);
}

void TestJxComboBox::placeholderIsShownWithoutACurrentItem()
{
    JxComboBox combo(nullptr);
    combo.resize(160, 35);
    combo.addItem(QStringLiteral("Item"));
    combo.setCurrentIndex(-1);
    const QImage without = combo.grab().toImage();
    combo.setPlaceholderText(QStringLiteral("Pick a printer"));
    QVERIFY(combo.grab().toImage() != without);
}

QTEST_MAIN(TestJxComboBox)
#include "tst_jxcombobox.moc"
