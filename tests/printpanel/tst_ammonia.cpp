// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "printpanelfixture.h"
#include "support/layoutdescription.h"
#include "support/stricttest.h"

#include <applicationfont.h>
#include <printpanels/printwidget.h>

#include <QtCore/QPointer>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QFrame>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>

#include <climits>

namespace {

QComboBox* combo(const PrintPanelFixture& panel)
{
    return panel.part<QComboBox>("AmmoniaPrintCombo");
}

QFrame* section(const PrintPanelFixture& panel)
{
    return panel.part<QFrame>("ammoniaWidget");
}

QFrame* separator(const PrintPanelFixture& panel)
{
    return panel.part<QFrame>("ammoniaSeparator");
}

/** "Label=0 High Pressure Tag=1": the entries with their values. */
QStringList entries(const PrintPanelFixture& panel)
{
    QStringList lines;
    for (int i = 0; i < combo(panel)->count(); ++i)
        lines.append(QStringLiteral("%1=%2")
                         .arg(combo(panel)->itemText(i))
                         .arg(combo(panel)->itemData(i, Qt::UserRole).toInt()));
    return lines;
}

const char* const tagSignal = SIGNAL(ammoniaPrintTagChanged(int));

} // namespace

class tst_Ammonia : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void atConstructionTheSectionIsEmptyAndHidden();
    void layoutOfTheSection();
    void caption();
    void setModuleBuildsHiddenAndDisconnected();

    void entriesFollowTheMask_data();
    void entriesFollowTheMask();
    void entriesHaveNoIcons();
    void tagsBeforeSetModuleBuildTheSection();
    void noTagsBeforeSetModuleDoNothing_data();
    void noTagsBeforeSetModuleDoNothing();
    void setModuleAfterTagsStartsOverHidden();

    void theUsersChoiceIsReportedByItsValue_data();
    void theUsersChoiceIsReportedByItsValue();
    void rebuildingReturnsToTheLabelSilently();
    void theSignalIsConnectedOnce();
    void withoutTagsTheComboIsDisconnected();
    void negativeIndexIsIgnored_data();
    void negativeIndexIsIgnored();

    void separatorShowsOnlyWithoutSupply();
    void onlyAMaskReevaluatesTheSeparator();
    void secondSetModuleDoublesNoNames();
    void secondSetModuleTakesTheOldContentsAwayAtOnce();
    void createAmmoniaComboListTwiceDoublesNoNames();
    void setModuleInsideTheTagHandler();
    void setVisibleAmmoniaTagInsideTheTagHandler();
};

void tst_Ammonia::atConstructionTheSectionIsEmptyAndHidden()
{
    const PrintPanelFixture panel;
    QVERIFY(section(panel)->isHidden());
    QVERIFY(section(panel)->children().isEmpty());
    QCOMPARE(combo(panel), nullptr);
}

