// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "support/inputevents.h"
#include "support/stricttest.h"

#include <colormenu.h>

#include <QtCore/QElapsedTimer>
#include <QtCore/QPointer>
#include <QtGui/QAccessible>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QDialog>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QStackedWidget>
#include <QtWidgets/QVBoxLayout>

class TestColorMenu : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void emptyListsGiveNoEntries();
    void firstListAloneFillsTheMenu();
    void secondListAloneFillsTheMenu();
    void namesAndCodesAreIndexAligned();
    void surplusEntriesAreIgnored_data();
    void surplusEntriesAreIgnored();
    void invalidCodesAreLeftOut();
    void knownCodesGetNames_data();
    void knownCodesGetNames();
    void codeDescribesAnEntryToScreenReaders();
    void assistiveTechnologyPicks();
    void toolTipIsShownLetterForLetter();
    void transparentEntryIsHiddenUntilItIsAskedFor();
    void transparentChoiceOutlivesThePalette();
    void transparentEntryInTheMiddleLeavesNoHole();
    void paletteWithoutTransparentGetsNone();
    void updateSelectedColorChecksExactlyOneEntry();
    void updateSelectedColorComparesLetterForLetter();
    void selectionOutlivesThePalette();
    void onlyTheFirstOfEqualCodesIsChecked();
    void pickingWithTheMouseReportsTheCode();
    void pickingTheCheckedEntryReportsItAgain();
    void keyboardMovesAndPicks();
    void enterDoesNotReachTheDialog();
    void arrowKeysStayInTheMenu_data();
    void arrowKeysStayInTheMenu();
    void homeAndEndGoToTheEnds();
    void heldReturnPicksOnce();
    void tabStopsOnce_data();
    void tabStopsOnce();
    void tabGoesToTheSelectedEntryAgain();
    void newPaletteKeepsItsPlaceForTab();
    void newPaletteKeepsTheFocus_data();
    void newPaletteKeepsTheFocus();
    void focusIsVisibleOnEveryColor_data();
    void focusIsVisibleOnEveryColor();
    void paletteMayChangeWhileTheSignalIsDelivered();
    void replacedEntriesGoWithTheMenu();
    void menuMayBeDeletedWhileTheSignalIsDelivered_data();
    void menuMayBeDeletedWhileTheSignalIsDelivered();
    void hugePaletteIsCutOff();
    void longPaletteScrolls();
    void shortPaletteIsShownWhole();
    void swatchesAreOfTouchSize();
    void checkedStateIsVisibleOnEveryColor_data();
    void checkedStateIsVisibleOnEveryColor();
    void connectsByText();
};

namespace {
const QList<QString> defaults = {QStringLiteral("#ffffff"), QStringLiteral("#000000"),
                                 QStringLiteral("#dc0b0b"), QStringLiteral("#f28000"),
                                 QStringLiteral("#fedb00"), QStringLiteral("#248d4f"),
                                 QStringLiteral("#0018a8"), QStringLiteral("#00FFFF"),
                                 QStringLiteral("#473333"), QStringLiteral("transparent")};

struct Menu : ColorMenu
{
    explicit Menu(const QList<QString>& first = {}, const QList<QString>& second = {})
        : ColorMenu(nullptr)
    {
        setColorPalette(first, second);
    }

    QList<QAbstractButton*> shown() const
    {
        QList<QAbstractButton*> buttons;
        for (QAbstractButton* button : findChildren<QAbstractButton*>()) {
            if (!button->isHidden() && !button->parentWidget()->isHidden())
                buttons.append(button);
        }
        return buttons;
    }

    QList<QString> codes() const
    {
        QList<QString> codes;
        for (const QAbstractButton* button : shown())
            codes.append(button->objectName());
        return codes;
    }

    QList<QString> checkedCodes() const
    {
        QList<QString> codes;
        for (const QAbstractButton* button : shown()) {
            if (button->isChecked())
                codes.append(button->objectName());
        }
        return codes;
    }

    QAbstractButton* swatch(const QString& code) const { return findChild<QAbstractButton*>(code); }

    void click(const QString& code) { QTest::mouseClick(swatch(code), Qt::LeftButton); }
};

/** A menu between two edits, in a window that has the keyboard. */
struct MenuInAWindow
{
    MenuInAWindow()
    {
        auto* layout = new QVBoxLayout(&window);
        for (QWidget* widget : {static_cast<QWidget*>(&before), static_cast<QWidget*>(&menu),
                                static_cast<QWidget*>(&after)})
            layout->addWidget(widget);
        window.show();
        window.activateWindow();
    }

