// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "panelprobe.h"
#include "support/layoutdescription.h"
#include "support/stricttest.h"

#include <printpanels/printwidget.h>

#include <QtCore/QFile>
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

QFrame* nupFrame(const PrintWidget& panel)
{
    return part<QFrame>(panel, "nupFrame");
}

QRadioButton* radio(const PrintWidget& panel, const char* name)
{
    return part<QRadioButton>(panel, name);
}

/** Ten records, all of them chosen by a click. */
void chooseAllOfTen(PrintWidget& panel)
{
    panel.setRangeValues(0, 9, true);
    radio(panel, "allRecordsRadio")->click();
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
    const PrintWidget panel(false, nullptr);
    const QFrame* frame = nupFrame(panel);
    QVERIFY(frame->isHidden());
    QVERIFY(frame->isEnabled());
    QCOMPARE(frame->toolTip(), QString());
    QVERIFY(radio(panel, "replicatingRadio")->isChecked());
    QVERIFY(!radio(panel, "sequencingRadio")->isChecked());
    QVERIFY(!panel.getNupSeqRepOption());
    QCOMPARE(frame->parentWidget(), part<QFrame>(panel, "recordsFrame"));
}

void tst_Nup::layoutOfTheFrame()
{
    const PrintWidget panel(false, nullptr);
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
    const PrintWidget panel(false, nullptr);
    const auto* label = part<QLabel>(panel, "nupTitleLabel");
    QCOMPARE(label->text(), QStringLiteral("N-up replicating or sequencing:"));
    QCOMPARE(label->minimumHeight(), 35);
    QVERIFY(!label->wordWrap());
    QCOMPARE(label->toolTip(), QString());
}

void tst_Nup::radios_data()
{
    QTest::addColumn<int>("tip");
    QTest::newRow("replicatingRadio") << 0;
    QTest::newRow("sequencingRadio") << 1;
}

void tst_Nup::radios()
{
    QFETCH(const int, tip);
    const PrintWidget panel(false, nullptr);
    const QRadioButton* button = radio(panel, QTest::currentDataTag());
    QCOMPARE(button->text(), QString());
    QCOMPARE(button->toolTip(), toolTip(tip));
    // Without a text, a screen reader has this.
    QCOMPARE(button->accessibleName(), toolTip(tip));
    QFile sheet(QStringLiteral(EXPECTED_SHEETS "/radioButtonIndicator.qss"));
    QVERIFY(sheet.open(QIODevice::ReadOnly));
    QCOMPARE(button->styleSheet(), QString::fromUtf8(sheet.readAll()));
    QCOMPARE(button->styleSheet().size(), 508);
}

void tst_Nup::pictures_data()
{
    QTest::addColumn<QByteArray>("buddy");
    QTest::addColumn<QString>("sheet");
    QTest::newRow("replicatingIconLabel")
        << QByteArray("replicatingRadio")
        << QStringLiteral(
               "QLabel { width: 78px; height: 36px; }\n QLabel { border-image: "
               "url(:/printicons/printericons/replicating.png); }\n QLabel::disabled { "
               "border-image: url(:/printicons/printericons/replicating_disabled.png); }");
    QTest::newRow("sequencingIconLabel")
        << QByteArray("sequencingRadio")
        << QStringLiteral(
               "QLabel { width: 78px; height: 36px; }\n QLabel { border-image: "
               "url(:/printicons/printericons/sequencing.png); }\n QLabel::disabled { "
               "border-image: url(:/printicons/printericons/sequencing_disabled.png); }");
}

void tst_Nup::pictures()
{
    QFETCH(const QByteArray, buddy);
    PrintWidget panel(false, nullptr);
    auto* label = part<QLabel>(panel, QTest::currentDataTag());
    QCOMPARE(label->text(), QString());
    QCOMPARE(label->minimumSize(), QSize(78, 36));
    QCOMPARE(label->maximumSize(), QSize(78, 36));
    QTEST(label->styleSheet(), "sheet");
    QCOMPARE(label->buddy(), radio(panel, buddy.constData()));

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
    const PrintWidget panel(false, nullptr);
    QCOMPARE(part<QLabel>(panel, "replicatingIconLabel")->toolTip(), toolTip(0));
    QCOMPARE(part<QLabel>(panel, "sequencingIconLabel")->toolTip(), QString());
}

void tst_Nup::group()
{
    const PrintWidget panel(false, nullptr);
    const QButtonGroup* group = radio(panel, "replicatingRadio")->group();
    QVERIFY(group);
    QCOMPARE(group->parent(), &panel);
    QVERIFY(group->exclusive());
    QCOMPARE(group->id(radio(panel, "replicatingRadio")), 0);
    QCOMPARE(group->id(radio(panel, "sequencingRadio")), 1);
    QCOMPARE(group->buttons().size(), 2);
    QVERIFY(group != radio(panel, "allRecordsRadio")->group());
}

