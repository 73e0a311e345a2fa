// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/print/listproblem.h"
#include "support/stricttest.h"

using namespace SampleHost;

class TestListProblem : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void namesTheWrongItem_data();
    void namesTheWrongItem();
    void acceptsWhatCanBePrinted_data();
    void acceptsWhatCanBePrinted();
};

void TestListProblem::namesTheWrongItem_data()
{
    addColumns<QString, int, QString>("list", "count", "problem");

    const auto unreadable = [](const char* reason) {
        return QStringLiteral("cannot be read: ") + QString::fromLatin1(reason) +
               QStringLiteral(". Write numbers and ranges such as 1,4-5.");
    };
    const auto none = [](const char* reason) {
        return QStringLiteral("names none of the 42 records: ") + QString::fromLatin1(reason);
    };
    addRow("letter", "1,x,3", 42, unreadable("\"x\" is not a record number"));
    addRow("letter, later", "99,1,3-4,x", 42, unreadable("\"x\" is not a record number"));
    addRow("first of two", "a,b", 42, unreadable("\"a\" is not a record number"));
    addRow("place markers", "%1,%2", 42, unreadable("\"%1\" is not a record number"));
    addRow("no last number", "5-", 42, unreadable("\"5-\" is not a range of records"));
    addRow("no first number", "2,-5", 42, unreadable("\"-5\" is not a range of records"));
    addRow("comma at the end", "5,", 42, unreadable("a record number is missing beside a comma"));
    addRow("comma first", ",5", 42, unreadable("a record number is missing beside a comma"));
    addRow("two commas", "1,,5", 42, unreadable("a record number is missing beside a comma"));
    addRow("reversed", "7-3", 42, none("\"7-3\" runs backwards. Write 3-7."));
    addRow("beyond", "43", 42, none("there is no record 43. Write numbers from 1 to 42."));
    addRow("range beyond", "43-50,9-8", 42,
           none("there is no record 43. Write numbers from 1 to 42."));
    addRow("one record", "2", 1,
           "does not name the only record: there is no record 2. Write 1. Nothing is printed.");
    addRow("no records", "1", 0, "There are no records. Nothing is printed.");
}

void TestListProblem::namesTheWrongItem()
{
    QFETCH(QString, list);
    QFETCH(int, count);
    QFETCH(QString, problem);
    const QString found = listProblem(list, count, ListItems::Records);
    QVERIFY2(found.contains(problem), qPrintable(found));
    QVERIFY2(count == 0 ||
                 found.startsWith(QStringLiteral("The list \"") + list + QStringLiteral("\" ")),
             qPrintable(found));
    QVERIFY2(found.endsWith(QStringLiteral(" Nothing is printed.")), qPrintable(found));
}

void TestListProblem::acceptsWhatCanBePrinted_data()
{
    addColumns<QString>("list");

    addRow("number", "42");
    addRow("list", "1,4-5,11-20,33");
    addRow("partly reversed", "5-4,3");
    addRow("partly beyond", "42-9999");
    addRow("beyond and not", "43,42");
}

void TestListProblem::acceptsWhatCanBePrinted()
{
    QFETCH(QString, list);
    QCOMPARE(listProblem(list, 42, ListItems::Records), QString());
    QCOMPARE(listProblem(list, 42, ListItems::Pages), QString());
}

QTEST_MAIN(TestListProblem)

#include "tst_listproblem.moc"