    bool isReady() { return QTest::qWaitForWindowActive(&window); }
    void press(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }

    QWidget window;
    QLineEdit before;
    QLineEdit after;
    Menu menu{defaults};
};

QList<QString> manyCodes(int count)
{
    QList<QString> codes;
    for (int i = 0; i < count; ++i)
        codes.append(QColor(i % 256, (i / 256) % 256, 77).name());
    return codes;
}
} // namespace

void TestColorMenu::emptyListsGiveNoEntries()
{
    Menu menu;
    QSignalSpy picked(&menu, SIGNAL(colorSignal(QString)));
    menu.setTransparentColorVisible(true);
    QCOMPARE(menu.codes(), QList<QString>());
    menu.setColorPalette(defaults, {});
    menu.setColorPalette({}, {});
    QCOMPARE(menu.codes(), QList<QString>());
    menu.updateSelectedColor(QStringLiteral("#ffffff"));
    menu.show();
    QTest::mouseClick(&menu, Qt::LeftButton);
    QTest::keyClick(&menu, Qt::Key_Space);
    QVERIFY(!menu.grab().isNull());
    QCOMPARE(picked.count(), 0);
}

void TestColorMenu::firstListAloneFillsTheMenu()
{
    Menu menu(defaults);
    menu.setTransparentColorVisible(true);
    QCOMPARE(menu.codes(), defaults);
}

void TestColorMenu::secondListAloneFillsTheMenu()
{
    Menu menu({}, {QStringLiteral("#dc0b0b"), QStringLiteral("#0018a8")});
    QCOMPARE(menu.codes(), QList<QString>({QStringLiteral("#dc0b0b"), QStringLiteral("#0018a8")}));
}

void TestColorMenu::namesAndCodesAreIndexAligned()
{
    Menu menu({QStringLiteral("Cherry"), QStringLiteral("Ink")},
              {QStringLiteral("#dc0b0b"), QStringLiteral("#0018a8")});
    QCOMPARE(menu.codes(), QList<QString>({QStringLiteral("#dc0b0b"), QStringLiteral("#0018a8")}));
    QCOMPARE(menu.swatch(QStringLiteral("#dc0b0b"))->toolTip(), QStringLiteral("Cherry"));
    QCOMPARE(menu.swatch(QStringLiteral("#0018a8"))->toolTip(), QStringLiteral("Ink"));
    QCOMPARE(menu.swatch(QStringLiteral("#0018a8"))->accessibleName(), QStringLiteral("Ink"));
}

void TestColorMenu::surplusEntriesAreIgnored_data()
{
    addColumns<QList<QString>, QList<QString>>("names", "codes");
    const QString name = QStringLiteral("Cherry");
    const QString code = QStringLiteral("#dc0b0b");
    addRow("more names", QList<QString>{name, name, name}, QList<QString>{code});
    addRow("more codes", QList<QString>{name}, QList<QString>{code, QStringLiteral("#0018a8")});
}

void TestColorMenu::surplusEntriesAreIgnored()
{
    QFETCH(QList<QString>, names);
    QFETCH(QList<QString>, codes);
    Menu menu(names, codes);
    QCOMPARE(menu.codes(), QList<QString>({QStringLiteral("#dc0b0b")}));
}

void TestColorMenu::invalidCodesAreLeftOut()
{
    Menu menu({QString(), QStringLiteral("blank"), QStringLiteral("#12"), QStringLiteral("#12345g"),
               QStringLiteral("#dc0b0b"), QStringLiteral("no colour"),
               QString(1000000, QLatin1Char('x'))});
    QCOMPARE(menu.codes(), QList<QString>({QStringLiteral("#dc0b0b")}));

    // The names of entries that are left out go with them.
    menu.setColorPalette({QStringLiteral("Wrong"), QStringLiteral("Right")},
                         {QStringLiteral("wrong"), QStringLiteral("#0018a8")});
    QCOMPARE(menu.swatch(QStringLiteral("#0018a8"))->toolTip(), QStringLiteral("Right"));
}

