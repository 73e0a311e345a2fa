// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/automation/inputsimulation.h"
#include "support/stricttest.h"

#include <printpanels/recordlist.h>

#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtGui/QRegularExpressionValidator>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QSpinBox>

using SampleHost::InputSimulation::type;

class TestInputSimulation : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void givesWhatTypingGives_data();
    void givesWhatTypingGives();
    void validTextIsInsertedAtOnce();
    void spinBoxTakesWhatItAccepts_data();
    void spinBoxTakesWhatItAccepts();
    void hiddenOrDisabledFieldIsLeftAlone();

private:
    static void limitToLists(QLineEdit& edit)
    {
        edit.setValidator(new QRegularExpressionValidator(RecordList::expression(), &edit));
    }
};

void TestInputSimulation::givesWhatTypingGives_data()
{
    QTest::addColumn<QString>("text");
    const char* const texts[] = {"",           "1",          "1,4-5", "1,",      "0",  "12345",
                                 "1, 2",       "all",        "1-2-3", "1\n2",    "\n", "12x3,4",
                                 "x12,3-4,,5", "1,2,x,3y,4", "\t7\b", "7\u007f8"};
    for (const char* text : texts) {
        addRow(text, QString::fromUtf8(text));
    }
    addRow("beyond ASCII", QStringLiteral("1\u00e9\U0001f600,2\u200f"));
    addRow("bad at the end", QStringLiteral("12,").repeated(200) + u'x');
    addRow("bad at the start", u'x' + QStringLiteral("12,").repeated(200));
    addRow("too long", QStringLiteral("1,").repeated(20000));
}

void TestInputSimulation::givesWhatTypingGives()
{
    QFETCH(QString, text);
    for (const bool limited : {false, true}) {
        QLineEdit field;
        QLineEdit typed;
        if (limited) {
            limitToLists(field);
            limitToLists(typed);
        }
        field.setText(QStringLiteral("8"));
        field.show();
        QVERIFY(type(&field, text));
        if (text.size() > 20000) {
            // Typing it takes too long.
            QCOMPARE(field.text(), text.first(field.maxLength()));
            continue;
        }
        for (const QChar character : text) {
            QTest::sendKeyEvent(QTest::Click, &typed, Qt::Key_unknown, QString(character),
                                Qt::NoModifier);
        }
        QCOMPARE(field.text(), typed.text());
    }
}

void TestInputSimulation::validTextIsInsertedAtOnce()
{
    QLineEdit field;
    limitToLists(field);
    field.show();
    QGuiApplication::clipboard()->setText(QStringLiteral("of the user"));
    const QString list = QStringLiteral("123,").repeated(7500) + u'4';
    QSignalSpy edited(&field, &QLineEdit::textEdited);
    QVERIFY(type(&field, list));
    QCOMPARE(edited.size(), 1);
    QCOMPARE(edited.at(0).at(0).toString(), list);
    QCOMPARE(field.text(), list);
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("of the user"));
}

void TestInputSimulation::spinBoxTakesWhatItAccepts_data()
{
    addColumns<QString, int>("text", "value");
    addRow("valid", "120", 120);
    addRow("too large", "1234", 123);
    addRow("with a letter", "5x6", 56);
    addRow("letters", "many", 8);
}

void TestInputSimulation::spinBoxTakesWhatItAccepts()
{
    QFETCH(QString, text);
    QSpinBox box;
    box.setRange(1, 999);
    box.setValue(8);
    box.show();
    QVERIFY(type(&box, text));
    QTEST(box.value(), "value");
}

void TestInputSimulation::hiddenOrDisabledFieldIsLeftAlone()
{
    QVERIFY(!type(nullptr, QStringLiteral("1")));
    QLineEdit field(QStringLiteral("8"));
    QVERIFY(!type(&field, QStringLiteral("1")));
    field.show();
    field.setEnabled(false);
    QVERIFY(!type(&field, QStringLiteral("1")));
    QCOMPARE(field.text(), QStringLiteral("8"));
}

QTEST_MAIN(TestInputSimulation)
#include "tst_inputsimulation.moc"
