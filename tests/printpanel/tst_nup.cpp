// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "printpanelfixture.h"
#include "support/expectedsheet.h"
#include "support/layoutdescription.h"
#include "support/stricttest.h"

#include <printpanels/printwidget.h>

#include <QtWidgets/QButtonGroup>
#include <QtWidgets/QFrame>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QVBoxLayout>

namespace {

const char* const toolTips[] = {
    "N-up replicating: Select to print identical labels on a single page.",
    "N-up sequencing: Select to print multiple labels from the sequence on a single page.",
    "N-up replicating option is disabled when dynamic length option is on.",
    "N-up replicating option is enabled only for multiple records."};

QString toolTip(int index)
{
    return QLatin1String(toolTips[index]);
}

QFrame* nupFrame(const PrintPanelFixture& panel)
{
    return panel.part<QFrame>("nupFrame");
}

/** Ten records, all of them chosen by a click. */
void chooseAllOfTen(PrintPanelFixture& panel)
{
    panel.setRangeValues(0, 9, true);
    panel.radio("allRecordsRadio")->click();
}

} // namespace

class tst_Nup : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void frameAtConstruction();
    void layoutOfTheFrame();
    void title();
    void radios_data();
    void radios();
    void pictures_data();
    void pictures();
    void onlyTheReplicatingPictureHasAToolTip();
    void group();

    void visibility_data();
    void visibility();
    void visibilityTouchesNothingElse();
    void enablingTheSectionDoesNotShowTheFrame();

    void rules_data();
    void rules();
    void dynamicLengthWinsOverSeveralRecords();
    void oneRecordDisablesWhateverWasChosen();
    void theUsersChoiceComesBack();
    void theUsersChoiceOfReplicatingComesBackToo();
    void programmaticChecksAreNotTheUsersChoice();
    void typingAListAppliesTheRules();
    void dynamicLengthIsRemembered();

    void option_data();
    void option();
    void optionIsFalseWhileThePanelIsNotShown();
};

void tst_Nup::frameAtConstruction()
{
    const PrintPanelFixture panel;
    const QFrame* frame = nupFrame(panel);
    QVERIFY(frame->isHidden());
    QVERIFY(frame->isEnabled());
    QCOMPARE(frame->toolTip(), QString());
    QVERIFY(panel.radio("replicatingRadio")->isChecked());
    QVERIFY(!panel.radio("sequencingRadio")->isChecked());
    QVERIFY(!panel.getNupSeqRepOption());
    QCOMPARE(frame->parentWidget(), panel.part<QFrame>("recordsFrame"));
}

void tst_Nup::layoutOfTheFrame()
{
    const PrintPanelFixture panel;
    auto* column = qobject_cast<QVBoxLayout*>(nupFrame(panel)->layout());
    QVERIFY(column);
    QCOMPARE(column->contentsMargins(), QMargins(0, 10, 0, 10));
    QCOMPARE(layoutDescription(column),
             QStringList({QStringLiteral("QLabel nupTitleLabel"), QStringLiteral("QHBoxLayout")}));
    const QLayout* row = column->itemAt(1)->layout();
    QCOMPARE(row->contentsMargins(), QMargins(0, 10, 0, 0));
    QCOMPARE(layoutDescription(row), QStringList({QStringLiteral("QRadioButton replicatingRadio"),
                                                  QStringLiteral("QLabel replicatingIconLabel"),
                                                  QStringLiteral("spacer 10x10 Expanding/Fixed"),
                                                  QStringLiteral("QRadioButton sequencingRadio"),
                                                  QStringLiteral("QLabel sequencingIconLabel")}));
}

void tst_Nup::title()
{
    const PrintPanelFixture panel;
    const auto* label = panel.part<QLabel>("nupTitleLabel");
    QCOMPARE(label->text(), QStringLiteral("N-up replicating or sequencing:"));
    QCOMPARE(label->minimumHeight(), 35);
    QVERIFY(!label->wordWrap());
    QCOMPARE(label->toolTip(), QString());
}

void tst_Nup::radios_data()
{
    QTest::addColumn<int>("tip");
    addRow("replicatingRadio", 0);
    addRow("sequencingRadio", 1);
}