void TestColorMenu::knownCodesGetNames_data()
{
    addColumns<QString, QString>("code", "name");
    const auto row = [](const char* code, const char* name) {
        QTest::newRow(code) << QString::fromLatin1(code) << QString::fromLatin1(name);
    };
    row("#ffffff", "White");
    row("#000000", "Black");
    row("#dc0b0b", "Red");
    row("#f28000", "Orange");
    row("#fedb00", "Yellow");
    row("#248d4f", "Green");
    row("#0018a8", "Blue");
    row("#00FFFF", "Cyan");
    row("#473333", "Brown");
    row("#41b6e6", "Sky Blue");
    row("#7238ab", "Purple");
    row("#a0a0a0", "Gray");
    row("#fffffe", "Clear");
    row("transparent", "Transparent");
    row("#123456", "#123456");
}

void TestColorMenu::knownCodesGetNames()
{
    QFETCH(QString, code);
    QFETCH(QString, name);
    Menu menu({code});
    QCOMPARE(menu.swatch(code)->toolTip(), name);
    QCOMPARE(menu.swatch(code)->accessibleName(), name);
}

void TestColorMenu::codeDescribesAnEntryToScreenReaders()
{
    Menu menu({QStringLiteral("Cherry"), QString()},
              {QStringLiteral("#dc0b0b"), QStringLiteral("#0018a8")});
    const auto read = [&menu](const char* code, QAccessible::Text type) {
        return QAccessible::queryAccessibleInterface(menu.swatch(QString::fromLatin1(code)))
            ->text(type);
    };
    QCOMPARE(read("#dc0b0b", QAccessible::Name), QStringLiteral("Cherry"));
    QCOMPARE(read("#dc0b0b", QAccessible::Description), QStringLiteral("#dc0b0b"));
    QCOMPARE(read("#0018a8", QAccessible::Name), QStringLiteral("#0018a8"));
}

void TestColorMenu::assistiveTechnologyPicks()
{
    Menu menu({QStringLiteral("#dc0b0b"), QStringLiteral("#0018a8")});
    menu.updateSelectedColor(QStringLiteral("#dc0b0b"));
    QSignalSpy picked(&menu, &ColorMenu::colorSignal);
    QAbstractButton* blue = menu.swatch(QStringLiteral("#0018a8"));
    QAccessibleActionInterface* actions =
        QAccessible::queryAccessibleInterface(blue)->actionInterface();
    // The second time, it is selected already.
    for (int times = 1; times <= 2; ++times) {
        actions->doAction(QAccessibleActionInterface::toggleAction());
        QCOMPARE(picked.size(), times);
        QCOMPARE(picked.last().first().toString(), QStringLiteral("#0018a8"));
        QVERIFY(blue->isChecked());
        QVERIFY(!menu.swatch(QStringLiteral("#dc0b0b"))->isChecked());
    }
}

void TestColorMenu::toolTipIsShownLetterForLetter()
{
    const QString name = QStringLiteral("<b>Cherry</b>");
    Menu menu({name}, {QStringLiteral("#dc0b0b")});
    menu.show();
    QAbstractButton* swatch = menu.swatch(QStringLiteral("#dc0b0b"));
    askForToolTip(swatch, QPoint(5, 5));
    QCOMPARE(visibleToolTip(), name);
    QCOMPARE(swatch->toolTip(), name);
}

void TestColorMenu::transparentEntryIsHiddenUntilItIsAskedFor()
{
    Menu menu(defaults);
    const QList<QString> withoutIt = defaults.first(9);
    QCOMPARE(menu.codes(), withoutIt);
    menu.setTransparentColorVisible(true);
    QCOMPARE(menu.codes(), defaults);
    menu.setTransparentColorVisible(true);
    QCOMPARE(menu.codes(), defaults);
    menu.setTransparentColorVisible(false);
    QCOMPARE(menu.codes(), withoutIt);
}

void TestColorMenu::transparentChoiceOutlivesThePalette()
{
    Menu menu;
    menu.setTransparentColorVisible(true);
    const QList<QString> codes = {QStringLiteral("#dc0b0b"), QStringLiteral("transparent")};
    menu.setColorPalette(codes, {});
    QCOMPARE(menu.codes(), codes);
    menu.setTransparentColorVisible(false);
    menu.setColorPalette(codes, {});
    QCOMPARE(menu.codes(), QList<QString>({QStringLiteral("#dc0b0b")}));
}

