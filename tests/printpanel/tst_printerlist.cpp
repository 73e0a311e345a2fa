// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "printpanelfixture.h"
#include "support/stricttest.h"

#include <printpanels/printwidget.h>

#include <QtTest/QSignalSpy>
#include <QtWidgets/QComboBox>

#include <climits>

namespace {

QStringList itemTexts(const QComboBox* combo)
{
    QStringList texts;
    for (int i = 0; i < combo->count(); ++i)
        texts.append(combo->itemText(i));
    return texts;
}

const QStringList threePrinters = {QStringLiteral("Alpha"), QStringLiteral("Beta"),
                                   QStringLiteral("Gamma")};

} // namespace

class tst_PrinterList : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void listIsFilledInOrderWithToolTips();
    void emptyListShowsNoPrinter_data();
    void emptyListShowsNoPrinter();
    void indexSelectsThePrinter_data();
    void indexSelectsThePrinter();
    void aNewListReplacesTheOldOne();

    void addingAtTheTopMakesItCurrent();
    void addingAtTheEndKeepsTheCurrentPrinter();
    void addingToAnEmptyListMakesItCurrent_data();
    void addingToAnEmptyListMakesItCurrent();

    void selectingByName();
    void selectingAnUnknownNameChangesOnlyTheToolTip();
    void namesAreComparedLetterForLetter();

    void onlyTheUserIsReported();
    void theUsersChoiceIsReportedOnce();
    void theConnectionStandsOnceAfterEveryHostOperation();
    void slotTakesTheTextAtItsIndex_data();
    void slotTakesTheTextAtItsIndex();

    void hostileNamesStayAsTheyAre_data();
    void hostileNamesStayAsTheyAre();
};

void tst_PrinterList::listIsFilledInOrderWithToolTips()
{
    PrintPanelFixture panel;
    panel.updateListOfPrinters(threePrinters, 1);
    const QComboBox* combo = panel.printerCombo();
    QCOMPARE(itemTexts(combo), threePrinters);
    for (int i = 0; i < 3; ++i)
        QCOMPARE(combo->itemData(i, Qt::ToolTipRole).toString(), threePrinters.at(i));
    QCOMPARE(panel.getSelectedPrinter(), QStringLiteral("Beta"));
    QCOMPARE(combo->toolTip(), QStringLiteral("Beta"));
}

void tst_PrinterList::emptyListShowsNoPrinter_data()
{
    QTest::addColumn<int>("index");
    for (const int index : {0, 1, 7, -1, INT_MAX, INT_MIN})
        QTest::addRow("index %d", index) << index;
}

void tst_PrinterList::emptyListShowsNoPrinter()
{
    QFETCH(const int, index);
    PrintPanelFixture panel;
    panel.updateListOfPrinters(threePrinters, 1);
    panel.updateListOfPrinters({}, index);
    const QComboBox* combo = panel.printerCombo();
    QCOMPARE(itemTexts(combo), QStringList(QStringLiteral("No printer")));
    QVERIFY(!combo->itemData(0, Qt::ToolTipRole).isValid());
    QCOMPARE(combo->currentIndex(), 0);
    QCOMPARE(panel.getSelectedPrinter(), QStringLiteral("No printer"));
    QCOMPARE(combo->toolTip(), QStringLiteral("No printer"));
}

void tst_PrinterList::indexSelectsThePrinter_data()
{
    addColumns<int, int>("index", "current");
    addRow("first", 0, 0);
    addRow("last", 2, 2);
    addRow("none", -1, -1);
    addRow("beyond the last", 3, -1);
    addRow("highest", INT_MAX, -1);
    addRow("lowest", INT_MIN, -1);
}

void tst_PrinterList::indexSelectsThePrinter()
{
    QFETCH(const int, index);
    QFETCH(const int, current);
    PrintPanelFixture panel;
    panel.updateListOfPrinters(threePrinters, index);
    const QComboBox* combo = panel.printerCombo();
    QCOMPARE(combo->currentIndex(), current);
    QCOMPARE(panel.getSelectedPrinter(), threePrinters.value(current));
    QCOMPARE(combo->toolTip(), threePrinters.value(current));
}

