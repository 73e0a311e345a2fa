// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "supplyprobe.h"
#include "support/layoutdescription.h"
#include "support/stricttest.h"

#include <applicationfont.h>
#include <colormenu.h>
#include <expandingtabbar.h>
#include <printpanels/printwidget.h>

#include <QtTest/QSignalSpy>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QFrame>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QVBoxLayout>

namespace {

QFrame* section(const PrintWidget& panel)
{
    return part<QFrame>(panel, "supplyInfoWidget");
}

} // namespace

class tst_Supply : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void atConstructionTheSectionIsEmptyAndHidden();
    void sectionFromTopToBottom();
    void tinyLadderCheck();
    void tabBarAndStack();
    void stackGroupPaintsItsSheet();
    void createdWithoutShowingItHasTwoRibbons();
    void createSupplyInfoLayoutTwiceBuildsOnce();

    void visibilityFollowsShowAndHide();
    void hideKeepsEverything();
    void showTinyLadder_data();
    void showTinyLadder();
    void tinySupply();
    void tinyLadderClickIsReported();

    void tabs_data();
    void tabs();
    void ribbonTransitions_data();
    void ribbonTransitions();
    void transparentEntryOfRibbonOneFollowsTheSecondRibbon();
    void tabDrivesTheStack();
    void currentTabAndPageStayTogether_data();
    void currentTabAndPageStayTogether();
    void menusMarkTheColours();
};

void tst_Supply::atConstructionTheSectionIsEmptyAndHidden()
{
    const PrintWidget panel(false, nullptr);
    QVERIFY(section(panel)->isHidden());
    QVERIFY(section(panel)->children().isEmpty());
    QVERIFY(!panel.isSupplyInfoVisible());
    QVERIFY(!panel.isTinySupply());
}

