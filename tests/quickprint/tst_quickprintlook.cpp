// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "quickprintfixture.h"
#include "support/expectedsheet.h"
#include "support/layoutdescription.h"
#include "support/stricttest.h"
#include "support/translationrecorder.h"

#include <applicationfont.h>
#include <jxlineedit.h>
#include <jxspinbox.h>

#include <QtWidgets/QFrame>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

#include <algorithm>

namespace {

QString alignmentName(Qt::Alignment alignment)
{
    if (!alignment)
        return QStringLiteral("none");
    if (alignment == Qt::AlignCenter)
        return QStringLiteral("centre");
    if (alignment == Qt::AlignLeft)
        return QStringLiteral("left");
    if (alignment == Qt::AlignRight)
        return QStringLiteral("right");
    return QStringLiteral("other");
}

/** "row, column, rows, columns, alignment: item" for every item. */
QStringList cells(const QGridLayout* grid)
{
    QStringList lines;
    for (int i = 0; grid && i < grid->count(); ++i) {
        int row = 0;
        int column = 0;
        int rows = 0;
        int columns = 0;
        grid->getItemPosition(i, &row, &column, &rows, &columns);
        lines.append(QStringLiteral("%1, %2, %3, %4, %5: %6")
                         .arg(row)
                         .arg(column)
                         .arg(rows)
                         .arg(columns)
                         .arg(alignmentName(grid->itemAt(i)->alignment()),
                              itemDescription(grid->itemAt(i))));
    }
    return lines;
}

QHBoxLayout* copiesRow(const QuickPrintFixture& panel)
{
    return qobject_cast<QHBoxLayout*>(panel.grid()->itemAtPosition(6, 0)->widget()->layout());
}

QLabel* captionIn(QLayoutItem* item)
{
    return qobject_cast<QLabel*>(item->widget());
}

} // namespace

class tst_QuickPrintLook : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void styleSheets();
    void cellsOfThePanel();
    void cellsOfTheResizeFrame();
    void copiesRowInOrder();
    void buttonRowInOrder();
    void texts();
    void classesOfTheParts();
    void fixedSizes();
    void sizePolicies_data();
    void sizePolicies();
    void copiesSpinBox();
    void sizeFieldsTakeAnyText();
    void fonts();
    void textsAreTranslatedInThePanelsContext();
    void focusGoesFromTopToBottom();
    void controlsDoNotOverlapAndAreNotCut_data();
    void controlsDoNotOverlapAndAreNotCut();
};

void tst_QuickPrintLook::styleSheets()
{
    const QuickPrintFixture panel;
    const QString sheet = expectedSheet("panel");
    QCOMPARE(sheet.size(), 2537);
    QCOMPARE(panel.styleSheet(), sheet);
    QCOMPARE(panel.button("plusButton")->styleSheet(), expectedSheet("plusStepButton"));
    QCOMPARE(panel.button("minusButton")->styleSheet(), expectedSheet("minusStepButton"));
    for (const char* name : {"resizeButton", "printButton", "openInEditorButton"})
        QCOMPARE(panel.button(name)->styleSheet(), QString());
}

void tst_QuickPrintLook::cellsOfThePanel()
{
    const QuickPrintFixture panel;
    QCOMPARE(cells(panel.grid()),
             QStringList({QStringLiteral("0, 0, 1, 1, none: QLabel"),
                          QStringLiteral("1, 0, 1, 1, none: QLabel printerNameLabel"),
                          QStringLiteral("2, 0, 1, 1, none: spacer 5x10 Expanding/Minimum"),
                          QStringLiteral("2, 0, 1, 2, right: QFrame resizeFrame"),
                          QStringLiteral("3, 0, 1, 1, centre: QWidget PreviewView"),
                          QStringLiteral("6, 0, 1, 1, left: QFrame"),
                          QStringLiteral("10, 0, 1, 1, centre: QHBoxLayout")}));
    QCOMPARE(panel.view()->sizeHint(), QSize(200, 200));
}

void tst_QuickPrintLook::cellsOfTheResizeFrame()
{
    const QuickPrintFixture panel;
    QCOMPARE(panel.resizeFrame()->frameShape(), QFrame::NoFrame);
    const auto* grid = qobject_cast<QGridLayout*>(panel.resizeFrame()->layout());
    QCOMPARE(cells(grid),
             QStringList({QStringLiteral("0, 0, 1, 1, none: QLabel"),
                          QStringLiteral("0, 1, 1, 1, none: JxLineEdit lengthEdit"),
                          QStringLiteral("1, 0, 1, 1, none: QLabel"),
                          QStringLiteral("1, 1, 1, 1, none: JxLineEdit widthEdit"),
                          QStringLiteral("2, 0, 1, 2, centre: QPushButton resizeButton")}));
    QCOMPARE(captionIn(grid->itemAtPosition(0, 0))->text(), QStringLiteral("Length:  "));
    QCOMPARE(captionIn(grid->itemAtPosition(1, 0))->text(), QStringLiteral("Width:  "));
}

