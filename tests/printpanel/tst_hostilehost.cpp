// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "printpanelfixture.h"
#include "support/deleter.h"
#include "support/stricttest.h"

#include <colormenu.h>
#include <expandingtabbar.h>
#include <printpanels/printwidget.h>

#include <QtCore/QPointer>
#include <QtCore/QRandomGenerator>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>

#include <climits>
#include <functional>

namespace {

/** A panel on which everything can be clicked, on the heap because its host may delete it. */
PrintPanelFixture* newFullPanel()
{
    auto* panel = new PrintPanelFixture(true);
    panel->enableAllButtons();
    panel->updateListOfPrinters({QStringLiteral("Alpha"), QStringLiteral("Beta")}, 0);
    panel->setVisibleAmmoniaTag(15);
    panel->showSupplyInfo(colors({"#dc0b0b", "#248d4f", "#ffffff"}), true, 4.0, 0, true);
    return panel;
}

QAbstractButton* swatch(const PrintPanelFixture& panel, const char* menu, const char* code)
{
    return panel.colorMenu(menu)->findChild<QAbstractButton*>(QLatin1String(code));
}

using Action = std::function<void(PrintPanelFixture&)>;

struct ActionRow
{
    const char* name;
    const char* signal;
    Action action;
};

/** What a user does, and the signal that it causes. */
QList<ActionRow> userActions()
{
    const auto click = [](const char* name) -> Action {
        return [name](PrintPanelFixture& panel) { panel.part<QAbstractButton>(name)->click(); };
    };
    const auto pick = [](const char* menu) -> Action {
        return [menu](PrintPanelFixture& panel) { swatch(panel, menu, "#000000")->click(); };
    };
    return {
        {"print", SIGNAL(widgetPrintSignal(int, int, QString)), click("PrintButton")},
        {"preview", SIGNAL(printPreviewSignal(int, int, QString)), click("PreviewButton")},
        {"preferences", SIGNAL(openPreferencesSignal()), click("PreferencesButton")},
        {"error", SIGNAL(testPrintError(int)), click("showErrorButton")},
        {"ladder", SIGNAL(tinyLadderSupplyChangedSignal(bool)), click("tinyLadderCheck")},
        {"ribbon 1", SIGNAL(supplyColorsChangedSignal(QStringList)), pick("ribbon1Menu")},
        {"ribbon 2", SIGNAL(supplyColorsChangedSignal(QStringList)), pick("ribbon2Menu")},
        {"supply", SIGNAL(supplyColorsChangedSignal(QStringList)), pick("supplyMenu")},
    };
}

} // namespace

/** Calls in odd order, odd values, and hosts that delete the panel under its feet. */
class tst_HostileHost : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void deletedInAHandler_data();
    void deletedInAHandler();
    void deletedByAMouseClick_data();
    void deletedByAMouseClick();
    void deletedSoonInAHandler_data();
    void deletedSoonInAHandler();
    void deletedSoonInTheOtherHandlers();
    void deletedWithoutEverBeingShown();

    void extremeIntegers_data();
    void extremeIntegers();
    void extremeTexts_data();
    void extremeTexts();
    void everyPrivateSlotByNameOnANewPanel_data();
    void everyPrivateSlotByNameOnANewPanel();
    void printersChangedInsideTheSelectionHandler();
    void supplyChangedInsideTheColourHandler();
    void recordsChangedInsideThePrintHandler();
    void randomCallsInAnyOrder();
};

void tst_HostileHost::deletedInAHandler_data()
{
    QTest::addColumn<int>("row");
    int row = 0;
    const QList<ActionRow> actions = userActions();
    for (const ActionRow& action : actions)
        QTest::newRow(action.name) << row++;
}

void tst_HostileHost::deletedInAHandler()
{
    QFETCH(const int, row);
    const ActionRow action = userActions().at(row);
    const QPointer<PrintPanelFixture> panel(newFullPanel());
    Deleter host(panel);
    connect(panel, action.signal, &host, SLOT(deleteAtOnce()));
    action.action(*panel);
    QVERIFY(panel.isNull());
}

void tst_HostileHost::deletedByAMouseClick_data()
{
    addColumns<QByteArray, QByteArray>("button", "signal");
    addRow("print", QByteArray("PrintButton"),
           QByteArray(SIGNAL(widgetPrintSignal(int, int, QString))));
    addRow("preview", QByteArray("PreviewButton"),
           QByteArray(SIGNAL(printPreviewSignal(int, int, QString))));
    addRow("preferences", QByteArray("PreferencesButton"),
           QByteArray(SIGNAL(openPreferencesSignal())));
    addRow("error", QByteArray("showErrorButton"), QByteArray(SIGNAL(testPrintError(int))));
}

