// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "multipagefixture.h"
#include "support/stricttest.h"

#include <printpanels/multipageprintwidget.h>

#include <QtCore/QLocale>
#include <QtCore/QScopeGuard>
#include <QtGui/QIntValidator>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>

#include <limits>

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
    MultiPageFixture panel;
    QCOMPARE(panel.copiesEdit()->text(), QStringLiteral("1"));
    QCOMPARE(panel.getNumberOfCopies(), 1);
}

void tst_MultiPageCopies::readsTheText_data()
{
    QTest::addColumn<int>("number");
    addRow("1", 1);
    addRow("2", 2);
    addRow("999", 999);
    addRow("1000", 1000);
    addRow("007", 7);
    addRow("0", 1);
    addRow("-5", 1);
    addRow("abc", 1);
    addRow("2.5", 1);
    addRow("0x10", 1);
    addRow("2147483647", 2147483647);
    addRow("2147483648", 1);
    addRow("-2147483649", 1);
    addRow("", 1);
}

void tst_MultiPageCopies::readsTheText()
{
    MultiPageFixture panel;
    panel.copiesEdit()->setText(QLatin1String(QTest::currentDataTag()));
    QTEST(panel.getNumberOfCopies(), "number");
}

void tst_MultiPageCopies::setsAnyNumber_data()
{
    addColumns<int, QString>("number", "text");
    addRow("one", 1, "1");
    addRow("most", 999, "999");
    addRow("more than the user may ask for", 1500, "1500");
    addRow("none", 0, "0");
    addRow("negative", -3, "-3");
    addRow("highest", std::numeric_limits<int>::max(), "2147483647");
    addRow("lowest", std::numeric_limits<int>::min(), "-2147483648");
}

void tst_MultiPageCopies::setsAnyNumber()
{
    QFETCH(const int, number);
    MultiPageFixture panel;
    panel.setNumberOfCopies(number);
    QTEST(panel.copiesEdit()->text(), "text");
    QCOMPARE(panel.getNumberOfCopies(), number < 1 ? 1 : number);
}

void tst_MultiPageCopies::steps_data()
{
    addColumns<QString, QString, QString>("text", "more", "less");
    addRow("one", "1", "2", "1");
    addRow("two", "2", "3", "1");
    addRow("998", "998", "999", "997");
    addRow("most", "999", "999", "998");
    addRow("above the most", "1000", "1000", "999");
    addRow("far above", "2147483647", "2147483647", "2147483646");
    addRow("empty", "", "1", "");
    addRow("no number", "abc", "1", "abc");
    addRow("too high for a number", "2147483648", "1", "2147483648");
    addRow("zero", "0", "1", "0");
    addRow("negative", "-5", "-4", "-5");
    addRow("lowest", "-2147483648", "-2147483647", "-2147483648");
}

void tst_MultiPageCopies::steps()
{
    QFETCH(const QString, text);
    MultiPageFixture panel;
    panel.copiesEdit()->setText(text);
    clickOn(panel.button("plusButton"));
    QTEST(panel.copiesEdit()->text(), "more");
    panel.copiesEdit()->setText(text);
    panel.increaseCopyCount();
    QTEST(panel.copiesEdit()->text(), "more");

    panel.copiesEdit()->setText(text);
    clickOn(panel.button("minusButton"));
    QTEST(panel.copiesEdit()->text(), "less");
    panel.copiesEdit()->setText(text);
    QVERIFY(QMetaObject::invokeMethod(&panel, "decreaseCopyCount"));
    QTEST(panel.copiesEdit()->text(), "less");
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
    MultiPageFixture panel;
    const auto* validator = qobject_cast<const QIntValidator*>(panel.copiesEdit()->validator());
    QVERIFY(validator);
    QCOMPARE(validator->bottom(), 1);
    QCOMPARE(validator->top(), 999);
    QVERIFY(validator->parent());
    panel.copiesEdit()->setText(QLatin1String(QTest::currentDataTag()));
    QTEST(panel.copiesEdit()->hasAcceptableInput(), "acceptable");
}

void tst_MultiPageCopies::typingIsLimited()
{
    MultiPageFixture panel;
    QVERIFY(showActive(panel));
    panel.copiesEdit()->setFocus();
    panel.copiesEdit()->selectAll();
    QTest::keyClicks(panel.copiesEdit(), QStringLiteral("-1a2 345"));
    QCOMPARE(panel.copiesEdit()->text(), QStringLiteral("123"));
    QCOMPARE(panel.getNumberOfCopies(), 123);
}

void tst_MultiPageCopies::whatCanBeTypedIsRead_data()
{
    addColumns<QString, QString>("language", "typed");
    addRow("group separator", "en", "3,3");
    addRow("another one", "de", "3.3");
    addRow("other digits", "ar_EG", "\u06633\u06643");
}

void tst_MultiPageCopies::whatCanBeTypedIsRead()
{
    QFETCH(const QString, language);
    QFETCH(const QString, typed);
    const auto restored = qScopeGuard([old = QLocale()] { QLocale::setDefault(old); });
    QLocale::setDefault(QLocale(language));
    MultiPageFixture panel;
    panel.copiesEdit()->clear();
    for (const QChar character : typed) {
        QTest::sendKeyEvent(QTest::Click, panel.copiesEdit(), Qt::Key(character.unicode()),
                            QString(character), Qt::NoModifier);
    }
    QCOMPARE(panel.copiesEdit()->text(), QStringLiteral("33"));
    QCOMPARE(panel.getNumberOfCopies(), 33);
}

void tst_MultiPageCopies::stepButtonsRepeat()
{
    MultiPageFixture panel;
    panel.setNumberOfCopies(500);
    QVERIFY(showActive(panel));
    for (const char* name : {"plusButton", "minusButton"})
        QVERIFY(panel.button(name)->autoRepeat());
    QTest::mousePress(panel.button("plusButton"), Qt::LeftButton);
    QTRY_VERIFY(panel.getNumberOfCopies() >= 503);
    QTest::mouseRelease(panel.button("plusButton"), Qt::LeftButton);
    const int reached = panel.getNumberOfCopies();
    QTest::mousePress(panel.button("minusButton"), Qt::LeftButton);
    QTRY_VERIFY(panel.getNumberOfCopies() <= reached - 3);
    QTest::mouseRelease(panel.button("minusButton"), Qt::LeftButton);
}

void tst_MultiPageCopies::copiesEmitNothing()
{
    MultiPageFixture panel;
    QList<QSharedPointer<QSignalSpy>> spies;
    const QMetaObject* meta = panel.metaObject();
    for (int i = PrintWidgetInterface::staticMetaObject.methodOffset(); i < meta->methodCount();
         ++i) {
        if (meta->method(i).methodType() == QMetaMethod::Signal)
            spies.append(QSharedPointer<QSignalSpy>::create(&panel, meta->method(i)));
    }
    QCOMPARE(spies.size(), 14);
    panel.setNumberOfCopies(7);
    clickOn(panel.button("plusButton"));
    clickOn(panel.button("minusButton"));
    for (const auto& spy : std::as_const(spies))
        QCOMPARE(spy->size(), 0);
}

QTEST_MAIN(tst_MultiPageCopies)
#include "tst_multipagecopies.moc"
