// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "multipagefixture.h"
#include "support/expectedsheet.h"
#include "support/layoutdescription.h"
#include "support/stricttest.h"

#include <printpanels/multipageprintdialog.h>
#include <printpanels/multipageprintwidget.h>

#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QFrame>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>

namespace {

QLayout* layoutAt(const QWidget& panel, int index)
{
    return panel.layout()->itemAt(index)->layout();
}

/** "row,column rows x columns alignment" of an item of a grid. */
QString placeOf(const QGridLayout* grid, int index)
{
    int row = 0;
    int column = 0;
    int rows = 0;
    int columns = 0;
    grid->getItemPosition(index, &row, &column, &rows, &columns);
    return QStringLiteral("%1,%2 %3x%4 %5")
        .arg(row)
        .arg(column)
        .arg(rows)
        .arg(columns)
        .arg(int(grid->itemAt(index)->alignment()));
}

QStringList placesOf(const QGridLayout* grid)
{
    QStringList places;
    for (int i = 0; i < grid->count(); ++i)
        places.append(placeOf(grid, i));
    return places;
}

} // namespace

/** The order, sizes and policies of what the panel shows. */
class tst_MultiPageLayout : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void sectionsInOrder();
    void captionHeights();
    void printerGrid();
    void pageRangeFrame();
    void copiesFrame();
    void optionsGrid();
    void fixedSizes_data();
    void fixedSizes();
    void settingsIconFillsItsButton();
    void fixedHeights_data();
    void fixedHeights();
    void styleSheets_data();
    void styleSheets();
    void focusPolicies_data();
    void focusPolicies();
    void pageListRefusesTheContextMenu();
    void buttonsAreNotAutoDefault();
    void separatorBarsAreGrey();
    void everyOptionFitsIntoTheDialog();
    void thePanelOwnsAllItShows();
};