void tst_Ammonia::layoutOfTheSection()
{
    PrintPanelFixture panel;
    panel.setModule(JxModuleInfo::PipeMarking);
    auto* grid = qobject_cast<QGridLayout*>(section(panel)->layout());
    QVERIFY(grid);
    QCOMPARE(grid->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(grid->count(), 2);
    QCOMPARE(grid->itemAtPosition(0, 0)->widget(),
             labelWithText(panel, QStringLiteral("Item To Print:")));
    QCOMPARE(grid->itemAtPosition(3, 0)->widget(), combo(panel));
    for (const int row : {0, 3})
        QCOMPARE(grid->itemAtPosition(row, 0)->alignment(), Qt::AlignLeft);
    for (int index = 0; index < 2; ++index) {
        QCOMPARE(gridCell(grid, index).rowSpan, 1);
        QCOMPARE(gridCell(grid, index).columnSpan, 1);
    }
    QVERIFY(combo(panel)->inherits("JxComboBox"));
    QVERIFY(combo(panel)->minimumHeight() >= 35);
    QVERIFY(combo(panel)->minimumHeight() <= 37);
}

void tst_Ammonia::caption()
{
    PrintPanelFixture panel;
    panel.setModule(JxModuleInfo::PipeMarking);
    const QLabel* label = labelWithText(panel, QStringLiteral("Item To Print:"));
    QVERIFY(label);
    QCOMPARE(label->font(), ApplicationFont::getWidgetFont(true));
    QCOMPARE(label->minimumHeight(), 35);
}

void tst_Ammonia::setModuleBuildsHiddenAndDisconnected()
{
    PrintPanelFixture panel;
    panel.setModule(JxModuleInfo::PipeMarking);
    QVERIFY(section(panel)->isHidden());
    QVERIFY(separator(panel)->isHidden());
    QCOMPARE(separator(panel)->frameShape(), QFrame::HLine);
    QVERIFY(!section(panel)->isAncestorOf(separator(panel)));
    QCOMPARE(combo(panel)->count(), 0);

    const QSignalSpy changed(&panel, tagSignal);
    combo(panel)->addItem(QStringLiteral("one"), 1);
    combo(panel)->addItem(QStringLiteral("two"), 2);
    combo(panel)->setCurrentIndex(1);
    QCOMPARE(changed.size(), 0);
    QVERIFY(showPanel(panel));
    QVERIFY(!section(panel)->isVisible());
}

void tst_Ammonia::entriesFollowTheMask_data()
{
    addColumns<int, QStringList>("mask", "expected");
    const QString label = QStringLiteral("Label=0");
    const QString high = QStringLiteral("High Pressure Tag=1");
    const QString low = QStringLiteral("Low Pressure Tag=2");
    const QString vapor = QStringLiteral("Vapor State Tag=4");
    const QString liquid = QStringLiteral("Liquid State Tag=8");
    const QString names[] = {high, low, vapor, liquid};
    for (int mask = 0; mask < 16; ++mask) {
        QStringList expected{label};
        for (int bit = 0; bit < 4; ++bit) {
            if (mask & (1 << bit))
                expected.append(names[bit]);
        }
        QTest::addRow("%d", mask) << mask << expected;
    }
    addRow("5, literally", 5, QStringList({label, high, vapor}));
    addRow("only higher bits", 16 + 64, QStringList(label));
    addRow("higher bits are ignored", 1024 + 8, QStringList({label, liquid}));
    addRow("every bit", -1, QStringList({label, high, low, vapor, liquid}));
    addRow("highest", INT_MAX, QStringList({label, high, low, vapor, liquid}));
    addRow("lowest", INT_MIN, QStringList(label));
}

void tst_Ammonia::entriesFollowTheMask()
{
    QFETCH(const int, mask);
    QFETCH(const QStringList, expected);
    PrintPanelFixture panel;
    panel.setModule(JxModuleInfo::PipeMarking);
    for (const int before : {15, 0}) {
        panel.setVisibleAmmoniaTag(before);
        panel.setVisibleAmmoniaTag(mask);
        QCOMPARE(entries(panel), expected);
        QCOMPARE(combo(panel)->currentIndex(), 0);
        QCOMPARE(section(panel)->isHidden(), expected.size() == 1);
        QCOMPARE(separator(panel)->isHidden(), expected.size() == 1);
    }
}

void tst_Ammonia::entriesHaveNoIcons()
{
    PrintPanelFixture panel;
    panel.setVisibleAmmoniaTag(15);
    for (int i = 0; i < combo(panel)->count(); ++i)
        QVERIFY(combo(panel)->itemIcon(i).isNull());
}

void tst_Ammonia::tagsBeforeSetModuleBuildTheSection()
{
    PrintPanelFixture panel;
    panel.setVisibleAmmoniaTag(5);
    QVERIFY(!section(panel)->isHidden());
    QVERIFY(!separator(panel)->isHidden());
    QCOMPARE(entries(panel).size(), 3);
    // The records stay: only the module hides them.
    QVERIFY(!panel.part<QFrame>("recordsFrame")->isHidden());
}

void tst_Ammonia::noTagsBeforeSetModuleDoNothing_data()
{
    QTest::addColumn<int>("mask");
    for (const int mask : {0, 16, 4096, INT_MIN})
        QTest::addRow("%d", mask) << mask;
}

void tst_Ammonia::noTagsBeforeSetModuleDoNothing()
{
    QFETCH(const int, mask);
    PrintPanelFixture panel;
    const QStringList before = stateOf(panel);
    panel.setVisibleAmmoniaTag(mask);
    QCOMPARE(stateOf(panel), before);
}

void tst_Ammonia::setModuleAfterTagsStartsOverHidden()
{
    PrintPanelFixture panel;
    panel.setVisibleAmmoniaTag(5);
    panel.setModule(JxModuleInfo::PipeMarking);
    QVERIFY(section(panel)->isHidden());
    QVERIFY(separator(panel)->isHidden());
    QCOMPARE(combo(panel)->count(), 0);
    panel.setVisibleAmmoniaTag(2);
    QVERIFY(!section(panel)->isHidden());
    QCOMPARE(entries(panel),
             QStringList({QStringLiteral("Label=0"), QStringLiteral("Low Pressure Tag=2")}));
}

void tst_Ammonia::theUsersChoiceIsReportedByItsValue_data()
{
    addColumns<int, int, int>("mask", "index", "value");
    addRow("third entry of 5 is 4", 5, 2, 4);
    addRow("second entry of 5 is 1", 5, 1, 1);
    addRow("second entry of 8 is 8", 8, 1, 8);
    addRow("last of all is 8", 15, 4, 8);
    addRow("second of 6 is 2", 6, 1, 2);
    addRow("third of 6 is 4", 6, 2, 4);
}

void tst_Ammonia::theUsersChoiceIsReportedByItsValue()
{
    QFETCH(const int, mask);
    QFETCH(const int, index);
    QFETCH(const int, value);
    PrintPanelFixture panel;
    panel.setModule(JxModuleInfo::PipeMarking);
    panel.setVisibleAmmoniaTag(mask);
    QVERIFY(showPanel(panel));
    QSignalSpy changed(&panel, tagSignal);
    for (int i = 0; i < index; ++i)
        QTest::keyClick(combo(panel), Qt::Key_Down);
    QCOMPARE(changed.size(), index);
    QCOMPARE(changed.last(), QVariantList{value});
    QTest::keyClick(combo(panel), Qt::Key_Home);
    QCOMPARE(changed.last(), QVariantList{0});
}

void tst_Ammonia::rebuildingReturnsToTheLabelSilently()
{
    PrintPanelFixture panel;
    panel.setModule(JxModuleInfo::PipeMarking);
    panel.setVisibleAmmoniaTag(15);
    combo(panel)->setCurrentIndex(4);
    const QSignalSpy changed(&panel, tagSignal);
    panel.setVisibleAmmoniaTag(15);
    QCOMPARE(combo(panel)->currentText(), QStringLiteral("Label"));
    panel.setVisibleAmmoniaTag(8);
    panel.setVisibleAmmoniaTag(0);
    panel.setVisibleAmmoniaTag(8);
    QCOMPARE(combo(panel)->currentIndex(), 0);
    QCOMPARE(changed.size(), 0);
}

void tst_Ammonia::theSignalIsConnectedOnce()
{
    PrintPanelFixture panel;
    panel.setModule(JxModuleInfo::PipeMarking);
    for (int i = 0; i < 3; ++i)
        panel.setVisibleAmmoniaTag(15);
    const QSignalSpy changed(&panel, tagSignal);
    combo(panel)->setCurrentIndex(3);
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed.first(), QVariantList{4});
}

