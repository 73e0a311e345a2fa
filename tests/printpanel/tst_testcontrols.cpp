// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "printpanelfixture.h"
#include "support/layoutdescription.h"
#include "support/stricttest.h"

#include <printpanels/printwidget.h>

#include <QtTest/QSignalSpy>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QVBoxLayout>

#include <climits>

namespace {

QSpinBox* errorNumber(const PrintPanelFixture& panel)
{
    return panel.part<QSpinBox>("errorNumberSpinBox");
}

const char* const errorSignal = SIGNAL(testPrintError(int));

} // namespace

class tst_TestControls : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void withoutTheFlagThereIsNoBlock();
    void blockStandsAboveThePrintButtons();
    void printToFileCheck();
    void errorRow();
    void errorNumberSpinBox();
    void showButton();

    void printToFileFollowsTheUser();
    void showEmitsTheNumber_data();
    void showEmitsTheNumber();
    void numberStaysInItsRange_data();
    void numberStaysInItsRange();
    void numberIsSteppedByKeys();
    void slotWithoutTheBlockEmitsNothing();
};

void tst_TestControls::withoutTheFlagThereIsNoBlock()
{
    PrintPanelFixture panel;
    QCOMPARE(panel.part<QWidget>("printToFileCheck"), nullptr);
    QCOMPARE(panel.part<QWidget>("errorNumberSpinBox"), nullptr);
    QCOMPARE(panel.part<QWidget>("showErrorButton"), nullptr);
    QCOMPARE(labelWithText(panel, QStringLiteral("Error number: ")), nullptr);
    QCOMPARE(panel.getPrintToFileEnabled(), false);
    QVERIFY(showPanel(panel));
    QCOMPARE(panel.getPrintToFileEnabled(), false);
}

void tst_TestControls::blockStandsAboveThePrintButtons()
{
    const PrintPanelFixture panel(true);
    const QStringList rows = layoutDescription(panel.layout());
    const qsizetype count = rows.size();
    QCOMPARE(
        rows.mid(count - 9),
        QStringList({QStringLiteral("separator"), QStringLiteral("spacer 15x15 Minimum/Minimum"),
                     QStringLiteral("separator"), QStringLiteral("spacer 1x15 Minimum/Minimum"),
                     QStringLiteral("QCheckBox printToFileCheck"),
                     QStringLiteral("spacer 1x15 Minimum/Minimum"), QStringLiteral("QHBoxLayout"),
                     QStringLiteral("separator"), QStringLiteral("QGridLayout")}));
    QCOMPARE(panel.layout()->itemAt(int(count) - 9)->widget(),
             panel.part<QWidget>("bottomSeparator"));
    QVERIFY(itemHolds(panel.layout()->itemAt(int(count) - 1), panel.part<QWidget>("PrintButton")));
}

void tst_TestControls::printToFileCheck()
{
    const PrintPanelFixture panel(true);
    const auto* check = panel.part<QCheckBox>("printToFileCheck");
    QCOMPARE(check->parentWidget(), &panel);
    QCOMPARE(check->text(),
             QStringLiteral("Print to file:\n\" guest / logs / printTest_iii . prn \""));
    QVERIFY(!check->isChecked());
    QVERIFY(!check->isHidden());
    QCOMPARE(check->styleSheet().size(), 466);
    QVERIFY(check->styleSheet().startsWith(
        QStringLiteral("QCheckBox::indicator { width: 41px; height: 37px; }\n")));
}

void tst_TestControls::errorRow()
{
    const PrintPanelFixture panel(true);
    QLayout* row = layoutHolding(panel.layout(), errorNumber(panel));
    QVERIFY(qobject_cast<QHBoxLayout*>(row));
    QCOMPARE(row->itemAt(0)->widget(), labelWithText(panel, QStringLiteral("Error number: ")));
    QCOMPARE(indexOfWidget(row, errorNumber(panel)), 1);
    QCOMPARE(indexOfWidget(row, panel.part<QPushButton>("showErrorButton")), 2);
}

