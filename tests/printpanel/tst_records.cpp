// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "panelprobe.h"
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

} // namespace

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
    const PrintWidget panel(false, nullptr);
    const auto* frame = part<QFrame>(panel, "recordsFrame");
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
    const PrintWidget panel(false, nullptr);
    const auto* label =
        qobject_cast<QLabel*>(part<QFrame>(panel, "recordsFrame")->layout()->itemAt(2)->widget());
    QCOMPARE(label->text(), QStringLiteral("Records to Print:"));
    QCOMPARE(label->font(), ApplicationFont::getWidgetFont(true));
    QCOMPARE(label->minimumHeight(), 35);
}

void tst_Records::radios_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("id");
    QTest::addColumn<bool>("checked");
    QTest::newRow("currentRecordRadio") << QStringLiteral("Current Record") << 0 << true;
    QTest::newRow("allRecordsRadio") << QStringLiteral("All Records") << 1 << false;
    QTest::newRow("recordListRadio") << QStringLiteral("Range or List of Records:") << 2 << false;
}

void tst_Records::radios()
{
    const PrintWidget panel(false, nullptr);
    QRadioButton* button = radio(panel, QTest::currentDataTag());
    QTEST(button->text(), "text");
    QCOMPARE(button->minimumHeight(), 35);
    QCOMPARE(button->focusPolicy(), Qt::NoFocus);
    QTEST(button->isChecked(), "checked");
    QTEST(recordsGroup(panel)->id(button), "id");
}

void tst_Records::group()
{
    const PrintWidget panel(false, nullptr);
    const QButtonGroup* group = recordsGroup(panel);
    QVERIFY(group);
    QCOMPARE(group->parent(), &panel);
    QVERIFY(group->exclusive());
    QCOMPARE(group->buttons().size(), 3);
    QCOMPARE(group->checkedId(), 0);
}

void tst_Records::listEdit()
{
    const PrintWidget panel(false, nullptr);
    const QLineEdit* edit = ::listEdit(panel);
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
    PrintWidget panel(false, nullptr);
    QVERIFY(part<QFrame>(panel, "recordsFrame")->isEnabled());
    QCOMPARE(keptRange(panel), Pair(1, 1));
    radio(panel, "allRecordsRadio")->click();
    QCOMPARE(keptRange(panel), Pair(1, 99999));
    radio(panel, "currentRecordRadio")->click();
    QCOMPARE(keptRange(panel), Pair(1, 1));
}

void tst_Records::nupRulesDoNotRunAtConstruction()
{
    const PrintWidget panel(false, nullptr);
    QVERIFY(part<QFrame>(panel, "nupFrame")->isEnabled());
    QCOMPARE(part<QFrame>(panel, "nupFrame")->toolTip(), QString());
}

void tst_Records::setRangeValues_data()
{
    QTest::addColumn<int>("currentIndex");
    QTest::addColumn<int>("lastIndex");
    QTest::addColumn<int>("current");
    QTest::addColumn<int>("count");
    QTest::newRow("one record") << 0 << 0 << 1 << 1;
    QTest::newRow("third of ten") << 2 << 9 << 3 << 10;
    QTest::newRow("last of ten") << 9 << 9 << 10 << 10;
    QTest::newRow("current beyond the last") << 20 << 9 << 21 << 10;
    QTest::newRow("none") << -1 << -1 << 0 << 0;
    QTest::newRow("lowest") << INT_MIN << INT_MIN << INT_MIN + 1 << INT_MIN + 1;
}

void tst_Records::setRangeValues()
{
    QFETCH(const int, currentIndex);
    QFETCH(const int, lastIndex);
    QFETCH(const int, current);
    QFETCH(const int, count);
    PrintWidget panel(false, nullptr);
    panel.setRangeValues(currentIndex, lastIndex, true);
    QCOMPARE(keptRange(panel), Pair(current, current));
    radio(panel, "allRecordsRadio")->click();
    QCOMPARE(keptRange(panel), Pair(1, count));
}