void tst_PrinterList::aNewListReplacesTheOldOne()
{
    PrintPanelFixture panel;
    panel.updateListOfPrinters(threePrinters, 2);
    panel.updateListOfPrinters({QStringLiteral("Delta"), QStringLiteral("Delta")}, 1);
    QCOMPARE(itemTexts(panel.printerCombo()),
             QStringList({QStringLiteral("Delta"), QStringLiteral("Delta")}));
    QCOMPARE(panel.printerCombo()->currentIndex(), 1);
}

void tst_PrinterList::addingAtTheTopMakesItCurrent()
{
    PrintPanelFixture panel;
    panel.updateListOfPrinters(threePrinters, 2);
    panel.addPrinterToList(QStringLiteral("New"), true);
    const QComboBox* combo = panel.printerCombo();
    QCOMPARE(itemTexts(combo), QStringList(QStringLiteral("New")) + threePrinters);
    QCOMPARE(combo->currentIndex(), 0);
    QCOMPARE(combo->itemData(0, Qt::ToolTipRole).toString(), QStringLiteral("New"));
    QCOMPARE(combo->toolTip(), QStringLiteral("New"));
}

void tst_PrinterList::addingAtTheEndKeepsTheCurrentPrinter()
{
    PrintPanelFixture panel;
    panel.updateListOfPrinters(threePrinters, 1);
    panel.addPrinterToList(QStringLiteral("New"), false);
    const QComboBox* combo = panel.printerCombo();
    QCOMPARE(itemTexts(combo), threePrinters + QStringList(QStringLiteral("New")));
    QCOMPARE(combo->itemData(3, Qt::ToolTipRole).toString(), QStringLiteral("New"));
    QCOMPARE(panel.getSelectedPrinter(), QStringLiteral("Beta"));
    QCOMPARE(combo->toolTip(), QStringLiteral("Beta"));
}

void tst_PrinterList::addingToAnEmptyListMakesItCurrent_data()
{
    QTest::addColumn<bool>("atTop");
    addRow("at the top", true);
    addRow("at the end", false);
}

void tst_PrinterList::addingToAnEmptyListMakesItCurrent()
{
    QFETCH(const bool, atTop);
    PrintPanelFixture panel;
    panel.addPrinterToList(QStringLiteral("Only"), atTop);
    QCOMPARE(panel.getSelectedPrinter(), QStringLiteral("Only"));
    QCOMPARE(panel.printerCombo()->currentIndex(), 0);
    QCOMPARE(panel.printerCombo()->toolTip(), QStringLiteral("Only"));
}

void tst_PrinterList::selectingByName()
{
    PrintPanelFixture panel;
    panel.updateListOfPrinters(threePrinters, 0);
    panel.setSelectedPrinter(QStringLiteral("Gamma"));
    QCOMPARE(panel.getSelectedPrinter(), QStringLiteral("Gamma"));
    QCOMPARE(panel.printerCombo()->currentIndex(), 2);
    QCOMPARE(panel.printerCombo()->toolTip(), QStringLiteral("Gamma"));
}

void tst_PrinterList::selectingAnUnknownNameChangesOnlyTheToolTip()
{
    PrintPanelFixture panel;
    panel.updateListOfPrinters(threePrinters, 1);
    panel.setSelectedPrinter(QStringLiteral("Omega"));
    QCOMPARE(panel.getSelectedPrinter(), QStringLiteral("Beta"));
    QCOMPARE(itemTexts(panel.printerCombo()), threePrinters);
    QCOMPARE(panel.printerCombo()->toolTip(), QStringLiteral("Omega"));
}

void tst_PrinterList::namesAreComparedLetterForLetter()
{
    PrintPanelFixture panel;
    panel.updateListOfPrinters(threePrinters, 1);
    panel.setSelectedPrinter(QStringLiteral("gamma"));
    QCOMPARE(panel.getSelectedPrinter(), QStringLiteral("Beta"));
    panel.setSelectedPrinter(QStringLiteral("Gam"));
    QCOMPARE(panel.getSelectedPrinter(), QStringLiteral("Beta"));
    panel.setSelectedPrinter(QString());
    QCOMPARE(panel.getSelectedPrinter(), QStringLiteral("Beta"));
}

void tst_PrinterList::onlyTheUserIsReported()
{
    PrintPanelFixture panel;
    const QSignalSpy changed(&panel, SIGNAL(currentPrinterSelectionChanged(QString)));
    panel.updateListOfPrinters(threePrinters, 2);
    panel.updateListOfPrinters(threePrinters, 1);
    panel.addPrinterToList(QStringLiteral("Top"), true);
    panel.addPrinterToList(QStringLiteral("End"), false);
    panel.setSelectedPrinter(QStringLiteral("Gamma"));
    panel.setSelectedPrinter(QStringLiteral("nobody"));
    panel.updateListOfPrinters({}, 0);
    QCOMPARE(changed.size(), 0);
}

