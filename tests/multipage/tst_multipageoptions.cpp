// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "multipageprobe.h"
#include "support/stricttest.h"

#include <printpanels/multipageprintwidget.h>

#include <QtTest/QSignalSpy>
#include <QtWidgets/QCheckBox>

namespace {

struct Option
{
    const char* name;
    void (MultiPagePrintWidget::*signal)(int);
    bool startsChecked;
};

const Option options[] = {
    {"formFillCheck", &MultiPagePrintWidget::printFormFillChangedSignal, true},
    {"fitToPageCheck", &MultiPagePrintWidget::fitToPageChangedSignal, false},
    {"orientationCheck", &MultiPagePrintWidget::orientationChangedSignal, false}};

QCheckBox* check(const QWidget& panel, const char* name)
{
    return part<QCheckBox>(panel, name);
}

} // namespace

/** The three check boxes. */
class tst_MultiPageOptions : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void aClickIsReportedWithItsState_data();
    void aClickIsReportedWithItsState();
    void keyboardIsReported();
    void formFillOption_data();
    void formFillOption();
    void formFillOptionLeavesTheConnectionOnce();
    void orientationCheckIsSetSilently();
    void orientationCheckByName();
    void orientationVisibility();
    void hiddenOptionsAreShownAgainWithTheWindow();
    void otherListenersStillHearOfTheHostsChange();
};

void tst_MultiPageOptions::aClickIsReportedWithItsState_data()
{
    QTest::addColumn<int>("row");
    int row = 0;
    for (const Option& option : options)
        QTest::newRow(option.name) << row++;
}

void tst_MultiPageOptions::aClickIsReportedWithItsState()
{
    QFETCH(const int, row);
    MultiPagePrintWidget panel(false, false, nullptr);
    QSignalSpy spies[] = {QSignalSpy(&panel, options[0].signal),
                          QSignalSpy(&panel, options[1].signal),
                          QSignalSpy(&panel, options[2].signal)};
    auto* box = check(panel, options[row].name);
    QCOMPARE(box->isChecked(), options[row].startsChecked);
    QVERIFY(!box->isTristate());
    clickOn(box);
    clickOn(box);
    const QList<int> expected =
        options[row].startsChecked ? QList<int>({0, 2}) : QList<int>({2, 0});
    for (int i = 0; i < 3; ++i)
        QCOMPARE(takeNumbers(spies[i]), i == row ? expected : QList<int>());
}

void tst_MultiPageOptions::keyboardIsReported()
{
    MultiPagePrintWidget panel(false, false, nullptr);
    QVERIFY(showActive(panel));
    QSignalSpy changed(&panel, &MultiPagePrintWidget::fitToPageChangedSignal);
    check(panel, "fitToPageCheck")->setFocus();
    QTest::keyClick(check(panel, "fitToPageCheck"), Qt::Key_Space);
    QCOMPARE(takeNumbers(changed), QList<int>({2}));
}

void tst_MultiPageOptions::formFillOption_data()
{
    QTest::addColumn<bool>("visible");
    QTest::addColumn<bool>("checked");
    QTest::newRow("shown, checked") << true << true;
    QTest::newRow("shown, unchecked") << true << false;
    QTest::newRow("hidden, checked") << false << true;
    QTest::newRow("hidden, unchecked") << false << false;
}

void tst_MultiPageOptions::formFillOption()
{
    QFETCH(const bool, visible);
    QFETCH(const bool, checked);
    MultiPagePrintWidget panel(false, false, nullptr);
    QVERIFY(showActive(panel));
    QSignalSpy changed(&panel, &MultiPagePrintWidget::printFormFillChangedSignal);
    for (const bool before : {false, true}) {
        panel.setFormFillOption(before, before);
        panel.setFormFillOption(visible, checked);
        QCOMPARE(check(panel, "formFillCheck")->isVisible(), visible);
        QCOMPARE(check(panel, "formFillCheck")->isChecked(), checked);
    }
    QCOMPARE(changed.size(), 0);
}

void tst_MultiPageOptions::formFillOptionLeavesTheConnectionOnce()
{
    MultiPagePrintWidget panel(false, false, nullptr);
    for (int i = 0; i < 3; ++i)
        panel.setFormFillOption(true, i % 2 == 0);
    QSignalSpy changed(&panel, &MultiPagePrintWidget::printFormFillChangedSignal);
    clickOn(check(panel, "formFillCheck"));
    QCOMPARE(takeNumbers(changed), QList<int>({0}));
}

void tst_MultiPageOptions::orientationCheckIsSetSilently()
{
    MultiPagePrintWidget panel(false, false, nullptr);
    QSignalSpy changed(&panel, &MultiPagePrintWidget::orientationChangedSignal);
    for (const bool checked : {true, true, false, false, true}) {
        panel.set180OrientationCheck(checked);
        QCOMPARE(check(panel, "orientationCheck")->isChecked(), checked);
    }
    QCOMPARE(changed.size(), 0);
    clickOn(check(panel, "orientationCheck"));
    QCOMPARE(takeNumbers(changed), QList<int>({0}));
}

void tst_MultiPageOptions::orientationCheckByName()
{
    MultiPagePrintWidget panel(false, false, nullptr);
    QVERIFY(QMetaObject::invokeMethod(&panel, "set180OrientationCheck", Q_ARG(bool, true)));
    QVERIFY(check(panel, "orientationCheck")->isChecked());
}

void tst_MultiPageOptions::orientationVisibility()
{
    MultiPagePrintWidget panel(false, false, nullptr);
    QVERIFY(showActive(panel));
    panel.set180OrientationCheck(true);
    panel.set180OrientationVisible(false);
    QVERIFY(!check(panel, "orientationCheck")->isVisible());
    QVERIFY(check(panel, "orientationCheck")->isChecked());
    panel.set180OrientationVisible(true);
    QVERIFY(check(panel, "orientationCheck")->isVisible());
}

void tst_MultiPageOptions::hiddenOptionsAreShownAgainWithTheWindow()
{
    MultiPagePrintWidget panel(false, false, nullptr);
    panel.setFormFillOption(true, true);
    panel.set180OrientationVisible(true);
    QVERIFY(!panel.isVisible());
    QVERIFY(!check(panel, "formFillCheck")->isVisible());
    panel.show();
    QVERIFY(check(panel, "formFillCheck")->isVisible());
    QVERIFY(check(panel, "orientationCheck")->isVisible());
}

void tst_MultiPageOptions::otherListenersStillHearOfTheHostsChange()
{
    MultiPagePrintWidget panel(false, false, nullptr);
    QSignalSpy box(check(panel, "orientationCheck"), &QCheckBox::stateChanged);
    panel.set180OrientationCheck(true);
    QCOMPARE(takeNumbers(box), QList<int>({2}));
}

QTEST_MAIN(tst_MultiPageOptions)
#include "tst_multipageoptions.moc"
