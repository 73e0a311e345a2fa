// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "printpanelfixture.h"
#include "support/stricttest.h"

#include <colormenu.h>
#include <printpanels/printwidget.h>

#include <QtWidgets/QComboBox>

/** The panel shows what the user chose before it tells the host. */
class tst_SignalOrder : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void tabShowsTheColorWhenTheHostIsNotified_data();
    void tabShowsTheColorWhenTheHostIsNotified();
    void comboToolTipNamesThePrinterWhenTheHostIsNotified_data();
    void comboToolTipNamesThePrinterWhenTheHostIsNotified();
};

void tst_SignalOrder::tabShowsTheColorWhenTheHostIsNotified_data()
{
    addColumns<QStringList, QByteArray, QString, int, QString>("loaded", "menu", "color", "index",
                                                               "expected");
    const auto row = [](const char* name, std::initializer_list<const char*> loaded,
                        const char* menu, const char* color, int index, const QString& expected) {
        QTest::newRow(name) << colors(loaded) << QByteArray(menu) << QString::fromLatin1(color)
                            << index << expected;
    };
    // From blank to a colour and back, so that text, rectangle and tool tip all change.
    row("ribbon 1, a colour", {"#fffffe", "#000000", "#ffffff"}, "ribbon1Menu", "#dc0b0b", 0,
        tabOf(ribbonGlyph, "#dc0b0b", "Ribbon1"));
    row("ribbon 1, transparent", {"#dc0b0b", "#000000", "#ffffff"}, "ribbon1Menu", "transparent", 0,
        tabOf(blankGlyph, "blank", "Blank Ribbon1"));
    row("ribbon 2, a colour", {"#000000", "#fffffe", "#ffffff"}, "ribbon2Menu", "#dc0b0b", 1,
        tabOf(ribbonGlyph, "#dc0b0b", "Ribbon2"));
    row("ribbon 2, transparent", {"#000000", "#dc0b0b", "#ffffff"}, "ribbon2Menu", "transparent", 1,
        tabOf(blankGlyph, "blank", "Blank Ribbon2"));
    row("supply, a colour", {"#000000", "#000000", "#ffffff"}, "supplyMenu", "#fedb00", 2,
        tabOf(supplyGlyph, "#fedb00", "Supply"));
    row("supply, transparent", {"#000000", "#000000", "#ffffff"}, "supplyMenu", "transparent", 2,
        tabOf(supplyGlyph, "transparent", "Supply"));
    row("supply beside one ribbon", {"#000000", "#ffffff"}, "supplyMenu", "#fedb00", 1,
        tabOf(supplyGlyph, "#fedb00", "Supply"));
}

void tst_SignalOrder::tabShowsTheColorWhenTheHostIsNotified()
{
    QFETCH(const QStringList, loaded);
    QFETCH(const QByteArray, menu);
    QFETCH(const QString, color);
    QFETCH(const int, index);
    QFETCH(const QString, expected);
    PrintPanelFixture panel;
    panel.showSupplyInfo(loaded, loaded.size() == 3, 4.0, 0, false);
    QVERIFY(panel.tab(index) != expected);
    QStringList seen;
    connect(&panel, &PrintWidgetInterface::supplyColorsChangedSignal, this,
            [&] { seen.append(panel.tab(index)); });
    Q_EMIT panel.colorMenu(menu.constData())->colorSignal(color);
    QCOMPARE(seen, QStringList(expected));
}

void tst_SignalOrder::comboToolTipNamesThePrinterWhenTheHostIsNotified_data()
{
    QTest::addColumn<bool>("bySlot");
    addRow("the user moves on", false);
    addRow("the slot is called", true);
}

void tst_SignalOrder::comboToolTipNamesThePrinterWhenTheHostIsNotified()
{
    QFETCH(const bool, bySlot);
    PrintPanelFixture panel;
    panel.updateListOfPrinters({QStringLiteral("Alpha"), QStringLiteral("Beta")}, 0);
    QVERIFY(showPanel(panel));
    auto* combo = panel.part<QComboBox>("PrinterListCombo");
    QStringList seen;
    connect(&panel, &PrintWidgetInterface::currentPrinterSelectionChanged, this,
            [&](const QString& name) {
                seen = QStringList{name, combo->toolTip()};
            });
    if (bySlot) {
        QVERIFY(
            QMetaObject::invokeMethod(&panel, "currentPrinterSelectionChangedSlot", Q_ARG(int, 1)));
    } else {
        QTest::keyClick(combo, Qt::Key_Down);
    }
    QCOMPARE(seen, QStringList({QStringLiteral("Beta"), QStringLiteral("Beta")}));
}

QTEST_MAIN(tst_SignalOrder)
#include "tst_signalorder.moc"
