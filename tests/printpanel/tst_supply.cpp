// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "printpanelfixture.h"
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

QFrame* section(const PrintPanelFixture& panel)
{
    return panel.part<QFrame>("supplyInfoWidget");
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
    const PrintPanelFixture panel;
    QVERIFY(section(panel)->isHidden());
    QVERIFY(section(panel)->children().isEmpty());
    QVERIFY(!panel.isSupplyInfoVisible());
    QVERIFY(!panel.isTinySupply());
}

void tst_Supply::sectionFromTopToBottom()
{
    PrintPanelFixture panel;
    panel.showPlainSupply();
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
    PrintPanelFixture panel;
    panel.showPlainSupply();
    const auto* check = panel.part<QCheckBox>("tinyLadderCheck");
    QCOMPARE(check->text(), QStringLiteral("0.2\" Ladder Shrink Tube"));
    QVERIFY(!check->isChecked());
}

void tst_Supply::tabBarAndStack()
{
    PrintPanelFixture panel;
    panel.showPlainSupply();
    const ExpandingTabBar* bar = panel.colorTabs();
    QCOMPARE(bar->shape(), QTabBar::RoundedNorth);
    QVERIFY(bar->expanding());
    QVERIFY(!bar->usesScrollButtons());
    QCOMPARE(bar->iconSize(), QSize(25, 25));

    auto* group = panel.part<QWidget>("stackGroup");
    QVERIFY(group->inherits("DragScrollGroupBox"));
    QCOMPARE(group->toolTip(), QStringLiteral("Select loaded color."));
    QVERIFY(qobject_cast<QVBoxLayout*>(group->layout()));
    QCOMPARE(group->layout()->count(), 1);
    QCOMPARE(group->layout()->itemAt(0)->widget(), panel.colorStack());
}

void tst_Supply::stackGroupPaintsItsSheet()
{
    PrintPanelFixture panel;
    panel.showPlainSupply();
    QVERIFY(showPanel(panel));
    auto* group = panel.part<QWidget>("stackGroup");
    const QImage image = panel.grab().toImage();
    const QPoint inside = group->mapTo(&panel, QPoint(group->width() / 2, group->height() - 4));
    QCOMPARE(image.pixelColor(inside), QColor(0xfa, 0xfa, 0xfa));
    const QPoint border = group->mapTo(&panel, QPoint(group->width() / 2, group->height() - 1));
    QCOMPARE(image.pixelColor(border), QColor(0x99, 0x98, 0x98));
}

void tst_Supply::createdWithoutShowingItHasTwoRibbons()
{
    PrintPanelFixture panel;
    panel.createSupplyInfoLayout();
    QCOMPARE(panel.tabs(), QStringList({tabOf(ribbonGlyph, "#000000", "Ribbon1"),
                                        tabOf(ribbonGlyph, "#000000", "Ribbon2"),
                                        tabOf(supplyGlyph, "#ffffff", "Supply")}));
    QCOMPARE(panel.stackPages(), colors({"ribbon1Menu", "ribbon2Menu", "supplyMenu"}));
    QVERIFY(!panel.isSupplyInfoVisible());
    QVERIFY(section(panel)->isHidden());
    QCOMPARE(panel.widthEdit()->text(), QString());
    QCOMPARE(selectedColor(panel.colorMenu("ribbon1Menu")), QStringLiteral("#000000"));
    QCOMPARE(selectedColor(panel.colorMenu("ribbon2Menu")), QStringLiteral("#000000"));
    QCOMPARE(selectedColor(panel.colorMenu("supplyMenu")), QStringLiteral("#ffffff"));
}

void tst_Supply::createSupplyInfoLayoutTwiceBuildsOnce()
{
    PrintPanelFixture panel;
    panel.createSupplyInfoLayout();
    const QStringList once = stateOf(panel);
    panel.createSupplyInfoLayout();
    QCOMPARE(stateOf(panel), once);
    panel.showPlainSupply();
    QCOMPARE(panel.tabs().size(), 2);
}

void tst_Supply::visibilityFollowsShowAndHide()
{
    PrintPanelFixture panel;
    panel.hideSupplyInfo();
    QVERIFY(!panel.isSupplyInfoVisible());
    for (int i = 0; i < 2; ++i) {
        panel.showPlainSupply();
        QVERIFY(panel.isSupplyInfoVisible());
        QVERIFY(!section(panel)->isHidden());
        panel.hideSupplyInfo();
        QVERIFY(!panel.isSupplyInfoVisible());
        QVERIFY(section(panel)->isHidden());
    }
    // What is told, not what is on the screen.
    panel.showPlainSupply();
    QVERIFY(!panel.isVisible());
    QVERIFY(panel.isSupplyInfoVisible());
}