void TestColorMenu::transparentEntryInTheMiddleLeavesNoHole()
{
    Menu menu(
        {QStringLiteral("#dc0b0b"), QStringLiteral("transparent"), QStringLiteral("#0018a8")});
    menu.show();
    const QAbstractButton* red = menu.swatch(QStringLiteral("#dc0b0b"));
    const QAbstractButton* blue = menu.swatch(QStringLiteral("#0018a8"));
    const auto gap = [&] { return blue->geometry().left() - red->geometry().right(); };
    QTRY_VERIFY(gap() > 0 && gap() < 20);
    menu.setTransparentColorVisible(true);
    QTRY_VERIFY(gap() > 35);
    const QAbstractButton* see = menu.swatch(QStringLiteral("transparent"));
    QVERIFY(see->geometry().left() > red->geometry().right());
    QVERIFY(see->geometry().right() < blue->geometry().left());
}

void TestColorMenu::paletteWithoutTransparentGetsNone()
{
    Menu menu({QStringLiteral("#dc0b0b")});
    menu.setTransparentColorVisible(true);
    QCOMPARE(menu.codes(), QList<QString>({QStringLiteral("#dc0b0b")}));
}

void TestColorMenu::updateSelectedColorChecksExactlyOneEntry()
{
    Menu menu(defaults);
    menu.setTransparentColorVisible(true);
    QSignalSpy picked(&menu, SIGNAL(colorSignal(QString)));
    QCOMPARE(menu.checkedCodes(), QList<QString>());
    for (const QString& code : defaults) {
        menu.updateSelectedColor(code);
        QCOMPARE(menu.checkedCodes(), QList<QString>({code}));
    }
    for (const char* text : {"blank", "", "#fffffe", "#010101"}) {
        menu.updateSelectedColor(QStringLiteral("#dc0b0b"));
        menu.updateSelectedColor(QString::fromLatin1(text));
        QCOMPARE(menu.checkedCodes(), QList<QString>());
    }
    QCOMPARE(picked.count(), 0);
}

void TestColorMenu::updateSelectedColorComparesLetterForLetter()
{
    Menu menu(defaults);
    menu.updateSelectedColor(QStringLiteral("#00ffff"));
    QCOMPARE(menu.checkedCodes(), QList<QString>());
    menu.updateSelectedColor(QStringLiteral("#00FFFF"));
    QCOMPARE(menu.checkedCodes(), QList<QString>({QStringLiteral("#00FFFF")}));
}

void TestColorMenu::selectionOutlivesThePalette()
{
    Menu menu;
    menu.updateSelectedColor(QStringLiteral("#dc0b0b"));
    menu.setColorPalette(defaults, {});
    QCOMPARE(menu.checkedCodes(), QList<QString>({QStringLiteral("#dc0b0b")}));
    menu.setColorPalette({QStringLiteral("#0018a8")}, {});
    QCOMPARE(menu.checkedCodes(), QList<QString>());
    menu.setColorPalette(defaults, {});
    QCOMPARE(menu.checkedCodes(), QList<QString>({QStringLiteral("#dc0b0b")}));
}

void TestColorMenu::onlyTheFirstOfEqualCodesIsChecked()
{
    Menu menu({QStringLiteral("#dc0b0b"), QStringLiteral("#dc0b0b")});
    menu.updateSelectedColor(QStringLiteral("#dc0b0b"));
    QCOMPARE(menu.codes().size(), 2);
    QCOMPARE(menu.checkedCodes().size(), 1);
    QVERIFY(menu.shown().first()->isChecked());
    // The user sees that the other one was picked.
    menu.shown().last()->click();
    QVERIFY(menu.shown().last()->isChecked());
    QCOMPARE(menu.checkedCodes().size(), 1);
}

void TestColorMenu::pickingWithTheMouseReportsTheCode()
{
    Menu menu(defaults);
    menu.setTransparentColorVisible(true);
    menu.show();
    for (const QString& code : defaults) {
        QSignalSpy picked(&menu, SIGNAL(colorSignal(QString)));
        QString checked;
        connect(&menu, &ColorMenu::colorSignal, &menu,
                [&] { checked = menu.checkedCodes().value(0); });
        menu.click(code);
        QCOMPARE(picked.count(), 1);
        QCOMPARE(picked.at(0).at(0).toString(), code);
        QCOMPARE(menu.checkedCodes(), QList<QString>({code}));
        QCOMPARE(checked, code);
        disconnect(&menu, &ColorMenu::colorSignal, &menu, nullptr);
    }
}