void tst_Supply::sectionFromTopToBottom()
{
    PrintWidget panel(false, nullptr);
    showPlainSupply(panel);
    auto* layout = qobject_cast<QVBoxLayout*>(section(panel)->layout());
    QVERIFY(layout);
    QCOMPARE(layout->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(
        layoutDescription(layout),
        QStringList({QStringLiteral("QLabel"), QStringLiteral("QHBoxLayout"),
                     QStringLiteral("QCheckBox tinyLadderCheck"), QStringLiteral("QVBoxLayout")}));
    const auto* title = qobject_cast<QLabel*>(layout->itemAt(0)->widget());
    QCOMPARE(title->text(), QStringLiteral("Loaded Supply:"));
    QCOMPARE(title->font(), ApplicationFont::getWidgetFont(true));
    QCOMPARE(title->minimumHeight(), 35);

    const QLayout* tabsAndStack = layout->itemAt(3)->layout();
    QCOMPARE(tabsAndStack->spacing(), 0);
    QCOMPARE(layoutDescription(tabsAndStack),
             QStringList({QStringLiteral("ExpandingTabBar colorTabBar"),
                          QStringLiteral("DragScrollGroupBox stackGroup")}));
}

void tst_Supply::tinyLadderCheck()
{
    PrintWidget panel(false, nullptr);
    showPlainSupply(panel);
    const auto* check = part<QCheckBox>(panel, "tinyLadderCheck");
    QCOMPARE(check->text(), QStringLiteral("0.2\" Ladder Shrink Tube"));
    QVERIFY(!check->isChecked());
}

void tst_Supply::tabBarAndStack()
{
    PrintWidget panel(false, nullptr);
    showPlainSupply(panel);
    const ExpandingTabBar* bar = colorTabs(panel);
    QCOMPARE(bar->shape(), QTabBar::RoundedNorth);
    QVERIFY(bar->expanding());
    QVERIFY(!bar->usesScrollButtons());
    QCOMPARE(bar->iconSize(), QSize(25, 25));

    auto* group = part<QWidget>(panel, "stackGroup");
    QVERIFY(group->inherits("DragScrollGroupBox"));
    QCOMPARE(group->toolTip(), QStringLiteral("Select loaded color."));
    QVERIFY(qobject_cast<QVBoxLayout*>(group->layout()));
    QCOMPARE(group->layout()->count(), 1);
    QCOMPARE(group->layout()->itemAt(0)->widget(), colorStack(panel));
}

void tst_Supply::stackGroupPaintsItsSheet()
{
    PrintWidget panel(false, nullptr);
    showPlainSupply(panel);
    QVERIFY(showPanel(panel));
    auto* group = part<QWidget>(panel, "stackGroup");
    const QImage image = panel.grab().toImage();
    const QPoint inside = group->mapTo(&panel, QPoint(group->width() / 2, group->height() - 4));
    QCOMPARE(image.pixelColor(inside), QColor(0xfa, 0xfa, 0xfa));
    const QPoint border = group->mapTo(&panel, QPoint(group->width() / 2, group->height() - 1));
    QCOMPARE(image.pixelColor(border), QColor(0x99, 0x98, 0x98));
}

void tst_Supply::createdWithoutShowingItHasTwoRibbons()
{
    PrintWidget panel(false, nullptr);
    panel.createSupplyInfoLayout();
    QCOMPARE(::tabs(panel), QStringList({tabOf(ribbonGlyph, "#000000", "Ribbon1"),
                                         tabOf(ribbonGlyph, "#000000", "Ribbon2"),
                                         tabOf(supplyGlyph, "#ffffff", "Supply")}));
    QCOMPARE(stackPages(panel), colors({"ribbon1Menu", "ribbon2Menu", "supplyMenu"}));
    QVERIFY(!panel.isSupplyInfoVisible());
    QVERIFY(section(panel)->isHidden());
    QCOMPARE(::widthEdit(panel)->text(), QString());
    QCOMPARE(selectedColor(colorMenu(panel, "ribbon1Menu")), QStringLiteral("#000000"));
    QCOMPARE(selectedColor(colorMenu(panel, "ribbon2Menu")), QStringLiteral("#000000"));
    QCOMPARE(selectedColor(colorMenu(panel, "supplyMenu")), QStringLiteral("#ffffff"));
}

void tst_Supply::createSupplyInfoLayoutTwiceBuildsOnce()
{
    PrintWidget panel(false, nullptr);
    panel.createSupplyInfoLayout();
    const QStringList once = stateOf(panel);
    panel.createSupplyInfoLayout();
    QCOMPARE(stateOf(panel), once);
    showPlainSupply(panel);
    QCOMPARE(::tabs(panel).size(), 2);
}

void tst_Supply::visibilityFollowsShowAndHide()
{
    PrintWidget panel(false, nullptr);
    panel.hideSupplyInfo();
    QVERIFY(!panel.isSupplyInfoVisible());
    for (int i = 0; i < 2; ++i) {
        showPlainSupply(panel);
        QVERIFY(panel.isSupplyInfoVisible());
        QVERIFY(!section(panel)->isHidden());
        panel.hideSupplyInfo();
        QVERIFY(!panel.isSupplyInfoVisible());
        QVERIFY(section(panel)->isHidden());
    }
    // What is told, not what is on the screen.
    showPlainSupply(panel);
    QVERIFY(!panel.isVisible());
    QVERIFY(panel.isSupplyInfoVisible());
}

void tst_Supply::hideKeepsEverything()
{
    PrintWidget panel(false, nullptr);
    panel.showSupplyInfo(colors({"#dc0b0b", "#248d4f", "#fffffe"}), true, 2.5, 1, true);
    part<QCheckBox>(panel, "tinyLadderCheck")->setChecked(true);
    const QStringList before = ::tabs(panel);
    panel.hideSupplyInfo();
    QCOMPARE(::tabs(panel), before);
    QCOMPARE(::widthEdit(panel)->text(), QStringLiteral("2.50"));
    QVERIFY(panel.isTinySupply());
}

void tst_Supply::showTinyLadder_data()
{
    QTest::addColumn<bool>("shown");
    QTest::newRow("shown") << true;
    QTest::newRow("hidden") << false;
}

void tst_Supply::showTinyLadder()
{
    QFETCH(const bool, shown);
    PrintWidget panel(false, nullptr);
    for (const bool before : {false, true}) {
        panel.showSupplyInfo(colors({"#000000"}), false, 4.0, 0, before);
        panel.showSupplyInfo(colors({"#000000"}), false, 4.0, 0, shown);
        QCOMPARE(!part<QCheckBox>(panel, "tinyLadderCheck")->isHidden(), shown);
    }
}

void tst_Supply::tinySupply()
{
    PrintWidget panel(false, nullptr);
    QVERIFY(!panel.isTinySupply());
    showPlainSupply(panel);
    QVERIFY(!panel.isTinySupply());
    auto* check = part<QCheckBox>(panel, "tinyLadderCheck");
    check->setChecked(true);
    QVERIFY(panel.isTinySupply());
    panel.showSupplyInfo(colors({"#000000"}), false, 4.0, 0, false);
    QVERIFY(panel.isTinySupply());
    check->setChecked(false);
    QVERIFY(!panel.isTinySupply());
}

void tst_Supply::tinyLadderClickIsReported()
{
    PrintWidget panel(false, nullptr);
    showPlainSupply(panel);
    QVERIFY(showPanel(panel));
    QSignalSpy changed(&panel, SIGNAL(tinyLadderSupplyChangedSignal(bool)));
    auto* check = part<QCheckBox>(panel, "tinyLadderCheck");
    clickOn(check);
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed.takeFirst(), QVariantList{true});
    clickOn(check);
    QCOMPARE(changed.takeFirst(), QVariantList{false});
    check->setChecked(true);
    QCOMPARE(changed.size(), 0);
}

