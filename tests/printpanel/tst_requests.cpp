// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "printpanelfixture.h"
#include "support/stricttest.h"

#include <printpanels/printwidget.h>

#include <QtTest/QSignalSpy>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QRadioButton>

namespace {

/** A panel with ten records, the third of which is the current one. */
void tellTenRecords(PrintPanelFixture& panel)
{
    panel.setRangeValues(2, 9, true);
}

QList<QVariantList> pressedRequests(PrintPanelFixture& panel, const char* button,
                                    const char* signal)
{
    const QSignalSpy spy(&panel, signal);
    panel.part<QPushButton>(button)->click();
    return spy;
}

const char* const printSignal = SIGNAL(widgetPrintSignal(int, int, QString));
const char* const previewSignal = SIGNAL(printPreviewSignal(int, int, QString));

} // namespace

class tst_Requests : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void buttonsRow();
    void printButton();
    void previewButton();
    void disabledButtonsEmitNothing();

    void request_data();
    void request();
    void currentRecordIsOneBeforeTheHostSetsIt();
    void requestFollowsTheCurrentRecord();
    void allRecordsFollowsTheHostsCount();
    void allRecordsHandsOutTheKeptPair();
    void whatToPrintLeavesThePresetForTheCurrentRecord();
    void theListGoesOutAsTyped_data();
    void theListGoesOutAsTyped();
    void clicksReachTheSlots();
    void privateSlotsEmitByName();
};

