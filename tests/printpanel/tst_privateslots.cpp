// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "supplyprobe.h"
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
    QTest::addColumn<QByteArray>("slot");
    QTest::addColumn<QByteArray>("signal");
    QTest::newRow("printSlot") << QByteArray(SLOT(printSlot()))
                               << QByteArray(SIGNAL(widgetPrintSignal(int, int, QString)));
    QTest::newRow("printPreviewSlot") << QByteArray(SLOT(printPreviewSlot()))
                                      << QByteArray(SIGNAL(printPreviewSignal(int, int, QString)));
}

void tst_PrivateSlots::requestSlotsAskForTheRecords()
{
    QFETCH(const QByteArray, slot);
    QFETCH(const QByteArray, signal);
    PrintWidget panel(false, nullptr);
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
    PrintWidget panel(false, nullptr);
    Trigger trigger;
    QVERIFY(connect(&trigger, SIGNAL(pulled()), &panel, SLOT(recordsRadioChangedSlot())));
    part<QRadioButton>(panel, "recordListRadio")->setChecked(true);
    QVERIFY(!part<QLineEdit>(panel, "recordListEdit")->isEnabled());
    Q_EMIT trigger.pulled();
    QVERIFY(part<QLineEdit>(panel, "recordListEdit")->isEnabled());
    QVERIFY(!part<QFrame>(panel, "nupFrame")->isEnabled());
}

void tst_PrivateSlots::listRangeChangedParsesTheListAndAppliesTheNupRules()
{
    PrintWidget panel(false, nullptr);
    panel.setRangeValues(0, 9, true);
    Trigger trigger;
    QVERIFY(connect(&trigger, SIGNAL(pulled()), &panel, SLOT(listRangeChanged())));
    auto* edit = part<QLineEdit>(panel, "recordListEdit");
    const QSignalBlocker quiet(edit);
    edit->setText(QStringLiteral("1,4-5"));
    QVERIFY(!part<QFrame>(panel, "nupFrame")->isEnabled());
    Q_EMIT trigger.pulled();
    QVERIFY(part<QFrame>(panel, "nupFrame")->isEnabled());
    QCOMPARE(keptRange(panel), qMakePair(1, 10));
}

void tst_PrivateSlots::checkRangeClassifiesWithoutTheNupRules()
{
    PrintWidget panel(false, nullptr);
    panel.setRangeValues(0, 9, true);
    Trigger trigger;
    QVERIFY(connect(&trigger, SIGNAL(pulled()), &panel, SLOT(checkRange())));
    part<QRadioButton>(panel, "allRecordsRadio")->setChecked(true);
    QCOMPARE(keptRange(panel), qMakePair(1, 1));
    Q_EMIT trigger.pulled();
    QCOMPARE(keptRange(panel), qMakePair(1, 10));
    QVERIFY(!part<QFrame>(panel, "nupFrame")->isEnabled());
}

void tst_PrivateSlots::currentPrinterSelectionChangedSlotReportsTheItem()
{
    PrintWidget panel(false, nullptr);
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
    PrintWidget panel(false, nullptr);
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
    QTest::addColumn<QByteArray>("slot");
    QTest::addColumn<QStringList>("reported");
    QTest::newRow("ribbon1ColorSelectionSlot")
        << QByteArray(SLOT(ribbon1ColorSelectionSlot(QString)))
        << colors({"#fedb00", "#248d4f", "#ffffff"});
    QTest::newRow("ribbon2ColorSelectionSlot")
        << QByteArray(SLOT(ribbon2ColorSelectionSlot(QString)))
        << colors({"#dc0b0b", "#fedb00", "#ffffff"});
    QTest::newRow("supplyColorSelectionSlot") << QByteArray(SLOT(supplyColorSelectionSlot(QString)))
                                              << colors({"#dc0b0b", "#248d4f", "#fedb00"});
}

void tst_PrivateSlots::colorSelectionSlotsReportTheColor()
{
    QFETCH(const QByteArray, slot);
    QFETCH(const QStringList, reported);
    PrintWidget panel(false, nullptr);
    panel.showSupplyInfo(colors({"#dc0b0b", "#248d4f", "#ffffff"}), true, 4.0, 0, false);
    const QSignalSpy changed(&panel, SIGNAL(supplyColorsChangedSignal(QStringList)));
    Trigger trigger;
    QVERIFY(connect(&trigger, SIGNAL(named(QString)), &panel, slot.constData()));
    Q_EMIT trigger.named(QStringLiteral("#fedb00"));
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed.first(), QVariantList{reported});
    QCOMPARE(tabs(panel).filter(QStringLiteral("#fedb00")).size(), 1);
}

void tst_PrivateSlots::supplyWidthEditedSlotReportsTheWidth()
{
    PrintWidget panel(false, nullptr);
    showPlainSupply(panel);
    const QSignalSpy changed(&panel, SIGNAL(supplyWidthChangedSignal(double)));
    Trigger trigger;
    QVERIFY(connect(&trigger, SIGNAL(pulled()), &panel, SLOT(supplyWidthEditedSlot())));
    widthEdit(panel)->setText(QStringLiteral("2.25 in"));
    QCOMPARE(changed.size(), 0);
    Q_EMIT trigger.pulled();
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed.first(), QVariantList{2.25});
}

void tst_PrivateSlots::testErrorCodeSlotReportsTheNumber()
{
    PrintWidget panel(true, nullptr);
    const QSignalSpy asked(&panel, SIGNAL(testPrintError(int)));
    Trigger trigger;
    QVERIFY(connect(&trigger, SIGNAL(pulled()), &panel, SLOT(testErrorCodeSlot())));
    part<QSpinBox>(panel, "errorNumberSpinBox")->setValue(17);
    Q_EMIT trigger.pulled();
    QCOMPARE(asked.size(), 1);
    QCOMPARE(asked.first(), QVariantList{17});
}

QTEST_MAIN(tst_PrivateSlots)
#include "tst_privateslots.moc"
