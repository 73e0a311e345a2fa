// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "printpanelfixture.h"
#include "support/stricttest.h"

#include <printpanels/printwidget.h>

#include <QtCore/QSignalBlocker>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QFrame>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QSpinBox>

/** Something of a host's that is connected to a panel by text. */
class Trigger : public QObject
{
    Q_OBJECT

Q_SIGNALS:
    void pulled();
    void counted(int number);
    void named(const QString& text);
};

/** Hosts connect to the panel's private slots by their names; each does its work then. */
class tst_PrivateSlots : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void requestSlotsAskForTheRecords_data();
    void requestSlotsAskForTheRecords();
    void recordsRadioChangedSlotEnablesTheListEdit();
    void listRangeChangedParsesTheListAndAppliesTheNupRules();
    void checkRangeClassifiesWithoutTheNupRules();
    void currentPrinterSelectionChangedSlotReportsTheItem();
    void ammoniaPrintComboChangedReportsTheTag();
    void colorSelectionSlotsReportTheColor_data();
    void colorSelectionSlotsReportTheColor();
    void supplyWidthEditedSlotReportsTheWidth();
    void testErrorCodeSlotReportsTheNumber();
};

void tst_PrivateSlots::requestSlotsAskForTheRecords_data()
{
    addColumns<QByteArray, QByteArray>("slot", "signal");
    addRow("printSlot", QByteArray(SLOT(printSlot())),
           QByteArray(SIGNAL(widgetPrintSignal(int, int, QString))));
    addRow("printPreviewSlot", QByteArray(SLOT(printPreviewSlot())),
           QByteArray(SIGNAL(printPreviewSignal(int, int, QString))));
}

void tst_PrivateSlots::requestSlotsAskForTheRecords()
{
    QFETCH(const QByteArray, slot);
    QFETCH(const QByteArray, signal);
    PrintPanelFixture panel;
    panel.setRangeValues(6, 9, true);
    const QSignalSpy printed(&panel, SIGNAL(widgetPrintSignal(int, int, QString)));
    const QSignalSpy previewed(&panel, SIGNAL(printPreviewSignal(int, int, QString)));
    const QSignalSpy asked(&panel, signal.constData());
    Trigger trigger;
    QVERIFY(connect(&trigger, SIGNAL(pulled()), &panel, slot.constData()));
    Q_EMIT trigger.pulled();
    QCOMPARE(asked.size(), 1);
    QCOMPARE(asked.first(), QVariantList({7, -1, QString()}));
    QCOMPARE(printed.size() + previewed.size(), 1);
}

void tst_PrivateSlots::recordsRadioChangedSlotEnablesTheListEdit()
{
    PrintPanelFixture panel;
    Trigger trigger;
    QVERIFY(connect(&trigger, SIGNAL(pulled()), &panel, SLOT(recordsRadioChangedSlot())));
    panel.part<QRadioButton>("recordListRadio")->setChecked(true);
    QVERIFY(!panel.part<QLineEdit>("recordListEdit")->isEnabled());
    Q_EMIT trigger.pulled();
    QVERIFY(panel.part<QLineEdit>("recordListEdit")->isEnabled());
    QVERIFY(!panel.part<QFrame>("nupFrame")->isEnabled());
}

void tst_PrivateSlots::listRangeChangedParsesTheListAndAppliesTheNupRules()
{
    PrintPanelFixture panel;
    panel.setRangeValues(0, 9, true);
    Trigger trigger;
    QVERIFY(connect(&trigger, SIGNAL(pulled()), &panel, SLOT(listRangeChanged())));
    auto* edit = panel.part<QLineEdit>("recordListEdit");
    const QSignalBlocker quiet(edit);
    edit->setText(QStringLiteral("1,4-5"));
    QVERIFY(!panel.part<QFrame>("nupFrame")->isEnabled());
    Q_EMIT trigger.pulled();
    QVERIFY(panel.part<QFrame>("nupFrame")->isEnabled());
    QCOMPARE(panel.keptRange(), qMakePair(1, 10));
}

void tst_PrivateSlots::checkRangeClassifiesWithoutTheNupRules()
{
    PrintPanelFixture panel;
    panel.setRangeValues(0, 9, true);
    Trigger trigger;
    QVERIFY(connect(&trigger, SIGNAL(pulled()), &panel, SLOT(checkRange())));
    panel.part<QRadioButton>("allRecordsRadio")->setChecked(true);
    QCOMPARE(panel.keptRange(), qMakePair(1, 1));
    Q_EMIT trigger.pulled();
    QCOMPARE(panel.keptRange(), qMakePair(1, 10));
    QVERIFY(!panel.part<QFrame>("nupFrame")->isEnabled());
}