void tst_TestControls::errorNumberSpinBox()
{
    const PrintPanelFixture panel(true);
    const QSpinBox* box = errorNumber(panel);
    QVERIFY(box->inherits("JxSpinBox"));
    QCOMPARE(box->minimum(), 0);
    QCOMPARE(box->maximum(), 25);
    QCOMPARE(box->value(), 0);
    QCOMPARE(box->maximumSize(), QSize(60, 35));
    QCOMPARE(box->minimumWidth(), 60);
    QCOMPARE(box->buttonSymbols(), QAbstractSpinBox::NoButtons);
}

void tst_TestControls::showButton()
{
    const PrintPanelFixture panel(true);
    const auto* button = panel.part<QPushButton>("showErrorButton");
    QVERIFY(button->inherits("DragScrollButton"));
    QCOMPARE(button->text(), QStringLiteral("Show"));
    QVERIFY(button->isEnabled());
    QCOMPARE(button->styleSheet().size(), 507);
    QVERIFY(button->styleSheet().contains(QStringLiteral("min-height: 35px; }")));
}

void tst_TestControls::printToFileFollowsTheUser()
{
    PrintPanelFixture panel(true);
    QVERIFY(showPanel(panel));
    QCOMPARE(panel.getPrintToFileEnabled(), false);
    clickOn(panel.part<QCheckBox>("printToFileCheck"));
    QCOMPARE(panel.getPrintToFileEnabled(), true);
    panel.hide();
    QCOMPARE(panel.getPrintToFileEnabled(), true);
    QVERIFY(showPanel(panel));
    clickOn(panel.part<QCheckBox>("printToFileCheck"));
    QCOMPARE(panel.getPrintToFileEnabled(), false);
}

void tst_TestControls::showEmitsTheNumber_data()
{
    QTest::addColumn<int>("number");
    for (const int number : {0, 1, 13, 25})
        QTest::addRow("%d", number) << number;
}

void tst_TestControls::showEmitsTheNumber()
{
    QFETCH(const int, number);
    PrintPanelFixture panel(true);
    QVERIFY(showPanel(panel));
    QSignalSpy errors(&panel, errorSignal);
    errorNumber(panel)->setValue(number);
    QCOMPARE(errors.size(), 0);
    clickOn(panel.part<QPushButton>("showErrorButton"));
    QCOMPARE(errors.size(), 1);
    QCOMPARE(errors.takeFirst(), QVariantList{number});
    QVERIFY(QMetaObject::invokeMethod(&panel, "testErrorCodeSlot"));
    QCOMPARE(errors.takeFirst(), QVariantList{number});
}

void tst_TestControls::numberStaysInItsRange_data()
{
    addColumns<int, int>("asked", "number");
    addRow("26", 26, 25);
    addRow("-1", -1, 0);
    addRow("highest", INT_MAX, 25);
    addRow("lowest", INT_MIN, 0);
}

void tst_TestControls::numberStaysInItsRange()
{
    QFETCH(const int, asked);
    PrintPanelFixture panel(true);
    errorNumber(panel)->setValue(asked);
    QTEST(errorNumber(panel)->value(), "number");
}

void tst_TestControls::numberIsSteppedByKeys()
{
    PrintPanelFixture panel(true);
    QVERIFY(showPanel(panel));
    QTest::keyClick(errorNumber(panel), Qt::Key_Up);
    QTest::keyClick(errorNumber(panel), Qt::Key_Up);
    QCOMPARE(errorNumber(panel)->value(), 2);
    errorNumber(panel)->setValue(25);
    QTest::keyClick(errorNumber(panel), Qt::Key_Up);
    QCOMPARE(errorNumber(panel)->value(), 25);
    errorNumber(panel)->selectAll();
    QTest::keyClicks(errorNumber(panel), QStringLiteral("26"));
    QCOMPARE(errorNumber(panel)->value(), 2);
}

void tst_TestControls::slotWithoutTheBlockEmitsNothing()
{
    PrintPanelFixture panel;
    const QSignalSpy errors(&panel, errorSignal);
    QVERIFY(QMetaObject::invokeMethod(&panel, "testErrorCodeSlot"));
    QCOMPARE(errors.size(), 0);
}

QTEST_MAIN(tst_TestControls)
#include "tst_testcontrols.moc"
