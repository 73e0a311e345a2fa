// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "printpanelfixture.h"
#include "support/stricttest.h"

#include <colormenu.h>
#include <expandingtabbar.h>
#include <printpanels/printwidget.h>

#include <QtTest/QSignalSpy>
#include <QtWidgets/QAbstractButton>

#include <climits>

namespace {

const char* const colorsSignal = SIGNAL(supplyColorsChangedSignal(QStringList));

/** Two ribbons, red and green, and a white supply. */
void showTwoRibbons(PrintPanelFixture& panel)
{
    panel.showSupplyInfo(colors({"#dc0b0b", "#248d4f", "#ffffff"}), true, 4.0, 0, false);
}

/** The lists that the panel reports when a menu's user picks a colour. */
QList<QStringList> reportedAfter(PrintPanelFixture& panel, const char* menu, const char* color)
{
    const QSignalSpy spy(&panel, colorsSignal);
    Q_EMIT panel.colorMenu(menu)->colorSignal(QString::fromLatin1(color));
    QList<QStringList> lists;
    for (const QVariantList& arguments : spy)
        lists.append(arguments.first().toStringList());
    return lists;
}

const QStringList defaultRibbonPalette = {QStringLiteral("#ffffff"), QStringLiteral("#000000"),
                                          QStringLiteral("#dc0b0b"), QStringLiteral("#f28000"),
                                          QStringLiteral("#fedb00"), QStringLiteral("#248d4f"),
                                          QStringLiteral("#0018a8"), QStringLiteral("#00FFFF"),
                                          QStringLiteral("#473333"), QStringLiteral("transparent")};

const QStringList defaultSupplyPalette = {
    QStringLiteral("#ffffff"), QStringLiteral("#000000"), QStringLiteral("#dc0b0b"),
    QStringLiteral("#f28000"), QStringLiteral("#fedb00"), QStringLiteral("#248d4f"),
    QStringLiteral("#0018a8"), QStringLiteral("#00FFFF"), QStringLiteral("#473333"),
    QStringLiteral("#41b6e6"), QStringLiteral("#7238ab"), QStringLiteral("transparent")};

} // namespace

class tst_SupplyColors : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void defaultPalettes();
    void setColorPaletteReplacesThem();
    void setColorPaletteBeforeTheSectionExistsIsKept();
    void theLastKeptPaletteCounts();
    void emptyPalettesOfferNothing();
    void emptyPalettesBeforeTheSectionExists();
    void setColorPaletteEmitsNothing();

    void pick_data();
    void pick();
    void pickingTransparentForABlankRibbonReportsAgain_data();
    void pickingTransparentForABlankRibbonReportsAgain();
    void pickingTransparentForAClearSupplyReportsNothing();
    void theOffWhiteCodeItselfCounts();
    void oneRibbonReportsAnEmptySecondEntry();
    void theSecondRibbonComesBackWithItsColour();
    void clickOnASwatchReachesTheHost();
    void slotsDoNotTouchTheMenusSelection();
    void everyMenuIsConnectedOnce();
    void slotsBeforeTheSectionExistsDoNothing_data();
    void slotsBeforeTheSectionExistsDoNothing();

    void addMenuToStack();
    void addMenuToStackWithoutAMenuOrASection();
    void updateColorSelection();
    void updateColorSelectionWithOddArguments();
};

void tst_SupplyColors::defaultPalettes()
{
    PrintPanelFixture panel;
    showTwoRibbons(panel);
    QCOMPARE(shownColors(panel.colorMenu("ribbon1Menu")), defaultRibbonPalette);
    QCOMPARE(shownColors(panel.colorMenu("ribbon2Menu")), defaultRibbonPalette);
    QCOMPARE(shownColors(panel.colorMenu("supplyMenu")), defaultSupplyPalette);
}

void tst_SupplyColors::setColorPaletteReplacesThem()
{
    PrintPanelFixture panel;
    showTwoRibbons(panel);
    const QStringList ribbons = colors({"#a0a0a0", "#123456", "transparent"});
    const QStringList supplies = colors({"#654321"});
    panel.setColorPalette(ribbons, supplies);
    QCOMPARE(shownColors(panel.colorMenu("ribbon1Menu")), ribbons);
    QCOMPARE(shownColors(panel.colorMenu("ribbon2Menu")), ribbons);
    QCOMPARE(shownColors(panel.colorMenu("supplyMenu")), supplies);
    // The palette stays when the printer reports again.
    showTwoRibbons(panel);
    QCOMPARE(shownColors(panel.colorMenu("ribbon1Menu")), ribbons);
}