void tst_Requests::buttonsRow()
{
    const PrintPanelFixture panel;
    auto* grid =
        qobject_cast<QGridLayout*>(panel.layout()->itemAt(panel.layout()->count() - 1)->layout());
    QVERIFY(grid);
    QCOMPARE(grid->count(), 2);
    QCOMPARE(grid->itemAtPosition(0, 0)->widget(), panel.part<QPushButton>("PrintButton"));
    QCOMPARE(grid->itemAtPosition(0, 1)->widget(), panel.part<QPushButton>("PreviewButton"));
    for (const char* name : {"PrintButton", "PreviewButton"}) {
        const auto* button = panel.part<QPushButton>(name);
        QVERIFY(button->inherits("DragScrollButton"));
        QCOMPARE(button->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
        QCOMPARE(button->sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
        QVERIFY(!button->isEnabled());
        QCOMPARE(button->styleSheet().size(), 507);
        QVERIFY(button->styleSheet().contains(QStringLiteral("min-height: 40px; }")));
    }
}

void tst_Requests::printButton()
{
    const PrintPanelFixture panel;
    QCOMPARE(panel.part<QPushButton>("PrintButton")->text(), QStringLiteral(" Print "));
}

void tst_Requests::previewButton()
{
    PrintPanelFixture panel;
    const auto* button = panel.part<QPushButton>("PreviewButton");
    QCOMPARE(button->text(), QStringLiteral("Print Preview"));
    QVERIFY(button->minimumWidth() >= 127);
    QVERIFY(button->testAttribute(Qt::WA_SetStyle));
    // The style proxy lives as long as the button that uses it.
    const QObjectList styles = button->findChildren<QObject*>();
    bool found = false;
    for (const QObject* child : styles)
        found = found || child->inherits("JxPushButtonStyleProxy");
    QVERIFY(found);
    QVERIFY(showPanel(panel));
    QVERIFY(button->height() >= 40);
}

void tst_Requests::disabledButtonsEmitNothing()
{
    PrintPanelFixture panel;
    QCOMPARE(pressedRequests(panel, "PrintButton", printSignal).size(), 0);
    QCOMPARE(pressedRequests(panel, "PreviewButton", previewSignal).size(), 0);
}

void tst_Requests::request_data()
{
    addColumns<QByteArray, QString, Request>("radio", "list", "expected");
    const QByteArray current("currentRecordRadio");
    const QByteArray all("allRecordsRadio");
    const QByteArray list("recordListRadio");
    addRow("current record", current, QString(), Request{3, -1, QString()});
    addRow("current record, list typed before", current, "1,2", Request{3, -1, QString()});
    addRow("all records", all, QString(), Request{1, 10, QString()});
    addRow("all records, list typed before", all, "7", Request{1, 10, QString()});
    addRow("list", list, "1,4-5", Request{0, 0, QStringLiteral("1,4-5")});
    addRow("list of one", list, "7", Request{0, 0, QStringLiteral("7")});
    addRow("list beyond the last record", list, "50", Request{0, 0, QStringLiteral("50")});
    addRow("reversed range", list, "9-2", Request{0, 0, QStringLiteral("9-2")});
    addRow("unfinished list", list, "4-", Request{0, 0, QStringLiteral("4-")});
    addRow("empty list is the current record", list, QString(), Request{3, -1, QString()});
}

void tst_Requests::request()
{
    QFETCH(const QByteArray, radio);
    QFETCH(const QString, list);
    QFETCH(const Request, expected);
    PrintPanelFixture panel;
    panel.enablePrintButtons();
    tellTenRecords(panel);
    panel.part<QRadioButton>("recordListRadio")->click();
    panel.part<QLineEdit>("recordListEdit")->setText(list);
    panel.part<QRadioButton>(radio.constData())->click();

    const QVariantList arguments = {expected.start, expected.end, expected.list};
    QCOMPARE(pressedRequests(panel, "PrintButton", printSignal), QList<QVariantList>{arguments});
    QCOMPARE(pressedRequests(panel, "PreviewButton", previewSignal),
             QList<QVariantList>{arguments});
    QCOMPARE(pressedRequests(panel, "PrintButton", previewSignal).size(), 0);
    QCOMPARE(pressedRequests(panel, "PreviewButton", printSignal).size(), 0);
    QCOMPARE(panel.requestFrom({3, -1, QString()}), expected);
}

void tst_Requests::currentRecordIsOneBeforeTheHostSetsIt()
{
    PrintPanelFixture panel;
    panel.enablePrintButtons();
    QCOMPARE(pressedRequests(panel, "PrintButton", printSignal),
             QList<QVariantList>{QVariantList({1, -1, QString()})});
    panel.part<QRadioButton>("allRecordsRadio")->click();
    QCOMPARE(pressedRequests(panel, "PrintButton", printSignal),
             QList<QVariantList>{QVariantList({1, 99999, QString()})});
}

void tst_Requests::requestFollowsTheCurrentRecord()
{
    PrintPanelFixture panel;
    panel.enablePrintButtons();
    for (const int index : {0, 6, 41}) {
        panel.updateCurrentRangeIndex(index);
        QCOMPARE(pressedRequests(panel, "PreviewButton", previewSignal),
                 QList<QVariantList>{QVariantList({index + 1, -1, QString()})});
    }
}

void tst_Requests::allRecordsFollowsTheHostsCount()
{
    PrintPanelFixture panel;
    panel.part<QRadioButton>("allRecordsRadio")->click();
    for (const int last : {0, 4, 9998}) {
        panel.setRangeValues(0, last, true);
        QCOMPARE(panel.requestFrom({5, -1, QString()}), (Request{1, last + 1, QString()}));
    }
}

// Checked without a click, "All Records" hands out what the last classification kept.
void tst_Requests::allRecordsHandsOutTheKeptPair()
{
    PrintPanelFixture panel;
    tellTenRecords(panel);
    panel.part<QRadioButton>("allRecordsRadio")->setChecked(true);
    QCOMPARE(panel.requestFrom({5, -1, QString()}), (Request{3, 3, QString()}));
    panel.part<QRadioButton>("allRecordsRadio")->click();
    QCOMPARE(panel.requestFrom({5, -1, QString()}), (Request{1, 10, QString()}));
}

void tst_Requests::whatToPrintLeavesThePresetForTheCurrentRecord()
{
    PrintPanelFixture panel;
    tellTenRecords(panel);
    const Request preset{-77, -78, QStringLiteral("preset")};
    QCOMPARE(panel.requestFrom(preset), preset);
    panel.part<QRadioButton>("recordListRadio")->click();
    QCOMPARE(panel.requestFrom(preset), preset);
    panel.part<QRadioButton>("allRecordsRadio")->click();
    QCOMPARE(panel.requestFrom(preset), (Request{1, 10, QStringLiteral("preset")}));
}

void tst_Requests::theListGoesOutAsTyped_data()
{
    QTest::addColumn<QString>("list");
    addRow("repeated", "3,3,3");
    addRow("unsorted", "9,1,4-2");
    addRow("only commas", ",,");
    addRow("set by the host: blanks", " 1 , 2 ");
    addRow("set by the host: letters", "abc");
    addRow("set by the host: long", QStringLiteral("1,").repeated(10000));
}

void tst_Requests::theListGoesOutAsTyped()
{
    QFETCH(const QString, list);
    PrintPanelFixture panel;
    panel.enablePrintButtons();
    panel.part<QRadioButton>("recordListRadio")->click();
    auto* edit = panel.part<QLineEdit>("recordListEdit");
    edit->setText(list);
    QCOMPARE(pressedRequests(panel, "PrintButton", printSignal),
             QList<QVariantList>{QVariantList({0, 0, edit->text()})});
    QVERIFY(list.startsWith(edit->text()));
    QVERIFY(!edit->text().isEmpty());
}

void tst_Requests::clicksReachTheSlots()
{
    PrintPanelFixture panel;
    panel.enablePrintButtons();
    QVERIFY(showPanel(panel));
    const QSignalSpy printed(&panel, printSignal);
    const QSignalSpy previewed(&panel, previewSignal);
    clickOn(panel.part<QPushButton>("PrintButton"));
    QCOMPARE(printed.size(), 1);
    QCOMPARE(previewed.size(), 0);
    clickOn(panel.part<QPushButton>("PreviewButton"));
    QCOMPARE(printed.size(), 1);
    QCOMPARE(previewed.size(), 1);
    QCOMPARE(printed.first(), previewed.first());
}

void tst_Requests::privateSlotsEmitByName()
{
    PrintPanelFixture panel;
    const QSignalSpy printed(&panel, printSignal);
    const QSignalSpy previewed(&panel, previewSignal);
    QVERIFY(QMetaObject::invokeMethod(&panel, "printSlot"));
    QVERIFY(QMetaObject::invokeMethod(&panel, "printPreviewSlot"));
    QCOMPARE(printed.size(), 1);
    QCOMPARE(previewed.size(), 1);
}

QTEST_MAIN(tst_Requests)
#include "tst_requests.moc"