void TestColorMenu::pickingTheCheckedEntryReportsItAgain()
{
    Menu menu(defaults);
    menu.show();
    menu.updateSelectedColor(QStringLiteral("#dc0b0b"));
    QSignalSpy picked(&menu, SIGNAL(colorSignal(QString)));
    menu.click(QStringLiteral("#dc0b0b"));
    menu.click(QStringLiteral("#dc0b0b"));
    QCOMPARE(picked.count(), 2);
    QCOMPARE(menu.checkedCodes(), QList<QString>({QStringLiteral("#dc0b0b")}));
}

void TestColorMenu::keyboardMovesAndPicks()
{
    Menu menu(defaults);
    menu.show();
    menu.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&menu));
    QSignalSpy picked(&menu, SIGNAL(colorSignal(QString)));
    menu.swatch(defaults.at(0))->setFocus();
    const auto press = [](Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); };
    press(Qt::Key_Right);
    press(Qt::Key_Right);
    press(Qt::Key_Left);
    press(Qt::Key_Down);
    QCOMPARE(QApplication::focusWidget(), menu.swatch(defaults.at(7)));
    QCOMPARE(picked.count(), 0);
    press(Qt::Key_Space);
    QCOMPARE(picked.count(), 1);
    QCOMPARE(picked.at(0).at(0).toString(), QStringLiteral("#00FFFF"));
    press(Qt::Key_Up);
    press(Qt::Key_Return);
    QCOMPARE(picked.count(), 2);
    QCOMPARE(picked.at(1).at(0).toString(), QStringLiteral("#000000"));
    press(Qt::Key_Enter);
    QCOMPARE(picked.count(), 3);
}

void TestColorMenu::enterDoesNotReachTheDialog()
{
    QDialog dialog;
    auto* layout = new QVBoxLayout(&dialog);
    auto* menu = new Menu(defaults);
    auto* button = new QPushButton(QStringLiteral("OK"));
    button->setDefault(true);
    layout->addWidget(menu);
    layout->addWidget(button);
    QSignalSpy clicked(button, SIGNAL(clicked()));
    dialog.show();
    QTest::keyClick(menu->swatch(QStringLiteral("#dc0b0b")), Qt::Key_Return);
    QCOMPARE(menu->checkedCodes(), QList<QString>({QStringLiteral("#dc0b0b")}));
    QCOMPARE(clicked.count(), 0);
}

void TestColorMenu::arrowKeysStayInTheMenu_data()
{
    addColumns<int, int>("start", "key");
    addRow("left of the first", 0, int(Qt::Key_Left));
    addRow("above the first row", 3, int(Qt::Key_Up));
    addRow("right of the last", 8, int(Qt::Key_Right));
    addRow("below the last row", 8, int(Qt::Key_Down));
    addRow("below a short last row", 5, int(Qt::Key_Down));
}

void TestColorMenu::arrowKeysStayInTheMenu()
{
    QFETCH(int, start);
    QFETCH(int, key);
    Menu menu(defaults);
    menu.show();
    menu.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&menu));
    QAbstractButton* swatch = menu.swatch(defaults.at(start));
    swatch->setFocus();
    QTest::keyClick(swatch, Qt::Key(key));
    QCOMPARE(QApplication::focusWidget(), swatch);
}

void TestColorMenu::homeAndEndGoToTheEnds()
{
    MenuInAWindow host;
    QVERIFY(host.isReady());
    host.menu.swatch(defaults.at(4))->setFocus();
    host.press(Qt::Key_End);
    // "transparent" is the last of the palette, but not shown.
    QCOMPARE(QApplication::focusWidget(), host.menu.swatch(defaults.at(8)));
    host.press(Qt::Key_End);
    QCOMPARE(QApplication::focusWidget(), host.menu.swatch(defaults.at(8)));
    host.press(Qt::Key_Home);
    QCOMPARE(QApplication::focusWidget(), host.menu.swatch(defaults.at(0)));
    QCOMPARE(host.menu.checkedCodes(), QList<QString>());
}

