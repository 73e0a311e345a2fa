// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "printpanelfixture.h"
#include "support/layoutdescription.h"
#include "support/stricttest.h"

#include <applicationfont.h>
#include <printpanels/printwidget.h>

#include <QtGui/QRegularExpressionValidator>
#include <QtWidgets/QButtonGroup>
#include <QtWidgets/QFrame>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QVBoxLayout>

#include <climits>

using Pair = QPair<int, int>;

class tst_Records : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void sectionFromTopToBottom();
    void caption();
    void radios_data();
    void radios();
    void group();
    void listEdit();
    void stateAtConstruction();
    void nupRulesDoNotRunAtConstruction();

    void setRangeValues_data();
    void setRangeValues();
    void setRangeValuesEnablesAndDisablesTheSection();
    void updateCurrentRangeIndex_data();
    void updateCurrentRangeIndex();
    void updateCurrentRangeIndexLeavesNupAndTheEditAlone();

    void listEditIsEnabledByItsRadioOnly();
    void listEditIsEnabledWhenNoRadioIsChecked();

    void typing_data();
    void typing();
    void textStaysWhenAnotherRadioIsChosen();
};

void tst_Records::sectionFromTopToBottom()
{
    const PrintPanelFixture panel;
    const auto* frame = panel.part<QFrame>("recordsFrame");
    QVERIFY(qobject_cast<QVBoxLayout*>(frame->layout()));
    QCOMPARE(frame->layout()->contentsMargins(), QMargins(0, 0, 0, 0));
    const QStringList expected = {QStringLiteral("separator"),
                                  QStringLiteral("spacer 5x5 Fixed/Fixed"),
                                  QStringLiteral("QLabel"),
                                  QStringLiteral("QRadioButton currentRecordRadio"),
                                  QStringLiteral("QRadioButton allRecordsRadio"),
                                  QStringLiteral("QRadioButton recordListRadio"),
                                  QStringLiteral("JxLineEdit recordListEdit"),
                                  QStringLiteral("QFrame nupFrame")};
    QCOMPARE(layoutDescription(frame->layout()), expected);
    QVERIFY(!frame->isHidden());
}

void tst_Records::caption()
{
    const PrintPanelFixture panel;
    const auto* label =
        qobject_cast<QLabel*>(panel.part<QFrame>("recordsFrame")->layout()->itemAt(2)->widget());
    QCOMPARE(label->text(), QStringLiteral("Records to Print:"));
    QCOMPARE(label->font(), ApplicationFont::getWidgetFont(true));
    QCOMPARE(label->minimumHeight(), 35);
}

void tst_Records::radios_data()
{
    addColumns<QString, int, bool>("text", "id", "checked");
    addRow("currentRecordRadio", "Current Record", 0, true);
    addRow("allRecordsRadio", "All Records", 1, false);
    addRow("recordListRadio", "Range or List of Records:", 2, false);
}

void tst_Records::radios()
{
    const PrintPanelFixture panel;
    QRadioButton* button = panel.radio(QTest::currentDataTag());
    QTEST(button->text(), "text");
    QCOMPARE(button->minimumHeight(), 35);
    QCOMPARE(button->focusPolicy(), Qt::NoFocus);
    QTEST(button->isChecked(), "checked");
    QTEST(panel.recordsGroup()->id(button), "id");
}

void tst_Records::group()
{
    const PrintPanelFixture panel;
    const QButtonGroup* group = panel.recordsGroup();
    QVERIFY(group);
    QCOMPARE(group->parent(), &panel);
    QVERIFY(group->exclusive());
    QCOMPARE(group->buttons().size(), 3);
    QCOMPARE(group->checkedId(), 0);
}