void tst_Supply::hideKeepsEverything()
{
    PrintPanelFixture panel;
    panel.showSupplyInfo(colors({"#dc0b0b", "#248d4f", "#fffffe"}), true, 2.5, 1, true);
    panel.part<QCheckBox>("tinyLadderCheck")->setChecked(true);
    const QStringList before = panel.tabs();
    panel.hideSupplyInfo();
    QCOMPARE(panel.tabs(), before);
    QCOMPARE(panel.widthEdit()->text(), QStringLiteral("2.50"));
    QVERIFY(panel.isTinySupply());
}

void tst_Supply::showTinyLadder_data()
{
    QTest::addColumn<bool>("shown");
    addRow("shown", true);
    addRow("hidden", false);
}

void tst_Supply::showTinyLadder()
{
    QFETCH(const bool, shown);
    PrintPanelFixture panel;
    for (const bool before : {false, true}) {
        panel.showSupplyInfo(colors({"#000000"}), false, 4.0, 0, before);
        panel.showSupplyInfo(colors({"#000000"}), false, 4.0, 0, shown);
        QCOMPARE(!panel.part<QCheckBox>("tinyLadderCheck")->isHidden(), shown);
    }
}

void tst_Supply::tinySupply()
{
    PrintPanelFixture panel;
    QVERIFY(!panel.isTinySupply());
    panel.showPlainSupply();
    QVERIFY(!panel.isTinySupply());
    auto* check = panel.part<QCheckBox>("tinyLadderCheck");
    check->setChecked(true);
    QVERIFY(panel.isTinySupply());
    panel.showSupplyInfo(colors({"#000000"}), false, 4.0, 0, false);
    QVERIFY(panel.isTinySupply());
    check->setChecked(false);
    QVERIFY(!panel.isTinySupply());
}

void tst_Supply::tinyLadderClickIsReported()
{
    PrintPanelFixture panel;
    panel.showPlainSupply();
    QVERIFY(showPanel(panel));
    QSignalSpy changed(&panel, SIGNAL(tinyLadderSupplyChangedSignal(bool)));
    auto* check = panel.part<QCheckBox>("tinyLadderCheck");
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
    addColumns<QStringList, bool, QStringList>("loaded", "twoRibbons", "expected");
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
        PrintPanelFixture panel;
        if (before > 0)
            panel.showSupplyInfo(colors({"#0018a8", "#0018a8", "#0018a8"}), before == 2, 1.0, 0,
                                 false);
        panel.showSupplyInfo(loaded, twoRibbons, 4.0, 0, false);
        QCOMPARE(panel.tabs(), expected);
        QCOMPARE(panel.stackPages(), twoRibbons
                                         ? colors({"ribbon1Menu", "ribbon2Menu", "supplyMenu"})
                                         : colors({"ribbon1Menu", "supplyMenu"}));
    }
}

void tst_Supply::ribbonTransitions_data()
{
    QTest::addColumn<QList<bool>>("steps");
    addRow("first call with one", QList<bool>{false});
    addRow("first call with two", QList<bool>{true});
    addRow("one, two", QList<bool>{false, true});
    addRow("two, one", QList<bool>{true, false});
    addRow("two, one, two", QList<bool>{true, false, true});
    addRow("back and forth", QList<bool>{false, true, false, true, false, false, true, true});
}

void tst_Supply::ribbonTransitions()
{
    QFETCH(const QList<bool>, steps);
    PrintPanelFixture panel;
    for (const bool two : steps) {
        panel.showSupplyInfo(colors({"#dc0b0b", "#248d4f", "#ffffff"}), two, 4.0, 0, false);
        QCOMPARE(panel.colorTabs()->count(), two ? 3 : 2);
        QCOMPARE(panel.colorStack()->count(), two ? 3 : 2);
        QCOMPARE(panel.tab(two ? 2 : 1), tabOf(supplyGlyph, "#ffffff", "Supply"));
        // A user's choice for the supply lands on the supply's tab.
        Q_EMIT panel.colorMenu("supplyMenu")->colorSignal(QStringLiteral("#fedb00"));
        QCOMPARE(panel.tab(two ? 2 : 1), tabOf(supplyGlyph, "#fedb00", "Supply"));
        QCOMPARE(panel.tab(0), tabOf(ribbonGlyph, "#dc0b0b", "Ribbon1"));
    }
}