void TestColorMenu::heldReturnPicksOnce()
{
    MenuInAWindow host;
    QVERIFY(host.isReady());
    QSignalSpy picked(&host.menu, SIGNAL(colorSignal(QString)));
    QAbstractButton* swatch = host.menu.swatch(defaults.at(2));
    swatch->setFocus();
    QTest::keyPress(swatch, Qt::Key_Return);
    for (int i = 0; i < 3; ++i) {
        QKeyEvent again(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QString(), true);
        QCoreApplication::sendEvent(swatch, &again);
    }
    QCOMPARE(picked.count(), 1);
}

void TestColorMenu::tabStopsOnce_data()
{
    addColumns<QString, QString>("selected", "stop");
    addRow("nothing selected", QString(), defaults.constFirst());
    addRow("an entry selected", defaults.at(5), defaults.at(5));
    addRow("a hidden entry selected", QStringLiteral("transparent"), defaults.constFirst());
    addRow("what is no entry selected", QStringLiteral("#010203"), defaults.constFirst());
}

void TestColorMenu::tabStopsOnce()
{
    QFETCH(const QString, selected);
    QFETCH(const QString, stop);
    MenuInAWindow host;
    QVERIFY(host.isReady());
    host.menu.updateSelectedColor(selected);
    host.before.setFocus();
    host.press(Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), host.menu.swatch(stop));
    host.press(Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), &host.after);
    host.press(Qt::Key_Backtab);
    QCOMPARE(QApplication::focusWidget(), host.menu.swatch(stop));
    host.press(Qt::Key_Backtab);
    QCOMPARE(QApplication::focusWidget(), &host.before);
}

// Also out of the entry that the arrow keys or the mouse went to.
void TestColorMenu::tabGoesToTheSelectedEntryAgain()
{
    MenuInAWindow host;
    QVERIFY(host.isReady());
    host.menu.updateSelectedColor(defaults.at(1));
    host.before.setFocus();
    host.press(Qt::Key_Tab);
    host.press(Qt::Key_Right);
    host.press(Qt::Key_Right);
    QCOMPARE(QApplication::focusWidget(), host.menu.swatch(defaults.at(3)));
    host.press(Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), &host.after);
    host.press(Qt::Key_Backtab);
    QCOMPARE(QApplication::focusWidget(), host.menu.swatch(defaults.at(1)));

    host.menu.click(defaults.at(6));
    QCOMPARE(QApplication::focusWidget(), host.menu.swatch(defaults.at(6)));
    host.press(Qt::Key_Backtab);
    QCOMPARE(QApplication::focusWidget(), &host.before);
    host.press(Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), host.menu.swatch(defaults.at(6)));
}

void TestColorMenu::newPaletteKeepsItsPlaceForTab()
{
    MenuInAWindow host;
    QVERIFY(host.isReady());
    for (const QList<QString>& palette :
         {defaults.first(2), defaults, QList<QString>(), defaults.first(3)}) {
        host.menu.setColorPalette(palette, {});
        host.before.setFocus();
        host.press(Qt::Key_Tab);
        if (!palette.isEmpty()) {
            QCOMPARE(QApplication::focusWidget(), host.menu.swatch(palette.constFirst()));
            host.press(Qt::Key_Tab);
        }
        QCOMPARE(QApplication::focusWidget(), &host.after);
    }
}

void TestColorMenu::newPaletteKeepsTheFocus_data()
{
    addColumns<QList<QString>, bool>("palette", "byTheHandler");
    addRow("by the host", defaults.first(3), false);
    addRow("in the handler", defaults.first(3), true);
    addRow("an empty one", QList<QString>(), false);
    addRow("an empty one in the handler", QList<QString>(), true);
}

