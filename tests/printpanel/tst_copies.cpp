// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "printpanelfixture.h"
#include "support/layoutdescription.h"
#include "support/stricttest.h"

#include <printpanels/printwidget.h>

#include <QtWidgets/QComboBox>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSpinBox>

#include <climits>

class tst_Copies : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void copyRowLiesInRowFourOfThePrinterGrid();
    void copyRowFromLeftToRight();
    void copiesSpinBox();
    void stepButtons_data();
    void stepButtons();
    void stepButtonsStep();
    void stepButtonsStopAtTheBounds();
    void aHeldStepButtonRepeats();
    void setNumberOfCopies_data();
    void setNumberOfCopies();
    void typedCopiesCount();
};

void tst_Copies::copyRowLiesInRowFourOfThePrinterGrid()
{
    const PrintPanelFixture panel;
    auto* grid = qobject_cast<QGridLayout*>(
        layoutHolding(panel.layout(), panel.part<QComboBox>("PrinterListCombo")));
    QVERIFY(grid);
    for (const QWidget* widget :
         {static_cast<QWidget*>(labelWithText(panel, QStringLiteral("Copies:"))),
          panel.part<QWidget>("minusButton"), panel.part<QWidget>("copiesSpinBox"),
          panel.part<QWidget>("plusButton")}) {
        bool found = false;
        for (int i = 0; i < grid->count(); ++i) {
            if (!itemHolds(grid->itemAt(i), widget))
                continue;
            QCOMPARE(gridCell(grid, i).row, 4);
            QCOMPARE(gridCell(grid, i).rowSpan, 1);
            found = true;
        }
        QVERIFY(found);
    }
}

void tst_Copies::copyRowFromLeftToRight()
{
    PrintPanelFixture panel;
    QVERIFY(showPanel(panel));
    const QWidget* widgets[] = {
        labelWithText(panel, QStringLiteral("Copies:")), panel.part<QWidget>("minusButton"),
        panel.part<QWidget>("copiesSpinBox"), panel.part<QWidget>("plusButton")};
    int right = -1;
    for (const QWidget* widget : widgets) {
        const QRect rect(widget->mapTo(&panel, QPoint()), widget->size());
        // Spacers keep them apart.
        QVERIFY(rect.left() > right + 1);
        QVERIFY(rect.height() >= 35 && rect.height() <= 37);
        right = rect.right();
    }
}

void tst_Copies::copiesSpinBox()
{
    const PrintPanelFixture panel;
    const auto* box = panel.part<QSpinBox>("copiesSpinBox");
    QVERIFY(box->inherits("JxSpinBox"));
    QCOMPARE(box->minimum(), 1);
    QCOMPARE(box->maximum(), 999);
    QCOMPARE(box->value(), 1);
    QCOMPARE(box->singleStep(), 1);
    QCOMPARE(box->maximumSize(), QSize(60, 35));
    QCOMPARE(box->minimumWidth(), 60);
    QCOMPARE(box->buttonSymbols(), QAbstractSpinBox::NoButtons);
}

void tst_Copies::stepButtons_data()
{
    addColumns<QByteArray, int, QString>("name", "characters", "image");
    addRow("plus", QByteArray("plusButton"), 222, ":/Size/SizeIcons/plus.png");
    addRow("minus", QByteArray("minusButton"), 225, ":/Size/SizeIcons/minus.png");
}

void tst_Copies::stepButtons()
{
    QFETCH(const QByteArray, name);
    QFETCH(const int, characters);
    QFETCH(const QString, image);
    const PrintPanelFixture panel;
    const auto* button = panel.part<QPushButton>(name.constData());
    QVERIFY(button->inherits("DragScrollButton"));
    QVERIFY(button->autoRepeat());
    QVERIFY(button->isEnabled());
    QCOMPARE(button->styleSheet().size(), characters);
    QVERIFY(button->styleSheet().startsWith(
        QStringLiteral("QPushButton { border-image: url(%1); }\n").arg(image)));
}

void tst_Copies::stepButtonsStep()
{
    PrintPanelFixture panel;
    QVERIFY(showPanel(panel));
    auto* plus = panel.part<QPushButton>("plusButton");
    auto* minus = panel.part<QPushButton>("minusButton");
    clickOn(plus);
    clickOn(plus);
    QCOMPARE(panel.getNumberOfCopies(), 3);
    clickOn(minus);
    QCOMPARE(panel.getNumberOfCopies(), 2);
}

void tst_Copies::stepButtonsStopAtTheBounds()
{
    PrintPanelFixture panel;
    panel.part<QPushButton>("minusButton")->click();
    QCOMPARE(panel.getNumberOfCopies(), 1);
    panel.setNumberOfCopies(999);
    panel.part<QPushButton>("plusButton")->click();
    QCOMPARE(panel.getNumberOfCopies(), 999);
    panel.part<QPushButton>("minusButton")->click();
    QCOMPARE(panel.getNumberOfCopies(), 998);
}

void tst_Copies::aHeldStepButtonRepeats()
{
    PrintPanelFixture panel;
    QVERIFY(showPanel(panel));
    auto* plus = panel.part<QPushButton>("plusButton");
    plus->setAutoRepeatDelay(10);
    plus->setAutoRepeatInterval(10);
    QTest::mousePress(plus, Qt::LeftButton);
    QTRY_VERIFY(panel.getNumberOfCopies() >= 4);
    QTest::mouseRelease(plus, Qt::LeftButton);
    const int copies = panel.getNumberOfCopies();
    QTest::qWait(50);
    QCOMPARE(panel.getNumberOfCopies(), copies);
}

void tst_Copies::setNumberOfCopies_data()
{
    addColumns<int, int>("asked", "copies");
    const auto row = [](int asked, int copies) { QTest::addRow("%d", asked) << asked << copies; };
    row(1, 1);
    row(7, 7);
    row(999, 999);
    row(0, 1);
    row(-5, 1);
    row(1000, 999);
    row(5000, 999);
    row(INT_MAX, 999);
    row(INT_MIN, 1);
}

void tst_Copies::setNumberOfCopies()
{
    QFETCH(const int, asked);
    QFETCH(const int, copies);
    PrintPanelFixture panel;
    panel.setNumberOfCopies(asked);
    QCOMPARE(panel.getNumberOfCopies(), copies);
    QCOMPARE(panel.part<QSpinBox>("copiesSpinBox")->text(), QString::number(copies));
}

void tst_Copies::typedCopiesCount()
{
    PrintPanelFixture panel;
    QVERIFY(showPanel(panel));
    auto* box = panel.part<QSpinBox>("copiesSpinBox");
    box->selectAll();
    QTest::keyClicks(box, QStringLiteral("42"));
    QCOMPARE(panel.getNumberOfCopies(), 42);
    // A digit that would lead beyond 999 is refused.
    QTest::keyClicks(box, QStringLiteral("77"));
    QCOMPARE(panel.getNumberOfCopies(), 427);
}

QTEST_MAIN(tst_Copies)
#include "tst_copies.moc"