void tst_HostileHost::deletedByAMouseClick()
{
    QFETCH(const QByteArray, button);
    QFETCH(const QByteArray, signal);
    const QPointer<PrintPanelFixture> panel(newFullPanel());
    Deleter host(panel);
    QVERIFY(showPanel(*panel));
    connect(panel, signal.constData(), &host, SLOT(deleteAtOnce()));
    auto* widget = panel->part<QAbstractButton>(button.constData());
    QTest::mousePress(widget, Qt::LeftButton);
    QTest::mouseRelease(widget, Qt::LeftButton);
    QVERIFY(panel.isNull());
}

void tst_HostileHost::deletedSoonInAHandler_data()
{
    deletedInAHandler_data();
}

void tst_HostileHost::deletedSoonInAHandler()
{
    QFETCH(const int, row);
    const ActionRow action = userActions().at(row);
    const QPointer<PrintPanelFixture> panel(newFullPanel());
    Deleter host(panel);
    QVERIFY(showPanel(*panel));
    connect(panel, action.signal, &host, SLOT(deleteSoon()));
    action.action(*panel);
    QVERIFY(panel);
    QTRY_VERIFY(panel.isNull());
}

void tst_HostileHost::deletedSoonInTheOtherHandlers()
{
    const QList<ActionRow> actions = {
        {"printer", SIGNAL(currentPrinterSelectionChanged(QString)),
         [](PrintPanelFixture& panel) {
             panel.part<QComboBox>("PrinterListCombo")->setCurrentIndex(1);
         }},
        {"tag", SIGNAL(ammoniaPrintTagChanged(int)),
         [](PrintPanelFixture& panel) {
             panel.part<QComboBox>("AmmoniaPrintCombo")->setCurrentIndex(2);
         }},
        {"width", SIGNAL(supplyWidthChangedSignal(double)),
         [](PrintPanelFixture& panel) {
             panel.widthEdit()->setText(QStringLiteral("9"));
             Q_EMIT panel.widthEdit()->editingFinished();
         }},
        {"show", SIGNAL(printWidgetShowSignal()), [](PrintPanelFixture& panel) { panel.show(); }},
    };
    for (const ActionRow& action : actions) {
        const QPointer<PrintPanelFixture> panel(newFullPanel());
        Deleter host(panel);
        connect(panel, action.signal, &host, SLOT(deleteSoon()));
        action.action(*panel);
        QVERIFY2(panel, action.name);
        QTRY_VERIFY2(panel.isNull(), action.name);
    }
}

void tst_HostileHost::deletedWithoutEverBeingShown()
{
    delete newFullPanel();
    delete new PrintWidget(true, nullptr);
    QWidget host;
    auto* panel = new PrintWidget(false, &host);
    panel->setColorPalette(colors({"#111111"}), {});
}

void tst_HostileHost::extremeIntegers_data()
{
    QTest::addColumn<int>("value");
    for (const int value : {INT_MAX, INT_MIN, -1, 0, INT_MAX - 1, INT_MIN + 1})
        QTest::addRow("%d", value) << value;
}

void tst_HostileHost::extremeIntegers()
{
    QFETCH(const int, value);
    PrintPanelFixture panel(true);
    panel.setNumberOfCopies(value);
    panel.updateListOfPrinters(colors({"a", "b"}), value);
    panel.updateCurrentRangeIndex(value);
    panel.setRangeValues(value, value, true);
    panel.setVisibleAmmoniaTag(value);
    for (const char* name : {"currentRecordRadio", "allRecordsRadio", "recordListRadio"}) {
        panel.part<QAbstractButton>(name)->click();
        panel.part<QLineEdit>("recordListEdit")->setText(QStringLiteral("1-2147483647,4"));
        panel.updateCurrentRangeIndex(value);
        panel.setRangeValues(value, value, false);
        panel.setRangeValues(0, value, true);
    }
    QVERIFY(panel.getNumberOfCopies() >= 1);
    QVERIFY(panel.getNumberOfCopies() <= 999);
    QVERIFY(showPanel(panel));
}