void TestColorMenu::newPaletteKeepsTheFocus()
{
    QFETCH(const QList<QString>, palette);
    QFETCH(const bool, byTheHandler);
    MenuInAWindow host;
    QVERIFY(host.isReady());
    host.menu.swatch(defaults.at(1))->setFocus();
    if (byTheHandler) {
        connect(&host.menu, &ColorMenu::colorSignal, this,
                [&] { host.menu.setColorPalette(palette, {}); });
        host.press(Qt::Key_Space);
    } else {
        host.menu.setColorPalette(palette, {});
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    if (!palette.isEmpty()) {
        const int expected = byTheHandler ? 1 : 0; // what was picked is selected
        QCOMPARE(QApplication::focusWidget(), host.menu.swatch(palette.at(expected)));
    }

    host.before.setFocus();
    host.menu.setColorPalette(defaults, {});
    QCOMPARE(QApplication::focusWidget(), &host.before);
}

void TestColorMenu::focusIsVisibleOnEveryColor_data()
{
    addColumns<QString, bool>("code", "checked");
    for (const QString& code : defaults) {
        addRow(qPrintable(code), code, false);
        addRow(qPrintable(code + QLatin1String(", selected")), code, true);
    }
}

// A dark line and a light one, each wide enough to be seen.
void TestColorMenu::focusIsVisibleOnEveryColor()
{
    QFETCH(const QString, code);
    QFETCH(const bool, checked);
    MenuInAWindow host;
    QVERIFY(host.isReady());
    host.menu.setTransparentColorVisible(true);
    if (checked)
        host.menu.updateSelectedColor(code);
    QAbstractButton* swatch = host.menu.swatch(code);
    swatch->setFocus();
    const QImage picture = swatch->grab().toImage();
    int dark = 0;
    int light = 0;
    for (int x = 0; x < 5; ++x) {
        const int level = qGray(picture.pixel(x, picture.height() / 2));
        dark += level < 40 ? 1 : 0;
        light += level > 230 && dark > 0 ? 1 : 0;
    }
    QVERIFY(dark >= 2);
    QVERIFY(light >= 1);
}

void TestColorMenu::paletteMayChangeWhileTheSignalIsDelivered()
{
    Menu menu(defaults);
    menu.show();
    connect(&menu, &ColorMenu::colorSignal, &menu, [&](const QString& code) {
        menu.setColorPalette({code, QStringLiteral("#123456")}, {});
    });
    menu.click(QStringLiteral("#dc0b0b"));
    QCOMPARE(menu.codes(), QList<QString>({QStringLiteral("#dc0b0b"), QStringLiteral("#123456")}));
    QCOMPARE(menu.checkedCodes(), QList<QString>({QStringLiteral("#dc0b0b")}));
    QVERIFY(!menu.swatch(QStringLiteral("#ffffff")));
    menu.swatch(QStringLiteral("#123456"))->click();
    QCOMPARE(menu.checkedCodes(), QList<QString>({QStringLiteral("#123456")}));
}

void TestColorMenu::replacedEntriesGoWithTheMenu()
{
    const QWidgetList before = QApplication::topLevelWidgets();
    auto* menu = new Menu(defaults);
    QPointer<QAbstractButton> replaced = menu->swatch(QStringLiteral("#ffffff"));
    menu->setColorPalette({QStringLiteral("#123456")}, {});
    QVERIFY(replaced);
    QCOMPARE(QApplication::topLevelWidgets().size(), before.size() + 1);
    delete menu;
    QVERIFY(!replaced);
    QCOMPARE(QApplication::topLevelWidgets(), before);
}

void TestColorMenu::menuMayBeDeletedWhileTheSignalIsDelivered_data()
{
    QTest::addColumn<int>("key");
    addRow("by mouse", 0);
    addRow("by Space", int(Qt::Key_Space));
    addRow("by Enter", int(Qt::Key_Enter));
}

void TestColorMenu::menuMayBeDeletedWhileTheSignalIsDelivered()
{
    QFETCH(int, key);
    QWidget window;
    QPointer<Menu> menu = new Menu(defaults);
    menu->setParent(&window);
    window.show();
    connect(menu, &ColorMenu::colorSignal, this, [&] { delete menu; });
    QAbstractButton* swatch = menu->swatch(QStringLiteral("#dc0b0b"));
    if (key == 0) {
        MouseDrag click(swatch, QPoint(5, 5));
        click.release();
    } else {
        // keyClick() would send the release to a widget that the press may have deleted.
        QTest::keyPress(swatch, Qt::Key(key));
        if (menu)
            QTest::keyRelease(swatch, Qt::Key(key));
    }
    QVERIFY(!menu);
}

void TestColorMenu::hugePaletteIsCutOff()
{
    Menu menu;
    menu.show();
    QElapsedTimer timer;
    timer.start();
    menu.setColorPalette(manyCodes(200000), {});
    menu.updateSelectedColor(QStringLiteral("#00004d"));
    QVERIFY(!menu.grab().isNull());
    QVERIFY(timer.elapsed() < 10000);
    QCOMPARE(menu.codes().size(), 256);
    QCOMPARE(menu.checkedCodes(), QList<QString>({QStringLiteral("#00004d")}));
}

void TestColorMenu::longPaletteScrolls()
{
    Menu menu(manyCodes(60));
    menu.show();
    const auto* area = menu.findChild<QScrollArea*>();
    QTRY_VERIFY(area->verticalScrollBar()->isVisible());
    QCOMPARE(area->horizontalScrollBar()->maximum(), 0);
    QVERIFY(menu.height() < 300);

    // The keyboard brings what it moves to into view.
    menu.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&menu));
    menu.shown().first()->setFocus();
    for (int i = 0; i < 9; ++i)
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
    QCOMPARE(QApplication::focusWidget(), menu.shown().at(54));
    QVERIFY(area->verticalScrollBar()->value() > 0);
    QVERIFY(!menu.shown().at(54)->visibleRegion().isEmpty());

    // A drag on a swatch scrolls and picks nothing.
    QSignalSpy picked(&menu, SIGNAL(colorSignal(QString)));
    const int before = area->verticalScrollBar()->value();
    MouseDrag drag(menu.shown().at(48), QPoint(10, 10));
    drag.moveBy(0, 20);
    drag.release();
    QCOMPARE(area->verticalScrollBar()->value(), before - 20);
    QCOMPARE(picked.count(), 0);
}

