// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "supplyprobe.h"
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

QFrame* section(const PrintWidget& panel)
{
    return part<QFrame>(panel, "supplyInfoWidget");
}

/** Tells the section that the user is done with a text, typed or not. */
QList<QVariantList> widthsAfter(PrintWidget& panel, const QString& text)
{
    const QSignalSpy spy(&panel, widthSignal);
    widthEdit(panel)->setText(text);
    Q_EMIT widthEdit(panel)->editingFinished();
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
    PrintWidget panel(false, nullptr);
    showPlainSupply(panel);
    const QLayout* row = section(panel)->layout()->itemAt(1)->layout();
    QCOMPARE(row->contentsMargins(), QMargins(5, 5, 5, 5));
    QCOMPARE(row->count(), 5);
    for (const int index : {0, 2, 4}) {
        const QString spacer = itemDescription(row->itemAt(index));
        QVERIFY2(spacer.startsWith(QStringLiteral("spacer 20x10 Fixed/")), qPrintable(spacer));
    }
    QCOMPARE(row->itemAt(1)->widget(), labelWithText(panel, QStringLiteral("Tape Width:")));
    QCOMPARE(row->itemAt(3)->widget(), ::widthEdit(panel));
}

void tst_SupplyWidth::widthEdit()
{
    PrintWidget panel(false, nullptr);
    showPlainSupply(panel);
    const QLineEdit* edit = ::widthEdit(panel);
    QVERIFY(edit->inherits("JxLineEdit"));
    QCOMPARE(edit->minimumSize(), QSize(80, 35));
    QCOMPARE(edit->maximumSize(), QSize(80, 35));
    const auto* validator = qobject_cast<const SuffixDoubleValidator*>(edit->validator());
    QVERIFY(validator);
    QCOMPARE(validator->parent(), &panel);
}

void tst_SupplyWidth::widthValidator()
{
    PrintWidget panel(false, nullptr);
    showPlainSupply(panel);
    const auto acceptable = [&panel](const char* text) {
        ::widthEdit(panel)->setText(QString::fromLatin1(text));
        return ::widthEdit(panel)->hasAcceptableInput();
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
    QTest::addColumn<double>("width");
    QTest::addColumn<int>("metric");
    QTest::addColumn<QString>("text");
    QTest::newRow("12 mm") << 12.0 << 1 << QStringLiteral("12.00");
    QTest::newRow("4 in") << 4.0 << 0 << QStringLiteral("4.00");
    QTest::newRow("rounded down") << 4.124 << 0 << QStringLiteral("4.12");
    QTest::newRow("rounded up") << 4.126 << 0 << QStringLiteral("4.13");
    QTest::newRow("zero") << 0.0 << 0 << QStringLiteral("0.00");
    QTest::newRow("large") << 123456.5 << 1 << QStringLiteral("123456.50");
    QTest::newRow("no exponent") << 1e7 << 1 << QStringLiteral("10000000.00");
    QTest::newRow("negative") << -1.5 << 0 << QStringLiteral("-1.50");
    QTest::newRow("not a number") << std::nan("") << 0 << QStringLiteral("nan");
    QTest::newRow("infinite") << std::numeric_limits<double>::infinity() << 0
                              << QStringLiteral("inf");
}

void tst_SupplyWidth::width()
{
    QFETCH(const double, width);
    QFETCH(const int, metric);
    PrintWidget panel(false, nullptr);
    panel.showSupplyInfo(colors({"#000000"}), false, width, static_cast<unsigned char>(metric),
                         false);
    QTEST(::widthEdit(panel)->text(), "text");
    // What showSupplyInfo() wrote is no edit.
    const QSignalSpy spy(&panel, widthSignal);
    Q_EMIT::widthEdit(panel)->editingFinished();
    QCOMPARE(spy.size(), 0);
}

void tst_SupplyWidth::widthSuffix_data()
{
    QTest::addColumn<int>("metric");
    QTest::addColumn<QString>("suffix");
    QTest::newRow("0 is inches") << 0 << QStringLiteral(" in");
    QTest::newRow("1 is millimetres") << 1 << QStringLiteral(" mm");
    QTest::newRow("any other is millimetres") << 255 << QStringLiteral(" mm");
}

void tst_SupplyWidth::widthSuffix()
{
    QFETCH(const int, metric);
    QFETCH(const QString, suffix);
    PrintWidget panel(false, nullptr);
    for (const int before : {0, 1}) {
        panel.showSupplyInfo(colors({"#000000"}), false, 1.0, static_cast<unsigned char>(before),
                             false);
        panel.showSupplyInfo(colors({"#000000"}), false, 1.0, static_cast<unsigned char>(metric),
                             false);
        const auto* validator =
            qobject_cast<const SuffixDoubleValidator*>(::widthEdit(panel)->validator());
        QCOMPARE(validator->suffix(), suffix);
    }
}

void tst_SupplyWidth::editedWidth_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QList<QVariantList>>("emitted");
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
    PrintWidget panel(false, nullptr);
    showPlainSupply(panel);
    QCOMPARE(widthsAfter(panel, text), emitted);
    QCOMPARE(::widthEdit(panel)->text(), text);
}

