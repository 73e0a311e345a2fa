// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "supplyprobe.h"
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
PrintWidget* newFullPanel()
{
    auto* panel = new PrintWidget(true, nullptr);
    panel->enableAllButtons();
    panel->updateListOfPrinters({QStringLiteral("Alpha"), QStringLiteral("Beta")}, 0);
    panel->setVisibleAmmoniaTag(15);
    panel->showSupplyInfo(colors({"#dc0b0b", "#248d4f", "#ffffff"}), true, 4.0, 0, true);
    return panel;
}

QAbstractButton* swatch(const PrintWidget& panel, const char* menu, const char* code)
{
    return colorMenu(panel, menu)->findChild<QAbstractButton*>(QLatin1String(code));
}

using Action = std::function<void(PrintWidget&)>;

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
        return [name](PrintWidget& panel) { part<QAbstractButton>(panel, name)->click(); };
    };
    const auto pick = [](const char* menu) -> Action {
        return [menu](PrintWidget& panel) { swatch(panel, menu, "#000000")->click(); };
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

/** Deletes its panel, at once or later, when the panel emits. */
class Deleter : public QObject
{
    Q_OBJECT

public:
    explicit Deleter(PrintWidget* victim) : panel(victim) {}

    QPointer<PrintWidget> panel;

public Q_SLOTS:
    void deleteNow() { delete panel.data(); }
    void deleteSoon()
    {
        if (panel)
            panel->deleteLater();
    }
};

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
    Deleter host(newFullPanel());
    connect(host.panel, action.signal, &host, SLOT(deleteNow()));
    action.action(*host.panel);
    QVERIFY(host.panel.isNull());
}

void tst_HostileHost::deletedByAMouseClick_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<QByteArray>("signal");
    QTest::newRow("print") << QByteArray("PrintButton")
                           << QByteArray(SIGNAL(widgetPrintSignal(int, int, QString)));
    QTest::newRow("preview") << QByteArray("PreviewButton")
                             << QByteArray(SIGNAL(printPreviewSignal(int, int, QString)));
    QTest::newRow("preferences") << QByteArray("PreferencesButton")
                                 << QByteArray(SIGNAL(openPreferencesSignal()));
    QTest::newRow("error") << QByteArray("showErrorButton")
                           << QByteArray(SIGNAL(testPrintError(int)));
}

void tst_HostileHost::deletedByAMouseClick()
{
    QFETCH(const QByteArray, button);
    QFETCH(const QByteArray, signal);
    Deleter host(newFullPanel());
    QVERIFY(showPanel(*host.panel));
    connect(host.panel, signal.constData(), &host, SLOT(deleteNow()));
    auto* widget = part<QAbstractButton>(*host.panel, button.constData());
    QTest::mousePress(widget, Qt::LeftButton);
    QTest::mouseRelease(widget, Qt::LeftButton);
    QVERIFY(host.panel.isNull());
}

void tst_HostileHost::deletedSoonInAHandler_data()
{
    deletedInAHandler_data();
}

void tst_HostileHost::deletedSoonInAHandler()
{
    QFETCH(const int, row);
    const ActionRow action = userActions().at(row);
    Deleter host(newFullPanel());
    QVERIFY(showPanel(*host.panel));
    connect(host.panel, action.signal, &host, SLOT(deleteSoon()));
    action.action(*host.panel);
    QVERIFY(host.panel);
    QTRY_VERIFY(host.panel.isNull());
}

