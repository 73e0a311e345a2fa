// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "printpanelfixture.h"
#include "support/stricttest.h"

#include <printpanels/printwidget.h>

#include <QtWidgets/QLineEdit>
#include <QtWidgets/QRadioButton>

namespace {

using Step = void (*)(OverridingPanel&);

void clickAllRecords(OverridingPanel& panel)
{
    panel.part<QRadioButton>("allRecordsRadio")->click();
}

void changeTheText(OverridingPanel& panel)
{
    panel.part<QLineEdit>("recordListEdit")->setText(QStringLiteral("4"));
}

void tellTheRange(OverridingPanel& panel)
{
    panel.setRangeValues(2, 9, true);
}

void tellTheCurrentRecord(OverridingPanel& panel)
{
    panel.updateCurrentRangeIndex(2);
}

} // namespace

class tst_NupOverride : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void rulesRunInTheOverride_data();
    void rulesRunInTheOverride();
};

void tst_NupOverride::rulesRunInTheOverride_data()
{
    addColumns<Step, int>("step", "calls");
    addRow("a radio is clicked", &clickAllRecords, 1);
    addRow("the text changes", &changeTheText, 1);
    addRow("setRangeValues", &tellTheRange, 1);
    addRow("updateCurrentRangeIndex does not run them", &tellTheCurrentRecord, 0);
}

// They run with the dynamic length that the host told last.
void tst_NupOverride::rulesRunInTheOverride()
{
    QFETCH(const Step, step);
    QFETCH(const int, calls);
    for (const bool dynamicLength : {false, true}) {
        OverridingPanel panel;
        panel.setNupDynamicLength(dynamicLength);
        panel.calls.clear();
        step(panel);
        QCOMPARE(panel.calls, QList<bool>(calls, dynamicLength));
    }
}

QTEST_MAIN(tst_NupOverride)
#include "tst_nupoverride.moc"
