// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "multipagefixture.h"
#include "support/stricttest.h"

#include <jxcombobox.h>
#include <printpanels/multipageprintwidget.h>

#include <QtTest/QSignalSpy>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QPushButton>

namespace {

JxComboBox* printers(const MultiPageFixture& panel)
{
    return panel.part<JxComboBox>("PrinterListCombo");
}

QStringList names()
{
    return {QStringLiteral("Alpha"), QStringLiteral("Beta"), QStringLiteral("alpha"),
            QStringLiteral("Beta"), QStringLiteral("")};
}

/** The user opens the list and clicks on an item. */
void pick(JxComboBox* combo, int row)
{
    combo->showPopup();
    QAbstractItemView* view = combo->view();
    QVERIFY(QTest::qWaitForWindowExposed(view->window()));
    const QModelIndex index = combo->model()->index(row, 0);
    view->scrollTo(index);
    // The list ignores a release that comes too soon after it opened.
    QTest::qWait(QApplication::doubleClickInterval() + 50);
    const QPoint place = view->visualRect(index).center();
    QTest::mouseMove(view->viewport(), place);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QTRY_VERIFY(!view->isVisible());
}

} // namespace

/** Printer list, selection and settings button. */
class tst_MultiPagePrinter : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void listReplacesAndSelects_data();
    void listReplacesAndSelects();
    void listEmitsNothing();
    void noPrinterIsAPlainItem();
    void selectionByName_data();
    void selectionByName();
    void selectionEmitsNothing();
    void selectionBeforeTheFirstList();
    void theComboBoxIsNotTouchedBeforeTheFirstList();

    void pickingAnotherPrinterIsReportedByIndexAndByPick();
    void pickingTheSamePrinterIsReportedOnce();
    void keyboardChoiceIsReported();
    void indexChangeIsReportedOnceHoweverOftenTheListWasFilled();
    void slotReportsTheItemsText_data();
    void slotReportsTheItemsText();
    void settingsButtonOpensThePreferences();
};

void tst_MultiPagePrinter::listReplacesAndSelects_data()
{
    addColumns<QStringList, int, QStringList, int>("list", "index", "items", "current");
    const QStringList none;
    const QStringList noPrinter = {QStringLiteral("No printer")};
    addRow("first", names(), 0, names(), 0);
    addRow("last", names(), 4, names(), 4);
    addRow("none", names(), -1, names(), -1);
    addRow("index beyond the end", names(), 5, names(), -1);
    addRow("index far below", names(), std::numeric_limits<int>::min(), names(), -1);
    addRow("index far above", names(), std::numeric_limits<int>::max(), names(), -1);
    addRow("empty, 0", none, 0, noPrinter, 0);
    addRow("empty, -1", none, -1, noPrinter, 0);
    addRow("empty, 3", none, 3, noPrinter, 0);
    addRow("empty, far above", none, std::numeric_limits<int>::max(), noPrinter, 0);
}

void tst_MultiPagePrinter::listReplacesAndSelects()
{
    QFETCH(const QStringList, list);
    QFETCH(const int, index);
    QFETCH(const QStringList, items);
    QFETCH(const int, current);
    MultiPageFixture panel;
    panel.updateListOfPrinters({QStringLiteral("Old")}, 0);
    panel.updateListOfPrinters(list, index);
    QStringList shown;
    for (int i = 0; i < printers(panel)->count(); ++i)
        shown.append(printers(panel)->itemText(i));
    QCOMPARE(shown, items);
    QCOMPARE(printers(panel)->currentIndex(), current);
    QCOMPARE(panel.getSelectedPrinter(), current < 0 ? QString() : items.at(current));
}

void tst_MultiPagePrinter::listEmitsNothing()
{
    MultiPageFixture panel;
    QSignalSpy changed(&panel, &PrintWidgetInterface::currentPrinterSelectionChanged);
    panel.updateListOfPrinters({}, 0);
    panel.updateListOfPrinters(names(), 1);
    panel.updateListOfPrinters(names(), 3);
    panel.updateListOfPrinters(names(), -1);
    panel.updateListOfPrinters({}, 0);
    QCOMPARE(changed.size(), 0);
}

void tst_MultiPagePrinter::noPrinterIsAPlainItem()
{
    MultiPageFixture panel;
    panel.updateListOfPrinters({}, 0);
    QCOMPARE(printers(panel)->count(), 1);
    QVERIFY(printers(panel)->itemIcon(0).isNull());
    QVERIFY(!printers(panel)->itemData(0).isValid());
    QVERIFY(!printers(panel)->itemData(0, Qt::ToolTipRole).isValid());
}

void tst_MultiPagePrinter::selectionByName_data()
{
    addColumns<QString, int>("name", "current");
    addRow("exact", "Beta", 1);
    addRow("the other case", "alpha", 2);
    addRow("differs only in case", "BETA", -1);
    addRow("part of a name", "Bet", -1);
    addRow("pattern", "B*", -1);
    addRow("unknown", "Gamma", -1);
    addRow("empty name that exists", "", 4);
}

void tst_MultiPagePrinter::selectionByName()
{
    QFETCH(const QString, name);
    QFETCH(const int, current);
    MultiPageFixture panel;
    panel.updateListOfPrinters(names(), 0);
    panel.setSelectedPrinter(name);
    QCOMPARE(printers(panel)->currentIndex(), current);
    QCOMPARE(panel.getSelectedPrinter(), current < 0 ? QString() : name);
}

