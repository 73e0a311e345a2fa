// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "multipagefixture.h"
#include "support/stricttest.h"

#include <printpanels/multipageprintwidget.h>

#include <QtTest/QSignalSpy>
#include <QtWidgets/QButtonGroup>
#include <QtWidgets/QFrame>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QRadioButton>

#include <limits>

using Requests = QList<Request>;

namespace {

enum Choice { Current, All, Selection };

constexpr int lowest = std::numeric_limits<int>::min();
constexpr int highest = std::numeric_limits<int>::max();

QRadioButton* radio(const MultiPageFixture& panel, int choice)
{
    const char* const names[] = {"currentPageRadio", "allPagesRadio", "selectionRadio"};
    return panel.part<QRadioButton>(names[choice]);
}

/** A panel that shows a page of a document, with a choice made and a list typed. */
class Document
{
public:
    Document(int choice, const QString& list, int current, int count)
        : started(&panel, &MultiPagePrintWidget::startPageChangedSignal),
          printed(&panel, &PrintWidgetInterface::widgetPrintSignal)
    {
        panel.pageList()->setText(list);
        radio(panel, choice)->setChecked(true);
        panel.setPageInfo(current, count, true);
        started.clear();
    }

    MultiPageFixture panel;
    QSignalSpy started;
    QSignalSpy printed;
};

} // namespace

/** Which pages a choice stands for, and when the host hears of the first of them. */
class tst_MultiPagePages : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void freshPanelStandsForTheFirstPage();
    void freshPanelReckonsWith99999Pages();
    void radiosAreOneExclusiveGroup();

    void pageInfoForcesOneReport_data();
    void pageInfoForcesOneReport();
    void pageInfoReportsTheSamePageAgain_data();
    void pageInfoReportsTheSamePageAgain();
    void pageInfoOfASelectionMayReportTwice_data();
    void pageInfoOfASelectionMayReportTwice();
    void pageInfoEnablesTheWholeFrame();

    void currentIndexReports_data();
    void currentIndexReports();
    void currentIndexByText();

    void clicksOnTheRadios();
    void listIsEnabledForTheSelectionOnly_data();
    void listIsEnabledForTheSelectionOnly();
    void listIsEnabledWhenNoRadioIsChecked();
    void checkRangeUpdateLeavesTheListAsItIs();
    void updatesReport_data();
    void updatesReport();

    void typingReportsEachNewStart();
    void typingBeyondTheEndReportsNoPage();
    void typingRefusesWhatIsNoList_data();
    void typingRefusesWhatIsNoList();
    void listIsReadWhicheverChoiceIsMade();
    void parseReturnsWhetherTheStartChanged();

    void printRequests_data();
    void printRequests();
    void printButtonAsksWhileEnabled();
    void printReportsNoStartPage();
    void aHostMayFollowTheStartPage();
};

void tst_MultiPagePages::freshPanelStandsForTheFirstPage()
{
    MultiPageFixture panel;
    QSignalSpy printed(&panel, &PrintWidgetInterface::widgetPrintSignal);
    QSignalSpy started(&panel, &MultiPagePrintWidget::startPageChangedSignal);
    panel.printSlot();
    QCOMPARE(takeRequests(printed), Requests({{1, 1, QString()}}));
    panel.updateCurrentRangeIndex(0);
    panel.checkRangeUpdate(false);
    QCOMPARE(started.size(), 0);
}

void tst_MultiPagePages::freshPanelReckonsWith99999Pages()
{
    MultiPageFixture panel;
    QSignalSpy printed(&panel, &PrintWidgetInterface::widgetPrintSignal);
    QSignalSpy started(&panel, &MultiPagePrintWidget::startPageChangedSignal);
    clickOn(radio(panel, All));
    QCOMPARE(started.size(), 0);
    panel.printSlot();
    QCOMPARE(takeRequests(printed), Requests({{1, 99999, QString()}}));
    clickOn(radio(panel, Selection));
    panel.pageList()->setText(QStringLiteral("99999"));
    panel.pageList()->setText(QStringLiteral("100000"));
    QCOMPARE(takeNumbers(started), QList<int>({99999, -1}));
}

