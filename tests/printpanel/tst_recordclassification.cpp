// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "printpanelfixture.h"
#include "support/stricttest.h"

#include <printpanels/printwidget.h>

#include <QtWidgets/QButtonGroup>
#include <QtWidgets/QFrame>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QVBoxLayout>

using Pair = QPair<int, int>;

class tst_RecordClassification : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void radioClickClassifies();
    void programmaticCheckDoesNotClassify();

    void classification_data();
    void classification();
    void listParsesUnderEveryRadio();
    void oddChangeUnderAnotherRadioLastsUntilTheNextEvent_data();
    void oddChangeUnderAnotherRadioLastsUntilTheNextEvent();
    void checkRangeClassifiesWithoutNup();
    void nupRulesAreAppliedThroughTheVirtualTable();
};

void tst_RecordClassification::radioClickClassifies()
{
    PrintPanelFixture panel;
    panel.setRangeValues(4, 9, true);
    panel.listEdit()->setText(QStringLiteral("1,2"));
    panel.radio("allRecordsRadio")->click();
    QCOMPARE(panel.keptRange(), Pair(1, 10));
    panel.radio("currentRecordRadio")->click();
    QCOMPARE(panel.keptRange(), Pair(5, 5));
    panel.radio("recordListRadio")->click();
    QCOMPARE(panel.keptRange(), Pair(1, 10));
}

void tst_RecordClassification::programmaticCheckDoesNotClassify()
{
    PrintPanelFixture panel;
    panel.setRangeValues(4, 9, true);
    panel.radio("allRecordsRadio")->setChecked(true);
    QCOMPARE(panel.keptRange(), Pair(5, 5));
    QVERIFY(!panel.listEdit()->isEnabled());
}

void tst_RecordClassification::classification_data()
{
    addColumns<QString, int, bool>("text", "records", "several");
    const auto one = [](const char* text, int records) {
        QTest::addRow("one: '%s' of %d", text, records)
            << QString::fromUtf8(text) << records << false;
    };
    const auto several = [](const char* text, int records) {
        QTest::addRow("several: '%s' of %d", text, records)
            << QString::fromUtf8(text) << records << true;
    };
    one("7", 3);
    several("7,8", 3);
    one("5-2", 10);
    one("5-2,9", 10);
    one("12-15", 10);
    one("10-15", 10);
    several("9-15", 10);
    several("3,3", 10);
    one("4-4", 10);
    several("4-4,4", 10);
    one("1,", 10);
    one("4-", 10);
    one(",,,", 10);
    one("-", 10);
    several("1-2-3", 10);
    one("99999999999", 10);
    one("99999999999-99999999999", 10);
    several("99999999999-2", 10);
    one("1-5", 1);
    several("1-5", 2);
    several("1,1", 1);
    one("\xd9\xa3-\xd9\xa4", 10);
}

void tst_RecordClassification::classification()
{
    QFETCH(const QString, text);
    QFETCH(const int, records);
    QFETCH(const bool, several);
    PrintPanelFixture panel;
    panel.setRangeValues(0, records - 1, true);
    panel.radio("recordListRadio")->click();
    panel.listEdit()->setText(text);
    QCOMPARE(panel.keptRange(), several ? Pair(1, records) : Pair(1, 1));
    // The same by the public operation, and after the host moved on.
    panel.updateCurrentRangeIndex(4);
    QCOMPARE(panel.keptRange(), several ? Pair(1, records) : Pair(5, 5));
    panel.listRangeParse();
    QCOMPARE(panel.keptRange(), several ? Pair(1, records) : Pair(5, 5));
    // And empty again.
    panel.listEdit()->clear();
    QCOMPARE(panel.keptRange(), Pair(5, 5));
}

void tst_RecordClassification::listParsesUnderEveryRadio()
{
    for (const char* name : {"currentRecordRadio", "allRecordsRadio"}) {
        PrintPanelFixture panel;
        panel.setRangeValues(4, 9, true);
        panel.radio(name)->click();
        panel.listEdit()->setText(QStringLiteral("1,2"));
        QCOMPARE(panel.keptRange(), Pair(1, 10));
        panel.listEdit()->setText(QStringLiteral("7"));
        QCOMPARE(panel.keptRange(), Pair(5, 5));
    }
}

void tst_RecordClassification::oddChangeUnderAnotherRadioLastsUntilTheNextEvent_data()
{
    QTest::addColumn<QByteArray>("event");
    addRow("radio click", QByteArray("click"));
    addRow("setRangeValues", QByteArray("setRangeValues"));
    addRow("updateCurrentRangeIndex", QByteArray("updateCurrentRangeIndex"));
}

void tst_RecordClassification::oddChangeUnderAnotherRadioLastsUntilTheNextEvent()
{
    QFETCH(const QByteArray, event);
    PrintPanelFixture panel;
    panel.setRangeValues(4, 9, true);
    panel.radio("allRecordsRadio")->click();
    panel.listEdit()->setText(QStringLiteral("7"));
    // "All Records" is checked, yet the pair, and with it the request, is that of the list.
    QCOMPARE(panel.requestFrom({0, 0, QString()}), (Request{5, 5, QString()}));
    if (event == "click")
        panel.radio("allRecordsRadio")->click();
    else if (event == "setRangeValues")
        panel.setRangeValues(4, 9, true);
    else
        panel.updateCurrentRangeIndex(4);
    QCOMPARE(panel.requestFrom({0, 0, QString()}), (Request{1, 10, QString()}));
}

void tst_RecordClassification::checkRangeClassifiesWithoutNup()
{
    OverridingPanel panel;
    panel.setRangeValues(4, 9, true);
    panel.radio("allRecordsRadio")->setChecked(true);
    QVERIFY(!panel.listEdit()->isEnabled());
    panel.calls.clear();
    const QString toolTip = panel.part<QFrame>("nupFrame")->toolTip();

    QVERIFY(QMetaObject::invokeMethod(&panel, "checkRange"));
    QCOMPARE(panel.keptRange(), Pair(1, 10));
    QVERIFY(panel.calls.isEmpty());
    QVERIFY(!panel.part<QFrame>("nupFrame")->isEnabled());
    QCOMPARE(panel.part<QFrame>("nupFrame")->toolTip(), toolTip);

    panel.radio("recordListRadio")->setChecked(true);
    QVERIFY(QMetaObject::invokeMethod(&panel, "checkRange"));
    QCOMPARE(panel.keptRange(), Pair(5, 5));
    QVERIFY(!panel.listEdit()->isEnabled());
    panel.uncheckRecords();
    QVERIFY(QMetaObject::invokeMethod(&panel, "checkRange"));
}

void tst_RecordClassification::nupRulesAreAppliedThroughTheVirtualTable()
{
    OverridingPanel panel;
    QVERIFY(panel.calls.isEmpty());
    panel.setRangeValues(0, 9, true);
    QCOMPARE(panel.calls, QList<bool>{false});
    panel.setNupDynamicLength(true);
    panel.calls.clear();
    panel.radio("allRecordsRadio")->click();
    QCOMPARE(panel.calls, QList<bool>{true});
    panel.listEdit()->setText(QStringLiteral("1"));
    QCOMPARE(panel.calls, QList<bool>({true, true}));
    panel.updateCurrentRangeIndex(3);
    QCOMPARE(panel.calls.size(), 2);
}

QTEST_MAIN(tst_RecordClassification)
#include "tst_recordclassification.moc"