void tst_QuickPrintLook::copiesRowInOrder()
{
    const QuickPrintFixture panel;
    const QHBoxLayout* row = copiesRow(panel);
    QCOMPARE(layoutDescription(row),
             QStringList({QStringLiteral("QLabel"), QStringLiteral("spacer 5x10 Expanding/Minimum"),
                          QStringLiteral("QHBoxLayout")}));
    QCOMPARE(row->stretch(0), 1);
    QCOMPARE(row->stretch(1), 0);
    QCOMPARE(row->stretch(2), 2);
    QCOMPARE(captionIn(row->itemAt(0))->text(), QStringLiteral("Copies:"));
    QCOMPARE(layoutDescription(row->itemAt(2)->layout()),
             QStringList({QStringLiteral("JxSpinBox copiesSpinBox"),
                          QStringLiteral("QPushButton minusButton"),
                          QStringLiteral("QPushButton plusButton")}));
}

void tst_QuickPrintLook::buttonRowInOrder()
{
    const QuickPrintFixture panel;
    QCOMPARE(layoutDescription(panel.grid()->itemAtPosition(10, 0)->layout()),
             QStringList({QStringLiteral("QPushButton printButton"),
                          QStringLiteral("QPushButton openInEditorButton")}));
}

void tst_QuickPrintLook::texts()
{
    const QuickPrintFixture panel;
    QCOMPARE(captionIn(panel.grid()->itemAtPosition(0, 0))->text(),
             QStringLiteral("Current printer:"));
    QCOMPARE(panel.button("resizeButton")->text(), QStringLiteral("       Resize       "));
    QCOMPARE(panel.button("printButton")->text(), QStringLiteral("       Print       "));
    QCOMPARE(panel.button("openInEditorButton")->text(), QStringLiteral(" Open in Editor "));
    QCOMPARE(panel.button("plusButton")->text(), QString());
    QCOMPARE(panel.button("minusButton")->text(), QString());
}

void tst_QuickPrintLook::classesOfTheParts()
{
    const QuickPrintFixture panel;
    const QList<QPushButton*> buttons = panel.findChildren<QPushButton*>();
    QCOMPARE(buttons.size(), 5);
    for (const QPushButton* button : buttons)
        QCOMPARE(button->metaObject(), &QPushButton::staticMetaObject);
    QCOMPARE(panel.resizeFrame()->metaObject(), &QFrame::staticMetaObject);
    QCOMPARE(panel.lengthEdit()->metaObject(), &JxLineEdit::staticMetaObject);
    QCOMPARE(panel.widthEdit()->metaObject(), &JxLineEdit::staticMetaObject);
    QCOMPARE(panel.copies()->metaObject(), &JxSpinBox::staticMetaObject);
}

void tst_QuickPrintLook::fixedSizes()
{
    QuickPrintFixture panel;
    panel.show();
    for (const QWidget* edit : {panel.lengthEdit(), panel.widthEdit()})
        QCOMPARE(edit->size(), QSize(135, 35));
    // The sheet's least heights come without the border of one pixel.
    QCOMPARE(panel.copies()->maximumSize(), QSize(40, 35));
    QCOMPARE(panel.copies()->size(), QSize(40, 35 + 2));
    for (const char* name : {"plusButton", "minusButton"}) {
        QCOMPARE(panel.button(name)->maximumSize(), QSize(35, 35));
        QCOMPARE(panel.button(name)->size(), QSize(35, 35 + 2));
    }
}

void tst_QuickPrintLook::sizePolicies_data()
{
    QTest::addColumn<QByteArray>("button");
    addRow("resize", QByteArray("resizeButton"));
    addRow("print", QByteArray("printButton"));
    addRow("open", QByteArray("openInEditorButton"));
}

