// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "support/inputevents.h"
#include "support/stricttest.h"

#include <jxspinbox.h>

#include <QtTest/QSignalSpy>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QVBoxLayout>

class TestJxSpinBox : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void wheelOverUnfocusedBoxScrollsTheAreaAroundIt_data();
    void wheelOverUnfocusedBoxScrollsTheAreaAroundIt();
    void wheelChangesTheFocusedBox();
    void stepsByButtonsConnectedByText();
    void keepsTheSpinBoxDefaults();
};

void TestJxSpinBox::wheelOverUnfocusedBoxScrollsTheAreaAroundIt_data()
{
    QTest::addColumn<int>("policy");
    addRow("as created", int(Qt::StrongFocus));
    addRow("focus by click only", int(Qt::ClickFocus));
    addRow("no focus at all", int(Qt::NoFocus));
}

void TestJxSpinBox::wheelOverUnfocusedBoxScrollsTheAreaAroundIt()
{
    QFETCH(int, policy);
    QScrollArea area;
    auto* contents = new QWidget;
    auto* box = new JxSpinBox(contents);
    QCOMPARE(box->focusPolicy(), Qt::StrongFocus);
    box->setFocusPolicy(Qt::FocusPolicy(policy));
    box->setValue(5);
    box->move(0, 300);
    contents->setFixedSize(100, 1000);
    area.setWidget(contents);
    area.resize(200, 200);
    area.show();
    area.verticalScrollBar()->setValue(250);

    turnWheelOver(box);
    QCOMPARE(box->value(), 5);
    QVERIFY(!box->hasFocus());
    QVERIFY(area.verticalScrollBar()->value() < 250);

    // The pointer is over the edit in the box, strictly speaking.
    const int scrolled = area.verticalScrollBar()->value();
    turnWheelOver(box->findChild<QLineEdit*>());
    QCOMPARE(box->value(), 5);
    QVERIFY(area.verticalScrollBar()->value() < scrolled);
}

void TestJxSpinBox::wheelChangesTheFocusedBox()
{
    QWidget window;
    auto* box = new JxSpinBox(&window);
    box->setValue(5);
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    box->setFocus();
    QTRY_VERIFY(box->hasFocus());
    turnWheelOver(box);
    QCOMPARE(box->value(), 6);
}

void TestJxSpinBox::stepsByButtonsConnectedByText()
{
    JxSpinBox box;
    box.setRange(1, 3);
    box.setButtonSymbols(QAbstractSpinBox::NoButtons);
    QPushButton plus;
    QPushButton minus;
    QVERIFY(connect(&plus, SIGNAL(clicked()), &box, SLOT(stepUp())));
    QVERIFY(connect(&minus, SIGNAL(clicked()), &box, SLOT(stepDown())));
    QSignalSpy changes(&box, SIGNAL(valueChanged(int)));
    for (int i = 0; i < 5; ++i)
        plus.click();
    QCOMPARE(box.value(), 3);
    QCOMPARE(changes.count(), 2);
    minus.click();
    QCOMPARE(box.value(), 2);
}

void TestJxSpinBox::keepsTheSpinBoxDefaults()
{
    const JxSpinBox box;
    QCOMPARE(box.minimum(), 0);
    QCOMPARE(box.maximum(), 99);
    QCOMPARE(box.value(), 0);
    QCOMPARE(box.parentWidget(), nullptr);
}

QTEST_MAIN(TestJxSpinBox)
#include "tst_jxspinbox.moc"