void tst_MultiPagePages::radiosAreOneExclusiveGroup()
{
    const MultiPageFixture panel;
    const auto* group = panel.part<QButtonGroup>("pageRangeButtonGroup");
    QCOMPARE(group->parent(), &panel);
    QVERIFY(group->exclusive());
    QCOMPARE(group->buttons().size(), 3);
    for (int id : {0, 1, 2})
        QCOMPARE(group->button(id), radio(panel, id));
    QCOMPARE(group->checkedId(), 0);
}

void tst_MultiPagePages::pageInfoForcesOneReport_data()
{
    addColumns<int, int>("current", "count");
    addRow("page 3 of 10", 3, 10);
    addRow("page 1 of 1, where it was", 1, 1);
    addRow("page 0", 0, 10);
    addRow("page beyond the end", 20, 10);
    addRow("no pages", 1, 0);
    addRow("lowest", lowest, lowest);
    addRow("highest", highest, highest);
}

void tst_MultiPagePages::pageInfoForcesOneReport()
{
    QFETCH(const int, current);
    QFETCH(const int, count);
    MultiPageFixture panel;
    QSignalSpy started(&panel, &MultiPagePrintWidget::startPageChangedSignal);
    QSignalSpy printed(&panel, &PrintWidgetInterface::widgetPrintSignal);
    panel.setPageInfo(current, count, true);
    QCOMPARE(takeNumbers(started), QList<int>({current}));
    panel.printSlot();
    radio(panel, All)->setChecked(true);
    panel.printSlot();
    QCOMPARE(takeRequests(printed),
             Requests({{current, current, QString()}, {1, count, QString()}}));
}

void tst_MultiPagePages::pageInfoReportsTheSamePageAgain_data()
{
    addColumns<int, QString, int>("choice", "list", "reported");
    addRow("current page", int(Current), QString(), 3);
    addRow("all pages", int(All), QString(), 1);
    addRow("empty selection", int(Selection), QString(), 3);
    addRow("selection", int(Selection), "7-9,2", 7);
    addRow("selection of no page", int(Selection), "12", -1);
}

void tst_MultiPagePages::pageInfoReportsTheSamePageAgain()
{
    QFETCH(const int, choice);
    QFETCH(const QString, list);
    QFETCH(const int, reported);
    Document document(choice, list, 3, 10);
    for (int i = 0; i < 2; ++i) {
        document.panel.setPageInfo(3, 10, true);
        QCOMPARE(takeNumbers(document.started), QList<int>({reported}));
    }
}

void tst_MultiPagePages::pageInfoOfASelectionMayReportTwice_data()
{
    addColumns<QString, int, int, QList<int>>("list", "current", "count", "reported");
    const auto row = [](const char* name, const QString& list, int current, int count,
                        const QList<int>& reported) {
        QTest::newRow(name) << list << current << count << reported;
    };
    row("empty list follows the current page", QString(), 4, 10, {4, 4});
    row("list falls out of the document", QStringLiteral("7-9"), 3, 6, {-1, -1});
    row("list falls back to a later item", QStringLiteral("7-9,2"), 3, 6, {2, 2});
    row("list stays", QStringLiteral("7-9,2"), 4, 8, {7});
}

// The parse reports the change, the forced update says it once more.
void tst_MultiPagePages::pageInfoOfASelectionMayReportTwice()
{
    QFETCH(const QString, list);
    QFETCH(const int, current);
    QFETCH(const int, count);
    Document document(Selection, list, 3, 10);
    document.panel.setPageInfo(current, count, true);
    QTEST(takeNumbers(document.started), "reported");
}

void tst_MultiPagePages::pageInfoEnablesTheWholeFrame()
{
    MultiPageFixture panel;
    const auto* frame = panel.part<QFrame>("pageRangeFrame");
    QVERIFY(frame->isEnabled());
    panel.setPageInfo(1, 1, false);
    QVERIFY(!frame->isEnabled());
    for (int choice : {Current, All, Selection})
        QVERIFY(!radio(panel, choice)->isEnabled());
    panel.setPageInfo(1, 2, true);
    QVERIFY(frame->isEnabled());
    for (int choice : {Current, All, Selection})
        QVERIFY(radio(panel, choice)->isEnabled());
    QVERIFY(!panel.pageList()->isEnabled());
}