void tst_Supply::tabs_data()
{
    QTest::addColumn<QStringList>("loaded");
    QTest::addColumn<bool>("twoRibbons");
    QTest::addColumn<QStringList>("expected");
    const auto row = [](const char* name, const QStringList& loaded, bool two,
                        const QStringList& expected) {
        QTest::newRow(name) << loaded << two << expected;
    };
    const auto ribbon1 = [](const char* color) { return tabOf(ribbonGlyph, color, "Ribbon1"); };
    const auto ribbon2 = [](const char* color) { return tabOf(ribbonGlyph, color, "Ribbon2"); };
    const auto supply = [](const char* color) { return tabOf(supplyGlyph, color, "Supply"); };
    const QString blank1 = tabOf(blankGlyph, "blank", "Blank Ribbon1");
    const QString blank2 = tabOf(blankGlyph, "blank", "Blank Ribbon2");

    row("one ribbon", colors({"#dc0b0b", "#fedb00"}), false,
        {ribbon1("#dc0b0b"), supply("#fedb00")});
    row("one blank ribbon", colors({"#fffffe", "#ffffff"}), false, {blank1, supply("#ffffff")});
    row("one ribbon, clear supply", colors({"#dc0b0b", "#fffffe"}), false,
        {ribbon1("#dc0b0b"), supply("transparent")});
    row("one entry is ribbon and supply", colors({"#248d4f"}), false,
        {ribbon1("#248d4f"), supply("#248d4f")});
    row("one entry, nothing loaded", colors({"#fffffe"}), false, {blank1, supply("transparent")});
    row("two ribbons", colors({"#dc0b0b", "#248d4f", "#ffffff"}), true,
        {ribbon1("#dc0b0b"), ribbon2("#248d4f"), supply("#ffffff")});
    row("two ribbons, second blank", colors({"#dc0b0b", "#fffffe", "#ffffff"}), true,
        {ribbon1("#dc0b0b"), blank2, supply("#ffffff")});
    row("two ribbons, both blank", colors({"#fffffe", "#fffffe", "#fffffe"}), true,
        {blank1, blank2, supply("transparent")});
    row("two ribbons, one entry", colors({"#dc0b0b"}), true,
        {ribbon1("#dc0b0b"), blank2, supply("#dc0b0b")});
    row("two ribbons, two entries", colors({"#dc0b0b", "#248d4f"}), true,
        {ribbon1("#dc0b0b"), ribbon2("#248d4f"), supply("#248d4f")});
    row("more entries than places", colors({"#dc0b0b", "#248d4f", "#0018a8", "#473333"}), true,
        {ribbon1("#dc0b0b"), ribbon2("#248d4f"), supply("#473333")});
    row("upper case is a colour", colors({"#FFFFFE", "#FFFFFE", "#FFFFFE"}), true,
        {ribbon1("#FFFFFE"), ribbon2("#FFFFFE"), supply("#FFFFFE")});
    row("letter case is kept", colors({"#00FFFF", "#Dc0B0b"}), false,
        {ribbon1("#00FFFF"), supply("#Dc0B0b")});
    row("empty list, one ribbon", {}, false, {blank1, supply("transparent")});
    row("empty list, two ribbons", {}, true, {blank1, blank2, supply("transparent")});
}