void tst_Nup::radios()
{
    QFETCH(const int, tip);
    const PrintPanelFixture panel;
    const QRadioButton* button = panel.radio(QTest::currentDataTag());
    QCOMPARE(button->text(), QString());
    QCOMPARE(button->toolTip(), toolTip(tip));
    // Without a text, a screen reader has this.
    QCOMPARE(button->accessibleName(), toolTip(tip));
    QCOMPARE(button->styleSheet(), expectedSheet("radioButtonIndicator"));
    QCOMPARE(button->styleSheet().size(), 508);
}

void tst_Nup::pictures_data()
{
    addColumns<QByteArray, QString>("buddy", "sheet");
    addRow("replicatingIconLabel", QByteArray("replicatingRadio"),
           "QLabel { width: 78px; height: 36px; }\n QLabel { border-image: "
           "url(:/printicons/printericons/replicating.png); }\n QLabel::disabled { "
           "border-image: url(:/printicons/printericons/replicating_disabled.png); }");
    addRow("sequencingIconLabel", QByteArray("sequencingRadio"),
           "QLabel { width: 78px; height: 36px; }\n QLabel { border-image: "
           "url(:/printicons/printericons/sequencing.png); }\n QLabel::disabled { "
           "border-image: url(:/printicons/printericons/sequencing_disabled.png); }");
}

void tst_Nup::pictures()
{
    QFETCH(const QByteArray, buddy);
    PrintPanelFixture panel;
    auto* label = panel.part<QLabel>(QTest::currentDataTag());
    QCOMPARE(label->text(), QString());
    QCOMPARE(label->minimumSize(), QSize(78, 36));
    QCOMPARE(label->maximumSize(), QSize(78, 36));
    QTEST(label->styleSheet(), "sheet");
    QCOMPARE(label->buddy(), panel.radio(buddy.constData()));

    chooseAllOfTen(panel);
    panel.setNupSeqRepVisible(true);
    QVERIFY(showPanel(panel));
    QCOMPARE(label->size(), QSize(78, 36));
    const QImage enabled = label->grab().toImage();
    panel.setNupDynamicLength(true);
    QVERIFY(label->grab().toImage() != enabled);
}

void tst_Nup::onlyTheReplicatingPictureHasAToolTip()
{
    const PrintPanelFixture panel;
    QCOMPARE(panel.part<QLabel>("replicatingIconLabel")->toolTip(), toolTip(0));
    QCOMPARE(panel.part<QLabel>("sequencingIconLabel")->toolTip(), QString());
}

void tst_Nup::group()
{
    const PrintPanelFixture panel;
    const QButtonGroup* group = panel.radio("replicatingRadio")->group();
    QVERIFY(group);
    QCOMPARE(group->parent(), &panel);
    QVERIFY(group->exclusive());
    QCOMPARE(group->id(panel.radio("replicatingRadio")), 0);
    QCOMPARE(group->id(panel.radio("sequencingRadio")), 1);
    QCOMPARE(group->buttons().size(), 2);
    QVERIFY(group != panel.radio("allRecordsRadio")->group());
}

void tst_Nup::visibility_data()
{
    addColumns<bool, bool, bool>("asked", "sectionEnabled", "visible");
    addRow("shown", true, true, true);
    addRow("hidden", false, true, false);
    addRow("section disabled keeps it hidden", true, false, false);
    addRow("hidden, section disabled", false, false, false);
}

void tst_Nup::visibility()
{
    QFETCH(const bool, asked);
    QFETCH(const bool, sectionEnabled);
    QFETCH(const bool, visible);
    for (const bool visibleBefore : {false, true}) {
        PrintPanelFixture panel;
        panel.setNupSeqRepVisible(visibleBefore);
        panel.setRangeValues(0, 9, sectionEnabled);
        panel.setNupSeqRepVisible(asked);
        QCOMPARE(!nupFrame(panel)->isHidden(), visible);
        QVERIFY(showPanel(panel));
        QCOMPARE(nupFrame(panel)->isVisible(), visible);
    }
}

void tst_Nup::visibilityTouchesNothingElse()
{
    PrintPanelFixture panel;
    chooseAllOfTen(panel);
    panel.radio("sequencingRadio")->click();
    for (const bool visible : {true, false, true}) {
        panel.setNupSeqRepVisible(visible);
        QVERIFY(nupFrame(panel)->isEnabled());
        QVERIFY(panel.radio("sequencingRadio")->isChecked());
        QCOMPARE(nupFrame(panel)->toolTip(), QString());
    }
}