void tst_SupplyColors::setColorPaletteBeforeTheSectionExistsIsKept()
{
    PrintPanelFixture panel;
    const QStringList ribbons = colors({"#a0a0a0", "transparent"});
    const QStringList supplies = colors({"#654321", "#ffffff"});
    const QStringList before = stateOf(panel);
    panel.setColorPalette(ribbons, supplies);
    QCOMPARE(stateOf(panel), before);
    showTwoRibbons(panel);
    QCOMPARE(shownColors(panel.colorMenu("ribbon1Menu")), ribbons);
    QCOMPARE(shownColors(panel.colorMenu("ribbon2Menu")), ribbons);
    QCOMPARE(shownColors(panel.colorMenu("supplyMenu")), supplies);
    QCOMPARE(selectedColor(panel.colorMenu("supplyMenu")), QStringLiteral("#ffffff"));
}

void tst_SupplyColors::theLastKeptPaletteCounts()
{
    PrintPanelFixture panel;
    panel.setColorPalette(colors({"#111111"}), colors({"#222222"}));
    panel.setColorPalette(colors({"#333333"}), colors({"#444444"}));
    panel.createSupplyInfoLayout();
    QCOMPARE(shownColors(panel.colorMenu("ribbon1Menu")), colors({"#333333"}));
    QCOMPARE(shownColors(panel.colorMenu("supplyMenu")), colors({"#444444"}));
}

void tst_SupplyColors::emptyPalettesOfferNothing()
{
    PrintPanelFixture panel;
    showTwoRibbons(panel);
    panel.setColorPalette({}, {});
    for (const char* name : {"ribbon1Menu", "ribbon2Menu", "supplyMenu"})
        QCOMPARE(shownColors(panel.colorMenu(name)), QStringList());
    QVERIFY(showPanel(panel));
}

void tst_SupplyColors::emptyPalettesBeforeTheSectionExists()
{
    PrintPanelFixture panel;
    panel.setColorPalette({}, colors({"#222222"}));
    showTwoRibbons(panel);
    QCOMPARE(shownColors(panel.colorMenu("ribbon1Menu")), QStringList());
    QCOMPARE(shownColors(panel.colorMenu("supplyMenu")), colors({"#222222"}));
}

void tst_SupplyColors::setColorPaletteEmitsNothing()
{
    PrintPanelFixture panel;
    showTwoRibbons(panel);
    const QSignalSpy spy(&panel, colorsSignal);
    panel.setColorPalette(colors({"#111111"}), colors({"#222222"}));
    panel.setColorPalette({}, {});
    QCOMPARE(spy.size(), 0);
    QCOMPARE(panel.tabs().first(), tabOf(ribbonGlyph, "#dc0b0b", "Ribbon1"));
}