void tst_Nup::visibility_data()
{
    QTest::addColumn<bool>("asked");
    QTest::addColumn<bool>("sectionEnabled");
    QTest::addColumn<bool>("visible");
    QTest::newRow("shown") << true << true << true;
    QTest::newRow("hidden") << false << true << false;
    QTest::newRow("section disabled keeps it hidden") << true << false << false;
    QTest::newRow("hidden, section disabled") << false << false << false;
}

void tst_Nup::visibility()
{
    QFETCH(const bool, asked);
    QFETCH(const bool, sectionEnabled);
    QFETCH(const bool, visible);
    for (const bool visibleBefore : {false, true}) {
        PrintWidget panel(false, nullptr);
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
    PrintWidget panel(false, nullptr);
    chooseAllOfTen(panel);
    radio(panel, "sequencingRadio")->click();
    for (const bool visible : {true, false, true}) {
        panel.setNupSeqRepVisible(visible);
        QVERIFY(nupFrame(panel)->isEnabled());
        QVERIFY(radio(panel, "sequencingRadio")->isChecked());
        QCOMPARE(nupFrame(panel)->toolTip(), QString());
    }
}

void tst_Nup::enablingTheSectionDoesNotShowTheFrame()
{
    PrintWidget panel(false, nullptr);
    panel.setRangeValues(0, 9, false);
    panel.setNupSeqRepVisible(true);
    panel.setRangeValues(0, 9, true);
    QVERIFY(nupFrame(panel)->isHidden());
}

void tst_Nup::rules_data()
{
    QTest::addColumn<bool>("dynamicLength");
    QTest::addColumn<int>("records");
    QTest::addColumn<bool>("sequencingChosen");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<bool>("sequencing");
    QTest::addColumn<int>("tip");
    constexpr int none = -1;
    QTest::newRow("dynamic, several") << true << 10 << false << false << false << 2;
    QTest::newRow("dynamic, several, sequencing chosen")
        << true << 10 << true << false << false << 2;
    QTest::newRow("dynamic, one") << true << 1 << false << false << false << 2;
    QTest::newRow("several") << false << 10 << false << true << false << none;
    QTest::newRow("several, sequencing chosen") << false << 10 << true << true << true << none;
    QTest::newRow("two") << false << 2 << true << true << true << none;
    QTest::newRow("one") << false << 1 << false << false << false << 3;
    QTest::newRow("one, sequencing chosen") << false << 1 << true << false << false << 3;
    QTest::newRow("none") << false << 0 << true << false << false << 3;
    QTest::newRow("fewer than none") << false << -4 << true << false << false << 3;
}

void tst_Nup::rules()
{
    QFETCH(const bool, dynamicLength);
    QFETCH(const int, records);
    QFETCH(const bool, sequencingChosen);
    QFETCH(const int, tip);
    PrintWidget panel(false, nullptr);
    chooseAllOfTen(panel);
    if (sequencingChosen)
        radio(panel, "sequencingRadio")->click();
    panel.setRangeValues(0, records - 1, true);
    panel.setNupDynamicLength(dynamicLength);

    QTEST(nupFrame(panel)->isEnabled(), "enabled");
    QTEST(radio(panel, "sequencingRadio")->isChecked(), "sequencing");
    QCOMPARE(radio(panel, "replicatingRadio")->isChecked(),
             !radio(panel, "sequencingRadio")->isChecked());
    const QString expected = tip < 0 ? QString() : toolTip(tip);
    QCOMPARE(nupFrame(panel)->toolTip(), expected);
    QCOMPARE(part<QLabel>(panel, "nupTitleLabel")->toolTip(), expected);
    // The tool tips of the choices themselves stay.
    QCOMPARE(radio(panel, "replicatingRadio")->toolTip(), toolTip(0));
    QCOMPARE(radio(panel, "sequencingRadio")->toolTip(), toolTip(1));
}

void tst_Nup::dynamicLengthWinsOverSeveralRecords()
{
    PrintWidget panel(false, nullptr);
    chooseAllOfTen(panel);
    panel.setNupDynamicLength(true);
    QVERIFY(!nupFrame(panel)->isEnabled());
    QVERIFY(radio(panel, "replicatingRadio")->isChecked());
    QCOMPARE(nupFrame(panel)->toolTip(), toolTip(2));
    panel.setNupDynamicLength(false);
    QVERIFY(nupFrame(panel)->isEnabled());
}

void tst_Nup::oneRecordDisablesWhateverWasChosen()
{
    PrintWidget panel(false, nullptr);
    chooseAllOfTen(panel);
    radio(panel, "sequencingRadio")->click();
    panel.setRangeValues(0, 0, true);
    QVERIFY(radio(panel, "allRecordsRadio")->isChecked());
    QVERIFY(!nupFrame(panel)->isEnabled());
    QVERIFY(radio(panel, "replicatingRadio")->isChecked());
    QCOMPARE(nupFrame(panel)->toolTip(), toolTip(3));
}

void tst_Nup::theUsersChoiceComesBack()
{
    PrintWidget panel(false, nullptr);
    panel.setNupSeqRepVisible(true);
    QVERIFY(showPanel(panel));
    chooseAllOfTen(panel);
    clickOn(radio(panel, "sequencingRadio"));
    QVERIFY(panel.getNupSeqRepOption());
    clickOn(radio(panel, "currentRecordRadio"));
    QVERIFY(!panel.getNupSeqRepOption());
    QVERIFY(radio(panel, "replicatingRadio")->isChecked());
    clickOn(radio(panel, "allRecordsRadio"));
    QVERIFY(radio(panel, "sequencingRadio")->isChecked());
    QVERIFY(panel.getNupSeqRepOption());
}

void tst_Nup::theUsersChoiceOfReplicatingComesBackToo()
{
    PrintWidget panel(false, nullptr);
    chooseAllOfTen(panel);
    radio(panel, "sequencingRadio")->click();
    radio(panel, "replicatingRadio")->click();
    radio(panel, "currentRecordRadio")->click();
    radio(panel, "allRecordsRadio")->click();
    QVERIFY(radio(panel, "replicatingRadio")->isChecked());
}

void tst_Nup::programmaticChecksAreNotTheUsersChoice()
{
    PrintWidget panel(false, nullptr);
    chooseAllOfTen(panel);
    radio(panel, "sequencingRadio")->setChecked(true);
    panel.setNupDynamicLength(false);
    QVERIFY(radio(panel, "replicatingRadio")->isChecked());
}

void tst_Nup::typingAListAppliesTheRules()
{
    PrintWidget panel(false, nullptr);
    panel.setRangeValues(0, 9, true);
    panel.setNupSeqRepVisible(true);
    QVERIFY(showPanel(panel));
    clickOn(radio(panel, "recordListRadio"));
    QVERIFY(!nupFrame(panel)->isEnabled());
    auto* edit = part<QLineEdit>(panel, "recordListEdit");
    QTest::keyClicks(edit, QStringLiteral("1"));
    QVERIFY(!nupFrame(panel)->isEnabled());
    QTest::keyClicks(edit, QStringLiteral(","));
    QVERIFY(!nupFrame(panel)->isEnabled());
    QTest::keyClicks(edit, QStringLiteral("4-5"));
    QVERIFY(nupFrame(panel)->isEnabled());
    QCOMPARE(nupFrame(panel)->toolTip(), QString());
    clickOn(radio(panel, "sequencingRadio"));
    QVERIFY(panel.getNupSeqRepOption());
    edit->clear();
    QVERIFY(!panel.getNupSeqRepOption());
    QCOMPARE(nupFrame(panel)->toolTip(), toolTip(3));
}

void tst_Nup::dynamicLengthIsRemembered()
{
    PrintWidget panel(false, nullptr);
    panel.setNupDynamicLength(true);
    chooseAllOfTen(panel);
    QVERIFY(!nupFrame(panel)->isEnabled());
    QCOMPARE(nupFrame(panel)->toolTip(), toolTip(2));
    part<QLineEdit>(panel, "recordListEdit")->setText(QStringLiteral("1,2"));
    QCOMPARE(nupFrame(panel)->toolTip(), toolTip(2));
    panel.setNupDynamicLength(false);
    panel.setRangeValues(0, 9, true);
    QVERIFY(nupFrame(panel)->isEnabled());
}

void tst_Nup::option_data()
{
    QTest::addColumn<bool>("sequencing");
    QTest::addColumn<bool>("visible");
    QTest::addColumn<bool>("option");
    QTest::newRow("sequencing") << true << true << true;
    QTest::newRow("replicating") << false << true << false;
    QTest::newRow("sequencing, hidden") << true << false << false;
    QTest::newRow("replicating, hidden") << false << false << false;
}

void tst_Nup::option()
{
    QFETCH(const bool, sequencing);
    QFETCH(const bool, visible);
    PrintWidget panel(false, nullptr);
    chooseAllOfTen(panel);
    panel.setNupSeqRepVisible(visible);
    QVERIFY(showPanel(panel));
    radio(panel, sequencing ? "sequencingRadio" : "replicatingRadio")->click();
    QTEST(panel.getNupSeqRepOption(), "option");
}

void tst_Nup::optionIsFalseWhileThePanelIsNotShown()
{
    PrintWidget panel(false, nullptr);
    chooseAllOfTen(panel);
    panel.setNupSeqRepVisible(true);
    radio(panel, "sequencingRadio")->click();
    QVERIFY(radio(panel, "sequencingRadio")->isChecked());
    QVERIFY(!panel.getNupSeqRepOption());
    QVERIFY(showPanel(panel));
    QVERIFY(panel.getNupSeqRepOption());
    panel.hide();
    QVERIFY(!panel.getNupSeqRepOption());
}

QTEST_MAIN(tst_Nup)
#include "tst_nup.moc"
