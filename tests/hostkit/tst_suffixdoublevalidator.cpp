// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "support/stricttest.h"

#include <suffixdoublevalidator.h>

#include <QtCore/QElapsedTimer>
#include <QtCore/QLocale>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QLineEdit>

#include <limits>

class TestSuffixDoubleValidator : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() override { QLocale::setDefault(QLocale::c()); }

    void judgesAWidth_data();
    void judgesAWidth();
    void judgesByItsBounds_data();
    void judgesByItsBounds();
    void ignoresTheApplicationsLocale();
    void leavesTextAndPositionAlone();
    void suffixCanBeReplaced();
    void emptySuffixAllowsNothingBehindTheNumber();
    void numbersBeyondADoubleAreJudgedByTheirSize_data();
    void numbersBeyondADoubleAreJudgedByTheirSize();
    void hugeTextsAreJudgedQuickly_data();
    void hugeTextsAreJudgedQuickly();
    void typingIntoALineEdit_data();
    void typingIntoALineEdit();
    void numberCanBeReplacedInFrontOfItsSuffix();
};

namespace {
constexpr QValidator::State invalid = QValidator::Invalid;
constexpr QValidator::State intermediate = QValidator::Intermediate;
constexpr QValidator::State acceptable = QValidator::Acceptable;

const QString inches = QStringLiteral(" in");

QValidator::State judge(const SuffixDoubleValidator& validator, QString text)
{
    int position = 0;
    return validator.validate(text, position);
}
} // namespace

Q_DECLARE_METATYPE(QValidator::State)

void TestSuffixDoubleValidator::judgesAWidth_data()
{
    addColumns<QString, QValidator::State>("text", "state");
    const auto row = [](const char* text, QValidator::State state) {
        QTest::addRow("'%s'", text) << QString::fromUtf8(text) << state;
    };
    row("0", acceptable);
    row("12", acceptable);
    row("12.5", acceptable);
    row("12.50", acceptable);
    row("12.125", acceptable);
    row(".5", acceptable);
    row("007", acceptable);
    row("999999", acceptable);
    row("999999.000", acceptable);
    row("12 in", acceptable);
    row("12.125 in", acceptable);
    row("0 in", acceptable);
    row("999999 in", acceptable);

    row("", intermediate);
    row(".", intermediate);
    row("12.", intermediate);
    row("12 ", intermediate);
    row("12 i", intermediate);
    row("12. in", intermediate);
    row(" in", intermediate);
    row(" ", intermediate);
    row(". in", intermediate);

    row("1000000", invalid);
    row("999999.001", invalid);
    row("999999.5", invalid);
    row("1000000 in", invalid);
    row("12.1234", invalid);
    row("12.1234 in", invalid);
    row("12.0000", invalid);
    row("-", invalid);
    row("-1", invalid);
    row("-0", invalid);
    row("+1", invalid);
    row("1e3", invalid);
    row("1E3", invalid);
    row("1,000", invalid);
    row("1,5", invalid);
    row("1 000", invalid);
    row(" 12", invalid);
    row("12  in", invalid);
    row("12in", invalid);
    row("12 IN", invalid);
    row("12 inch", invalid);
    row("12 in ", invalid);
    row("12 in in", invalid);
    row("12 mm", invalid);
    row("12\t", invalid);
    row("12.5.5", invalid);
    row("..", invalid);
    row("1-2", invalid);
    row("0x10", invalid);
    row("abc", invalid);
    row("nan", invalid);
    row("inf", invalid);
    row("infinity", invalid);
    row("\u0661\u0662", invalid);
    row("\u00bd", invalid);
    row("12\u00a0in", invalid);
}

void TestSuffixDoubleValidator::judgesAWidth()
{
    QFETCH(QString, text);
    QFETCH(QValidator::State, state);
    SuffixDoubleValidator validator(0.0, 999999.0, 3, nullptr);
    validator.setSuffix(inches);
    QCOMPARE(judge(validator, text), state);
}