void tst_Records::setRangeValuesEnablesAndDisablesTheSection()
{
    PrintWidget panel(false, nullptr);
    panel.setRangeValues(0, 9, false);
    QVERIFY(!part<QFrame>(panel, "recordsFrame")->isEnabled());
    QVERIFY(!radio(panel, "allRecordsRadio")->isEnabled());
    QVERIFY(!part<QFrame>(panel, "nupFrame")->isEnabled());
    panel.setRangeValues(0, 9, true);
    QVERIFY(part<QFrame>(panel, "recordsFrame")->isEnabled());
    QVERIFY(radio(panel, "allRecordsRadio")->isEnabled());
    QVERIFY(!::listEdit(panel)->isEnabled());
}

void tst_Records::updateCurrentRangeIndex_data()
{
    QTest::addColumn<QByteArray>("checked");
    QTest::addColumn<Pair>("range");
    QTest::newRow("current record moves both") << QByteArray("currentRecordRadio") << Pair(7, 7);
    QTest::newRow("all records stay") << QByteArray("allRecordsRadio") << Pair(1, 10);
    QTest::newRow("empty list is the current record")
        << QByteArray("recordListRadio") << Pair(7, 7);
}

void tst_Records::updateCurrentRangeIndex()
{
    QFETCH(const QByteArray, checked);
    QFETCH(const Pair, range);
    PrintWidget panel(false, nullptr);
    panel.setRangeValues(0, 9, true);
    radio(panel, checked.constData())->click();
    panel.updateCurrentRangeIndex(6);
    QCOMPARE(keptRange(panel), range);
}

void tst_Records::updateCurrentRangeIndexLeavesNupAndTheEditAlone()
{
    PrintWidget panel(false, nullptr);
    panel.setRangeValues(0, 9, true);
    auto* nup = part<QFrame>(panel, "nupFrame");
    QVERIFY(!nup->isEnabled());
    const QString toolTip = nup->toolTip();
    nup->setEnabled(true);
    ::listEdit(panel)->setEnabled(true);
    panel.updateCurrentRangeIndex(5);
    QCOMPARE(keptRange(panel), Pair(6, 6));
    QVERIFY(nup->isEnabled());
    QCOMPARE(nup->toolTip(), toolTip);
    QVERIFY(::listEdit(panel)->isEnabled());
}

void tst_Records::listEditIsEnabledByItsRadioOnly()
{
    PrintWidget panel(false, nullptr);
    QVERIFY(showPanel(panel));
    QLineEdit* edit = ::listEdit(panel);
    clickOn(radio(panel, "recordListRadio"));
    QVERIFY(edit->isEnabled());
    clickOn(radio(panel, "allRecordsRadio"));
    QVERIFY(!edit->isEnabled());
    clickOn(radio(panel, "recordListRadio"));
    QVERIFY(edit->isEnabled());
    clickOn(radio(panel, "currentRecordRadio"));
    QVERIFY(!edit->isEnabled());
}

void tst_Records::listEditIsEnabledWhenNoRadioIsChecked()
{
    PrintWidget panel(false, nullptr);
    uncheckAll(panel);
    QCOMPARE(recordsGroup(panel)->checkedId(), -1);
    QVERIFY(QMetaObject::invokeMethod(&panel, "recordsRadioChangedSlot"));
    QVERIFY(::listEdit(panel)->isEnabled());
}

void tst_Records::typing_data()
{
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("text");
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
    PrintWidget panel(false, nullptr);
    QVERIFY(showPanel(panel));
    clickOn(radio(panel, "recordListRadio"));
    QTest::keyClicks(::listEdit(panel), keys);
    QTEST(::listEdit(panel)->text(), "text");
}

void tst_Records::textStaysWhenAnotherRadioIsChosen()
{
    PrintWidget panel(false, nullptr);
    QVERIFY(showPanel(panel));
    clickOn(radio(panel, "recordListRadio"));
    QTest::keyClicks(::listEdit(panel), QStringLiteral("1,4-5"));
    clickOn(radio(panel, "currentRecordRadio"));
    QCOMPARE(::listEdit(panel)->text(), QStringLiteral("1,4-5"));
    clickOn(radio(panel, "recordListRadio"));
    QCOMPARE(::listEdit(panel)->text(), QStringLiteral("1,4-5"));
    panel.setRangeValues(0, 2, true);
    QCOMPARE(::listEdit(panel)->text(), QStringLiteral("1,4-5"));
}

QTEST_MAIN(tst_Records)
#include "tst_records.moc"