void tst_Ammonia::withoutTagsTheComboIsDisconnected()
{
    PrintPanelFixture panel;
    panel.setModule(JxModuleInfo::PipeMarking);
    panel.setVisibleAmmoniaTag(15);
    panel.setVisibleAmmoniaTag(0);
    const QSignalSpy changed(&panel, tagSignal);
    combo(panel)->addItem(QStringLiteral("more"), 4);
    combo(panel)->setCurrentIndex(1);
    QCOMPARE(changed.size(), 0);
}

void tst_Ammonia::negativeIndexIsIgnored_data()
{
    addColumns<int, QList<QVariantList>>("index", "emitted");
    addRow("-1", -1, QList<QVariantList>());
    addRow("lowest", INT_MIN, QList<QVariantList>());
    addRow("first", 0, QList<QVariantList>{QVariantList{0}});
    addRow("second", 1, QList<QVariantList>{QVariantList{2}});
}

void tst_Ammonia::negativeIndexIsIgnored()
{
    QFETCH(const int, index);
    PrintPanelFixture panel;
    panel.setVisibleAmmoniaTag(2);
    const QSignalSpy changed(&panel, tagSignal);
    QVERIFY(QMetaObject::invokeMethod(&panel, "ammoniaPrintComboChanged", Q_ARG(int, index)));
    QTEST(QList<QVariantList>(changed), "emitted");
    // The host may clear the box: index -1 reaches the slot by the connection.
    combo(panel)->setCurrentIndex(-1);
    QTEST(QList<QVariantList>(changed), "emitted");
}

