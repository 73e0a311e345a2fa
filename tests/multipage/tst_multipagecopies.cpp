// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "multipageprobe.h"
#include "support/stricttest.h"

#include <printpanels/multipageprintwidget.h>

#include <QtCore/QLocale>
#include <QtCore/QScopeGuard>
#include <QtGui/QIntValidator>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>

#include <limits>

namespace {

QLineEdit* copies(const QWidget& panel)
{
    return part<QLineEdit>(panel, "copiesEdit");
}

QPushButton* button(const QWidget& panel, const char* name)
{
    return part<QPushButton>(panel, name);
}

} // namespace

/** The number of copies and its step buttons. */
class tst_MultiPageCopies : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void startsAtOne();
    void readsTheText_data();
    void readsTheText();
    void setsAnyNumber_data();
    void setsAnyNumber();
    void steps_data();
    void steps();
    void validatorTakesOneTo999_data();
    void validatorTakesOneTo999();
    void typingIsLimited();
    void whatCanBeTypedIsRead_data();
    void whatCanBeTypedIsRead();
    void stepButtonsRepeat();
    void copiesEmitNothing();
};

void tst_MultiPageCopies::startsAtOne()
{
    MultiPagePrintWidget panel(false, false, nullptr);
    QCOMPARE(copies(panel)->text(), QStringLiteral("1"));
    QCOMPARE(panel.getNumberOfCopies(), 1);
}

void tst_MultiPageCopies::readsTheText_data()
{
    QTest::addColumn<int>("number");
    QTest::newRow("1") << 1;
    QTest::newRow("2") << 2;
    QTest::newRow("999") << 999;
    QTest::newRow("1000") << 1000;
    QTest::newRow("007") << 7;
    QTest::newRow("0") << 1;
    QTest::newRow("-5") << 1;
    QTest::newRow("abc") << 1;
    QTest::newRow("2.5") << 1;
    QTest::newRow("0x10") << 1;
    QTest::newRow("2147483647") << 2147483647;
    QTest::newRow("2147483648") << 1;
    QTest::newRow("-2147483649") << 1;
    QTest::newRow("") << 1;
}

void tst_MultiPageCopies::readsTheText()
{
    MultiPagePrintWidget panel(false, false, nullptr);
    copies(panel)->setText(QLatin1String(QTest::currentDataTag()));
    QTEST(panel.getNumberOfCopies(), "number");
}

void tst_MultiPageCopies::setsAnyNumber_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("text");
    QTest::newRow("one") << 1 << QStringLiteral("1");
    QTest::newRow("most") << 999 << QStringLiteral("999");
    QTest::newRow("more than the user may ask for") << 1500 << QStringLiteral("1500");
    QTest::newRow("none") << 0 << QStringLiteral("0");
    QTest::newRow("negative") << -3 << QStringLiteral("-3");
    QTest::newRow("highest") << std::numeric_limits<int>::max() << QStringLiteral("2147483647");
    QTest::newRow("lowest") << std::numeric_limits<int>::min() << QStringLiteral("-2147483648");
}

void tst_MultiPageCopies::setsAnyNumber()
{
    QFETCH(const int, number);
    MultiPagePrintWidget panel(false, false, nullptr);
    panel.setNumberOfCopies(number);
    QTEST(copies(panel)->text(), "text");
    QCOMPARE(panel.getNumberOfCopies(), number < 1 ? 1 : number);
}

void tst_MultiPageCopies::steps_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("more");
    QTest::addColumn<QString>("less");
    const auto row = [](const char* name, const char* text, const char* more, const char* less) {
        QTest::newRow(name) << QString::fromLatin1(text) << QString::fromLatin1(more)
                            << QString::fromLatin1(less);
    };
    row("one", "1", "2", "1");
    row("two", "2", "3", "1");
    row("998", "998", "999", "997");
    row("most", "999", "999", "998");
    row("above the most", "1000", "1000", "999");
    row("far above", "2147483647", "2147483647", "2147483646");
    row("empty", "", "1", "");
    row("no number", "abc", "1", "abc");
    row("too high for a number", "2147483648", "1", "2147483648");
    row("zero", "0", "1", "0");
    row("negative", "-5", "-4", "-5");
    row("lowest", "-2147483648", "-2147483647", "-2147483648");
}

void tst_MultiPageCopies::steps()
{
    QFETCH(const QString, text);
    MultiPagePrintWidget panel(false, false, nullptr);
    copies(panel)->setText(text);
    clickOn(button(panel, "plusButton"));
    QTEST(copies(panel)->text(), "more");
    copies(panel)->setText(text);
    panel.increaseCopyCount();
    QTEST(copies(panel)->text(), "more");

    copies(panel)->setText(text);
    clickOn(button(panel, "minusButton"));
    QTEST(copies(panel)->text(), "less");
    copies(panel)->setText(text);
    QVERIFY(QMetaObject::invokeMethod(&panel, "decreaseCopyCount"));
    QTEST(copies(panel)->text(), "less");
}