void tst_Supply::tabs()
{
    QFETCH(const QStringList, loaded);
    QFETCH(const bool, twoRibbons);
    QFETCH(const QStringList, expected);
    // On a new panel, after one ribbon and after two: the answer is the same.
    for (const int before : {0, 1, 2}) {
        PrintWidget panel(false, nullptr);
        if (before > 0)
            panel.showSupplyInfo(colors({"#0018a8", "#0018a8", "#0018a8"}), before == 2, 1.0, 0,
                                 false);
        panel.showSupplyInfo(loaded, twoRibbons, 4.0, 0, false);
        QCOMPARE(::tabs(panel), expected);
        QCOMPARE(stackPages(panel), twoRibbons
                                        ? colors({"ribbon1Menu", "ribbon2Menu", "supplyMenu"})
                                        : colors({"ribbon1Menu", "supplyMenu"}));
    }
}

void tst_Supply::ribbonTransitions_data()
{
    QTest::addColumn<QList<bool>>("steps");
    QTest::newRow("first call with one") << QList<bool>{false};
    QTest::newRow("first call with two") << QList<bool>{true};
    QTest::newRow("one, two") << QList<bool>{false, true};
    QTest::newRow("two, one") << QList<bool>{true, false};
    QTest::newRow("two, one, two") << QList<bool>{true, false, true};
    QTest::newRow("back and forth")
        << QList<bool>{false, true, false, true, false, false, true, true};
}

void tst_Supply::ribbonTransitions()
{
    QFETCH(const QList<bool>, steps);
    PrintWidget panel(false, nullptr);
    for (const bool two : steps) {
        panel.showSupplyInfo(colors({"#dc0b0b", "#248d4f", "#ffffff"}), two, 4.0, 0, false);
        QCOMPARE(colorTabs(panel)->count(), two ? 3 : 2);
        QCOMPARE(colorStack(panel)->count(), two ? 3 : 2);
        QCOMPARE(tab(panel, two ? 2 : 1), tabOf(supplyGlyph, "#ffffff", "Supply"));
        // A user's choice for the supply lands on the supply's tab.
        Q_EMIT colorMenu(panel, "supplyMenu")->colorSignal(QStringLiteral("#fedb00"));
        QCOMPARE(tab(panel, two ? 2 : 1), tabOf(supplyGlyph, "#fedb00", "Supply"));
        QCOMPARE(tab(panel, 0), tabOf(ribbonGlyph, "#dc0b0b", "Ribbon1"));
    }
}