void tst_Nup::enablingTheSectionDoesNotShowTheFrame()
{
    PrintPanelFixture panel;
    panel.setRangeValues(0, 9, false);
    panel.setNupSeqRepVisible(true);
    panel.setRangeValues(0, 9, true);
    QVERIFY(nupFrame(panel)->isHidden());
}

void tst_Nup::rules_data()
{
    addColumns<bool, int, bool, bool, bool, int>("dynamicLength", "records", "sequencingChosen",
                                                 "enabled", "sequencing", "tip");
    constexpr int none = -1;
    addRow("dynamic, several", true, 10, false, false, false, 2);
    addRow("dynamic, several, sequencing chosen", true, 10, true, false, false, 2);
    addRow("dynamic, one", true, 1, false, false, false, 2);
    addRow("several", false, 10, false, true, false, none);
    addRow("several, sequencing chosen", false, 10, true, true, true, none);
    addRow("two", false, 2, true, true, true, none);
    addRow("one", false, 1, false, false, false, 3);
    addRow("one, sequencing chosen", false, 1, true, false, false, 3);
    addRow("none", false, 0, true, false, false, 3);
    addRow("fewer than none", false, -4, true, false, false, 3);
}

void tst_Nup::rules()
{
    QFETCH(const bool, dynamicLength);
    QFETCH(const int, records);
    QFETCH(const bool, sequencingChosen);
    QFETCH(const int, tip);
    PrintPanelFixture panel;
    chooseAllOfTen(panel);
    if (sequencingChosen)
        panel.radio("sequencingRadio")->click();
    panel.setRangeValues(0, records - 1, true);
    panel.setNupDynamicLength(dynamicLength);

    QTEST(nupFrame(panel)->isEnabled(), "enabled");
    QTEST(panel.radio("sequencingRadio")->isChecked(), "sequencing");
    QCOMPARE(panel.radio("replicatingRadio")->isChecked(),
             !panel.radio("sequencingRadio")->isChecked());
    const QString expected = tip < 0 ? QString() : toolTip(tip);
    QCOMPARE(nupFrame(panel)->toolTip(), expected);
    QCOMPARE(panel.part<QLabel>("nupTitleLabel")->toolTip(), expected);
    // The tool tips of the choices themselves stay.
    QCOMPARE(panel.radio("replicatingRadio")->toolTip(), toolTip(0));
    QCOMPARE(panel.radio("sequencingRadio")->toolTip(), toolTip(1));
}

void tst_Nup::dynamicLengthWinsOverSeveralRecords()
{
    PrintPanelFixture panel;
    chooseAllOfTen(panel);
    panel.setNupDynamicLength(true);
    QVERIFY(!nupFrame(panel)->isEnabled());
    QVERIFY(panel.radio("replicatingRadio")->isChecked());
    QCOMPARE(nupFrame(panel)->toolTip(), toolTip(2));
    panel.setNupDynamicLength(false);
    QVERIFY(nupFrame(panel)->isEnabled());
}

void tst_Nup::oneRecordDisablesWhateverWasChosen()
{
    PrintPanelFixture panel;
    chooseAllOfTen(panel);
    panel.radio("sequencingRadio")->click();
    panel.setRangeValues(0, 0, true);
    QVERIFY(panel.radio("allRecordsRadio")->isChecked());
    QVERIFY(!nupFrame(panel)->isEnabled());
    QVERIFY(panel.radio("replicatingRadio")->isChecked());
    QCOMPARE(nupFrame(panel)->toolTip(), toolTip(3));
}

void tst_Nup::theUsersChoiceComesBack()
{
    PrintPanelFixture panel;
    panel.setNupSeqRepVisible(true);
    QVERIFY(showPanel(panel));
    chooseAllOfTen(panel);
    clickOn(panel.radio("sequencingRadio"));
    QVERIFY(panel.getNupSeqRepOption());
    clickOn(panel.radio("currentRecordRadio"));
    QVERIFY(!panel.getNupSeqRepOption());
    QVERIFY(panel.radio("replicatingRadio")->isChecked());
    clickOn(panel.radio("allRecordsRadio"));
    QVERIFY(panel.radio("sequencingRadio")->isChecked());
    QVERIFY(panel.getNupSeqRepOption());
}