void tst_Records::listEdit()
{
    const PrintPanelFixture panel;
    const QLineEdit* edit = panel.listEdit();
    QVERIFY(edit->inherits("JxLineEdit"));
    const auto* validator = qobject_cast<const QRegularExpressionValidator*>(edit->validator());
    QVERIFY(validator);
    QCOMPARE(validator->parent(), edit);
    QCOMPARE(validator->regularExpression().pattern(),
             QString::fromLatin1(
                 R"((?![0])\d{1,4}(?:-(?![0])\d{1,4})?(?:,(?![0])\d{1,4}(?:-(?![0])\d{1,4})?)*)"));
    QCOMPARE(validator->regularExpression().patternOptions(), QRegularExpression::NoPatternOption);
    QCOMPARE(edit->contextMenuPolicy(), Qt::NoContextMenu);
    QCOMPARE(edit->minimumHeight(), 36);
    QCOMPARE(edit->maximumHeight(), 36);
    QCOMPARE(edit->toolTip(),
             QStringLiteral("Enter a list of record numbers and/or ranges, separated by comma.\n"
                            "Example:  1,4-5,11-20,33"));
    QCOMPARE(edit->placeholderText(), QStringLiteral("   Example:  1,4-5,11-20,33"));
    QCOMPARE(edit->text(), QString());
    QVERIFY(!edit->isEnabled());
}

void tst_Records::stateAtConstruction()
{
    PrintPanelFixture panel;
    QVERIFY(panel.part<QFrame>("recordsFrame")->isEnabled());
    QCOMPARE(panel.keptRange(), Pair(1, 1));
    panel.radio("allRecordsRadio")->click();
    QCOMPARE(panel.keptRange(), Pair(1, 99999));
    panel.radio("currentRecordRadio")->click();
    QCOMPARE(panel.keptRange(), Pair(1, 1));
}

void tst_Records::nupRulesDoNotRunAtConstruction()
{
    const PrintPanelFixture panel;
    QVERIFY(panel.part<QFrame>("nupFrame")->isEnabled());
    QCOMPARE(panel.part<QFrame>("nupFrame")->toolTip(), QString());
}

void tst_Records::setRangeValues_data()
{
    addColumns<int, int, int, int>("currentIndex", "lastIndex", "current", "count");
    addRow("one record", 0, 0, 1, 1);
    addRow("third of ten", 2, 9, 3, 10);
    addRow("last of ten", 9, 9, 10, 10);
    addRow("current beyond the last", 20, 9, 21, 10);
    addRow("none", -1, -1, 0, 0);
    addRow("lowest", INT_MIN, INT_MIN, INT_MIN + 1, INT_MIN + 1);
}

void tst_Records::setRangeValues()
{
    QFETCH(const int, currentIndex);
    QFETCH(const int, lastIndex);
    QFETCH(const int, current);
    QFETCH(const int, count);
    PrintPanelFixture panel;
    panel.setRangeValues(currentIndex, lastIndex, true);
    QCOMPARE(panel.keptRange(), Pair(current, current));
    panel.radio("allRecordsRadio")->click();
    QCOMPARE(panel.keptRange(), Pair(1, count));
}

void tst_Records::setRangeValuesEnablesAndDisablesTheSection()
{
    PrintPanelFixture panel;
    panel.setRangeValues(0, 9, false);
    QVERIFY(!panel.part<QFrame>("recordsFrame")->isEnabled());
    QVERIFY(!panel.radio("allRecordsRadio")->isEnabled());
    QVERIFY(!panel.part<QFrame>("nupFrame")->isEnabled());
    panel.setRangeValues(0, 9, true);
    QVERIFY(panel.part<QFrame>("recordsFrame")->isEnabled());
    QVERIFY(panel.radio("allRecordsRadio")->isEnabled());
    QVERIFY(!panel.listEdit()->isEnabled());
}

void tst_Records::updateCurrentRangeIndex_data()
{
    addColumns<QByteArray, Pair>("checked", "range");
    addRow("current record moves both", QByteArray("currentRecordRadio"), Pair(7, 7));
    addRow("all records stay", QByteArray("allRecordsRadio"), Pair(1, 10));
    addRow("empty list is the current record", QByteArray("recordListRadio"), Pair(7, 7));
}