void tst_HostileHost::deletedSoonInTheOtherHandlers()
{
    const QList<ActionRow> actions = {
        {"printer", SIGNAL(currentPrinterSelectionChanged(QString)),
         [](PrintWidget& panel) {
             part<QComboBox>(panel, "PrinterListCombo")->setCurrentIndex(1);
         }},
        {"tag", SIGNAL(ammoniaPrintTagChanged(int)),
         [](PrintWidget& panel) {
             part<QComboBox>(panel, "AmmoniaPrintCombo")->setCurrentIndex(2);
         }},
        {"width", SIGNAL(supplyWidthChangedSignal(double)),
         [](PrintWidget& panel) {
             widthEdit(panel)->setText(QStringLiteral("9"));
             Q_EMIT widthEdit(panel)->editingFinished();
         }},
        {"show", SIGNAL(printWidgetShowSignal()), [](PrintWidget& panel) { panel.show(); }},
    };
    for (const ActionRow& action : actions) {
        Deleter host(newFullPanel());
        connect(host.panel, action.signal, &host, SLOT(deleteSoon()));
        action.action(*host.panel);
        QVERIFY2(host.panel, action.name);
        QTRY_VERIFY2(host.panel.isNull(), action.name);
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
    PrintWidget panel(true, nullptr);
    panel.setNumberOfCopies(value);
    panel.updateListOfPrinters(colors({"a", "b"}), value);
    panel.updateCurrentRangeIndex(value);
    panel.setRangeValues(value, value, true);
    panel.setVisibleAmmoniaTag(value);
    for (const char* name : {"currentRecordRadio", "allRecordsRadio", "recordListRadio"}) {
        part<QAbstractButton>(panel, name)->click();
        part<QLineEdit>(panel, "recordListEdit")->setText(QStringLiteral("1-2147483647,4"));
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
    QTest::newRow("null") << QString();
    QTest::newRow("empty") << QStringLiteral("");
    QTest::newRow("a megabyte") << QString(1024 * 1024, u'W');
    QTest::newRow("markup") << QStringLiteral("<h1>x</h1><img src=\":/no\"><a href=\"x\">y</a>");
    QTest::newRow("style sheet") << QStringLiteral("} * { color: red; }");
    QTest::newRow("surrogates") << QString(QChar(0xd800)) + QChar(0xdfff) + QChar(0xdc00);
    QTest::newRow("null characters") << QString(5, QChar(u'\0'));
    QTest::newRow("place markers") << QStringLiteral("%1 %2 %n %L1");
    QTest::newRow("right to left override") << QString(QChar(0x202e)) + QStringLiteral("abc");
    QTest::newRow("lines") << QStringLiteral("a\r\nb\u2028c\u2029d");
}

void tst_HostileHost::extremeTexts()
{
    QFETCH(const QString, text);
    PrintWidget panel(true, nullptr);
    panel.updateListOfPrinters({text, text}, 1);
    panel.addPrinterToList(text, true);
    panel.setSelectedPrinter(text);
    QCOMPARE(panel.getSelectedPrinter(), text);
    panel.updatePrinterLocation(text);
    panel.showSupplyInfo({text, text, text}, true, 4.0, 1, true);
    panel.setColorPalette({text, text}, {text});
    Q_EMIT colorMenu(panel, "ribbon1Menu")->colorSignal(text);
    Q_EMIT colorMenu(panel, "supplyMenu")->colorSignal(text + u'x');
    part<QLineEdit>(panel, "recordListEdit")->setText(text);
    widthEdit(panel)->setText(text);
    Q_EMIT widthEdit(panel)->editingFinished();
    part<QAbstractButton>(panel, "recordListRadio")->click();
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
        PrintWidget panel(testControls, nullptr);
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
    PrintWidget panel(false, nullptr);
    panel.updateListOfPrinters(colors({"a", "b", "c"}), 0);
    int heard = 0;
    connect(&panel, &PrintWidgetInterface::currentPrinterSelectionChanged, this,
            [&](const QString& name) {
                ++heard;
                panel.updateListOfPrinters(colors({"c", "b", "a"}), 0);
                panel.setSelectedPrinter(name);
            });
    auto* combo = part<QComboBox>(panel, "PrinterListCombo");
    combo->setCurrentIndex(1);
    QCOMPARE(heard, 1);
    QCOMPARE(panel.getSelectedPrinter(), QStringLiteral("b"));
    combo->setCurrentIndex(2);
    QCOMPARE(heard, 2);
    QCOMPARE(panel.getSelectedPrinter(), QStringLiteral("a"));
}

void tst_HostileHost::supplyChangedInsideTheColourHandler()
{
    PrintWidget panel(false, nullptr);
    panel.showSupplyInfo(colors({"#dc0b0b", "#248d4f", "#ffffff"}), true, 4.0, 0, false);
    QList<QStringList> heard;
    connect(&panel, &PrintWidgetInterface::supplyColorsChangedSignal, this,
            [&](const QStringList& reported) {
                heard.append(reported);
                panel.setColorPalette(colors({"#111111"}), colors({"#222222"}));
                panel.showSupplyInfo(colors({"#dc0b0b", "#ffffff"}), false, 2.0, 1, false);
            });
    swatch(panel, "ribbon2Menu", "#000000")->click();
    QCOMPARE(heard, QList<QStringList>{colors({"#dc0b0b", "#000000", "#ffffff"})});
    QCOMPARE(tabs(panel), QStringList({tabOf(ribbonGlyph, "#dc0b0b", "Ribbon1"),
                                       tabOf(supplyGlyph, "#ffffff", "Supply")}));
    QCOMPARE(shownColors(colorMenu(panel, "supplyMenu")), colors({"#222222"}));
}

void tst_HostileHost::recordsChangedInsideThePrintHandler()
{
    PrintWidget panel(false, nullptr);
    panel.enablePrintButtons();
    QList<Request> heard;
    connect(&panel, &PrintWidgetInterface::widgetPrintSignal, this,
            [&](int start, int end, const QString& list) {
                heard.append({start, end, list});
                panel.updateCurrentRangeIndex(start);
                panel.setRangeValues(start, start + 3, true);
            });
    part<QAbstractButton>(panel, "PrintButton")->click();
    part<QAbstractButton>(panel, "PrintButton")->click();
    QCOMPARE(heard, (QList<Request>{{1, -1, QString()}, {2, -1, QString()}}));
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
    const QList<std::function<void(PrintWidget&)>> calls = {
        [&](PrintWidget& panel) {
            panel.setModule(static_cast<JxModuleInfo::JxModuleTypes>(random.bounded(16)));
        },
        [&](PrintWidget& panel) { panel.setVisibleAmmoniaTag(number()); },
        [&](PrintWidget& panel) {
            panel.showSupplyInfo(codes(), yes(), number(), static_cast<unsigned char>(number()),
                                 yes());
        },
        [&](PrintWidget& panel) { panel.hideSupplyInfo(); },
        [&](PrintWidget& panel) { panel.setColorPalette(codes(), codes()); },
        [&](PrintWidget& panel) { panel.setRangeValues(number(), number(), yes()); },
        [&](PrintWidget& panel) { panel.updateCurrentRangeIndex(number()); },
        [&](PrintWidget& panel) { panel.setNupSeqRepVisible(yes()); },
        [&](PrintWidget& panel) { panel.setNupDynamicLength(yes()); },
        [&](PrintWidget& panel) { panel.updateListOfPrinters(codes(), number()); },
        [&](PrintWidget& panel) { panel.addPrinterToList(QString::number(number()), yes()); },
        [&](PrintWidget& panel) { panel.createSupplyInfoLayout(); },
        [&](PrintWidget& panel) { panel.createAmmoniaComboList(); },
        [&](PrintWidget& panel) { panel.listRangeParse(); },
        [&](PrintWidget& panel) { yes() ? panel.show() : panel.hide(); },
        [&](PrintWidget& panel) {
            const QList<QAbstractButton*> buttons = panel.findChildren<QAbstractButton*>();
            buttons.at(random.bounded(int(buttons.size())))->click();
        },
    };
    for (int round = 0; round < 20; ++round) {
        PrintWidget panel(yes(), nullptr);
        for (int step = 0; step < 100; ++step)
            calls.at(random.bounded(int(calls.size())))(panel);
        // Whatever happened, the panel is in order.
        QCOMPARE(panel.findChildren<QComboBox*>(QStringLiteral("PrinterListCombo")).size(), 1);
        if (const ExpandingTabBar* bar = colorTabs(panel)) {
            QVERIFY(bar->count() == 2 || bar->count() == 3);
            QCOMPARE(stackPages(panel).size(), bar->count());
        }
    }
}

QTEST_MAIN(tst_HostileHost)
#include "tst_hostilehost.moc"
