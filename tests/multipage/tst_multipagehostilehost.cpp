// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "multipagefixture.h"
#include "support/stricttest.h"

#include <printpanels/multipageprintdialog.h>
#include <printpanels/multipageprintwidget.h>

#include <QtTest/QSignalSpy>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QButtonGroup>
#include <QtWidgets/QLineEdit>

#include <functional>
#include <limits>

using Step = std::function<void(MultiPageFixture&)>;
Q_DECLARE_METATYPE(Step)

namespace {

constexpr int lowest = std::numeric_limits<int>::min();
constexpr int highest = std::numeric_limits<int>::max();

void setListQuietly(MultiPageFixture& panel, const QString& list)
{
    auto* edit = panel.pageList();
    const QSignalBlocker blocker(edit);
    edit->setText(list);
}

void choose(MultiPageFixture& panel, const char* radio)
{
    panel.part<QAbstractButton>(radio)->setChecked(true);
}

} // namespace

/** Hosts that delete the panel under its own hands, and values that make no sense. */
class tst_MultiPageHostileHost : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void panelDeletedAtOnceByAClick_data();
    void panelDeletedAtOnceByAClick();
    void dialogDeletedFromThePanelsRequest();
    void panelDeletedLaterFromAnySignal_data();
    void panelDeletedLaterFromAnySignal();
    void numbersWithoutSense_data();
    void numbersWithoutSense();
    void dialogAtAPlaceBeyondAnyScreen_data();
    void dialogAtAPlaceBeyondAnyScreen();
    void longTexts();
    void operationsInAnyOrder();
    void manyPanelsAndDialogs();
};

void tst_MultiPageHostileHost::panelDeletedAtOnceByAClick_data()
{
    QTest::addColumn<Step>("step");
    const auto row = [](const char* name, const Step& step) { QTest::newRow(name) << step; };
    row("click on a radio", [](MultiPageFixture& panel) {
        setListQuietly(panel, QStringLiteral("7"));
        clickOn(panel.part<QAbstractButton>("selectionRadio"));
    });
    row("click on print", [](MultiPageFixture& panel) {
        panel.enablePrintButtons();
        clickOn(panel.part<QAbstractButton>("PrintButton"));
    });
    row("click on settings",
        [](MultiPageFixture& panel) { clickOn(panel.part<QAbstractButton>("PreferencesButton")); });
}

void tst_MultiPageHostileHost::panelDeletedAtOnceByAClick()
{
    QFETCH(const Step, step);
    const QPointer<MultiPageFixture> panel(new MultiPageFixture);
    int reports = 0;
    const auto die = [&reports, panel] {
        ++reports;
        delete panel.data();
    };
    connect(panel, &MultiPagePrintWidget::startPageChangedSignal, this, die);
    connect(panel, &PrintWidgetInterface::widgetPrintSignal, this, die);
    connect(panel, &PrintWidgetInterface::openPreferencesSignal, this, die);
    connect(panel, &PrintWidgetInterface::currentPrinterSelectionChanged, this, die);
    step(*panel);
    QVERIFY(panel.isNull());
    QCOMPARE(reports, 1);
}

void tst_MultiPageHostileHost::dialogDeletedFromThePanelsRequest()
{
    auto* panel = new MultiPageFixture;
    const QPointer<MultiPagePrintDialog> dialog(
        new MultiPagePrintDialog(panel, nullptr, Qt::FramelessWindowHint));
    QVERIFY(showActive(*dialog));
    panel->enableAllButtons();
    connect(panel, &PrintWidgetInterface::widgetPrintSignal, this,
            [dialog] { delete dialog.data(); });
    clickOn(panel->part<QAbstractButton>("PrintButton"));
    QVERIFY(dialog.isNull());
}

void tst_MultiPageHostileHost::panelDeletedLaterFromAnySignal_data()
{
    QTest::addColumn<Step>("step");
    const auto row = [](const char* name, const Step& step) { QTest::newRow(name) << step; };
    row("show", [](MultiPageFixture& panel) { panel.show(); });
    row("list typed",
        [](MultiPageFixture& panel) { panel.pageList()->setText(QStringLiteral("7")); });
    for (const char* name : {"formFillCheck", "fitToPageCheck", "orientationCheck"})
        row(name, [name](MultiPageFixture& panel) { clickOn(panel.part<QAbstractButton>(name)); });
    row("page info", [](MultiPageFixture& panel) { panel.setPageInfo(5, 10, true); });
    row("page info of a changed selection", [](MultiPageFixture& panel) {
        setListQuietly(panel, QStringLiteral("7"));
        choose(panel, "selectionRadio");
        panel.setPageInfo(5, 10, true);
    });
    row("current index", [](MultiPageFixture& panel) { panel.updateCurrentRangeIndex(4); });
    row("current index of an empty selection", [](MultiPageFixture& panel) {
        choose(panel, "selectionRadio");
        panel.updateCurrentRangeIndex(4);
    });
    row("forced update of a selection", [](MultiPageFixture& panel) {
        setListQuietly(panel, QStringLiteral("7"));
        choose(panel, "selectionRadio");
        panel.checkRangeUpdate(true);
    });
    row("parse", [](MultiPageFixture& panel) {
        setListQuietly(panel, QStringLiteral("7"));
        panel.listRangeParse();
    });
    row("print", [](MultiPageFixture& panel) { panel.printSlot(); });
    row("printer", [](MultiPageFixture& panel) { panel.currentPrinterSelectionChangedSlot(0); });
    row("printer chosen", [](MultiPageFixture& panel) {
        panel.updateListOfPrinters({QStringLiteral("A"), QStringLiteral("B")}, 0);
        QTest::keyClick(panel.part<QWidget>("PrinterListCombo"), Qt::Key_Down);
    });
}