void tst_MultiPageLayout::sectionsInOrder()
{
    const MultiPageFixture panel;
    const QStringList expected = {QStringLiteral("QLabel"),
                                  QStringLiteral("separator"),
                                  QStringLiteral("QLabel"),
                                  QStringLiteral("QGridLayout"),
                                  QStringLiteral("spacer 1x1 Minimum/Minimum"),
                                  QStringLiteral("separator"),
                                  QStringLiteral("QFrame pageRangeFrame"),
                                  QStringLiteral("QFrame copiesFrame"),
                                  QStringLiteral("spacer 1x1 Minimum/Minimum"),
                                  QStringLiteral("separator"),
                                  QStringLiteral("spacer 1x1 Minimum/Minimum"),
                                  QStringLiteral("QGridLayout")};
    QCOMPARE(panel.layout()->metaObject()->className(), "QVBoxLayout");
    QCOMPARE(panel.layout()->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(layoutDescription(panel.layout()), expected);
    QCOMPARE(panel.layout()->itemAt(0)->widget(),
             labelWithText(panel, QStringLiteral("PRINT SETTINGS")));
    QCOMPARE(panel.layout()->itemAt(2)->widget(), labelWithText(panel, QStringLiteral("Printer:")));
}

void tst_MultiPageLayout::captionHeights()
{
    const MultiPageFixture panel;
    const QLabel* printer = labelWithText(panel, QStringLiteral("Printer:"));
    QCOMPARE(printer->minimumHeight(), 30);
    QCOMPARE(printer->maximumHeight(), 30);
    const QLabel* pages = labelWithText(panel, QStringLiteral("Page Range:"));
    QCOMPARE(pages->minimumHeight(), 35);
    QCOMPARE(pages->maximumHeight(), 35);
}

void tst_MultiPageLayout::printerGrid()
{
    const MultiPageFixture panel;
    const auto* grid = qobject_cast<QGridLayout*>(layoutAt(panel, 3));
    QVERIFY(grid);
    QCOMPARE(grid->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(layoutDescription(grid), QStringList({QStringLiteral("JxComboBox PrinterListCombo"),
                                                   QStringLiteral("spacer 5x5 Expanding/Fixed"),
                                                   QStringLiteral("QPushButton PreferencesButton"),
                                                   QStringLiteral("QCheckBox orientationCheck")}));
    QCOMPARE(placesOf(grid), QStringList({QStringLiteral("1,0 1x1 %1").arg(int(Qt::AlignLeft)),
                                          QStringLiteral("1,1 1x1 0"),
                                          QStringLiteral("1,2 1x1 %1").arg(int(Qt::AlignRight)),
                                          QStringLiteral("2,0 3x1 %1").arg(int(Qt::AlignLeft))}));
}

void tst_MultiPageLayout::pageRangeFrame()
{
    const MultiPageFixture panel;
    const auto* frame = panel.part<QFrame>("pageRangeFrame");
    QCOMPARE(frame->minimumWidth(), 260);
    QCOMPARE(frame->maximumWidth(), 260);
    QCOMPARE(frame->layout()->metaObject()->className(), "QVBoxLayout");
    QCOMPARE(frame->layout()->contentsMargins(), QMargins(0, 0, 0, 2));
    QCOMPARE(frame->layout()->spacing(), 0);
    QCOMPARE(layoutDescription(frame->layout()),
             QStringList({QStringLiteral("QLabel"), QStringLiteral("QRadioButton currentPageRadio"),
                          QStringLiteral("QRadioButton allPagesRadio"),
                          QStringLiteral("QRadioButton selectionRadio"),
                          QStringLiteral("JxLineEdit pageListEdit")}));
    QCOMPARE(frame->layout()->itemAt(0)->widget(),
             labelWithText(panel, QStringLiteral("Page Range:")));
}

void tst_MultiPageLayout::copiesFrame()
{
    const MultiPageFixture panel;
    const auto* frame = panel.part<QFrame>("copiesFrame");
    QCOMPARE(frame->minimumWidth(), 260);
    QCOMPARE(frame->maximumWidth(), 260);
    QCOMPARE(frame->layout()->metaObject()->className(), "QHBoxLayout");
    QCOMPARE(frame->layout()->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(layoutDescription(frame->layout()),
             QStringList({QStringLiteral("QLabel"), QStringLiteral("spacer 1x1 Expanding/Minimum"),
                          QStringLiteral("JxLineEdit copiesEdit"),
                          QStringLiteral("QPushButton minusButton"),
                          QStringLiteral("QPushButton plusButton")}));
    QCOMPARE(frame->layout()->itemAt(0)->widget(), labelWithText(panel, QStringLiteral("Copies:")));
}

void tst_MultiPageLayout::optionsGrid()
{
    const MultiPageFixture panel;
    const auto* grid = qobject_cast<QGridLayout*>(layoutAt(panel, 11));
    QVERIFY(grid);
    QCOMPARE(layoutDescription(grid), QStringList({QStringLiteral("QCheckBox formFillCheck"),
                                                   QStringLiteral("QCheckBox fitToPageCheck"),
                                                   QStringLiteral("QPushButton PrintButton")}));
    QCOMPARE(placesOf(grid), QStringList({QStringLiteral("0,0 1x2 %1").arg(int(Qt::AlignLeft)),
                                          QStringLiteral("1,0 1x1 %1").arg(int(Qt::AlignLeft)),
                                          QStringLiteral("1,1 1x1 %1").arg(int(Qt::AlignRight))}));
    const QSizePolicy policy = panel.part<QWidget>("PrintButton")->sizePolicy();
    QCOMPARE(policy.horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(policy.verticalPolicy(), QSizePolicy::Fixed);
}

void tst_MultiPageLayout::fixedSizes_data()
{
    QTest::addColumn<QSize>("size");
    addRow("PrinterListCombo", QSize(200, 35));
    addRow("PreferencesButton", QSize(35, 35));
    addRow("copiesEdit", QSize(50, 35));
    addRow("minusButton", QSize(35, 35));
    addRow("plusButton", QSize(35, 35));
}

// The panel's style sheet asks for 35 pixels inside the border of buttons and combo boxes, which
// makes them two pixels higher than their fixed size.
void tst_MultiPageLayout::fixedSizes()
{
    QFETCH(const QSize, size);
    MultiPageFixture panel;
    const auto* widget = panel.part<QWidget>(QTest::currentDataTag());
    QCOMPARE(widget->maximumSize(), size);
    QCOMPARE(widget->minimumWidth(), size.width());
    QVERIFY(showActive(panel));
    QCOMPARE(widget->width(), size.width());
    QVERIFY(widget->height() >= size.height() && widget->height() <= size.height() + 2);
}

void tst_MultiPageLayout::settingsIconFillsItsButton()
{
    const MultiPageFixture panel;
    auto* button = panel.part<QPushButton>("PreferencesButton");
    QCOMPARE(button->iconSize(), QSize(35, 35));
    button->ensurePolished();
    QCOMPARE(button->icon().actualSize(QSize(45, 45)), QSize(45, 45));
}

void tst_MultiPageLayout::fixedHeights_data()
{
    QTest::addColumn<int>("height");
    for (const char* name : {"currentPageRadio", "allPagesRadio", "selectionRadio"})
        QTest::newRow(name) << 35;
    addRow("pageListEdit", 36);
}

void tst_MultiPageLayout::fixedHeights()
{
    QFETCH(const int, height);
    const MultiPageFixture panel;
    const auto* widget = panel.part<QWidget>(QTest::currentDataTag());
    QCOMPARE(widget->minimumHeight(), height);
    QCOMPARE(widget->maximumHeight(), height);
    QCOMPARE(widget->maximumWidth(), QWIDGETSIZE_MAX);
}

void tst_MultiPageLayout::styleSheets_data()
{
    QTest::addColumn<QByteArray>("role");
    const auto row = [](const char* name, const char* role) {
        QTest::newRow(name) << QByteArray(role);
    };
    row("PreferencesButton", "printerSettingsButton");
    row("orientationCheck", "checkBoxIndicator");
    row("formFillCheck", "checkBoxIndicator");
    row("fitToPageCheck", "checkBoxIndicator");
    row("plusButton", "plusStepButton");
    row("minusButton", "minusStepButton");
    for (const char* name : {"PrinterListCombo", "PrintButton", "currentPageRadio", "allPagesRadio",
                             "selectionRadio", "pageListEdit", "copiesEdit", "pageRangeFrame"})
        row(name, "");
}

void tst_MultiPageLayout::styleSheets()
{
    QFETCH(const QByteArray, role);
    const MultiPageFixture panel;
    QCOMPARE(panel.part<QWidget>(QTest::currentDataTag())->styleSheet(),
             role.isEmpty() ? QString() : expectedSheet(role.constData()));
}

void tst_MultiPageLayout::focusPolicies_data()
{
    QTest::addColumn<bool>("takesTheFocus");
    for (const char* name : {"currentPageRadio", "allPagesRadio", "selectionRadio"})
        QTest::newRow(name) << false;
    for (const char* name : {"pageListEdit", "copiesEdit", "PrintButton", "PrinterListCombo"})
        QTest::newRow(name) << true;
}

void tst_MultiPageLayout::focusPolicies()
{
    const MultiPageFixture panel;
    QTEST(panel.part<QWidget>(QTest::currentDataTag())->focusPolicy() != Qt::NoFocus,
          "takesTheFocus");
}

void tst_MultiPageLayout::pageListRefusesTheContextMenu()
{
    const MultiPageFixture panel;
    QCOMPARE(panel.pageList()->contextMenuPolicy(), Qt::NoContextMenu);
}

void tst_MultiPageLayout::buttonsAreNotAutoDefault()
{
    auto* panel = new MultiPageFixture;
    const MultiPagePrintDialog dialog(panel, nullptr, Qt::WindowFlags());
    const QList<QPushButton*> buttons = panel->findChildren<QPushButton*>();
    QCOMPARE(buttons.size(), 4);
    for (const QPushButton* button : buttons) {
        QVERIFY(!button->autoDefault());
        QVERIFY(!button->isDefault());
    }
}

void tst_MultiPageLayout::separatorBarsAreGrey()
{
    const MultiPageFixture panel;
    int bars = 0;
    for (int i = 0; i < panel.layout()->count(); ++i) {
        const auto* bar = qobject_cast<QFrame*>(panel.layout()->itemAt(i)->widget());
        if (!bar || bar->frameShape() != QFrame::HLine)
            continue;
        ++bars;
        QCOMPARE(bar->palette().color(QPalette::WindowText), QColor(198, 198, 198));
    }
    QCOMPARE(bars, 3);
}

void tst_MultiPageLayout::everyOptionFitsIntoTheDialog()
{
    auto* panel = new MultiPageFixture;
    MultiPagePrintDialog dialog(panel, nullptr, Qt::FramelessWindowHint);
    QVERIFY(showActive(dialog));
    QVERIFY(panel->height() >= panel->minimumSizeHint().height());
    int bottom = -1;
    for (const char* name :
         {"PrinterListCombo", "orientationCheck", "currentPageRadio", "allPagesRadio",
          "selectionRadio", "pageListEdit", "copiesEdit", "formFillCheck", "fitToPageCheck"}) {
        const auto* widget = panel->part<QWidget>(name);
        const QRect place(widget->mapTo(panel, QPoint()), widget->size());
        QVERIFY2(place.top() > bottom, name);
        QVERIFY2(panel->rect().contains(place), name);
        const int needed = qMin(widget->minimumSizeHint().width(), widget->maximumWidth());
        QVERIFY2(place.width() >= needed, name);
        bottom = place.bottom();
    }
    // The width of this field is fixed: the largest number has to fit whatever the font is.
    const auto* copies = panel->part<QWidget>("copiesEdit");
    QVERIFY(copies->fontMetrics().horizontalAdvance(QStringLiteral("999")) <= copies->width() - 10);
    const auto* print = panel->part<QWidget>("PrintButton");
    const auto* fit = panel->part<QWidget>("fitToPageCheck");
    QVERIFY(print->geometry().left() > fit->geometry().right());
    QCOMPARE(print->geometry().right(), panel->rect().right());
    QVERIFY(print->width() >= print->sizeHint().width());
}

void tst_MultiPageLayout::thePanelOwnsAllItShows()
{
    QList<QPointer<QObject>> parts;
    {
        MultiPageFixture panel;
        parts = partsOf(&panel);
        QVERIFY(panel.findChildren<QWidget*>().size() > 20);
    }
    QVERIFY(areGone(parts));
}

QTEST_MAIN(tst_MultiPageLayout)
#include "tst_multipagelayout.moc"