void tst_Ammonia::separatorShowsOnlyWithoutSupply()
{
    PrintPanelFixture panel;
    panel.setModule(JxModuleInfo::PipeMarking);
    panel.showSupplyInfo({QStringLiteral("#000000")}, false, 4.0, 0, false);
    panel.setVisibleAmmoniaTag(3);
    QVERIFY(!section(panel)->isHidden());
    QVERIFY(separator(panel)->isHidden());
    panel.hideSupplyInfo();
    panel.setVisibleAmmoniaTag(3);
    QVERIFY(!separator(panel)->isHidden());
    panel.setVisibleAmmoniaTag(0);
    QVERIFY(section(panel)->isHidden());
    QVERIFY(separator(panel)->isHidden());
}

void tst_Ammonia::onlyAMaskReevaluatesTheSeparator()
{
    PrintPanelFixture panel;
    panel.setModule(JxModuleInfo::PipeMarking);
    panel.setVisibleAmmoniaTag(3);
    QVERIFY(!separator(panel)->isHidden());
    panel.showSupplyInfo({QStringLiteral("#000000")}, false, 4.0, 0, false);
    QVERIFY(!separator(panel)->isHidden());
    panel.setVisibleAmmoniaTag(3);
    QVERIFY(separator(panel)->isHidden());
    panel.hideSupplyInfo();
    QVERIFY(separator(panel)->isHidden());
}

void tst_Ammonia::secondSetModuleDoublesNoNames()
{
    PrintPanelFixture panel;
    panel.setModule(JxModuleInfo::PipeMarking);
    panel.setVisibleAmmoniaTag(15);
    panel.setModule(JxModuleInfo::PipeMarking);
    QVERIFY(section(panel)->isHidden());
    QCOMPARE(panel.findChildren<QComboBox*>(QStringLiteral("AmmoniaPrintCombo")).size(), 1);
    QCOMPARE(panel.findChildren<QFrame*>(QStringLiteral("ammoniaSeparator")).size(), 1);

    panel.setVisibleAmmoniaTag(15);
    QCOMPARE(entries(panel),
             QStringList({QStringLiteral("Label=0"), QStringLiteral("High Pressure Tag=1"),
                          QStringLiteral("Low Pressure Tag=2"), QStringLiteral("Vapor State Tag=4"),
                          QStringLiteral("Liquid State Tag=8")}));
    const QSignalSpy changed(&panel, tagSignal);
    combo(panel)->setCurrentIndex(4);
    QCOMPARE(changed.size(), 1);
}