void TestColorMenu::shortPaletteIsShownWhole()
{
    // Under a sheet that makes push buttons larger, like the panels' own.
    QStackedWidget stack;
    stack.setStyleSheet(
        QStringLiteral("QPushButton { border: 1px solid #fd7800; min-height: 35px; }"));
    auto* menu = new Menu(defaults);
    stack.addWidget(menu);
    stack.addWidget(new Menu(manyCodes(24)));
    stack.show();
    for (int page = 0; page < 2; ++page) {
        stack.setCurrentIndex(page);
        stack.adjustSize();
        const auto* area = stack.currentWidget()->findChild<QScrollArea*>();
        QCoreApplication::processEvents();
        QVERIFY(!area->verticalScrollBar()->isVisible());
        const auto* current = static_cast<Menu*>(stack.currentWidget());
        for (const QAbstractButton* button : current->shown())
            QCOMPARE(button->visibleRegion().boundingRect(), button->rect());
    }
}

void TestColorMenu::swatchesAreOfTouchSize()
{
    Menu menu(defaults);
    menu.show();
    for (const QAbstractButton* swatch : menu.shown()) {
        QVERIFY(swatch->width() >= 35);
        QCOMPARE(swatch->height(), 35);
    }
}

void TestColorMenu::checkedStateIsVisibleOnEveryColor_data()
{
    QTest::addColumn<QString>("code");
    for (const QString& code : defaults)
        QTest::newRow(qPrintable(code)) << code;
    addRow("accent", "#fd7800");
    addRow("see-through", "#40000000");
}

void TestColorMenu::checkedStateIsVisibleOnEveryColor()
{
    QFETCH(QString, code);
    Menu menu({code});
    menu.setTransparentColorVisible(true);
    menu.show();
    const QImage unchecked = menu.swatch(code)->grab().toImage();
    menu.updateSelectedColor(code);
    const QImage checked = menu.swatch(code)->grab().toImage();

    // The mark in the middle stands out in brightness, whatever the colour beneath it.
    int different = 0;
    const QRect middle(unchecked.width() / 2 - 9, unchecked.height() / 2 - 7, 18, 14);
    for (int y = middle.top(); y <= middle.bottom(); ++y) {
        for (int x = middle.left(); x <= middle.right(); ++x) {
            const int before = qGray(unchecked.pixel(x, y));
            different += qAbs(before - qGray(checked.pixel(x, y))) > 90 ? 1 : 0;
        }
    }
    QVERIFY2(different > 15, qPrintable(QString::number(different)));
}

void TestColorMenu::connectsByText()
{
    ColorMenu menu(nullptr);
    QVERIFY(menu.parentWidget() == nullptr);
    QWidget target;
    QVERIFY(connect(&menu, SIGNAL(colorSignal(QString)), &target, SLOT(setStyleSheet(QString))));
}

QTEST_MAIN(TestColorMenu)
#include "tst_colormenu.moc"