void tst_QuickPrintLook::sizePolicies()
{
    QFETCH(const QByteArray, button);
    const QuickPrintFixture panel;
    const QSizePolicy policy = panel.button(button)->sizePolicy();
    QCOMPARE(policy.horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(policy.verticalPolicy(), QSizePolicy::Fixed);
}

void tst_QuickPrintLook::copiesSpinBox()
{
    const QuickPrintFixture panel;
    QCOMPARE(panel.copies()->minimum(), 1);
    QCOMPARE(panel.copies()->maximum(), 999);
    QCOMPARE(panel.copies()->value(), 1);
    QCOMPARE(panel.copies()->buttonSymbols(), QAbstractSpinBox::NoButtons);
    QVERIFY(panel.button("plusButton")->autoRepeat());
    QVERIFY(panel.button("minusButton")->autoRepeat());
}

void tst_QuickPrintLook::sizeFieldsTakeAnyText()
{
    const QuickPrintFixture panel;
    QCOMPARE(panel.lengthEdit()->validator(), nullptr);
    QCOMPARE(panel.widthEdit()->validator(), nullptr);
    QCOMPARE(panel.lengthEdit()->inputMask(), QString());
}

void tst_QuickPrintLook::fonts()
{
    QuickPrintFixture panel;
    panel.show();
    const QFont expected = ApplicationFont::getWidgetFont(true);
    const QList<QLabel*> labels = panel.findChildren<QLabel*>();
    QCOMPARE(labels.size(), 5);
    for (const QLabel* label : labels)
        QCOMPARE(label->font(), expected);
    for (const QWidget* entry :
         {static_cast<QWidget*>(panel.lengthEdit()), static_cast<QWidget*>(panel.widthEdit()),
          static_cast<QWidget*>(panel.copies())})
        QCOMPARE(entry->font(), expected);
    for (const char* name : {"resizeButton", "printButton", "openInEditorButton"}) {
        QCOMPARE(panel.button(name)->font().pixelSize(), expected.pixelSize());
        QCOMPARE(panel.button(name)->font().family(), expected.family());
    }
}

void tst_QuickPrintLook::textsAreTranslatedInThePanelsContext()
{
    const QString context = QStringLiteral("QuickPrintWidget");
    const TranslationRecorder recorder(context);
    const QuickPrintFixture panel;
    const QList<TranslationKey> expected = {
        {context, QStringLiteral("Current printer:"),
         QStringLiteral("The label next to the current printer name")},
        {context, QStringLiteral("       Resize       "),
         QStringLiteral("The text on the button to resize the label.")},
        {context, QStringLiteral("Length:  "),
         QStringLiteral("The text next to the label length edit box.")},
        {context, QStringLiteral("Width:  "),
         QStringLiteral("The text next to the label width edit box.")},
        {context, QStringLiteral("Copies:"),
         QStringLiteral("The label next to the number of copies.")},
        {context, QStringLiteral("       Print       "),
         QStringLiteral("The text on the button to start printing.")},
        {context, QStringLiteral(" Open in Editor "),
         QStringLiteral("The text on the button to open the label in the Label Editor program.")}};
    QCOMPARE(recorder.keys().size(), expected.size());
    for (const TranslationKey& key : expected)
        QVERIFY2(recorder.keys().contains(key), qPrintable(key.text));
    const TranslationKey& print = expected.at(5);
    QCOMPARE(panel.button("printButton")->text(),
             TranslationRecorder::marked(context, print.text, print.comment));
}

void tst_QuickPrintLook::focusGoesFromTopToBottom()
{
    QuickPrintFixture panel;
    panel.enableAllButtons();
    panel.show();
    QVERIFY(QTest::qWaitForWindowActive(&panel));
    panel.lengthEdit()->setFocus();
    const QWidget* const order[] = {
        panel.lengthEdit(),           panel.widthEdit(),
        panel.button("resizeButton"), panel.copies(),
        panel.button("minusButton"),  panel.button("plusButton"),
        panel.button("printButton"),  panel.button("openInEditorButton")};
    for (const QWidget* expected : order) {
        QVERIFY(QApplication::focusWidget());
        QCOMPARE(QApplication::focusWidget()->objectName(), expected->objectName());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
}

void tst_QuickPrintLook::controlsDoNotOverlapAndAreNotCut_data()
{
    addColumns<int, QString>("module", "printer");
    addRow("with resize", 6, "Label Printer 3");
    addRow("without resize", 7, "Label Printer 3");
    addRow("long name", 6, QString(50, u'W') + u' ' + QString(50, u'i'));
}

void tst_QuickPrintLook::controlsDoNotOverlapAndAreNotCut()
{
    QFETCH(const int, module);
    QFETCH(const QString, printer);
    QuickPrintFixture panel;
    panel.setModule(JxModuleInfo::JxModuleTypes(module));
    panel.setCurrentPrinterName(printer);
    panel.setNumberOfCopies(999);
    panel.show();
    int bottom = -1;
    for (int row : {0, 1, 2, 3, 6, 10}) {
        QLayoutItem* item = panel.grid()->itemAtPosition(row, 0);
        const QRect place = row == 2 ? panel.resizeFrame()->geometry() : item->geometry();
        if (row == 2 && panel.resizeFrame()->isHidden())
            continue;
        QVERIFY2(place.top() > bottom, qPrintable(QString::number(row)));
        QVERIFY2(panel.rect().contains(place), qPrintable(QString::number(row)));
        bottom = place.bottom();
    }
    for (const char* name : {"resizeButton", "printButton", "openInEditorButton"}) {
        const QPushButton* button = panel.button(name);
        if (button->isVisible())
            QVERIFY2(button->width() >= button->sizeHint().width(), name);
    }
    const QFontMetrics metrics(panel.copies()->font());
    QVERIFY(panel.copies()->width() > metrics.horizontalAdvance(QStringLiteral("999")) + 2);
}

QTEST_MAIN(tst_QuickPrintLook)
#include "tst_quickprintlook.moc"