void tst_Supply::transparentEntryOfRibbonOneFollowsTheSecondRibbon()
{
    PrintPanelFixture panel;
    const QString transparent = QStringLiteral("transparent");
    panel.createSupplyInfoLayout();
    QVERIFY(shownColors(panel.colorMenu("ribbon1Menu")).contains(transparent));
    for (const bool two : {false, true, false, true}) {
        panel.showSupplyInfo(colors({"#000000", "#ffffff"}), two, 4.0, 0, false);
        QCOMPARE(shownColors(panel.colorMenu("ribbon1Menu")).contains(transparent), two);
        QVERIFY(shownColors(panel.colorMenu("ribbon2Menu")).contains(transparent));
        QVERIFY(shownColors(panel.colorMenu("supplyMenu")).contains(transparent));
    }
}

void tst_Supply::tabDrivesTheStack()
{
    PrintPanelFixture panel;
    panel.showSupplyInfo(colors({"#dc0b0b", "#248d4f", "#ffffff"}), true, 4.0, 0, false);
    QVERIFY(showPanel(panel));
    for (const int index : {1, 2, 0, 2, 1}) {
        QTest::mouseClick(panel.colorTabs(), Qt::LeftButton, Qt::NoModifier,
                          panel.colorTabs()->tabRect(index).center());
        QCOMPARE(panel.colorTabs()->currentIndex(), index);
        QCOMPARE(panel.colorStack()->currentIndex(), index);
    }
    QVERIFY(panel.colorMenu("ribbon2Menu")->isVisible());
    QVERIFY(!panel.colorMenu("supplyMenu")->isVisible());
}

void tst_Supply::currentTabAndPageStayTogether_data()
{
    QTest::addColumn<int>("current");
    addRow("ribbon 1", 0);
    addRow("ribbon 2", 1);
    addRow("supply", 2);
    addRow("a menu of the host's", 3);
}

void tst_Supply::currentTabAndPageStayTogether()
{
    QFETCH(const int, current);
    PrintPanelFixture panel;
    const QStringList loaded = colors({"#dc0b0b", "#248d4f", "#ffffff"});
    panel.showSupplyInfo(loaded, true, 4.0, 0, false);
    if (current == 3)
        panel.addMenuToStack(3, loaded.at(0), QStringLiteral("T"), QString(), new ColorMenu);
    panel.colorTabs()->setCurrentIndex(current);
    for (const bool two : {false, true, false, false, true, true}) {
        panel.showSupplyInfo(loaded, two, 4.0, 0, false);
        const int index = panel.colorTabs()->currentIndex();
        QVERIFY(index >= 0);
        QCOMPARE(panel.colorStack()->currentIndex(), index);
        const bool supply = panel.colorTabs()->tabText(index) == supplyGlyph;
        QCOMPARE(panel.colorStack()->currentWidget()->objectName() == QStringLiteral("supplyMenu"),
                 supply);
    }
}

void tst_Supply::menusMarkTheColours()
{
    PrintPanelFixture panel;
    panel.showSupplyInfo(colors({"#dc0b0b", "#248d4f", "#ffffff"}), true, 4.0, 0, false);
    QCOMPARE(selectedColor(panel.colorMenu("ribbon1Menu")), QStringLiteral("#dc0b0b"));
    QCOMPARE(selectedColor(panel.colorMenu("ribbon2Menu")), QStringLiteral("#248d4f"));
    QCOMPARE(selectedColor(panel.colorMenu("supplyMenu")), QStringLiteral("#ffffff"));
    // "blank" is no entry of a ribbon menu, "transparent" is one of the supply menu.
    panel.showSupplyInfo(colors({"#fffffe", "#fffffe", "#fffffe"}), true, 4.0, 0, false);
    QCOMPARE(selectedColor(panel.colorMenu("ribbon1Menu")), QString());
    QCOMPARE(selectedColor(panel.colorMenu("ribbon2Menu")), QString());
    QCOMPARE(selectedColor(panel.colorMenu("supplyMenu")), QStringLiteral("transparent"));
}

QTEST_MAIN(tst_Supply)
#include "tst_supply.moc"
