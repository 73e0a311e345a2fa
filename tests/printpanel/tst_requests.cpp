// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "panelprobe.h"
#include "support/stricttest.h"

#include <printpanels/printwidget.h>

#include <QtTest/QSignalSpy>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QRadioButton>

namespace {

/** A panel with ten records, the third of which is the current one. */
void tellTenRecords(PrintWidget& panel)
{
    panel.setRangeValues(2, 9, true);
}

QList<QVariantList> pressedRequests(PrintWidget& panel, const char* button, const char* signal)
{
    const QSignalSpy spy(&panel, signal);
    part<QPushButton>(panel, button)->click();
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
    void beforeTheHostTellsTheCurrentRecordItIsOne();
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
    const PrintWidget panel(false, nullptr);
    auto* grid =
        qobject_cast<QGridLayout*>(panel.layout()->itemAt(panel.layout()->count() - 1)->layout());
    QVERIFY(grid);
    QCOMPARE(grid->count(), 2);
    QCOMPARE(grid->itemAtPosition(0, 0)->widget(), part<QPushButton>(panel, "PrintButton"));
    QCOMPARE(grid->itemAtPosition(0, 1)->widget(), part<QPushButton>(panel, "PreviewButton"));
    for (const char* name : {"PrintButton", "PreviewButton"}) {
        const auto* button = part<QPushButton>(panel, name);
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
    const PrintWidget panel(false, nullptr);
    QCOMPARE(part<QPushButton>(panel, "PrintButton")->text(), QStringLiteral(" Print "));
}

void tst_Requests::previewButton()
{
    PrintWidget panel(false, nullptr);
    const auto* button = part<QPushButton>(panel, "PreviewButton");
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
    PrintWidget panel(false, nullptr);
    QCOMPARE(pressedRequests(panel, "PrintButton", printSignal).size(), 0);
    QCOMPARE(pressedRequests(panel, "PreviewButton", previewSignal).size(), 0);
}

void tst_Requests::request_data()
{
    QTest::addColumn<QByteArray>("radio");
    QTest::addColumn<QString>("list");
    QTest::addColumn<Request>("expected");
    const QByteArray current("currentRecordRadio");
    const QByteArray all("allRecordsRadio");
    const QByteArray list("recordListRadio");
    QTest::newRow("current record") << current << QString() << Request{3, -1, QString()};
    QTest::newRow("current record, list typed before")
        << current << QStringLiteral("1,2") << Request{3, -1, QString()};
    QTest::newRow("all records") << all << QString() << Request{1, 10, QString()};
    QTest::newRow("all records, list typed before")
        << all << QStringLiteral("7") << Request{1, 10, QString()};
    QTest::newRow("list") << list << QStringLiteral("1,4-5")
                          << Request{0, 0, QStringLiteral("1,4-5")};
    QTest::newRow("list of one") << list << QStringLiteral("7")
                                 << Request{0, 0, QStringLiteral("7")};
    QTest::newRow("list beyond the last record")
        << list << QStringLiteral("50") << Request{0, 0, QStringLiteral("50")};
    QTest::newRow("reversed range")
        << list << QStringLiteral("9-2") << Request{0, 0, QStringLiteral("9-2")};
    QTest::newRow("unfinished list")
        << list << QStringLiteral("4-") << Request{0, 0, QStringLiteral("4-")};
    QTest::newRow("empty list is the current record")
        << list << QString() << Request{3, -1, QString()};
}

void tst_Requests::request()
{
    QFETCH(const QByteArray, radio);
    QFETCH(const QString, list);
    QFETCH(const Request, expected);
    PrintWidget panel(false, nullptr);
    panel.enablePrintButtons();
    tellTenRecords(panel);
    part<QRadioButton>(panel, "recordListRadio")->click();
    part<QLineEdit>(panel, "recordListEdit")->setText(list);
    part<QRadioButton>(panel, radio.constData())->click();

    const QVariantList arguments = {expected.start, expected.end, expected.list};
    QCOMPARE(pressedRequests(panel, "PrintButton", printSignal), QList<QVariantList>{arguments});
    QCOMPARE(pressedRequests(panel, "PreviewButton", previewSignal),
             QList<QVariantList>{arguments});
    QCOMPARE(pressedRequests(panel, "PrintButton", previewSignal).size(), 0);
    QCOMPARE(pressedRequests(panel, "PreviewButton", printSignal).size(), 0);
    QCOMPARE(whatToPrint(panel, {3, -1, QString()}), expected);
}

void tst_Requests::beforeTheHostTellsTheCurrentRecordItIsOne()
{
    PrintWidget panel(false, nullptr);
    panel.enablePrintButtons();
    QCOMPARE(pressedRequests(panel, "PrintButton", printSignal),
             QList<QVariantList>{QVariantList({1, -1, QString()})});
    part<QRadioButton>(panel, "allRecordsRadio")->click();
    QCOMPARE(pressedRequests(panel, "PrintButton", printSignal),
             QList<QVariantList>{QVariantList({1, 99999, QString()})});
}

void tst_Requests::requestFollowsTheCurrentRecord()
{
    PrintWidget panel(false, nullptr);
    panel.enablePrintButtons();
    for (const int index : {0, 6, 41}) {
        panel.updateCurrentRangeIndex(index);
        QCOMPARE(pressedRequests(panel, "PreviewButton", previewSignal),
                 QList<QVariantList>{QVariantList({index + 1, -1, QString()})});
    }
}

void tst_Requests::allRecordsFollowsTheHostsCount()
{
    PrintWidget panel(false, nullptr);
    part<QRadioButton>(panel, "allRecordsRadio")->click();
    for (const int last : {0, 4, 9998}) {
        panel.setRangeValues(0, last, true);
        QCOMPARE(whatToPrint(panel, {5, -1, QString()}), (Request{1, last + 1, QString()}));
    }
}

// Checked without a click, "All Records" hands out what the last classification kept.
void tst_Requests::allRecordsHandsOutTheKeptPair()
{
    PrintWidget panel(false, nullptr);
    tellTenRecords(panel);
    part<QRadioButton>(panel, "allRecordsRadio")->setChecked(true);
    QCOMPARE(whatToPrint(panel, {5, -1, QString()}), (Request{3, 3, QString()}));
    part<QRadioButton>(panel, "allRecordsRadio")->click();
    QCOMPARE(whatToPrint(panel, {5, -1, QString()}), (Request{1, 10, QString()}));
}

void tst_Requests::whatToPrintLeavesThePresetForTheCurrentRecord()
{
    PrintWidget panel(false, nullptr);
    tellTenRecords(panel);
    const Request preset{-77, -78, QStringLiteral("preset")};
    QCOMPARE(whatToPrint(panel, preset), preset);
    part<QRadioButton>(panel, "recordListRadio")->click();
    QCOMPARE(whatToPrint(panel, preset), preset);
    part<QRadioButton>(panel, "allRecordsRadio")->click();
    QCOMPARE(whatToPrint(panel, preset), (Request{1, 10, QStringLiteral("preset")}));
}

void tst_Requests::theListGoesOutAsTyped_data()
{
    QTest::addColumn<QString>("list");
    QTest::newRow("repeated") << QStringLiteral("3,3,3");
    QTest::newRow("unsorted") << QStringLiteral("9,1,4-2");
    QTest::newRow("only commas") << QStringLiteral(",,");
    QTest::newRow("set by the host: blanks") << QStringLiteral(" 1 , 2 ");
    QTest::newRow("set by the host: letters") << QStringLiteral("abc");
    QTest::newRow("set by the host: long") << QStringLiteral("1,").repeated(10000);
}

void tst_Requests::theListGoesOutAsTyped()
{
    QFETCH(const QString, list);
    PrintWidget panel(false, nullptr);
    panel.enablePrintButtons();
    part<QRadioButton>(panel, "recordListRadio")->click();
    auto* edit = part<QLineEdit>(panel, "recordListEdit");
    edit->setText(list);
    QCOMPARE(pressedRequests(panel, "PrintButton", printSignal),
             QList<QVariantList>{QVariantList({0, 0, edit->text()})});
    QVERIFY(list.startsWith(edit->text()));
    QVERIFY(!edit->text().isEmpty());
}

void tst_Requests::clicksReachTheSlots()
{
    PrintWidget panel(false, nullptr);
    panel.enablePrintButtons();
    QVERIFY(showPanel(panel));
    const QSignalSpy printed(&panel, printSignal);
    const QSignalSpy previewed(&panel, previewSignal);
    clickOn(part<QPushButton>(panel, "PrintButton"));
    QCOMPARE(printed.size(), 1);
    QCOMPARE(previewed.size(), 0);
    clickOn(part<QPushButton>(panel, "PreviewButton"));
    QCOMPARE(printed.size(), 1);
    QCOMPARE(previewed.size(), 1);
    QCOMPARE(printed.first(), previewed.first());
}

void tst_Requests::privateSlotsEmitByName()
{
    PrintWidget panel(false, nullptr);
    const QSignalSpy printed(&panel, printSignal);
    const QSignalSpy previewed(&panel, previewSignal);
    QVERIFY(QMetaObject::invokeMethod(&panel, "printSlot"));
    QVERIFY(QMetaObject::invokeMethod(&panel, "printPreviewSlot"));
    QCOMPARE(printed.size(), 1);
    QCOMPARE(previewed.size(), 1);
}

QTEST_MAIN(tst_Requests)
#include "tst_requests.moc"
