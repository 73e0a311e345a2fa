// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "multipagefixture.h"
#include "support/stricttest.h"

#include <printpanels/multipageprintwidget.h>

#include <QtTest/QSignalSpy>
#include <QtWidgets/QCheckBox>

namespace {

struct Option
{
    const char* name;
    const char* signal;
    bool startsChecked;
};

const Option options[] = {{"formFillCheck", SIGNAL(printFormFillChangedSignal(int)), true},
                          {"fitToPageCheck", SIGNAL(fitToPageChangedSignal(int)), false},
                          {"orientationCheck", SIGNAL(orientationChangedSignal(int)), false}};

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
    void otherReceiversAreStillNotifiedOfTheHostsChange();
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
    MultiPageFixture panel;
    QSignalSpy spies[] = {QSignalSpy(&panel, options[0].signal),
                          QSignalSpy(&panel, options[1].signal),
                          QSignalSpy(&panel, options[2].signal)};
    auto* box = panel.check(options[row].name);
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
    MultiPageFixture panel;
    QVERIFY(showActive(panel));
    QSignalSpy changed(&panel, SIGNAL(fitToPageChangedSignal(int)));
    panel.check("fitToPageCheck")->setFocus();
    QTest::keyClick(panel.check("fitToPageCheck"), Qt::Key_Space);
    QCOMPARE(takeNumbers(changed), QList<int>({2}));
}

void tst_MultiPageOptions::formFillOption_data()
{
    addColumns<bool, bool>("visible", "checked");
    addRow("shown, checked", true, true);
    addRow("shown, unchecked", true, false);
    addRow("hidden, checked", false, true);
    addRow("hidden, unchecked", false, false);
}

void tst_MultiPageOptions::formFillOption()
{
    QFETCH(const bool, visible);
    QFETCH(const bool, checked);
    MultiPageFixture panel;
    QVERIFY(showActive(panel));
    QSignalSpy changed(&panel, SIGNAL(printFormFillChangedSignal(int)));
    for (const bool before : {false, true}) {
        panel.setFormFillOption(before, before);
        panel.setFormFillOption(visible, checked);
        QCOMPARE(panel.check("formFillCheck")->isVisible(), visible);
        QCOMPARE(panel.check("formFillCheck")->isChecked(), checked);
    }
    QCOMPARE(changed.size(), 0);
}

void tst_MultiPageOptions::formFillOptionLeavesTheConnectionOnce()
{
    MultiPageFixture panel;
    for (int i = 0; i < 3; ++i)
        panel.setFormFillOption(true, i % 2 == 0);
    QSignalSpy changed(&panel, SIGNAL(printFormFillChangedSignal(int)));
    clickOn(panel.check("formFillCheck"));
    QCOMPARE(takeNumbers(changed), QList<int>({0}));
}

void tst_MultiPageOptions::orientationCheckIsSetSilently()
{
    MultiPageFixture panel;
    QSignalSpy changed(&panel, SIGNAL(orientationChangedSignal(int)));
    for (const bool checked : {true, true, false, false, true}) {
        panel.set180OrientationCheck(checked);
        QCOMPARE(panel.check("orientationCheck")->isChecked(), checked);
    }
    QCOMPARE(changed.size(), 0);
    clickOn(panel.check("orientationCheck"));
    QCOMPARE(takeNumbers(changed), QList<int>({0}));
}

void tst_MultiPageOptions::orientationCheckByName()
{
    MultiPageFixture panel;
    QVERIFY(QMetaObject::invokeMethod(&panel, "set180OrientationCheck", Q_ARG(bool, true)));
    QVERIFY(panel.check("orientationCheck")->isChecked());
}

void tst_MultiPageOptions::orientationVisibility()
{
    MultiPageFixture panel;
    QVERIFY(showActive(panel));
    panel.set180OrientationCheck(true);
    panel.set180OrientationVisible(false);
    QVERIFY(!panel.check("orientationCheck")->isVisible());
    QVERIFY(panel.check("orientationCheck")->isChecked());
    panel.set180OrientationVisible(true);
    QVERIFY(panel.check("orientationCheck")->isVisible());
}

void tst_MultiPageOptions::hiddenOptionsAreShownAgainWithTheWindow()
{
    MultiPageFixture panel;
    panel.setFormFillOption(true, true);
    panel.set180OrientationVisible(true);
    QVERIFY(!panel.isVisible());
    QVERIFY(!panel.check("formFillCheck")->isVisible());
    panel.show();
    QVERIFY(panel.check("formFillCheck")->isVisible());
    QVERIFY(panel.check("orientationCheck")->isVisible());
}

void tst_MultiPageOptions::otherReceiversAreStillNotifiedOfTheHostsChange()
{
    MultiPageFixture panel;
    QSignalSpy box(panel.check("orientationCheck"), &QCheckBox::stateChanged);
    panel.set180OrientationCheck(true);
    QCOMPARE(takeNumbers(box), QList<int>({2}));
}

QTEST_MAIN(tst_MultiPageOptions)
#include "tst_multipageoptions.moc"
