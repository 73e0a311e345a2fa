// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "panelprobe.h"
#include "support/stricttest.h"

#include <printpanels/printwidget.h>

#include <QtWidgets/QLineEdit>
#include <QtWidgets/QRadioButton>

namespace {

/** A host's own panel: hears of every call that goes through the virtual table. */
class OverridingPanel : public PrintWidget
{
public:
    OverridingPanel() : PrintWidget(false, nullptr) {}

    void setNupDynamicLength(bool on) override
    {
        calls.append(on);
        PrintWidget::setNupDynamicLength(on);
    }

    QList<bool> calls;
};

using Step = void (*)(OverridingPanel&);

void clickAllRecords(OverridingPanel& panel)
{
    part<QRadioButton>(panel, "allRecordsRadio")->click();
}

void changeTheText(OverridingPanel& panel)
{
    part<QLineEdit>(panel, "recordListEdit")->setText(QStringLiteral("4"));
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
    QTest::addColumn<Step>("step");
    QTest::addColumn<int>("calls");
    QTest::newRow("a radio is clicked") << &clickAllRecords << 1;
    QTest::newRow("the text changes") << &changeTheText << 1;
    QTest::newRow("setRangeValues") << &tellTheRange << 1;
    QTest::newRow("updateCurrentRangeIndex does not run them") << &tellTheCurrentRecord << 0;
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
