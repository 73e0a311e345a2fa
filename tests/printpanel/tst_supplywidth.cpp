// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "printpanelfixture.h"
#include "support/layoutdescription.h"
#include "support/stricttest.h"

#include <printpanels/printwidget.h>
#include <suffixdoublevalidator.h>

#include <QtTest/QSignalSpy>
#include <QtWidgets/QFrame>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QVBoxLayout>

#include <cmath>
#include <limits>

namespace {

const char* const widthSignal = SIGNAL(supplyWidthChangedSignal(double));

QFrame* section(const PrintPanelFixture& panel)
{
    return panel.part<QFrame>("supplyInfoWidget");
}

/** Tells the section that the user is done with a text, typed or not. */
QList<QVariantList> widthsAfter(PrintPanelFixture& panel, const QString& text)
{
    const QSignalSpy spy(&panel, widthSignal);
    panel.widthEdit()->setText(text);
    Q_EMIT panel.widthEdit()->editingFinished();
    return spy;
}

} // namespace

class tst_SupplyWidth : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void widthRow();
    void widthEdit();
    void widthValidator();

    void width_data();
    void width();
    void widthSuffix_data();
    void widthSuffix();

    void editedWidth_data();
    void editedWidth();
    void reportedWidthIsNoEdit();
    void theSameNewWidthIsReportedTwice();
    void typedWidthIsReported();
    void suffixInForceIsRemoved();
    void slotBeforeTheSectionExistsDoesNothing();
};

void tst_SupplyWidth::widthRow()
{
    PrintPanelFixture panel;
    panel.showPlainSupply();
    const QLayout* row = section(panel)->layout()->itemAt(1)->layout();
    QCOMPARE(row->contentsMargins(), QMargins(5, 5, 5, 5));
    QCOMPARE(row->count(), 5);
    for (const int index : {0, 2, 4}) {
        const QString spacer = itemDescription(row->itemAt(index));
        QVERIFY2(spacer.startsWith(QStringLiteral("spacer 20x10 Fixed/")), qPrintable(spacer));
    }
    QCOMPARE(row->itemAt(1)->widget(), labelWithText(panel, QStringLiteral("Tape Width:")));
    QCOMPARE(row->itemAt(3)->widget(), panel.widthEdit());
}

void tst_SupplyWidth::widthEdit()
{
    PrintPanelFixture panel;
    panel.showPlainSupply();
    const QLineEdit* edit = panel.widthEdit();
    QVERIFY(edit->inherits("JxLineEdit"));
    QCOMPARE(edit->minimumSize(), QSize(80, 35));
    QCOMPARE(edit->maximumSize(), QSize(80, 35));
    const auto* validator = qobject_cast<const SuffixDoubleValidator*>(edit->validator());
    QVERIFY(validator);
    QCOMPARE(validator->parent(), &panel);
}

void tst_SupplyWidth::widthValidator()
{
    PrintPanelFixture panel;
    panel.showPlainSupply();
    const auto acceptable = [&panel](const char* text) {
        panel.widthEdit()->setText(QString::fromLatin1(text));
        return panel.widthEdit()->hasAcceptableInput();
    };
    QVERIFY(acceptable("0"));
    QVERIFY(acceptable("999999"));
    QVERIFY(acceptable("999999.0 in"));
    QVERIFY(acceptable("4.125"));
    QVERIFY(acceptable("4.125 in"));
    QVERIFY(!acceptable("4.1255"));
    QVERIFY(!acceptable("-1"));
    QVERIFY(!acceptable("1000000"));
    QVERIFY(!acceptable("4 mm"));
}

void tst_SupplyWidth::width_data()
{
    addColumns<double, int, QString>("width", "metric", "text");
    addRow("12 mm", 12.0, 1, "12.00");
    addRow("4 in", 4.0, 0, "4.00");
    addRow("rounded down", 4.124, 0, "4.12");
    addRow("rounded up", 4.126, 0, "4.13");
    addRow("zero", 0.0, 0, "0.00");
    addRow("large", 123456.5, 1, "123456.50");
    addRow("no exponent", 1e7, 1, "10000000.00");
    addRow("negative", -1.5, 0, "-1.50");
    addRow("not a number", std::nan(""), 0, "nan");
    addRow("infinite", std::numeric_limits<double>::infinity(), 0, "inf");
}

void tst_SupplyWidth::width()
{
    QFETCH(const double, width);
    QFETCH(const int, metric);
    PrintPanelFixture panel;
    panel.showSupplyInfo(colors({"#000000"}), false, width, static_cast<unsigned char>(metric),
                         false);
    QTEST(panel.widthEdit()->text(), "text");
    // What showSupplyInfo() wrote is no edit.
    const QSignalSpy spy(&panel, widthSignal);
    Q_EMIT panel.widthEdit()->editingFinished();
    QCOMPARE(spy.size(), 0);
}

void tst_SupplyWidth::widthSuffix_data()
{
    addColumns<int, QString>("metric", "suffix");
    addRow("0 is inches", 0, " in");
    addRow("1 is millimetres", 1, " mm");
    addRow("any other is millimetres", 255, " mm");
}