void tst_HostileHost::extremeTexts_data()
{
    QTest::addColumn<QString>("text");
    addRow("null", QString());
    addRow("empty", "");
    addRow("a megabyte", QString(1024 * 1024, u'W'));
    addRow("markup", "<h1>x</h1><img src=\":/no\"><a href=\"x\">y</a>");
    addRow("style sheet", "} * { color: red; }");
    addRow("surrogates", QString(QChar(0xd800)) + QChar(0xdfff) + QChar(0xdc00));
    addRow("null characters", QString(5, QChar(u'\0')));
    addRow("place markers", "%1 %2 %n %L1");
    addRow("right to left override", QString(QChar(0x202e)) + QStringLiteral("abc"));
    addRow("lines", "a\r\nb\u2028c\u2029d");
}

void tst_HostileHost::extremeTexts()
{
    QFETCH(const QString, text);
    PrintPanelFixture panel(true);
    panel.updateListOfPrinters({text, text}, 1);
    panel.addPrinterToList(text, true);
    panel.setSelectedPrinter(text);
    QCOMPARE(panel.getSelectedPrinter(), text);
    panel.updatePrinterLocation(text);
    panel.showSupplyInfo({text, text, text}, true, 4.0, 1, true);
    panel.setColorPalette({text, text}, {text});
    Q_EMIT panel.colorMenu("ribbon1Menu")->colorSignal(text);
    Q_EMIT panel.colorMenu("supplyMenu")->colorSignal(text + u'x');
    panel.part<QLineEdit>("recordListEdit")->setText(text);
    panel.widthEdit()->setText(text);
    Q_EMIT panel.widthEdit()->editingFinished();
    panel.part<QAbstractButton>("recordListRadio")->click();
    QVERIFY(showPanel(panel));
    QVERIFY(!panel.grab().isNull());
}

void tst_HostileHost::everyPrivateSlotByNameOnANewPanel_data()
{
    QTest::addColumn<int>("index");
    const QMetaObject& meta = PrintWidget::staticMetaObject;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        if (meta.method(i).access() == QMetaMethod::Private)
            QTest::newRow(meta.method(i).methodSignature().constData()) << i;
    }
}

void tst_HostileHost::everyPrivateSlotByNameOnANewPanel()
{
    QFETCH(const int, index);
    for (const bool testControls : {false, true}) {
        PrintPanelFixture panel(testControls);
        const QMetaMethod slot = panel.metaObject()->method(index);
        const bool takesText =
            slot.parameterCount() == 1 && slot.parameterType(0) == QMetaType::QString;
        const bool takesNumber =
            slot.parameterCount() == 1 && slot.parameterType(0) == QMetaType::Int;
        for (const int number : {0, 1, -1, INT_MAX, INT_MIN}) {
            if (takesText)
                QVERIFY(slot.invoke(&panel, Q_ARG(QString, QString::number(number))));
            else if (takesNumber)
                QVERIFY(slot.invoke(&panel, Q_ARG(int, number)));
            else
                QVERIFY(slot.invoke(&panel));
        }
        QVERIFY(showPanel(panel));
    }
}

void tst_HostileHost::printersChangedInsideTheSelectionHandler()
{
    PrintPanelFixture panel;
    panel.updateListOfPrinters(colors({"a", "b", "c"}), 0);
    int received = 0;
    connect(&panel, &PrintWidgetInterface::currentPrinterSelectionChanged, this,
            [&](const QString& name) {
                ++received;
                panel.updateListOfPrinters(colors({"c", "b", "a"}), 0);
                panel.setSelectedPrinter(name);
            });
    auto* combo = panel.part<QComboBox>("PrinterListCombo");
    combo->setCurrentIndex(1);
    QCOMPARE(received, 1);
    QCOMPARE(panel.getSelectedPrinter(), QStringLiteral("b"));
    combo->setCurrentIndex(2);
    QCOMPARE(received, 2);
    QCOMPARE(panel.getSelectedPrinter(), QStringLiteral("a"));
}