void tst_PrivateSlots::currentPrinterSelectionChangedSlotReportsTheItem()
{
    PrintPanelFixture panel;
    panel.updateListOfPrinters({QStringLiteral("Alpha"), QStringLiteral("Beta")}, 0);
    const QSignalSpy changed(&panel, SIGNAL(currentPrinterSelectionChanged(QString)));
    Trigger trigger;
    QVERIFY(connect(&trigger, SIGNAL(counted(int)), &panel,
                    SLOT(currentPrinterSelectionChangedSlot(int))));
    Q_EMIT trigger.counted(1);
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed.first(), QVariantList{QStringLiteral("Beta")});
}

void tst_PrivateSlots::ammoniaPrintComboChangedReportsTheTag()
{
    PrintPanelFixture panel;
    panel.setModule(JxModuleInfo::PipeMarking);
    panel.setVisibleAmmoniaTag(1 | 8);
    const QSignalSpy changed(&panel, SIGNAL(ammoniaPrintTagChanged(int)));
    Trigger trigger;
    QVERIFY(connect(&trigger, SIGNAL(counted(int)), &panel, SLOT(ammoniaPrintComboChanged(int))));
    Q_EMIT trigger.counted(2);
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed.first(), QVariantList{8});
}

void tst_PrivateSlots::colorSelectionSlotsReportTheColor_data()
{
    addColumns<QByteArray, QStringList>("slot", "reported");
    addRow("ribbon1ColorSelectionSlot", QByteArray(SLOT(ribbon1ColorSelectionSlot(QString))),
           colors({"#fedb00", "#248d4f", "#ffffff"}));
    addRow("ribbon2ColorSelectionSlot", QByteArray(SLOT(ribbon2ColorSelectionSlot(QString))),
           colors({"#dc0b0b", "#fedb00", "#ffffff"}));
    addRow("supplyColorSelectionSlot", QByteArray(SLOT(supplyColorSelectionSlot(QString))),
           colors({"#dc0b0b", "#248d4f", "#fedb00"}));
}

void tst_PrivateSlots::colorSelectionSlotsReportTheColor()
{
    QFETCH(const QByteArray, slot);
    QFETCH(const QStringList, reported);
    PrintPanelFixture panel;
    panel.showSupplyInfo(colors({"#dc0b0b", "#248d4f", "#ffffff"}), true, 4.0, 0, false);
    const QSignalSpy changed(&panel, SIGNAL(supplyColorsChangedSignal(QStringList)));
    Trigger trigger;
    QVERIFY(connect(&trigger, SIGNAL(named(QString)), &panel, slot.constData()));
    Q_EMIT trigger.named(QStringLiteral("#fedb00"));
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed.first(), QVariantList{reported});
    QCOMPARE(panel.tabs().filter(QStringLiteral("#fedb00")).size(), 1);
}

void tst_PrivateSlots::supplyWidthEditedSlotReportsTheWidth()
{
    PrintPanelFixture panel;
    panel.showPlainSupply();
    const QSignalSpy changed(&panel, SIGNAL(supplyWidthChangedSignal(double)));
    Trigger trigger;
    QVERIFY(connect(&trigger, SIGNAL(pulled()), &panel, SLOT(supplyWidthEditedSlot())));
    panel.widthEdit()->setText(QStringLiteral("2.25 in"));
    QCOMPARE(changed.size(), 0);
    Q_EMIT trigger.pulled();
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed.first(), QVariantList{2.25});
}

void tst_PrivateSlots::testErrorCodeSlotReportsTheNumber()
{
    PrintPanelFixture panel(true);
    const QSignalSpy asked(&panel, SIGNAL(testPrintError(int)));
    Trigger trigger;
    QVERIFY(connect(&trigger, SIGNAL(pulled()), &panel, SLOT(testErrorCodeSlot())));
    panel.part<QSpinBox>("errorNumberSpinBox")->setValue(17);
    Q_EMIT trigger.pulled();
    QCOMPARE(asked.size(), 1);
    QCOMPARE(asked.first(), QVariantList{17});
}

QTEST_MAIN(tst_PrivateSlots)
#include "tst_privateslots.moc"