void tst_MultiPagePrinter::selectionEmitsNothing()
{
    MultiPageFixture panel;
    panel.updateListOfPrinters(names(), 0);
    QSignalSpy changed(&panel, &PrintWidgetInterface::currentPrinterSelectionChanged);
    for (const char* name : {"Beta", "Beta", "unknown", "Alpha"})
        panel.setSelectedPrinter(QLatin1String(name));
    QCOMPARE(changed.size(), 0);
    // The user's next choice is heard again.
    printers(panel)->setCurrentIndex(1);
    QCOMPARE(takeTexts(changed), QStringList({QStringLiteral("Beta")}));
}

void tst_MultiPagePrinter::selectionBeforeTheFirstList()
{
    MultiPageFixture panel;
    QSignalSpy changed(&panel, &PrintWidgetInterface::currentPrinterSelectionChanged);
    panel.setSelectedPrinter(QStringLiteral("Alpha"));
    QCOMPARE(panel.getSelectedPrinter(), QString());
    QCOMPARE(changed.size(), 0);
}

void tst_MultiPagePrinter::theComboBoxIsNotTouchedBeforeTheFirstList()
{
    const MultiPageFixture panel;
    QCOMPARE(printers(panel)->count(), 0);
    QVERIFY(!printers(panel)->isEditable());
    QSignalSpy changed(&panel, &PrintWidgetInterface::currentPrinterSelectionChanged);
    printers(panel)->addItem(QStringLiteral("by hand"));
    QCOMPARE(printers(panel)->currentIndex(), 0);
    QCOMPARE(changed.size(), 0);
}

void tst_MultiPagePrinter::pickingAnotherPrinterIsReportedByIndexAndByPick()
{
    MultiPageFixture panel;
    panel.updateListOfPrinters(names(), 0);
    QVERIFY(showActive(panel));
    QSignalSpy changed(&panel, &PrintWidgetInterface::currentPrinterSelectionChanged);
    pick(printers(panel), 1);
    QCOMPARE(panel.getSelectedPrinter(), QStringLiteral("Beta"));
    QCOMPARE(takeTexts(changed), QStringList({QStringLiteral("Beta"), QStringLiteral("Beta")}));
}

void tst_MultiPagePrinter::pickingTheSamePrinterIsReportedOnce()
{
    MultiPageFixture panel;
    panel.updateListOfPrinters(names(), 1);
    QVERIFY(showActive(panel));
    QSignalSpy changed(&panel, &PrintWidgetInterface::currentPrinterSelectionChanged);
    pick(printers(panel), 1);
    QCOMPARE(takeTexts(changed), QStringList({QStringLiteral("Beta")}));
}

void tst_MultiPagePrinter::keyboardChoiceIsReported()
{
    MultiPageFixture panel;
    panel.updateListOfPrinters(names(), 0);
    QVERIFY(showActive(panel));
    QSignalSpy changed(&panel, &PrintWidgetInterface::currentPrinterSelectionChanged);
    printers(panel)->setFocus();
    QTest::keyClick(printers(panel), Qt::Key_Down);
    QCOMPARE(panel.getSelectedPrinter(), QStringLiteral("Beta"));
    QCOMPARE(takeTexts(changed), QStringList({QStringLiteral("Beta"), QStringLiteral("Beta")}));
}

void tst_MultiPagePrinter::indexChangeIsReportedOnceHoweverOftenTheListWasFilled()
{
    MultiPageFixture panel;
    for (int i = 0; i < 3; ++i)
        panel.updateListOfPrinters(names(), 0);
    QSignalSpy changed(&panel, &PrintWidgetInterface::currentPrinterSelectionChanged);
    printers(panel)->setCurrentIndex(2);
    QCOMPARE(takeTexts(changed), QStringList({QStringLiteral("alpha")}));
}

void tst_MultiPagePrinter::slotReportsTheItemsText_data()
{
    addColumns<int, QString>("index", "name");
    addRow("first", 0, "Alpha");
    addRow("fourth", 3, "Beta");
    addRow("none", -1, QString());
    addRow("beyond the end", 5, QString());
    addRow("highest", std::numeric_limits<int>::max(), QString());
}

void tst_MultiPagePrinter::slotReportsTheItemsText()
{
    QFETCH(const int, index);
    QFETCH(const QString, name);
    MultiPageFixture panel;
    panel.updateListOfPrinters(names(), 2);
    QSignalSpy changed(&panel, &PrintWidgetInterface::currentPrinterSelectionChanged);
    panel.currentPrinterSelectionChangedSlot(index);
    QCOMPARE(takeTexts(changed), QStringList({name}));
    QCOMPARE(panel.getSelectedPrinter(), QStringLiteral("alpha"));
}

void tst_MultiPagePrinter::settingsButtonOpensThePreferences()
{
    MultiPageFixture panel;
    QSignalSpy opened(&panel, &PrintWidgetInterface::openPreferencesSignal);
    auto* button = panel.part<QPushButton>("PreferencesButton");
    clickOn(button);
    QCOMPARE(opened.size(), 1);
    panel.disableAllButtons();
    clickOn(button);
    QCOMPARE(opened.size(), 2);
}

QTEST_MAIN(tst_MultiPagePrinter)
#include "tst_multipageprinter.moc"