void tst_MultiPagePages::currentIndexReports_data()
{
    addColumns<int, QString, int, QList<int>>("choice", "list", "index", "reported");
    const auto row = [](const char* name, int choice, const QString& list, int index,
                        const QList<int>& reported) {
        QTest::newRow(name) << choice << list << index << reported;
    };
    // Every document shows page 3 of 10 before.
    row("current page moves", Current, QString(), 4, {5});
    row("current page stays", Current, QString(), 2, {});
    row("to the first page", Current, QString(), 0, {1});
    row("beyond the end", Current, QString(), 99, {100});
    row("before the start", Current, QString(), -1, {0});
    row("lowest index", Current, QString(), lowest, {lowest + 1});
    row("highest index stays a number", Current, QString(), highest, {highest});
    row("the index below the highest", Current, QString(), highest - 1, {highest});
    row("all pages start at 1", All, QString(), 4, {});
    row("an empty selection follows once", Selection, QString(), 4, {5});
    row("an empty selection stays", Selection, QString(), 2, {});
    row("a selection keeps its start", Selection, QStringLiteral("7-9,2"), 4, {});
    row("a selection of no page", Selection, QStringLiteral("12"), 4, {});
}

void tst_MultiPagePages::currentIndexReports()
{
    QFETCH(const int, choice);
    QFETCH(const QString, list);
    QFETCH(const int, index);
    Document document(choice, list, 3, 10);
    document.panel.updateCurrentRangeIndex(index);
    QTEST(takeNumbers(document.started), "reported");
    document.panel.updateCurrentRangeIndex(index);
    QCOMPARE(document.started.size(), 0);
}

void tst_MultiPagePages::currentIndexByText()
{
    Document document(Current, QString(), 1, 10);
    QVERIFY(QMetaObject::invokeMethod(&document.panel, "updateCurrentRangeIndex", Q_ARG(int, 6)));
    document.panel.printSlot();
    QCOMPARE(takeRequests(document.printed), Requests({{7, 7, QString()}}));
}

void tst_MultiPagePages::clicksOnTheRadios()
{
    Document document(Current, QString(), 3, 10);
    const auto click = [&document](int choice) {
        clickOn(radio(document.panel, choice));
        return takeNumbers(document.started);
    };
    QCOMPARE(click(Current), QList<int>());
    QCOMPARE(click(All), QList<int>({1}));
    QCOMPARE(click(All), QList<int>());
    QCOMPARE(click(Selection), QList<int>({3}));
    QCOMPARE(click(Current), QList<int>());
    document.panel.pageList()->setText(QStringLiteral("5"));
    QCOMPARE(takeNumbers(document.started), QList<int>({5}));
    QCOMPARE(click(Selection), QList<int>());
    QCOMPARE(click(All), QList<int>({1}));
    QCOMPARE(click(Selection), QList<int>({5}));
    QCOMPARE(click(Current), QList<int>({3}));
}

void tst_MultiPagePages::listIsEnabledForTheSelectionOnly_data()
{
    addColumns<int, bool>("choice", "enabled");
    addRow("current page", int(Current), false);
    addRow("all pages", int(All), false);
    addRow("selection", int(Selection), true);
}

void tst_MultiPagePages::listIsEnabledForTheSelectionOnly()
{
    QFETCH(const int, choice);
    QFETCH(const bool, enabled);
    for (int before : {Current, All, Selection}) {
        Document document(before, QStringLiteral("4"), 3, 10);
        clickOn(radio(document.panel, choice));
        QCOMPARE(document.panel.pageList()->isEnabled(), enabled);
        QCOMPARE(document.panel.pageList()->text(), QStringLiteral("4"));
    }
}

void tst_MultiPagePages::listIsEnabledWhenNoRadioIsChecked()
{
    Document document(Current, QString(), 3, 10);
    document.panel.part<QButtonGroup>("pageRangeButtonGroup")->setExclusive(false);
    radio(document.panel, Current)->setChecked(false);
    document.panel.recordsRadioChangedSlot();
    QVERIFY(document.panel.pageList()->isEnabled());
    document.panel.printSlot();
    QCOMPARE(takeRequests(document.printed), Requests({{3, 3, QString()}}));
}

void tst_MultiPagePages::checkRangeUpdateLeavesTheListAsItIs()
{
    Document document(Current, QString(), 3, 10);
    radio(document.panel, Selection)->setChecked(true);
    document.panel.checkRangeUpdate(false);
    QVERIFY(!document.panel.pageList()->isEnabled());
    QVERIFY(QMetaObject::invokeMethod(&document.panel, "recordsRadioChangedSlot"));
    QVERIFY(document.panel.pageList()->isEnabled());
    QCOMPARE(document.started.size(), 0);
}