void tst_HostileHost::supplyChangedInsideTheColourHandler()
{
    PrintPanelFixture panel;
    panel.showSupplyInfo(colors({"#dc0b0b", "#248d4f", "#ffffff"}), true, 4.0, 0, false);
    QList<QStringList> received;
    connect(&panel, &PrintWidgetInterface::supplyColorsChangedSignal, this,
            [&](const QStringList& reported) {
                received.append(reported);
                panel.setColorPalette(colors({"#111111"}), colors({"#222222"}));
                panel.showSupplyInfo(colors({"#dc0b0b", "#ffffff"}), false, 2.0, 1, false);
            });
    swatch(panel, "ribbon2Menu", "#000000")->click();
    QCOMPARE(received, QList<QStringList>{colors({"#dc0b0b", "#000000", "#ffffff"})});
    QCOMPARE(panel.tabs(), QStringList({tabOf(ribbonGlyph, "#dc0b0b", "Ribbon1"),
                                        tabOf(supplyGlyph, "#ffffff", "Supply")}));
    QCOMPARE(shownColors(panel.colorMenu("supplyMenu")), colors({"#222222"}));
}

void tst_HostileHost::recordsChangedInsideThePrintHandler()
{
    PrintPanelFixture panel;
    panel.enablePrintButtons();
    QList<Request> received;
    connect(&panel, &PrintWidgetInterface::widgetPrintSignal, this,
            [&](int start, int end, const QString& list) {
                received.append({start, end, list});
                panel.updateCurrentRangeIndex(start);
                panel.setRangeValues(start, start + 3, true);
            });
    panel.part<QAbstractButton>("PrintButton")->click();
    panel.part<QAbstractButton>("PrintButton")->click();
    QCOMPARE(received, (QList<Request>{{1, -1, QString()}, {2, -1, QString()}}));
}

void tst_HostileHost::randomCallsInAnyOrder()
{
    QRandomGenerator random(8);
    const auto number = [&random] { return random.bounded(-3, 12); };
    const auto yes = [&random] { return random.bounded(2) == 1; };
    const auto codes = [&random] {
        const QStringList all =
            colors({"#fffffe", "#000000", "#FFFFFE", "transparent", "blank", "", "x"});
        QStringList some;
        for (int i = random.bounded(4); i > 0; --i)
            some.append(all.at(random.bounded(int(all.size()))));
        return some;
    };
    const QList<std::function<void(PrintPanelFixture&)>> calls = {
        [&](PrintPanelFixture& panel) {
            panel.setModule(static_cast<JxModuleInfo::JxModuleTypes>(random.bounded(16)));
        },
        [&](PrintPanelFixture& panel) { panel.setVisibleAmmoniaTag(number()); },
        [&](PrintPanelFixture& panel) {
            panel.showSupplyInfo(codes(), yes(), number(), static_cast<unsigned char>(number()),
                                 yes());
        },
        [&](PrintPanelFixture& panel) { panel.hideSupplyInfo(); },
        [&](PrintPanelFixture& panel) { panel.setColorPalette(codes(), codes()); },
        [&](PrintPanelFixture& panel) { panel.setRangeValues(number(), number(), yes()); },
        [&](PrintPanelFixture& panel) { panel.updateCurrentRangeIndex(number()); },
        [&](PrintPanelFixture& panel) { panel.setNupSeqRepVisible(yes()); },
        [&](PrintPanelFixture& panel) { panel.setNupDynamicLength(yes()); },
        [&](PrintPanelFixture& panel) { panel.updateListOfPrinters(codes(), number()); },
        [&](PrintPanelFixture& panel) { panel.addPrinterToList(QString::number(number()), yes()); },
        [&](PrintPanelFixture& panel) { panel.createSupplyInfoLayout(); },
        [&](PrintPanelFixture& panel) { panel.createAmmoniaComboList(); },
        [&](PrintPanelFixture& panel) { panel.listRangeParse(); },
        [&](PrintPanelFixture& panel) { yes() ? panel.show() : panel.hide(); },
        [&](PrintPanelFixture& panel) {
            const QList<QAbstractButton*> buttons = panel.findChildren<QAbstractButton*>();
            buttons.at(random.bounded(int(buttons.size())))->click();
        },
    };
    for (int round = 0; round < 20; ++round) {
        PrintPanelFixture panel(yes());
        for (int step = 0; step < 100; ++step)
            calls.at(random.bounded(int(calls.size())))(panel);
        // Whatever happened, the panel is in order.
        QCOMPARE(panel.findChildren<QComboBox*>(QStringLiteral("PrinterListCombo")).size(), 1);
        if (const ExpandingTabBar* bar = panel.colorTabs()) {
            QVERIFY(bar->count() == 2 || bar->count() == 3);
            QCOMPARE(panel.stackPages().size(), bar->count());
        }
    }
}

QTEST_MAIN(tst_HostileHost)
#include "tst_hostilehost.moc"