void tst_Supply::transparentEntryOfRibbonOneFollowsTheSecondRibbon()
{
    PrintWidget panel(false, nullptr);
    const QString transparent = QStringLiteral("transparent");
    panel.createSupplyInfoLayout();
    QVERIFY(shownColors(colorMenu(panel, "ribbon1Menu")).contains(transparent));
    for (const bool two : {false, true, false, true}) {
        panel.showSupplyInfo(colors({"#000000", "#ffffff"}), two, 4.0, 0, false);
        QCOMPARE(shownColors(colorMenu(panel, "ribbon1Menu")).contains(transparent), two);
        QVERIFY(shownColors(colorMenu(panel, "ribbon2Menu")).contains(transparent));
        QVERIFY(shownColors(colorMenu(panel, "supplyMenu")).contains(transparent));
    }
}

void tst_Supply::tabDrivesTheStack()
{
    PrintWidget panel(false, nullptr);
    panel.showSupplyInfo(colors({"#dc0b0b", "#248d4f", "#ffffff"}), true, 4.0, 0, false);
    QVERIFY(showPanel(panel));
    for (const int index : {1, 2, 0, 2, 1}) {
        QTest::mouseClick(colorTabs(panel), Qt::LeftButton, Qt::NoModifier,
                          colorTabs(panel)->tabRect(index).center());
        QCOMPARE(colorTabs(panel)->currentIndex(), index);
        QCOMPARE(colorStack(panel)->currentIndex(), index);
    }
    QVERIFY(colorMenu(panel, "ribbon2Menu")->isVisible());
    QVERIFY(!colorMenu(panel, "supplyMenu")->isVisible());
}

void tst_Supply::currentTabAndPageStayTogether_data()
{
    QTest::addColumn<int>("current");
    QTest::newRow("ribbon 1") << 0;
    QTest::newRow("ribbon 2") << 1;
    QTest::newRow("supply") << 2;
    QTest::newRow("a menu of the host's") << 3;
}

void tst_Supply::currentTabAndPageStayTogether()
{
    QFETCH(const int, current);
    PrintWidget panel(false, nullptr);
    const QStringList loaded = colors({"#dc0b0b", "#248d4f", "#ffffff"});
    panel.showSupplyInfo(loaded, true, 4.0, 0, false);
    if (current == 3)
        panel.addMenuToStack(3, loaded.at(0), QStringLiteral("T"), QString(), new ColorMenu);
    colorTabs(panel)->setCurrentIndex(current);
    for (const bool two : {false, true, false, false, true, true}) {
        panel.showSupplyInfo(loaded, two, 4.0, 0, false);
        const int index = colorTabs(panel)->currentIndex();
        QVERIFY(index >= 0);
        QCOMPARE(colorStack(panel)->currentIndex(), index);
        const bool supply = colorTabs(panel)->tabText(index) == supplyGlyph;
        QCOMPARE(colorStack(panel)->currentWidget()->objectName() == QStringLiteral("supplyMenu"),
                 supply);
    }
}

void tst_Supply::menusMarkTheColours()
{
    PrintWidget panel(false, nullptr);
    panel.showSupplyInfo(colors({"#dc0b0b", "#248d4f", "#ffffff"}), true, 4.0, 0, false);
    QCOMPARE(selectedColor(colorMenu(panel, "ribbon1Menu")), QStringLiteral("#dc0b0b"));
    QCOMPARE(selectedColor(colorMenu(panel, "ribbon2Menu")), QStringLiteral("#248d4f"));
    QCOMPARE(selectedColor(colorMenu(panel, "supplyMenu")), QStringLiteral("#ffffff"));
    // "blank" is no entry of a ribbon menu, "transparent" is one of the supply menu.
    panel.showSupplyInfo(colors({"#fffffe", "#fffffe", "#fffffe"}), true, 4.0, 0, false);
    QCOMPARE(selectedColor(colorMenu(panel, "ribbon1Menu")), QString());
    QCOMPARE(selectedColor(colorMenu(panel, "ribbon2Menu")), QString());
    QCOMPARE(selectedColor(colorMenu(panel, "supplyMenu")), QStringLiteral("transparent"));
}

QTEST_MAIN(tst_Supply)
#include "tst_supply.moc"