void tst_PrinterList::theUsersChoiceIsReportedOnce()
{
    PrintPanelFixture panel;
    panel.updateListOfPrinters(threePrinters, 0);
    QVERIFY(showPanel(panel));
    QSignalSpy changed(&panel, SIGNAL(currentPrinterSelectionChanged(QString)));
    QTest::keyClick(panel.printerCombo(), Qt::Key_Down);
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed.takeFirst(), QVariantList{QStringLiteral("Beta")});
    QCOMPARE(panel.printerCombo()->toolTip(), QStringLiteral("Beta"));
    QTest::keyClick(panel.printerCombo(), Qt::Key_End);
    QCOMPARE(changed.takeFirst(), QVariantList{QStringLiteral("Gamma")});
    QCOMPARE(panel.getSelectedPrinter(), QStringLiteral("Gamma"));
    // The same one again is no change.
    QTest::keyClick(panel.printerCombo(), Qt::Key_End);
    QCOMPARE(changed.size(), 0);
}

void tst_PrinterList::theConnectionStandsOnceAfterEveryHostOperation()
{
    PrintPanelFixture panel;
    panel.updateListOfPrinters(threePrinters, 0);
    panel.updateListOfPrinters(threePrinters, 0);
    panel.addPrinterToList(QStringLiteral("End"), false);
    panel.setSelectedPrinter(QStringLiteral("Alpha"));
    panel.setSelectedPrinter(QStringLiteral("Alpha"));
    QSignalSpy changed(&panel, SIGNAL(currentPrinterSelectionChanged(QString)));
    panel.printerCombo()->setCurrentIndex(3);
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed.first(), QVariantList{QStringLiteral("End")});
}

void tst_PrinterList::slotTakesTheTextAtItsIndex_data()
{
    addColumns<int, QString>("index", "text");
    addRow("an item that is not the current one", 2, "Gamma");
    addRow("no item", -1, QString());
    addRow("beyond the last", 3, QString());
    addRow("highest", INT_MAX, QString());
}

void tst_PrinterList::slotTakesTheTextAtItsIndex()
{
    QFETCH(const int, index);
    QFETCH(const QString, text);
    PrintPanelFixture panel;
    panel.updateListOfPrinters(threePrinters, 0);
    const QSignalSpy changed(&panel, SIGNAL(currentPrinterSelectionChanged(QString)));
    QVERIFY(
        QMetaObject::invokeMethod(&panel, "currentPrinterSelectionChangedSlot", Q_ARG(int, index)));
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed.first(), QVariantList{text});
    QCOMPARE(panel.printerCombo()->toolTip(), text);
}

void tst_PrinterList::hostileNamesStayAsTheyAre_data()
{
    QTest::addColumn<QString>("name");
    addRow("markup", "<h1>Press</h1><img src=':/x'>");
    addRow("empty", QString());
    addRow("blanks", "   ");
    addRow("control characters", "a\tb\nc");
    addRow("long", QString(100000, u'x'));
    addRow("No printer", "No printer");
    addRow("place marker", "%1 %n");
}

void tst_PrinterList::hostileNamesStayAsTheyAre()
{
    QFETCH(const QString, name);
    PrintPanelFixture panel;
    panel.updateListOfPrinters({QStringLiteral("Alpha"), name}, 1);
    QCOMPARE(panel.getSelectedPrinter(), name);
    QCOMPARE(panel.printerCombo()->toolTip(), name);
    QCOMPARE(panel.printerCombo()->itemData(1, Qt::ToolTipRole).toString(), name);
    panel.addPrinterToList(name, true);
    QCOMPARE(panel.getSelectedPrinter(), name);
    QSignalSpy changed(&panel, SIGNAL(currentPrinterSelectionChanged(QString)));
    panel.printerCombo()->setCurrentIndex(1);
    panel.printerCombo()->setCurrentIndex(0);
    QCOMPARE(changed.at(1), QVariantList{name});
    QVERIFY(showPanel(panel));
}

QTEST_MAIN(tst_PrinterList)
#include "tst_printerlist.moc"