void tst_Records::updateCurrentRangeIndex()
{
    QFETCH(const QByteArray, checked);
    QFETCH(const Pair, range);
    PrintPanelFixture panel;
    panel.setRangeValues(0, 9, true);
    panel.radio(checked.constData())->click();
    panel.updateCurrentRangeIndex(6);
    QCOMPARE(panel.keptRange(), range);
}

void tst_Records::updateCurrentRangeIndexLeavesNupAndTheEditAlone()
{
    PrintPanelFixture panel;
    panel.setRangeValues(0, 9, true);
    auto* nup = panel.part<QFrame>("nupFrame");
    QVERIFY(!nup->isEnabled());
    const QString toolTip = nup->toolTip();
    nup->setEnabled(true);
    panel.listEdit()->setEnabled(true);
    panel.updateCurrentRangeIndex(5);
    QCOMPARE(panel.keptRange(), Pair(6, 6));
    QVERIFY(nup->isEnabled());
    QCOMPARE(nup->toolTip(), toolTip);
    QVERIFY(panel.listEdit()->isEnabled());
}

void tst_Records::listEditIsEnabledByItsRadioOnly()
{
    PrintPanelFixture panel;
    QVERIFY(showPanel(panel));
    QLineEdit* edit = panel.listEdit();
    clickOn(panel.radio("recordListRadio"));
    QVERIFY(edit->isEnabled());
    clickOn(panel.radio("allRecordsRadio"));
    QVERIFY(!edit->isEnabled());
    clickOn(panel.radio("recordListRadio"));
    QVERIFY(edit->isEnabled());
    clickOn(panel.radio("currentRecordRadio"));
    QVERIFY(!edit->isEnabled());
}

void tst_Records::listEditIsEnabledWhenNoRadioIsChecked()
{
    PrintPanelFixture panel;
    panel.uncheckRecords();
    QCOMPARE(panel.recordsGroup()->checkedId(), -1);
    QVERIFY(QMetaObject::invokeMethod(&panel, "recordsRadioChangedSlot"));
    QVERIFY(panel.listEdit()->isEnabled());
}

void tst_Records::typing_data()
{
    addColumns<QString, QString>("keys", "text");
    const auto row = [](const char* keys, const char* text) {
        QTest::addRow("%s", keys) << QString::fromLatin1(keys) << QString::fromLatin1(text);
    };
    row("1,4-5,11-20,33", "1,4-5,11-20,33");
    row("20-11", "20-11");
    row("0", "");
    row("01", "1");
    row("1,,2", "1,2");
    row("1 - 3", "1-3");
    row("12345", "1234");
    row("1-2-3", "1-23");
    row("1,", "1,");
    row("4-", "4-");
    row("-4", "4");
    row(",4", "4");
    row("a1b,c2", "1,2");
    row("1-0", "1-");
    row("1,0", "1,");
    row("9999-99999", "9999-9999");
}

void tst_Records::typing()
{
    QFETCH(const QString, keys);
    PrintPanelFixture panel;
    QVERIFY(showPanel(panel));
    clickOn(panel.radio("recordListRadio"));
    QTest::keyClicks(panel.listEdit(), keys);
    QTEST(panel.listEdit()->text(), "text");
}

void tst_Records::textStaysWhenAnotherRadioIsChosen()
{
    PrintPanelFixture panel;
    QVERIFY(showPanel(panel));
    clickOn(panel.radio("recordListRadio"));
    QTest::keyClicks(panel.listEdit(), QStringLiteral("1,4-5"));
    clickOn(panel.radio("currentRecordRadio"));
    QCOMPARE(panel.listEdit()->text(), QStringLiteral("1,4-5"));
    clickOn(panel.radio("recordListRadio"));
    QCOMPARE(panel.listEdit()->text(), QStringLiteral("1,4-5"));
    panel.setRangeValues(0, 2, true);
    QCOMPARE(panel.listEdit()->text(), QStringLiteral("1,4-5"));
}

QTEST_MAIN(tst_Records)
#include "tst_records.moc"