void tst_SupplyWidth::reportedWidthIsNoEdit()
{
    PrintWidget panel(false, nullptr);
    showPlainSupply(panel);
    QCOMPARE(widthsAfter(panel, QStringLiteral("2.5")).size(), 1);
    // Going back to what the printer reported tells nothing.
    QCOMPARE(widthsAfter(panel, QStringLiteral("4.00")).size(), 0);
    panel.showSupplyInfo(colors({"#000000"}), false, 2.5, 0, false);
    QCOMPARE(widthsAfter(panel, QStringLiteral("2.50")).size(), 0);
    QCOMPARE(widthsAfter(panel, QStringLiteral("4.00")).size(), 1);
}

void tst_SupplyWidth::theSameNewWidthIsReportedTwice()
{
    PrintWidget panel(false, nullptr);
    showPlainSupply(panel);
    const QList<QVariantList> emitted{QVariantList{2.5}};
    QCOMPARE(widthsAfter(panel, QStringLiteral("2.5")), emitted);
    QCOMPARE(widthsAfter(panel, QStringLiteral("2.5")), emitted);
}

void tst_SupplyWidth::typedWidthIsReported()
{
    PrintWidget panel(false, nullptr);
    showPlainSupply(panel);
    QVERIFY(showPanel(panel));
    const QSignalSpy changed(&panel, widthSignal);
    ::widthEdit(panel)->setFocus();
    ::widthEdit(panel)->selectAll();
    QTest::keyClicks(::widthEdit(panel), QStringLiteral("2.50 in"));
    QCOMPARE(changed.size(), 0);
    QTest::keyClick(::widthEdit(panel), Qt::Key_Return);
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed.first(), QVariantList{2.5});
    // More decimals than three cannot be typed.
    ::widthEdit(panel)->selectAll();
    QTest::keyClicks(::widthEdit(panel), QStringLiteral("1.23456"));
    QCOMPARE(::widthEdit(panel)->text(), QStringLiteral("1.234"));
}

void tst_SupplyWidth::suffixInForceIsRemoved()
{
    PrintWidget panel(false, nullptr);
    panel.showSupplyInfo(colors({"#000000"}), false, 12.0, 1, false);
    QCOMPARE(widthsAfter(panel, QStringLiteral("24 mm")), QList<QVariantList>{QVariantList{24.0}});
    QCOMPARE(widthsAfter(panel, QStringLiteral("24 in")), QList<QVariantList>());
    panel.showSupplyInfo(colors({"#000000"}), false, 12.0, 0, false);
    QCOMPARE(widthsAfter(panel, QStringLiteral("24 mm")), QList<QVariantList>());
    QCOMPARE(widthsAfter(panel, QStringLiteral("24 in")), QList<QVariantList>{QVariantList{24.0}});
}

void tst_SupplyWidth::slotBeforeTheSectionExistsDoesNothing()
{
    PrintWidget panel(false, nullptr);
    const QSignalSpy changed(&panel, widthSignal);
    QVERIFY(QMetaObject::invokeMethod(&panel, "supplyWidthEditedSlot"));
    QCOMPARE(changed.size(), 0);
}

QTEST_MAIN(tst_SupplyWidth)
#include "tst_supplywidth.moc"