void tst_MultiPageCopies::validatorTakesOneTo999_data()
{
    QTest::addColumn<bool>("acceptable");
    for (const char* text : {"1", "10", "999"})
        QTest::newRow(text) << true;
    for (const char* text : {"", "0", "1000", "-1", "a"})
        QTest::newRow(text) << false;
}

void tst_MultiPageCopies::validatorTakesOneTo999()
{
    MultiPagePrintWidget panel(false, false, nullptr);
    const auto* validator = qobject_cast<const QIntValidator*>(copies(panel)->validator());
    QVERIFY(validator);
    QCOMPARE(validator->bottom(), 1);
    QCOMPARE(validator->top(), 999);
    QVERIFY(validator->parent());
    copies(panel)->setText(QLatin1String(QTest::currentDataTag()));
    QTEST(copies(panel)->hasAcceptableInput(), "acceptable");
}

void tst_MultiPageCopies::typingIsLimited()
{
    MultiPagePrintWidget panel(false, false, nullptr);
    QVERIFY(showActive(panel));
    copies(panel)->setFocus();
    copies(panel)->selectAll();
    QTest::keyClicks(copies(panel), QStringLiteral("-1a2 345"));
    QCOMPARE(copies(panel)->text(), QStringLiteral("123"));
    QCOMPARE(panel.getNumberOfCopies(), 123);
}

void tst_MultiPageCopies::whatCanBeTypedIsRead_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("typed");
    QTest::newRow("group separator") << QStringLiteral("en") << QStringLiteral("3,3");
    QTest::newRow("another one") << QStringLiteral("de") << QStringLiteral("3.3");
    QTest::newRow("other digits") << QStringLiteral("ar_EG") << QStringLiteral("\u06633\u06643");
}

void tst_MultiPageCopies::whatCanBeTypedIsRead()
{
    QFETCH(const QString, language);
    QFETCH(const QString, typed);
    const auto restored = qScopeGuard([old = QLocale()] { QLocale::setDefault(old); });
    QLocale::setDefault(QLocale(language));
    MultiPagePrintWidget panel(false, false, nullptr);
    copies(panel)->clear();
    for (const QChar character : typed) {
        QTest::sendKeyEvent(QTest::Click, copies(panel), Qt::Key(character.unicode()),
                            QString(character), Qt::NoModifier);
    }
    QCOMPARE(copies(panel)->text(), QStringLiteral("33"));
    QCOMPARE(panel.getNumberOfCopies(), 33);
}

void tst_MultiPageCopies::stepButtonsRepeat()
{
    MultiPagePrintWidget panel(false, false, nullptr);
    panel.setNumberOfCopies(500);
    QVERIFY(showActive(panel));
    for (const char* name : {"plusButton", "minusButton"})
        QVERIFY(button(panel, name)->autoRepeat());
    QTest::mousePress(button(panel, "plusButton"), Qt::LeftButton);
    QTRY_VERIFY(panel.getNumberOfCopies() >= 503);
    QTest::mouseRelease(button(panel, "plusButton"), Qt::LeftButton);
    const int reached = panel.getNumberOfCopies();
    QTest::mousePress(button(panel, "minusButton"), Qt::LeftButton);
    QTRY_VERIFY(panel.getNumberOfCopies() <= reached - 3);
    QTest::mouseRelease(button(panel, "minusButton"), Qt::LeftButton);
}

void tst_MultiPageCopies::copiesEmitNothing()
{
    MultiPagePrintWidget panel(false, false, nullptr);
    QList<QSharedPointer<QSignalSpy>> spies;
    const QMetaObject* meta = panel.metaObject();
    for (int i = PrintWidgetInterface::staticMetaObject.methodOffset(); i < meta->methodCount();
         ++i) {
        if (meta->method(i).methodType() == QMetaMethod::Signal)
            spies.append(QSharedPointer<QSignalSpy>::create(&panel, meta->method(i)));
    }
    QCOMPARE(spies.size(), 14);
    panel.setNumberOfCopies(7);
    clickOn(button(panel, "plusButton"));
    clickOn(button(panel, "minusButton"));
    for (const auto& spy : std::as_const(spies))
        QCOMPARE(spy->size(), 0);
}

QTEST_MAIN(tst_MultiPageCopies)
#include "tst_multipagecopies.moc"