void TestSuffixDoubleValidator::judgesByItsBounds_data()
{
    addColumns<double, double, int, QString, QValidator::State>("bottom", "top", "decimals", "text",
                                                                "state");
    const auto row = [](double bottom, double top, int decimals, const char* text,
                        QValidator::State state) {
        QTest::addRow("%g to %g, %d decimals: '%s'", bottom, top, decimals, text)
            << bottom << top << decimals << QString::fromLatin1(text) << state;
    };
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    constexpr double infinite = std::numeric_limits<double>::infinity();
    // Too small is a beginning, too large is not.
    row(10, 20, 2, "1", intermediate);
    row(10, 20, 2, "9.99", intermediate);
    row(10, 20, 2, "10", acceptable);
    row(10, 20, 2, "20", acceptable);
    row(10, 20, 2, "20.01", invalid);
    row(10, 20, 2, "20.", intermediate);
    row(10, 20, 2, "0", intermediate);
    row(10, 20, 2, "21", invalid);
    row(10, 20, 2, "21.", invalid);
    row(10, 20, 2, "1 i", intermediate);
    row(10, 20, 2, "21 i", invalid);
    // Negative numbers.
    row(-20, -10, 2, "-", intermediate);
    row(-20, -10, 2, "-.", intermediate);
    row(-20, -10, 2, "-1", intermediate);
    row(-20, -10, 2, "-0", intermediate);
    row(-20, -10, 2, "-15.25", acceptable);
    row(-20, -10, 2, "-15.25 in", acceptable);
    row(-20, -10, 2, "-20.01", invalid);
    row(-20, -10, 2, "5", invalid);
    row(-5, 5, 0, "-5", acceptable);
    row(-5, 5, 0, "-6", invalid);
    row(-5, 5, 0, "--5", invalid);
    row(-5, 5, 0, "5-", invalid);
    row(-5, 5, 0, "- 5", invalid);
    row(-5, 5, 0, "- in", intermediate);
    // Whole numbers.
    row(0, 100, 0, "5", acceptable);
    row(0, 100, 0, "5.", invalid);
    row(0, 100, 0, ".", invalid);
    row(0, 100, -3, "5", acceptable);
    row(0, 100, -3, "5.", invalid);
    // Bounds that nothing satisfies.
    row(20, 10, 2, "15", intermediate);
    row(20, 10, 2, "25", invalid);
    row(20, 10, 2, "", intermediate);
    row(nan, 10, 2, "5", invalid);
    row(0, nan, 2, "5", invalid);
    row(nan, nan, 2, "", intermediate);
    row(nan, nan, 2, "-1", invalid);
    // No bounds at all.
    row(-infinite, infinite, 3, "-123456789.125", acceptable);
    row(-infinite, infinite, 3, "inf", invalid);
}

void TestSuffixDoubleValidator::judgesByItsBounds()
{
    QFETCH(double, bottom);
    QFETCH(double, top);
    QFETCH(int, decimals);
    QFETCH(QString, text);
    QFETCH(QValidator::State, state);
    SuffixDoubleValidator validator(bottom, top, decimals, nullptr);
    validator.setSuffix(inches);
    QCOMPARE(judge(validator, text), state);
}

void TestSuffixDoubleValidator::ignoresTheApplicationsLocale()
{
    QLocale::setDefault(QLocale(QLocale::German));
    SuffixDoubleValidator validator(0.0, 999999.0, 3, nullptr);
    validator.setLocale(QLocale(QLocale::German));
    QCOMPARE(judge(validator, QStringLiteral("12.5")), acceptable);
    QCOMPARE(judge(validator, QStringLiteral("12,5")), invalid);
    QCOMPARE(judge(validator, QStringLiteral("1.000.000")), invalid);
}

void TestSuffixDoubleValidator::leavesTextAndPositionAlone()
{
    SuffixDoubleValidator validator(0.0, 999999.0, 3, nullptr);
    for (const char* text : {"12.5 in", "007", "12.12345", ""}) {
        QString edited = QString::fromLatin1(text);
        int position = 1;
        validator.validate(edited, position);
        QCOMPARE(edited, QString::fromLatin1(text));
        QCOMPARE(position, 1);
    }
}

void TestSuffixDoubleValidator::suffixCanBeReplaced()
{
    QWidget parent;
    auto* validator = new SuffixDoubleValidator(0.0, 999999.0, 3, &parent);
    QCOMPARE(validator->parent(), &parent);
    QCOMPARE(validator->suffix(), QString());
    QSignalSpy changed(validator, SIGNAL(changed()));
    validator->setSuffix(inches);
    QCOMPARE(judge(*validator, QStringLiteral("12 in")), acceptable);
    QCOMPARE(judge(*validator, QStringLiteral("12 mm")), invalid);
    validator->setSuffix(QStringLiteral(" mm"));
    QCOMPARE(validator->suffix(), QStringLiteral(" mm"));
    QCOMPARE(judge(*validator, QStringLiteral("12 in")), invalid);
    QCOMPARE(judge(*validator, QStringLiteral("12 mm")), acceptable);
    QCOMPARE(changed.count(), 2);
    validator->setSuffix(QStringLiteral(" mm"));
    QCOMPARE(changed.count(), 2);
    validator->setSuffix(QStringLiteral("\""));
    QCOMPARE(judge(*validator, QStringLiteral("12\"")), acceptable);
}

void TestSuffixDoubleValidator::emptySuffixAllowsNothingBehindTheNumber()
{
    SuffixDoubleValidator validator(0.0, 999999.0, 3, nullptr);
    QCOMPARE(judge(validator, QStringLiteral("12")), acceptable);
    QCOMPARE(judge(validator, QStringLiteral("12 ")), invalid);
    QCOMPARE(judge(validator, QStringLiteral("12 in")), invalid);
    QCOMPARE(judge(validator, QString()), intermediate);
}