// What is left of the old contents until the event loop deletes it is neither seen nor heard.
void tst_Ammonia::secondSetModuleTakesTheOldContentsAwayAtOnce()
{
    PrintPanelFixture panel;
    panel.setModule(JxModuleInfo::PipeMarking);
    panel.setVisibleAmmoniaTag(15);
    QVERIFY(showPanel(panel));
    const QStringList rows = layoutDescription(panel.layout());
    const QPointer<QComboBox> oldCombo = combo(panel);
    const QPointer<QFrame> oldSeparator = separator(panel);
    QVERIFY(oldCombo->isVisible());

    panel.setModule(JxModuleInfo::PipeMarking);
    panel.setVisibleAmmoniaTag(3);
    QCOMPARE(layoutDescription(panel.layout()), rows);
    QVERIFY(panel.layout()->indexOf(separator(panel)) >= 0);
    QVERIFY(!oldCombo || !oldCombo->isVisible());
    QVERIFY(!oldSeparator || !oldSeparator->isVisible());
    const QSignalSpy changed(&panel, tagSignal);
    if (oldCombo)
        oldCombo->setCurrentIndex(2);
    QCOMPARE(changed.size(), 0);
    QTRY_VERIFY(oldCombo.isNull() && oldSeparator.isNull());
}

void tst_Ammonia::createAmmoniaComboListTwiceDoublesNoNames()
{
    PrintPanelFixture panel;
    panel.createAmmoniaComboList();
    panel.setModule(JxModuleInfo::PipeMarking);
    panel.createAmmoniaComboList();
    panel.createAmmoniaComboList();
    panel.setVisibleAmmoniaTag(8);
    QCOMPARE(entries(panel),
             QStringList({QStringLiteral("Label=0"), QStringLiteral("Liquid State Tag=8")}));
}

void tst_Ammonia::setModuleInsideTheTagHandler()
{
    PrintPanelFixture panel;
    panel.setModule(JxModuleInfo::PipeMarking);
    panel.setVisibleAmmoniaTag(15);
    QVERIFY(showPanel(panel));
    int received = 0;
    connect(&panel, &PrintWidget::ammoniaPrintTagChanged, this, [&] {
        ++received;
        panel.setModule(JxModuleInfo::PipeMarking);
        panel.setVisibleAmmoniaTag(3);
    });
    QTest::keyClick(combo(panel), Qt::Key_Down);
    QCOMPARE(received, 1);
    QTest::qWait(0);
    QCOMPARE(entries(panel).size(), 3);
    QCOMPARE(panel.findChildren<QComboBox*>(QStringLiteral("AmmoniaPrintCombo")).size(), 1);
    QVERIFY(combo(panel)->isVisible());
    QTest::keyClick(combo(panel), Qt::Key_Down);
    QCOMPARE(received, 2);
}

void tst_Ammonia::setVisibleAmmoniaTagInsideTheTagHandler()
{
    PrintPanelFixture panel;
    panel.setVisibleAmmoniaTag(15);
    QList<int> received;
    connect(&panel, &PrintWidget::ammoniaPrintTagChanged, this, [&](int value) {
        received.append(value);
        panel.setVisibleAmmoniaTag(value);
    });
    combo(panel)->setCurrentIndex(4);
    QCOMPARE(received, QList<int>{8});
    QCOMPARE(entries(panel),
             QStringList({QStringLiteral("Label=0"), QStringLiteral("Liquid State Tag=8")}));
    combo(panel)->setCurrentIndex(1);
    QCOMPARE(received, QList<int>({8, 8}));
}

QTEST_MAIN(tst_Ammonia)
#include "tst_ammonia.moc"