void tst_Nup::theUsersChoiceOfReplicatingComesBackToo()
{
    PrintPanelFixture panel;
    chooseAllOfTen(panel);
    panel.radio("sequencingRadio")->click();
    panel.radio("replicatingRadio")->click();
    panel.radio("currentRecordRadio")->click();
    panel.radio("allRecordsRadio")->click();
    QVERIFY(panel.radio("replicatingRadio")->isChecked());
}

void tst_Nup::programmaticChecksAreNotTheUsersChoice()
{
    PrintPanelFixture panel;
    chooseAllOfTen(panel);
    panel.radio("sequencingRadio")->setChecked(true);
    panel.setNupDynamicLength(false);
    QVERIFY(panel.radio("replicatingRadio")->isChecked());
}

void tst_Nup::typingAListAppliesTheRules()
{
    PrintPanelFixture panel;
    panel.setRangeValues(0, 9, true);
    panel.setNupSeqRepVisible(true);
    QVERIFY(showPanel(panel));
    clickOn(panel.radio("recordListRadio"));
    QVERIFY(!nupFrame(panel)->isEnabled());
    auto* edit = panel.part<QLineEdit>("recordListEdit");
    QTest::keyClicks(edit, QStringLiteral("1"));
    QVERIFY(!nupFrame(panel)->isEnabled());
    QTest::keyClicks(edit, QStringLiteral(","));
    QVERIFY(!nupFrame(panel)->isEnabled());
    QTest::keyClicks(edit, QStringLiteral("4-5"));
    QVERIFY(nupFrame(panel)->isEnabled());
    QCOMPARE(nupFrame(panel)->toolTip(), QString());
    clickOn(panel.radio("sequencingRadio"));
    QVERIFY(panel.getNupSeqRepOption());
    edit->clear();
    QVERIFY(!panel.getNupSeqRepOption());
    QCOMPARE(nupFrame(panel)->toolTip(), toolTip(3));
}

void tst_Nup::dynamicLengthIsRemembered()
{
    PrintPanelFixture panel;
    panel.setNupDynamicLength(true);
    chooseAllOfTen(panel);
    QVERIFY(!nupFrame(panel)->isEnabled());
    QCOMPARE(nupFrame(panel)->toolTip(), toolTip(2));
    panel.part<QLineEdit>("recordListEdit")->setText(QStringLiteral("1,2"));
    QCOMPARE(nupFrame(panel)->toolTip(), toolTip(2));
    panel.setNupDynamicLength(false);
    panel.setRangeValues(0, 9, true);
    QVERIFY(nupFrame(panel)->isEnabled());
}

void tst_Nup::option_data()
{
    addColumns<bool, bool, bool>("sequencing", "visible", "option");
    addRow("sequencing", true, true, true);
    addRow("replicating", false, true, false);
    addRow("sequencing, hidden", true, false, false);
    addRow("replicating, hidden", false, false, false);
}

void tst_Nup::option()
{
    QFETCH(const bool, sequencing);
    QFETCH(const bool, visible);
    PrintPanelFixture panel;
    chooseAllOfTen(panel);
    panel.setNupSeqRepVisible(visible);
    QVERIFY(showPanel(panel));
    panel.radio(sequencing ? "sequencingRadio" : "replicatingRadio")->click();
    QTEST(panel.getNupSeqRepOption(), "option");
}

void tst_Nup::optionIsFalseWhileThePanelIsNotShown()
{
    PrintPanelFixture panel;
    chooseAllOfTen(panel);
    panel.setNupSeqRepVisible(true);
    panel.radio("sequencingRadio")->click();
    QVERIFY(panel.radio("sequencingRadio")->isChecked());
    QVERIFY(!panel.getNupSeqRepOption());
    QVERIFY(showPanel(panel));
    QVERIFY(panel.getNupSeqRepOption());
    panel.hide();
    QVERIFY(!panel.getNupSeqRepOption());
}

QTEST_MAIN(tst_Nup)
#include "tst_nup.moc"