void tst_SupplyColors::pick_data()
{
    addColumns<QByteArray, QByteArray, QList<QStringList>, int, QString>(
        "menu", "color", "reported", "index", "tabAfter");
    const auto row = [](const char* name, const char* menu, const char* color,
                        const QList<QStringList>& reported, int index, const QString& tabAfter) {
        QTest::newRow(name) << QByteArray(menu) << QByteArray(color) << reported << index
                            << tabAfter;
    };
    row("ribbon 1, a colour", "ribbon1Menu", "#000000", {colors({"#000000", "#248d4f", "#ffffff"})},
        0, tabOf(ribbonGlyph, "#000000", "Ribbon1"));
    row("ribbon 2, a colour", "ribbon2Menu", "#000000", {colors({"#dc0b0b", "#000000", "#ffffff"})},
        1, tabOf(ribbonGlyph, "#000000", "Ribbon2"));
    row("supply, a colour", "supplyMenu", "#fedb00", {colors({"#dc0b0b", "#248d4f", "#fedb00"})}, 2,
        tabOf(supplyGlyph, "#fedb00", "Supply"));
    row("ribbon 1, transparent", "ribbon1Menu", "transparent",
        {colors({"#fffffe", "#248d4f", "#ffffff"})}, 0,
        tabOf(blankGlyph, "blank", "Blank Ribbon1"));
    row("ribbon 2, transparent", "ribbon2Menu", "transparent",
        {colors({"#dc0b0b", "#fffffe", "#ffffff"})}, 1,
        tabOf(blankGlyph, "blank", "Blank Ribbon2"));
    row("supply, transparent", "supplyMenu", "transparent",
        {colors({"#dc0b0b", "#248d4f", "#fffffe"})}, 2,
        tabOf(supplyGlyph, "transparent", "Supply"));
    row("ribbon 1, the same", "ribbon1Menu", "#dc0b0b", {}, 0,
        tabOf(ribbonGlyph, "#dc0b0b", "Ribbon1"));
    row("ribbon 2, the same", "ribbon2Menu", "#248d4f", {}, 1,
        tabOf(ribbonGlyph, "#248d4f", "Ribbon2"));
    row("supply, the same", "supplyMenu", "#ffffff", {}, 2,
        tabOf(supplyGlyph, "#ffffff", "Supply"));
    row("ribbon 1, other letter case", "ribbon1Menu", "#DC0B0B",
        {colors({"#DC0B0B", "#248d4f", "#ffffff"})}, 0, tabOf(ribbonGlyph, "#DC0B0B", "Ribbon1"));
    row("supply, other letter case", "supplyMenu", "#FFFFFF",
        {colors({"#dc0b0b", "#248d4f", "#FFFFFF"})}, 2, tabOf(supplyGlyph, "#FFFFFF", "Supply"));
    row("ribbon 1, upper-case off-white", "ribbon1Menu", "#FFFFFE",
        {colors({"#FFFFFE", "#248d4f", "#ffffff"})}, 0, tabOf(ribbonGlyph, "#FFFFFE", "Ribbon1"));
}

void tst_SupplyColors::pick()
{
    QFETCH(const QByteArray, menu);
    QFETCH(const QByteArray, color);
    QFETCH(const QList<QStringList>, reported);
    QFETCH(const int, index);
    PrintPanelFixture panel;
    showTwoRibbons(panel);
    QStringList expectedTabs = panel.tabs();
    QCOMPARE(reportedAfter(panel, menu.constData(), color.constData()), reported);
    QTEST(panel.tab(index), "tabAfter");
    expectedTabs[index] = panel.tab(index);
    QCOMPARE(panel.tabs(), expectedTabs);
}

void tst_SupplyColors::pickingTransparentForABlankRibbonReportsAgain_data()
{
    addColumns<QByteArray, int, QString>("menu", "index", "toolTip");
    addRow("ribbon 1", QByteArray("ribbon1Menu"), 0, "Blank Ribbon1");
    addRow("ribbon 2", QByteArray("ribbon2Menu"), 1, "Blank Ribbon2");
}

void tst_SupplyColors::pickingTransparentForABlankRibbonReportsAgain()
{
    QFETCH(const QByteArray, menu);
    QFETCH(const int, index);
    QFETCH(const QString, toolTip);
    PrintPanelFixture panel;
    panel.showSupplyInfo(colors({"#fffffe", "#fffffe", "#ffffff"}), true, 4.0, 0, false);
    const QList<QStringList> expected{colors({"#fffffe", "#fffffe", "#ffffff"})};
    for (int i = 0; i < 2; ++i) {
        panel.colorTabs()->setTabText(index, QStringLiteral("spoilt"));
        QCOMPARE(reportedAfter(panel, menu.constData(), "transparent"), expected);
        QCOMPARE(panel.tab(index), tabOf(blankGlyph, "blank", toolTip.toLatin1().constData()));
    }
}

void tst_SupplyColors::pickingTransparentForAClearSupplyReportsNothing()
{
    PrintPanelFixture panel;
    panel.showSupplyInfo(colors({"#dc0b0b", "#fffffe"}), false, 4.0, 0, false);
    QCOMPARE(reportedAfter(panel, "supplyMenu", "transparent"), QList<QStringList>());
    QCOMPARE(reportedAfter(panel, "supplyMenu", "#fffffe"), QList<QStringList>());
    QCOMPARE(panel.tab(1), tabOf(supplyGlyph, "transparent", "Supply"));
}