void TestSuffixDoubleValidator::numbersBeyondADoubleAreJudgedByTheirSize_data()
{
    addColumns<double, double, QString, QValidator::State>("bottom", "top", "text", "state");
    constexpr double infinite = std::numeric_limits<double>::infinity();
    const QString large(400, QLatin1Char('9'));
    const QString small = QStringLiteral("0.") + QString(400, QLatin1Char('0')) + QLatin1Char('1');
    const QLatin1Char minus('-');
    addRow("large, boundless", -infinite, infinite, large, acceptable);
    addRow("large negative, boundless", -infinite, infinite, minus + large, acceptable);
    addRow("large, bounded", -1e308, 1e308, large, invalid);
    addRow("large negative, bounded", -1e308, 1e308, minus + large, invalid);
    addRow("small", -1.0, 1.0, small + inches, acceptable);
    addRow("small negative", -1.0, 1.0, minus + small, acceptable);
    addRow("small, zero excluded", 0.5, 1.0, small, intermediate);
    addRow("small negative, zero excluded", -1.0, -0.5, minus + small, intermediate);
    addRow("small, negative numbers only", -1.0, -0.5, small, invalid);
}

void TestSuffixDoubleValidator::numbersBeyondADoubleAreJudgedByTheirSize()
{
    QFETCH(double, bottom);
    QFETCH(double, top);
    QFETCH(QString, text);
    QFETCH(QValidator::State, state);
    SuffixDoubleValidator validator(bottom, top, 500, nullptr);
    validator.setSuffix(inches);
    QCOMPARE(judge(validator, text), state);
}

void TestSuffixDoubleValidator::hugeTextsAreJudgedQuickly_data()
{
    addColumns<QString, QValidator::State>("text", "state");
    constexpr int huge = 1 << 20;
    addRow("nines", QString(huge, QLatin1Char('9')), invalid);
    addRow("zeros", QString(huge, QLatin1Char('0')), acceptable);
    addRow("zeros before a number", QString(huge, QLatin1Char('0')) + QStringLiteral("12.5 in"),
           acceptable);
    addRow("decimals", QStringLiteral("0.") + QString(huge, QLatin1Char('1')), invalid);
    addRow("letters", QString(huge, QLatin1Char('x')), invalid);
    addRow("blanks", QString(huge, QLatin1Char(' ')), invalid);
    addRow("points", QString(huge, QLatin1Char('.')), invalid);
    addRow("minus signs", QString(huge, QLatin1Char('-')), invalid);
}

void TestSuffixDoubleValidator::hugeTextsAreJudgedQuickly()
{
    QFETCH(QString, text);
    QFETCH(QValidator::State, state);
    SuffixDoubleValidator validator(0.0, 999999.0, 3, nullptr);
    validator.setSuffix(inches);
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(judge(validator, text), state);
    // A suffix of the same size, and as many decimals as one likes.
    SuffixDoubleValidator generous(-1e308, 1e308, std::numeric_limits<int>::max(), nullptr);
    generous.setSuffix(text);
    judge(generous, text);
    judge(generous, QStringLiteral("-12.5"));
    QVERIFY(timer.elapsed() < 5000);
}

void TestSuffixDoubleValidator::typingIntoALineEdit_data()
{
    addColumns<QString, QString, bool>("typed", "text", "accepted");
    const auto row = [](const char* typed, const char* text, bool satisfied) {
        QTest::newRow(typed) << QString::fromLatin1(typed) << QString::fromLatin1(text)
                             << satisfied;
    };
    row("2.25", "2.25", true);
    row("2.25 in", "2.25 in", true);
    row("2.25 i", "2.25 i", false);
    row("2.2511", "2.251", true);
    row("9999999", "999999", true);
    row("-1e5", "15", true);
    row("x2y.z5 inn", "2.5 in", true);
    row("1,5", "15", true);
}

void TestSuffixDoubleValidator::typingIntoALineEdit()
{
    QFETCH(QString, typed);
    QFETCH(QString, text);
    QFETCH(bool, accepted);
    QLineEdit edit;
    auto* validator = new SuffixDoubleValidator(0.0, 999999.0, 3, &edit);
    validator->setSuffix(inches);
    edit.setValidator(validator);
    QTest::keyClicks(&edit, typed);
    QCOMPARE(edit.text(), text);
    QCOMPARE(edit.hasAcceptableInput(), accepted);
}

void TestSuffixDoubleValidator::numberCanBeReplacedInFrontOfItsSuffix()
{
    QLineEdit edit;
    auto* validator = new SuffixDoubleValidator(0.0, 999999.0, 3, &edit);
    validator->setSuffix(inches);
    edit.setValidator(validator);
    edit.setText(QStringLiteral("12.5 in"));
    edit.setSelection(0, 4);
    QTest::keyClick(&edit, Qt::Key_Delete);
    QCOMPARE(edit.text(), inches);
    QTest::keyClicks(&edit, QStringLiteral("3.75"));
    QCOMPARE(edit.text(), QStringLiteral("3.75 in"));
    QVERIFY(edit.hasAcceptableInput());
}

QTEST_MAIN(TestSuffixDoubleValidator)
#include "tst_suffixdoublevalidator.moc"
