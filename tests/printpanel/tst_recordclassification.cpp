// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "panelprobe.h"
#include "support/stricttest.h"

#include <printpanels/printwidget.h>

#include <QtWidgets/QButtonGroup>
#include <QtWidgets/QFrame>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QVBoxLayout>

namespace {

using Pair = QPair<int, int>;

QLineEdit* listEdit(const PrintWidget& panel)
{
    return part<QLineEdit>(panel, "recordListEdit");
}

QRadioButton* radio(const PrintWidget& panel, const char* name)
{
    return part<QRadioButton>(panel, name);
}

/** The exclusive group of the three radios. */
QButtonGroup* recordsGroup(const PrintWidget& panel)
{
    return radio(panel, "currentRecordRadio")->group();
}

/** Leaves the group without a checked radio. */
void uncheckAll(const PrintWidget& panel)
{
    recordsGroup(panel)->setExclusive(false);
    for (const char* name : {"currentRecordRadio", "allRecordsRadio", "recordListRadio"})
        radio(panel, name)->setChecked(false);
    recordsGroup(panel)->setExclusive(true);
}

/** Hears of every call that goes through the virtual table. */
class WatchedPanel : public PrintWidget
{
public:
    WatchedPanel() : PrintWidget(false, nullptr) {}

    void setNupDynamicLength(bool on) override
    {
        calls.append(on);
        PrintWidget::setNupDynamicLength(on);
    }

    QList<bool> calls;
};

} // namespace

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
    PrintWidget panel(false, nullptr);
    panel.setRangeValues(4, 9, true);
    ::listEdit(panel)->setText(QStringLiteral("1,2"));
    radio(panel, "allRecordsRadio")->click();
    QCOMPARE(keptRange(panel), Pair(1, 10));
    radio(panel, "currentRecordRadio")->click();
    QCOMPARE(keptRange(panel), Pair(5, 5));
    radio(panel, "recordListRadio")->click();
    QCOMPARE(keptRange(panel), Pair(1, 10));
}

void tst_RecordClassification::programmaticCheckDoesNotClassify()
{
    PrintWidget panel(false, nullptr);
    panel.setRangeValues(4, 9, true);
    radio(panel, "allRecordsRadio")->setChecked(true);
    QCOMPARE(keptRange(panel), Pair(5, 5));
    QVERIFY(!::listEdit(panel)->isEnabled());
}

void tst_RecordClassification::classification_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("records");
    QTest::addColumn<bool>("several");
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
    PrintWidget panel(false, nullptr);
    panel.setRangeValues(0, records - 1, true);
    radio(panel, "recordListRadio")->click();
    ::listEdit(panel)->setText(text);
    QCOMPARE(keptRange(panel), several ? Pair(1, records) : Pair(1, 1));
    // The same by the public operation, and after the host moved on.
    panel.updateCurrentRangeIndex(4);
    QCOMPARE(keptRange(panel), several ? Pair(1, records) : Pair(5, 5));
    panel.listRangeParse();
    QCOMPARE(keptRange(panel), several ? Pair(1, records) : Pair(5, 5));
    // And empty again.
    ::listEdit(panel)->clear();
    QCOMPARE(keptRange(panel), Pair(5, 5));
}

void tst_RecordClassification::listParsesUnderEveryRadio()
{
    for (const char* name : {"currentRecordRadio", "allRecordsRadio"}) {
        PrintWidget panel(false, nullptr);
        panel.setRangeValues(4, 9, true);
        radio(panel, name)->click();
        ::listEdit(panel)->setText(QStringLiteral("1,2"));
        QCOMPARE(keptRange(panel), Pair(1, 10));
        ::listEdit(panel)->setText(QStringLiteral("7"));
        QCOMPARE(keptRange(panel), Pair(5, 5));
    }
}

void tst_RecordClassification::oddChangeUnderAnotherRadioLastsUntilTheNextEvent_data()
{
    QTest::addColumn<QByteArray>("event");
    QTest::newRow("radio click") << QByteArray("click");
    QTest::newRow("setRangeValues") << QByteArray("setRangeValues");
    QTest::newRow("updateCurrentRangeIndex") << QByteArray("updateCurrentRangeIndex");
}

void tst_RecordClassification::oddChangeUnderAnotherRadioLastsUntilTheNextEvent()
{
    QFETCH(const QByteArray, event);
    PrintWidget panel(false, nullptr);
    panel.setRangeValues(4, 9, true);
    radio(panel, "allRecordsRadio")->click();
    ::listEdit(panel)->setText(QStringLiteral("7"));
    // "All Records" is checked, yet the pair, and with it the request, is that of the list.
    QCOMPARE(whatToPrint(panel, {0, 0, QString()}), (Request{5, 5, QString()}));
    if (event == "click")
        radio(panel, "allRecordsRadio")->click();
    else if (event == "setRangeValues")
        panel.setRangeValues(4, 9, true);
    else
        panel.updateCurrentRangeIndex(4);
    QCOMPARE(whatToPrint(panel, {0, 0, QString()}), (Request{1, 10, QString()}));
}

void tst_RecordClassification::checkRangeClassifiesWithoutNup()
{
    WatchedPanel panel;
    panel.setRangeValues(4, 9, true);
    radio(panel, "allRecordsRadio")->setChecked(true);
    QVERIFY(!::listEdit(panel)->isEnabled());
    panel.calls.clear();
    const QString toolTip = part<QFrame>(panel, "nupFrame")->toolTip();

    QVERIFY(QMetaObject::invokeMethod(&panel, "checkRange"));
    QCOMPARE(keptRange(panel), Pair(1, 10));
    QVERIFY(panel.calls.isEmpty());
    QVERIFY(!part<QFrame>(panel, "nupFrame")->isEnabled());
    QCOMPARE(part<QFrame>(panel, "nupFrame")->toolTip(), toolTip);

    radio(panel, "recordListRadio")->setChecked(true);
    QVERIFY(QMetaObject::invokeMethod(&panel, "checkRange"));
    QCOMPARE(keptRange(panel), Pair(5, 5));
    QVERIFY(!::listEdit(panel)->isEnabled());
    uncheckAll(panel);
    QVERIFY(QMetaObject::invokeMethod(&panel, "checkRange"));
}

void tst_RecordClassification::nupRulesAreAppliedThroughTheVirtualTable()
{
    WatchedPanel panel;
    QVERIFY(panel.calls.isEmpty());
    panel.setRangeValues(0, 9, true);
    QCOMPARE(panel.calls, QList<bool>{false});
    panel.setNupDynamicLength(true);
    panel.calls.clear();
    radio(panel, "allRecordsRadio")->click();
    QCOMPARE(panel.calls, QList<bool>{true});
    ::listEdit(panel)->setText(QStringLiteral("1"));
    QCOMPARE(panel.calls, QList<bool>({true, true}));
    panel.updateCurrentRangeIndex(3);
    QCOMPARE(panel.calls.size(), 2);
}

QTEST_MAIN(tst_RecordClassification)
#include "tst_recordclassification.moc"