void tst_SupplyColors::theOffWhiteCodeItselfCounts()
{
    PrintPanelFixture panel;
    showTwoRibbons(panel);
    // Not the word "transparent", so it is a colour like any other on a ribbon's tab.
    QCOMPARE(reportedAfter(panel, "ribbon1Menu", "#fffffe"),
             QList<QStringList>{colors({"#fffffe", "#248d4f", "#ffffff"})});
    QCOMPARE(panel.tab(0), tabOf(ribbonGlyph, "#fffffe", "Ribbon1"));
    QCOMPARE(reportedAfter(panel, "ribbon1Menu", "#fffffe"), QList<QStringList>());
    QCOMPARE(reportedAfter(panel, "supplyMenu", "#fffffe"),
             QList<QStringList>{colors({"#fffffe", "#248d4f", "#fffffe"})});
    QCOMPARE(panel.tab(2), tabOf(supplyGlyph, "#fffffe", "Supply"));
}

void tst_SupplyColors::oneRibbonReportsAnEmptySecondEntry()
{
    PrintPanelFixture panel;
    panel.showSupplyInfo(colors({"#dc0b0b", "#ffffff"}), false, 4.0, 0, false);
    QCOMPARE(reportedAfter(panel, "supplyMenu", "#fedb00"),
             QList<QStringList>{colors({"#dc0b0b", "", "#fedb00"})});
    QCOMPARE(reportedAfter(panel, "ribbon1Menu", "#000000"),
             QList<QStringList>{colors({"#000000", "", "#fedb00"})});
}

void tst_SupplyColors::theSecondRibbonComesBackWithItsColour()
{
    PrintPanelFixture panel;
    panel.showSupplyInfo(colors({"#dc0b0b", "#ffffff"}), false, 4.0, 0, false);
    showTwoRibbons(panel);
    QCOMPARE(reportedAfter(panel, "ribbon2Menu", "#000000"),
             QList<QStringList>{colors({"#dc0b0b", "#000000", "#ffffff"})});
    QCOMPARE(panel.tab(1), tabOf(ribbonGlyph, "#000000", "Ribbon2"));
    panel.showSupplyInfo(colors({"#dc0b0b", "#fffffe", "#ffffff"}), true, 4.0, 0, false);
    QCOMPARE(reportedAfter(panel, "supplyMenu", "#fedb00"),
             QList<QStringList>{colors({"#dc0b0b", "#fffffe", "#fedb00"})});
}

void tst_SupplyColors::clickOnASwatchReachesTheHost()
{
    PrintPanelFixture panel;
    showTwoRibbons(panel);
    QVERIFY(showPanel(panel));
    panel.colorTabs()->setCurrentIndex(2);
    const QSignalSpy spy(&panel, colorsSignal);
    auto* swatch =
        panel.colorMenu("supplyMenu")->findChild<QAbstractButton*>(QStringLiteral("#7238ab"));
    QVERIFY(swatch && swatch->isVisible());
    QTest::mouseClick(swatch, Qt::LeftButton);
    QCOMPARE(spy.size(), 1);
    QCOMPARE(spy.first().first().toStringList(), colors({"#dc0b0b", "#248d4f", "#7238ab"}));
    QCOMPARE(panel.tab(2), tabOf(supplyGlyph, "#7238ab", "Supply"));
    QCOMPARE(selectedColor(panel.colorMenu("supplyMenu")), QStringLiteral("#7238ab"));
}

void tst_SupplyColors::slotsDoNotTouchTheMenusSelection()
{
    PrintPanelFixture panel;
    showTwoRibbons(panel);
    reportedAfter(panel, "ribbon1Menu", "#000000");
    reportedAfter(panel, "supplyMenu", "#000000");
    QCOMPARE(selectedColor(panel.colorMenu("ribbon1Menu")), QStringLiteral("#dc0b0b"));
    QCOMPARE(selectedColor(panel.colorMenu("supplyMenu")), QStringLiteral("#ffffff"));
}

void tst_SupplyColors::everyMenuIsConnectedOnce()
{
    PrintPanelFixture panel;
    for (const bool two : {true, false, true})
        panel.showSupplyInfo(colors({"#fffffe", "#fffffe", "#ffffff"}), two, 4.0, 0, false);
    // A blank ribbon reports at every "transparent", so that a double connection shows.
    QCOMPARE(reportedAfter(panel, "ribbon1Menu", "transparent").size(), 1);
    QCOMPARE(reportedAfter(panel, "ribbon2Menu", "transparent").size(), 1);
    QCOMPARE(reportedAfter(panel, "supplyMenu", "#000000").size(), 1);
}