void tst_MultiPagePages::updatesReport_data()
{
    addColumns<int, QString, QList<int>, QList<int>>("choice", "list", "changed", "forced");
    const auto row = [](const char* name, int choice, const QString& list,
                        const QList<int>& changed, const QList<int>& forced) {
        QTest::newRow(name) << choice << list << changed << forced;
    };
    // From "Current Page" at page 3 of 10 to another choice.
    row("current page stays", Current, QString(), {}, {3});
    row("all pages", All, QString(), {1}, {1});
    row("empty selection stays", Selection, QString(), {}, {3});
    row("selection", Selection, QStringLiteral("8"), {8}, {8, 8});
    row("selection of the same page", Selection, QStringLiteral("3-5"), {}, {3});
    row("selection of no page", Selection, QStringLiteral("11"), {-1}, {-1, -1});
}

void tst_MultiPagePages::updatesReport()
{
    QFETCH(const int, choice);
    QFETCH(const QString, list);
    using Update = void (MultiPagePrintWidget::*)(bool);
    for (const Update update : {&MultiPagePrintWidget::recordsRadioChangedSlot,
                                &MultiPagePrintWidget::checkRangeUpdate}) {
        for (const bool force : {false, true}) {
            Document document(Current, QString(), 3, 10);
            {
                const QSignalBlocker blocker(document.panel.pageList());
                document.panel.pageList()->setText(list);
            }
            radio(document.panel, choice)->setChecked(true);
            (document.panel.*update)(force);
            QTEST(takeNumbers(document.started), force ? "forced" : "changed");
            (document.panel.*update)(false);
            QCOMPARE(document.started.size(), 0);
            (document.panel.*update)(true);
            QCOMPARE(document.started.size(), 1);
        }
    }
}