void tst_SupplyWidth::widthSuffix()
{
    QFETCH(const int, metric);
    QFETCH(const QString, suffix);
    PrintPanelFixture panel;
    for (const int before : {0, 1}) {
        panel.showSupplyInfo(colors({"#000000"}), false, 1.0, static_cast<unsigned char>(before),
                             false);
        panel.showSupplyInfo(colors({"#000000"}), false, 1.0, static_cast<unsigned char>(metric),
                             false);
        const auto* validator =
            qobject_cast<const SuffixDoubleValidator*>(panel.widthEdit()->validator());
        QCOMPARE(validator->suffix(), suffix);
    }
}

void tst_SupplyWidth::editedWidth_data()
{
    addColumns<QString, QList<QVariantList>>("text", "emitted");
    const auto emits = [](const char* text, double width) {
        QTest::addRow("'%s'", text)
            << QString::fromLatin1(text) << QList<QVariantList>{QVariantList{width}};
    };
    const auto silent = [](const char* text) {
        QTest::addRow("silent: '%s'", text) << QString::fromLatin1(text) << QList<QVariantList>();
    };
    emits("2.5", 2.5);
    emits("2.5 in", 2.5);
    emits("2 in in", 2.0);
    emits(" in2", 2.0);
    emits("0", 0.0);
    emits("999999", 999999.0);
    emits("4.0", 4.0);
    emits("4.00 in", 4.0);
    emits("1.005", 1.005);
    silent("");
    silent("   ");
    silent("\t");
    silent(" in");
    silent(" in  ");
    silent("4.00");
    silent("abc");
    silent("2.5 mm");
    silent("2.5 IN");
    silent("2,5");
    silent("2.5in");
    silent("1 2");
}

void tst_SupplyWidth::editedWidth()
{
    QFETCH(const QString, text);
    QFETCH(const QList<QVariantList>, emitted);
    PrintPanelFixture panel;
    panel.showPlainSupply();
    QCOMPARE(widthsAfter(panel, text), emitted);
    QCOMPARE(panel.widthEdit()->text(), text);
}

void tst_SupplyWidth::reportedWidthIsNoEdit()
{
    PrintPanelFixture panel;
    panel.showPlainSupply();
    QCOMPARE(widthsAfter(panel, QStringLiteral("2.5")).size(), 1);
    // Going back to what the printer reported tells nothing.
    QCOMPARE(widthsAfter(panel, QStringLiteral("4.00")).size(), 0);
    panel.showSupplyInfo(colors({"#000000"}), false, 2.5, 0, false);
    QCOMPARE(widthsAfter(panel, QStringLiteral("2.50")).size(), 0);
    QCOMPARE(widthsAfter(panel, QStringLiteral("4.00")).size(), 1);
}

void tst_SupplyWidth::theSameNewWidthIsReportedTwice()
{
    PrintPanelFixture panel;
    panel.showPlainSupply();
    const QList<QVariantList> emitted{QVariantList{2.5}};
    QCOMPARE(widthsAfter(panel, QStringLiteral("2.5")), emitted);
    QCOMPARE(widthsAfter(panel, QStringLiteral("2.5")), emitted);
}

void tst_SupplyWidth::typedWidthIsReported()
{
    PrintPanelFixture panel;
    panel.showPlainSupply();
    QVERIFY(showPanel(panel));
    const QSignalSpy changed(&panel, widthSignal);
    panel.widthEdit()->setFocus();
    panel.widthEdit()->selectAll();
    QTest::keyClicks(panel.widthEdit(), QStringLiteral("2.50 in"));
    QCOMPARE(changed.size(), 0);
    QTest::keyClick(panel.widthEdit(), Qt::Key_Return);
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed.first(), QVariantList{2.5});
    // More decimals than three cannot be typed.
    panel.widthEdit()->selectAll();
    QTest::keyClicks(panel.widthEdit(), QStringLiteral("1.23456"));
    QCOMPARE(panel.widthEdit()->text(), QStringLiteral("1.234"));
}

void tst_SupplyWidth::suffixInForceIsRemoved()
{
    PrintPanelFixture panel;
    panel.showSupplyInfo(colors({"#000000"}), false, 12.0, 1, false);
    QCOMPARE(widthsAfter(panel, QStringLiteral("24 mm")), QList<QVariantList>{QVariantList{24.0}});
    QCOMPARE(widthsAfter(panel, QStringLiteral("24 in")), QList<QVariantList>());
    panel.showSupplyInfo(colors({"#000000"}), false, 12.0, 0, false);
    QCOMPARE(widthsAfter(panel, QStringLiteral("24 mm")), QList<QVariantList>());
    QCOMPARE(widthsAfter(panel, QStringLiteral("24 in")), QList<QVariantList>{QVariantList{24.0}});
}

void tst_SupplyWidth::slotBeforeTheSectionExistsDoesNothing()
{
    PrintPanelFixture panel;
    const QSignalSpy changed(&panel, widthSignal);
    QVERIFY(QMetaObject::invokeMethod(&panel, "supplyWidthEditedSlot"));
    QCOMPARE(changed.size(), 0);
}

QTEST_MAIN(tst_SupplyWidth)
#include "tst_supplywidth.moc"