void tst_SupplyColors::slotsBeforeTheSectionExistsDoNothing_data()
{
    QTest::addColumn<QByteArray>("slot");
    for (const char* slot :
         {"ribbon1ColorSelectionSlot", "ribbon2ColorSelectionSlot", "supplyColorSelectionSlot"})
        QTest::newRow(slot) << QByteArray(slot);
}

void tst_SupplyColors::slotsBeforeTheSectionExistsDoNothing()
{
    QFETCH(const QByteArray, slot);
    PrintPanelFixture panel;
    for (const char* color : {"#000000", "transparent", ""})
        QVERIFY(QMetaObject::invokeMethod(&panel, slot.constData(),
                                          Q_ARG(QString, QString::fromLatin1(color))));
    panel.createSupplyInfoLayout();
    QCOMPARE(panel.tabs().size(), 3);
    QVERIFY(QMetaObject::invokeMethod(&panel, slot.constData(),
                                      Q_ARG(QString, QStringLiteral("#fedb00"))));
    QCOMPARE(panel.tabs().filter(QStringLiteral("#fedb00")).size(), 1);
}

void tst_SupplyColors::addMenuToStack()
{
    PrintPanelFixture panel;
    showTwoRibbons(panel);
    auto* menu = new ColorMenu(nullptr);
    menu->setObjectName(QStringLiteral("fourth"));
    menu->setColorPalette(colors({"#111111", "#222222"}), {});
    panel.addMenuToStack(1, QStringLiteral("#222222"), QStringLiteral("T"), QStringLiteral("tip"),
                         menu);
    QCOMPARE(panel.tab(1), tabOf(QStringLiteral("T"), "#222222", "tip"));
    QCOMPARE(panel.stackPages(), colors({"ribbon1Menu", "fourth", "ribbon2Menu", "supplyMenu"}));
    QCOMPARE(selectedColor(menu), QStringLiteral("#222222"));
    QVERIFY(panel.isAncestorOf(menu));
    // The rectangles of the others moved with their tabs.
    QCOMPARE(panel.tab(2), tabOf(ribbonGlyph, "#248d4f", "Ribbon2"));
    QCOMPARE(panel.tab(3), tabOf(supplyGlyph, "#ffffff", "Supply"));
}

void tst_SupplyColors::addMenuToStackWithoutAMenuOrASection()
{
    PrintPanelFixture panel;
    const auto menu = std::make_unique<ColorMenu>(nullptr);
    const QString color = QStringLiteral("#000000");
    panel.addMenuToStack(0, color, color, color, menu.get());
    QCOMPARE(menu->parent(), nullptr);
    showTwoRibbons(panel);
    const QStringList before = panel.tabs();
    panel.addMenuToStack(0, color, color, color, nullptr);
    QCOMPARE(panel.tabs(), before);
    QCOMPARE(panel.colorStack()->count(), 3);
}

void tst_SupplyColors::updateColorSelection()
{
    PrintPanelFixture panel;
    showTwoRibbons(panel);
    const QSignalSpy spy(&panel, colorsSignal);
    panel.updateColorSelection(1, QStringLiteral("#0018a8"), panel.colorMenu("ribbon2Menu"));
    QCOMPARE(panel.tab(1), tabOf(ribbonGlyph, "#0018a8", "Ribbon2"));
    QCOMPARE(selectedColor(panel.colorMenu("ribbon2Menu")), QStringLiteral("#0018a8"));
    QCOMPARE(spy.size(), 0);
}

void tst_SupplyColors::updateColorSelectionWithOddArguments()
{
    PrintPanelFixture panel;
    ColorMenu menu(nullptr);
    panel.updateColorSelection(0, QStringLiteral("#000000"), &menu);
    panel.updateColorSelection(0, QStringLiteral("#000000"), nullptr);
    showTwoRibbons(panel);
    const QStringList before = panel.tabs();
    panel.updateColorSelection(7, QStringLiteral("#000000"), &menu);
    panel.updateColorSelection(-1, QStringLiteral("#000000"), &menu);
    panel.updateColorSelection(INT_MAX, QStringLiteral("#000000"), &menu);
    panel.updateColorSelection(INT_MIN, QString(), &menu);
    QCOMPARE(panel.tabs(), before);
}

QTEST_MAIN(tst_SupplyColors)
#include "tst_supplycolors.moc"