void tst_MultiPagePages::typingReportsEachNewStart()
{
    Document document(Current, QString(), 3, 10);
    QVERIFY(showActive(document.panel));
    clickOn(radio(document.panel, Selection));
    document.panel.pageList()->setFocus();
    const auto type = [&document](const QString& keys) {
        QTest::keyClicks(document.panel.pageList(), keys);
        return takeNumbers(document.started);
    };
    QCOMPARE(type(QStringLiteral("7")), QList<int>({7}));
    QCOMPARE(type(QStringLiteral("-9,2")), QList<int>());
    QCOMPARE(document.panel.pageList()->text(), QStringLiteral("7-9,2"));
    QTest::keyClick(document.panel.pageList(), Qt::Key_Home);
    // 17-9,2: no page 17, so page 2
    QCOMPARE(type(QStringLiteral("1")), QList<int>({2}));
    QTest::keyClick(document.panel.pageList(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(document.panel.pageList(), Qt::Key_Delete);
    QCOMPARE(takeNumbers(document.started), QList<int>({3}));
}

void tst_MultiPagePages::typingBeyondTheEndReportsNoPage()
{
    Document document(Current, QString(), 3, 10);
    QVERIFY(showActive(document.panel));
    clickOn(radio(document.panel, Selection));
    QTest::keyClicks(document.panel.pageList(), QStringLiteral("12"));
    QCOMPARE(takeNumbers(document.started), QList<int>({1, -1}));
    document.panel.printSlot();
    QCOMPARE(takeRequests(document.printed), Requests({{0, 0, QStringLiteral("12")}}));
}

void tst_MultiPagePages::typingRefusesWhatIsNoList_data()
{
    QTest::addColumn<QString>("kept");
    addRow("0", QString());
    addRow("01", "1");
    addRow("1,,2", "1,2");
    addRow("1 - 3", "1-3");
    addRow("12345", "1234");
    addRow("1-2-3", "1-23");
    addRow("abc", QString());
    addRow("1,4-5,11-20,33", "1,4-5,11-20,33");
    addRow("20-11", "20-11");
}

void tst_MultiPagePages::typingRefusesWhatIsNoList()
{
    Document document(Current, QString(), 3, 10);
    QVERIFY(showActive(document.panel));
    clickOn(radio(document.panel, Selection));
    QTest::keyClicks(document.panel.pageList(), QLatin1String(QTest::currentDataTag()));
    QTEST(document.panel.pageList()->text(), "kept");
}

void tst_MultiPagePages::listIsReadWhicheverChoiceIsMade()
{
    Document document(Current, QString(), 3, 10);
    document.panel.pageList()->setText(QStringLiteral("7"));
    QCOMPARE(takeNumbers(document.started), QList<int>({7}));
    document.panel.updateCurrentRangeIndex(2);
    QCOMPARE(takeNumbers(document.started), QList<int>({3}));
    document.panel.pageList()->setText(QStringLiteral("12"));
    document.panel.checkRangeUpdate(false);
    QCOMPARE(takeNumbers(document.started), QList<int>({-1, 3}));
}

void tst_MultiPagePages::parseReturnsWhetherTheStartChanged()
{
    Document document(Current, QString(), 3, 10);
    QVERIFY(!document.panel.listRangeParse());
    {
        const QSignalBlocker blocker(document.panel.pageList());
        document.panel.pageList()->setText(QStringLiteral("5-9,2"));
    }
    QVERIFY(document.panel.listRangeParse());
    QVERIFY(!document.panel.listRangeParse());
    QCOMPARE(takeNumbers(document.started), QList<int>({5}));
}

void tst_MultiPagePages::printRequests_data()
{
    addColumns<int, QString, Request>("choice", "list", "request");
    const auto row = [](const char* name, int choice, const QString& list, const Request& request) {
        QTest::newRow(name) << choice << list << request;
    };
    row("current page", Current, QString(), {3, 3, QString()});
    row("current page beside a list", Current, QStringLiteral("1,3"), {3, 3, QString()});
    row("all pages", All, QString(), {1, 10, QString()});
    row("all pages beside a list", All, QStringLiteral("1,3"), {1, 10, QString()});
    row("selection without a list", Selection, QString(), {3, 3, QString()});
    row("selection", Selection, QStringLiteral("1,3"), {0, 0, QStringLiteral("1,3")});
    row("selection of no page", Selection, QStringLiteral("12"), {0, 0, QStringLiteral("12")});
    row("selection being typed", Selection, QStringLiteral("4-"), {0, 0, QStringLiteral("4-")});
}

void tst_MultiPagePages::printRequests()
{
    QFETCH(const int, choice);
    QFETCH(const QString, list);
    QFETCH(const Request, request);
    Document document(choice, list, 3, 10);
    document.panel.printSlot();
    QCOMPARE(takeRequests(document.printed), Requests({request}));
    QVERIFY(QMetaObject::invokeMethod(&document.panel, "printSlot"));
    QCOMPARE(takeRequests(document.printed), Requests({request}));
}

void tst_MultiPagePages::printButtonAsksWhileEnabled()
{
    Document document(All, QString(), 3, 10);
    auto* button = document.panel.part<QAbstractButton>("PrintButton");
    clickOn(button);
    QCOMPARE(document.printed.size(), 0);
    document.panel.enablePrintButtons();
    clickOn(button);
    QCOMPARE(takeRequests(document.printed), Requests({{1, 10, QString()}}));
    QSignalSpy previewed(&document.panel, &PrintWidgetInterface::printPreviewSignal);
    clickOn(button);
    QCOMPARE(previewed.size(), 0);
}

void tst_MultiPagePages::printReportsNoStartPage()
{
    Document document(Current, QString(), 3, 10);
    radio(document.panel, All)->setChecked(true);
    document.panel.printSlot();
    QCOMPARE(document.started.size(), 0);
    // The request has taken the choice over, so there is no change left to report.
    document.panel.checkRangeUpdate(false);
    QCOMPARE(document.started.size(), 0);
}

void tst_MultiPagePages::aHostMayFollowTheStartPage()
{
    Document document(Current, QString(), 3, 10);
    QList<int> shown;
    connect(&document.panel, &MultiPagePrintWidget::startPageChangedSignal, &document.panel,
            [&](int page) {
                shown.append(page);
                if (page > 0)
                    document.panel.updateCurrentRangeIndex(page - 1);
            });
    clickOn(radio(document.panel, Selection));
    document.panel.pageList()->setText(QStringLiteral("8"));
    QCOMPARE(shown, QList<int>({8}));
    clickOn(radio(document.panel, All));
    QCOMPARE(shown, QList<int>({8, 1}));
    clickOn(radio(document.panel, Current));
    QCOMPARE(shown, QList<int>({8, 1}));
    document.panel.setPageInfo(6, 10, true);
    QCOMPARE(shown, QList<int>({8, 1, 6}));
}

QTEST_MAIN(tst_MultiPagePages)
#include "tst_multipagepages.moc"