void tst_MultiPageHostileHost::panelDeletedLaterFromAnySignal()
{
    QFETCH(const Step, step);
    const QPointer<MultiPageFixture> panel(new MultiPageFixture);
    const QMetaObject* meta = panel->metaObject();
    for (int i = PrintWidgetInterface::staticMetaObject.methodOffset(); i < meta->methodCount();
         ++i) {
        if (meta->method(i).methodType() == QMetaMethod::Signal)
            connect(panel, QByteArray(1, '2') + meta->method(i).methodSignature(), panel,
                    SLOT(deleteLater()));
    }
    step(*panel);
    QVERIFY(panel);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(panel.isNull());
}

void tst_MultiPageHostileHost::numbersWithoutSense_data()
{
    QTest::addColumn<int>("number");
    for (int number : {lowest, -99999, -1, 0, 1, 99999, highest})
        QTest::addRow("%d", number) << number;
}

void tst_MultiPageHostileHost::numbersWithoutSense()
{
    QFETCH(const int, number);
    MultiPageFixture panel;
    QSignalSpy printed(&panel, &PrintWidgetInterface::widgetPrintSignal);
    for (const char* radio : {"currentPageRadio", "allPagesRadio", "selectionRadio"}) {
        choose(panel, radio);
        for (int other : {lowest, -1, 0, 1, highest}) {
            panel.setPageInfo(number, other, true);
            panel.setPageInfo(other, number, false);
            panel.updateCurrentRangeIndex(number);
            panel.updateListOfPrinters({QStringLiteral("A")}, number);
            panel.currentPrinterSelectionChangedSlot(number);
            panel.setNumberOfCopies(number);
            panel.increaseCopyCount();
            panel.decreaseCopyCount();
            panel.printSlot();
            QVERIFY(panel.getNumberOfCopies() >= 1);
        }
    }
    QCOMPARE(printed.size(), 15);
}

void tst_MultiPageHostileHost::dialogAtAPlaceBeyondAnyScreen_data()
{
    addColumns<int, int>("place", "expected");
    addRow("highest", highest, QWIDGETSIZE_MAX);
    addRow("lowest", lowest, -QWIDGETSIZE_MAX);
}

void tst_MultiPageHostileHost::dialogAtAPlaceBeyondAnyScreen()
{
    QFETCH(const int, place);
    QFETCH(const int, expected);
    MultiPagePrintDialog dialog(nullptr, nullptr, Qt::FramelessWindowHint);
    dialog.mouseMoveSlot(place, place);
    QCOMPARE(dialog.pos(), QPoint(expected, expected));
    QCOMPARE(dialog.size(), QSize(1010, 540));
}

void tst_MultiPageHostileHost::longTexts()
{
    MultiPageFixture panel;
    QSignalSpy started(&panel, &MultiPagePrintWidget::startPageChangedSignal);
    panel.setPageInfo(1, 10, true);
    started.clear();
    panel.pageList()->setText(QStringLiteral("9999,").repeated(200000));
    QCOMPARE(takeNumbers(started), QList<int>({-1}));
    const QString name = QStringLiteral("<b>printer</b>\n").repeated(10000);
    panel.updateListOfPrinters({name}, 0);
    QCOMPARE(panel.getSelectedPrinter(), name);
    QVERIFY(!panel.grab().isNull());

    MultiPagePrintDialog dialog(nullptr, nullptr, Qt::FramelessWindowHint);
    dialog.setTitle(name);
    QVERIFY(!dialog.grab().isNull());
    QCOMPARE(dialog.size(), QSize(1010, 540));
}

void tst_MultiPageHostileHost::operationsInAnyOrder()
{
    MultiPageFixture panel(true, true);
    panel.setSelectedPrinter(QString());
    panel.set180OrientationVisible(false);
    panel.set180OrientationCheck(true);
    panel.setFormFillOption(false, false);
    panel.disableAllButtons();
    panel.listRangeParse();
    panel.recordsRadioChangedSlot(true);
    panel.recordsRadioChangedSlot();
    panel.enableAllButtons();
    panel.updateListOfPrinters({QString()}, 0);
    QCOMPARE(panel.getSelectedPrinter(), QString());
    QVERIFY(!panel.grab().isNull());
    // A group without its buttons still answers.
    for (const char* name : {"currentPageRadio", "allPagesRadio", "selectionRadio"}) {
        auto* radio = panel.part<QAbstractButton>(name);
        panel.part<QButtonGroup>("pageRangeButtonGroup")->removeButton(radio);
    }
    panel.recordsRadioChangedSlot(true);
    QVERIFY(panel.pageList()->isEnabled());
}

void tst_MultiPageHostileHost::manyPanelsAndDialogs()
{
    QWidget host;
    for (int i = 0; i < 20; ++i) {
        auto* panel = new MultiPagePrintWidget(i % 2 == 0, false, &host);
        auto* dialog = new MultiPagePrintDialog(panel, &host, Qt::WindowFlags());
        dialog->show();
        if (i % 3 == 0)
            delete dialog;
    }
    QCOMPARE(host.findChildren<MultiPagePrintDialog*>().size(), 13);
    QCOMPARE(host.findChildren<MultiPagePrintWidget*>().size(), 13);
}

QTEST_MAIN(tst_MultiPageHostileHost)
#include "tst_multipagehostilehost.moc"
