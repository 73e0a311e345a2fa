#include "panelprobe.h"
#include "support/layoutdescription.h"
#include "support/stricttest.h"

#include <applicationfont.h>
#include <printpanels/printwidget.h>

#include <QtTest/QSignalSpy>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

#include <climits>

namespace {

QComboBox* printerCombo(const PrintWidget& panel)
{
    return part<QComboBox>(panel, "PrinterListCombo");
}

QStringList itemTexts(const QComboBox* combo)
{
    QStringList texts;
    for (int i = 0; i < combo->count(); ++i)
        texts.append(combo->itemText(i));
    return texts;
}

QGridLayout* printerGrid(const PrintWidget& panel)
{
    return qobject_cast<QGridLayout*>(layoutHolding(panel.layout(), printerCombo(panel)));
}

struct Cell
{
    int row = -1;
    int column = -1;
    int rowSpan = -1;
    int columnSpan = -1;
};

Cell cellOf(const QGridLayout* grid, int index)
{
    Cell cell;
    grid->getItemPosition(index, &cell.row, &cell.column, &cell.rowSpan, &cell.columnSpan);
    return cell;
}

const QStringList threePrinters = {QStringLiteral("Alpha"), QStringLiteral("Beta"),
                                   QStringLiteral("Gamma")};

} // namespace

class tst_Printer : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void gridOfTheRow();
    void captionOfTheRow();
    void printerCombo();
    void preferencesButton();
    void statusGrid();
    void valueLabels_data();
    void valueLabels();
    void atConstruction();

    void listIsFilledInOrderWithToolTips();
    void emptyListShowsNoPrinter_data();
    void emptyListShowsNoPrinter();
    void indexSelectsThePrinter_data();
    void indexSelectsThePrinter();
    void aNewListReplacesTheOldOne();

    void addingAtTheTopMakesItCurrent();
    void addingAtTheEndKeepsTheCurrentPrinter();
    void addingToAnEmptyListMakesItCurrent_data();
    void addingToAnEmptyListMakesItCurrent();

    void selectingByName();
    void selectingAnUnknownNameChangesOnlyTheToolTip();
    void namesAreComparedLetterForLetter();

    void onlyTheUserIsReported();
    void theUsersChoiceIsReportedOnce();
    void theConnectionStandsOnceAfterEveryHostOperation();
    void preferencesButtonEmitsOpenPreferences();
    void slotTakesTheTextAtItsIndex_data();
    void slotTakesTheTextAtItsIndex();

    void status_data();
    void status();
    void location_data();
    void location();
    void locationIsShownAsPlainText();
    void aLongLocationDoesNotWidenThePanel();
    void hostileNamesStayAsTheyAre_data();
    void hostileNamesStayAsTheyAre();
};

void tst_Printer::gridOfTheRow()
{
    const PrintWidget panel(false, nullptr);
    const QGridLayout* grid = printerGrid(panel);
    QVERIFY(grid);
    QCOMPARE(grid->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(grid->horizontalSpacing(), 0);
    QCOMPARE(grid->verticalSpacing(), 0);
    QCOMPARE(panel.layout()->indexOf(const_cast<QGridLayout*>(grid)), 4);

    const int combo = grid->indexOf(::printerCombo(panel));
    QCOMPARE(cellOf(grid, combo).row, 1);
    QCOMPARE(cellOf(grid, combo).column, 0);
    QCOMPARE(cellOf(grid, combo).rowSpan, 1);
    QCOMPARE(cellOf(grid, combo).columnSpan, 5);
    QCOMPARE(grid->itemAt(combo)->alignment(), Qt::AlignLeft);

    QCOMPARE(itemDescription(grid->itemAtPosition(1, 5)), QStringLiteral("spacer 5x5 Fixed/Minimum"));

    const int button = grid->indexOf(part<QPushButton>(panel, "PreferencesButton"));
    QCOMPARE(cellOf(grid, button).row, 1);
    QCOMPARE(cellOf(grid, button).column, 6);
    QCOMPARE(cellOf(grid, button).columnSpan, 1);
    QCOMPARE(grid->itemAt(button)->alignment(), Qt::AlignRight);
}

void tst_Printer::captionOfTheRow()
{
    const PrintWidget panel(false, nullptr);
    const QGridLayout* grid = printerGrid(panel);
    QLabel* caption = labelWithText(panel, QStringLiteral("Printer:"));
    QVERIFY(caption);
    const int index = grid->indexOf(caption);
    QCOMPARE(cellOf(grid, index).row, 0);
    QCOMPARE(cellOf(grid, index).column, 0);
    QCOMPARE(cellOf(grid, index).rowSpan, 1);
    QCOMPARE(cellOf(grid, index).columnSpan, 7);
    QCOMPARE(grid->itemAt(index)->alignment(), Qt::AlignLeft);
    QCOMPARE(caption->minimumHeight(), 35);
    QCOMPARE(caption->maximumHeight(), 35);
    QCOMPARE(caption->font(), ApplicationFont::getWidgetFont(true));
}

void tst_Printer::printerCombo()
{
    const PrintWidget panel(false, nullptr);
    const QComboBox* combo = ::printerCombo(panel);
    QVERIFY(combo->inherits("JxComboBox"));
    QVERIFY(!combo->isEditable());
    QCOMPARE(combo->minimumWidth(), 200);
    QCOMPARE(combo->maximumHeight(), 35);
    QVERIFY(combo->minimumHeight() >= 35);
    QCOMPARE(combo->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(combo->sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(combo->focusPolicy(), Qt::NoFocus);
    QCOMPARE(combo->font(), ApplicationFont::getWidgetFont(true));
}

void tst_Printer::preferencesButton()
{
    const PrintWidget panel(false, nullptr);
    const auto* button = part<QPushButton>(panel, "PreferencesButton");
    QVERIFY(button->inherits("DragScrollButton"));
    // The sheet's minimum height and border raise the minimum to 37; the size asked for is the maximum.
    QCOMPARE(button->minimumWidth(), 35);
    QCOMPARE(button->maximumSize(), QSize(35, 35));
    QCOMPARE(button->iconSize(), QSize(35, 35));
    QCOMPARE(button->styleSheet().size(), 618);
    QVERIFY(button->styleSheet().endsWith(
        QStringLiteral("qproperty-icon: url(:/printicons/printericons/printer_settings.png); }")));
}

void tst_Printer::statusGrid()
{
    const PrintWidget panel(false, nullptr);
    const QGridLayout* grid = printerGrid(panel);
    auto* inner = qobject_cast<QGridLayout*>(grid->itemAtPosition(2, 0)->layout());
    QVERIFY(inner);
    const Cell cell = cellOf(grid, grid->indexOf(inner));
    QCOMPARE(cell.rowSpan, 1);
    QCOMPARE(cell.columnSpan, 7);

    const auto widgetAt = [inner](int row, int column) {
        return inner->itemAtPosition(row, column)->widget();
    };
    QCOMPARE(widgetAt(0, 0), labelWithText(panel, QStringLiteral("Location:")));
    QCOMPARE(widgetAt(0, 1), part<QLabel>(panel, "locationLabel"));
    QCOMPARE(widgetAt(1, 0), labelWithText(panel, QStringLiteral("Status:")));
    QCOMPARE(widgetAt(1, 1), part<QLabel>(panel, "statusLabel"));
    for (const int row : {0, 1}) {
        for (const int column : {0, 1})
            QCOMPARE(widgetAt(row, column)->font(), ApplicationFont::getWidgetFontSmall(false));
    }
}

void tst_Printer::valueLabels_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("location") << QByteArray("locationLabel");
    QTest::newRow("status") << QByteArray("statusLabel");
}

void tst_Printer::valueLabels()
{
    QFETCH(const QByteArray, name);
    const PrintWidget panel(false, nullptr);
    const auto* label = part<QLabel>(panel, name.constData());
    QCOMPARE(label->minimumHeight(), 35);
    QCOMPARE(label->maximumHeight(), 35);
}

void tst_Printer::atConstruction()
{
    const PrintWidget panel(false, nullptr);
    QCOMPARE(::printerCombo(panel)->count(), 0);
    QCOMPARE(panel.getSelectedPrinter(), QString());
    QCOMPARE(part<QLabel>(panel, "locationLabel")->text(), QString());
}

void tst_Printer::listIsFilledInOrderWithToolTips()
{
    PrintWidget panel(false, nullptr);
    panel.updateListOfPrinters(threePrinters, 1);
    const QComboBox* combo = ::printerCombo(panel);
    QCOMPARE(itemTexts(combo), threePrinters);
    for (int i = 0; i < 3; ++i)
        QCOMPARE(combo->itemData(i, Qt::ToolTipRole).toString(), threePrinters.at(i));
    QCOMPARE(panel.getSelectedPrinter(), QStringLiteral("Beta"));
    QCOMPARE(combo->toolTip(), QStringLiteral("Beta"));
}

void tst_Printer::emptyListShowsNoPrinter_data()
{
    QTest::addColumn<int>("index");
    for (const int index : {0, 1, 7, -1, INT_MAX, INT_MIN})
        QTest::addRow("index %d", index) << index;
}

void tst_Printer::emptyListShowsNoPrinter()
{
    QFETCH(const int, index);
    PrintWidget panel(false, nullptr);
    panel.updateListOfPrinters(threePrinters, 1);
    panel.updateListOfPrinters({}, index);
    const QComboBox* combo = ::printerCombo(panel);
    QCOMPARE(itemTexts(combo), QStringList(QStringLiteral("No printer")));
    QVERIFY(!combo->itemData(0, Qt::ToolTipRole).isValid());
    QCOMPARE(combo->currentIndex(), 0);
    QCOMPARE(panel.getSelectedPrinter(), QStringLiteral("No printer"));
    QCOMPARE(combo->toolTip(), QStringLiteral("No printer"));
}

void tst_Printer::indexSelectsThePrinter_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("current");
    QTest::newRow("first") << 0 << 0;
    QTest::newRow("last") << 2 << 2;
    QTest::newRow("none") << -1 << -1;
    QTest::newRow("beyond the last") << 3 << -1;
    QTest::newRow("highest") << INT_MAX << -1;
    QTest::newRow("lowest") << INT_MIN << -1;
}

void tst_Printer::indexSelectsThePrinter()
{
    QFETCH(const int, index);
    QFETCH(const int, current);
    PrintWidget panel(false, nullptr);
    panel.updateListOfPrinters(threePrinters, index);
    const QComboBox* combo = ::printerCombo(panel);
    QCOMPARE(combo->currentIndex(), current);
    QCOMPARE(panel.getSelectedPrinter(), threePrinters.value(current));
    QCOMPARE(combo->toolTip(), threePrinters.value(current));
}

void tst_Printer::aNewListReplacesTheOldOne()
{
    PrintWidget panel(false, nullptr);
    panel.updateListOfPrinters(threePrinters, 2);
    panel.updateListOfPrinters({QStringLiteral("Delta"), QStringLiteral("Delta")}, 1);
    QCOMPARE(itemTexts(::printerCombo(panel)),
             QStringList({QStringLiteral("Delta"), QStringLiteral("Delta")}));
    QCOMPARE(::printerCombo(panel)->currentIndex(), 1);
}

void tst_Printer::addingAtTheTopMakesItCurrent()
{
    PrintWidget panel(false, nullptr);
    panel.updateListOfPrinters(threePrinters, 2);
    panel.addPrinterToList(QStringLiteral("New"), true);
    const QComboBox* combo = ::printerCombo(panel);
    QCOMPARE(itemTexts(combo), QStringList(QStringLiteral("New")) + threePrinters);
    QCOMPARE(combo->currentIndex(), 0);
    QCOMPARE(combo->itemData(0, Qt::ToolTipRole).toString(), QStringLiteral("New"));
    QCOMPARE(combo->toolTip(), QStringLiteral("New"));
}

void tst_Printer::addingAtTheEndKeepsTheCurrentPrinter()
{
    PrintWidget panel(false, nullptr);
    panel.updateListOfPrinters(threePrinters, 1);
    panel.addPrinterToList(QStringLiteral("New"), false);
    const QComboBox* combo = ::printerCombo(panel);
    QCOMPARE(itemTexts(combo), threePrinters + QStringList(QStringLiteral("New")));
    QCOMPARE(combo->itemData(3, Qt::ToolTipRole).toString(), QStringLiteral("New"));
    QCOMPARE(panel.getSelectedPrinter(), QStringLiteral("Beta"));
    QCOMPARE(combo->toolTip(), QStringLiteral("Beta"));
}

void tst_Printer::addingToAnEmptyListMakesItCurrent_data()
{
    QTest::addColumn<bool>("atTop");
    QTest::newRow("at the top") << true;
    QTest::newRow("at the end") << false;
}

void tst_Printer::addingToAnEmptyListMakesItCurrent()
{
    QFETCH(const bool, atTop);
    PrintWidget panel(false, nullptr);
    panel.addPrinterToList(QStringLiteral("Only"), atTop);
    QCOMPARE(panel.getSelectedPrinter(), QStringLiteral("Only"));
    QCOMPARE(::printerCombo(panel)->currentIndex(), 0);
    QCOMPARE(::printerCombo(panel)->toolTip(), QStringLiteral("Only"));
}

void tst_Printer::selectingByName()
{
    PrintWidget panel(false, nullptr);
    panel.updateListOfPrinters(threePrinters, 0);
    panel.setSelectedPrinter(QStringLiteral("Gamma"));
    QCOMPARE(panel.getSelectedPrinter(), QStringLiteral("Gamma"));
    QCOMPARE(::printerCombo(panel)->currentIndex(), 2);
    QCOMPARE(::printerCombo(panel)->toolTip(), QStringLiteral("Gamma"));
}

void tst_Printer::selectingAnUnknownNameChangesOnlyTheToolTip()
{
    PrintWidget panel(false, nullptr);
    panel.updateListOfPrinters(threePrinters, 1);
    panel.setSelectedPrinter(QStringLiteral("Omega"));
    QCOMPARE(panel.getSelectedPrinter(), QStringLiteral("Beta"));
    QCOMPARE(itemTexts(::printerCombo(panel)), threePrinters);
    QCOMPARE(::printerCombo(panel)->toolTip(), QStringLiteral("Omega"));
}

void tst_Printer::namesAreComparedLetterForLetter()
{
    PrintWidget panel(false, nullptr);
    panel.updateListOfPrinters(threePrinters, 1);
    panel.setSelectedPrinter(QStringLiteral("gamma"));
    QCOMPARE(panel.getSelectedPrinter(), QStringLiteral("Beta"));
    panel.setSelectedPrinter(QStringLiteral("Gam"));
    QCOMPARE(panel.getSelectedPrinter(), QStringLiteral("Beta"));
    panel.setSelectedPrinter(QString());
    QCOMPARE(panel.getSelectedPrinter(), QStringLiteral("Beta"));
}

void tst_Printer::onlyTheUserIsReported()
{
    PrintWidget panel(false, nullptr);
    const QSignalSpy changed(&panel, SIGNAL(currentPrinterSelectionChanged(QString)));
    panel.updateListOfPrinters(threePrinters, 2);
    panel.updateListOfPrinters(threePrinters, 1);
    panel.addPrinterToList(QStringLiteral("Top"), true);
    panel.addPrinterToList(QStringLiteral("End"), false);
    panel.setSelectedPrinter(QStringLiteral("Gamma"));
    panel.setSelectedPrinter(QStringLiteral("nobody"));
    panel.updateListOfPrinters({}, 0);
    QCOMPARE(changed.size(), 0);
}

void tst_Printer::theUsersChoiceIsReportedOnce()
{
    PrintWidget panel(false, nullptr);
    panel.updateListOfPrinters(threePrinters, 0);
    QVERIFY(showPanel(panel));
    QSignalSpy changed(&panel, SIGNAL(currentPrinterSelectionChanged(QString)));
    QTest::keyClick(::printerCombo(panel), Qt::Key_Down);
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed.takeFirst(), QVariantList{QStringLiteral("Beta")});
    QCOMPARE(::printerCombo(panel)->toolTip(), QStringLiteral("Beta"));
    QTest::keyClick(::printerCombo(panel), Qt::Key_End);
    QCOMPARE(changed.takeFirst(), QVariantList{QStringLiteral("Gamma")});
    QCOMPARE(panel.getSelectedPrinter(), QStringLiteral("Gamma"));
    // The same one again is no change.
    QTest::keyClick(::printerCombo(panel), Qt::Key_End);
    QCOMPARE(changed.size(), 0);
}

void tst_Printer::theConnectionStandsOnceAfterEveryHostOperation()
{
    PrintWidget panel(false, nullptr);
    panel.updateListOfPrinters(threePrinters, 0);
    panel.updateListOfPrinters(threePrinters, 0);
    panel.addPrinterToList(QStringLiteral("End"), false);
    panel.setSelectedPrinter(QStringLiteral("Alpha"));
    panel.setSelectedPrinter(QStringLiteral("Alpha"));
    QSignalSpy changed(&panel, SIGNAL(currentPrinterSelectionChanged(QString)));
    ::printerCombo(panel)->setCurrentIndex(3);
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed.first(), QVariantList{QStringLiteral("End")});
}

void tst_Printer::preferencesButtonEmitsOpenPreferences()
{
    PrintWidget panel(false, nullptr);
    QVERIFY(showPanel(panel));
    const QSignalSpy opened(&panel, SIGNAL(openPreferencesSignal()));
    clickOn(part<QPushButton>(panel, "PreferencesButton"));
    QCOMPARE(opened.size(), 1);
    panel.disableAllButtons();
    part<QPushButton>(panel, "PreferencesButton")->click();
    QCOMPARE(opened.size(), 1);
}

void tst_Printer::slotTakesTheTextAtItsIndex_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("text");
    QTest::newRow("an item that is not the current one") << 2 << QStringLiteral("Gamma");
    QTest::newRow("no item") << -1 << QString();
    QTest::newRow("beyond the last") << 3 << QString();
    QTest::newRow("highest") << INT_MAX << QString();
}

void tst_Printer::slotTakesTheTextAtItsIndex()
{
    QFETCH(const int, index);
    QFETCH(const QString, text);
    PrintWidget panel(false, nullptr);
    panel.updateListOfPrinters(threePrinters, 0);
    const QSignalSpy changed(&panel, SIGNAL(currentPrinterSelectionChanged(QString)));
    QVERIFY(QMetaObject::invokeMethod(&panel, "currentPrinterSelectionChangedSlot",
                                      Q_ARG(int, index)));
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed.first(), QVariantList{text});
    QCOMPARE(::printerCombo(panel)->toolTip(), text);
}

void tst_Printer::status_data()
{
    QTest::addColumn<bool>("offline");
    QTest::addColumn<bool>("remote");
    QTest::addColumn<bool>("unavailable");
    QTest::addColumn<QString>("text");
    QTest::newRow("nothing") << false << false << false << QStringLiteral("Online");
    QTest::newRow("offline") << true << false << false << QStringLiteral("Offline");
    QTest::newRow("remote") << false << true << false << QStringLiteral("Remote");
    QTest::newRow("remote outranks offline") << true << true << false << QStringLiteral("Remote");
    QTest::newRow("unavailable") << false << false << true << QStringLiteral("Online, Unavailable");
    QTest::newRow("offline, unavailable") << true << false << true << QStringLiteral("Offline, Unavailable");
    QTest::newRow("remote, unavailable") << false << true << true << QStringLiteral("Remote, Unavailable");
    QTest::newRow("all") << true << true << true << QStringLiteral("Remote, Unavailable");
}

void tst_Printer::status()
{
    QFETCH(const bool, offline);
    QFETCH(const bool, remote);
    QFETCH(const bool, unavailable);
    PrintWidget panel(false, nullptr);
    panel.updatePrinterStatus(true, true, true);
    panel.updatePrinterStatus(offline, remote, unavailable);
    QTEST(part<QLabel>(panel, "statusLabel")->text(), "text");
}

void tst_Printer::location_data()
{
    QTest::addColumn<QString>("location");
    QTest::newRow("plain") << QStringLiteral("Hall 2, by the door");
    QTest::newRow("empty") << QString();
    QTest::newRow("blanks kept") << QStringLiteral("  Hall 2  ");
    QTest::newRow("two lines") << QStringLiteral("Hall 2\nDoor 4");
    QTest::newRow("markup") << QStringLiteral("<b>Hall</b> & <img src='x'>");
    QTest::newRow("mnemonic") << QStringLiteral("R&D");
    QTest::newRow("a megabyte") << QString(1024 * 1024, u'M');
    QTest::newRow("right to left") << QStringLiteral("\u05e9\u05dc\u05d5\u05dd");
}

void tst_Printer::location()
{
    QFETCH(const QString, location);
    PrintWidget panel(false, nullptr);
    panel.updatePrinterLocation(QStringLiteral("before"));
    panel.updatePrinterLocation(location);
    QCOMPARE(part<QLabel>(panel, "locationLabel")->text(), location);
    QVERIFY(showPanel(panel));
    QVERIFY(!panel.grab().isNull());
}

void tst_Printer::locationIsShownAsPlainText()
{
    PrintWidget panel(false, nullptr);
    auto* label = part<QLabel>(panel, "locationLabel");
    QCOMPARE(label->textFormat(), Qt::PlainText);
    panel.updatePrinterLocation(QStringLiteral("<font color='red'>\u2588\u2588\u2588</font>"));
    QVERIFY(showPanel(panel));
    const QImage image = label->grab().toImage();
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor color = image.pixelColor(x, y);
            QVERIFY(color.red() - color.green() < 100);
        }
    }
}

void tst_Printer::aLongLocationDoesNotWidenThePanel()
{
    PrintWidget panel(false, nullptr);
    const int before = panel.minimumSizeHint().width();
    panel.updatePrinterLocation(QString(4000, u'W'));
    QCOMPARE(panel.minimumSizeHint().width(), before);
}

void tst_Printer::hostileNamesStayAsTheyAre_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("markup") << QStringLiteral("<h1>Press</h1><img src=':/x'>");
    QTest::newRow("empty") << QString();
    QTest::newRow("blanks") << QStringLiteral("   ");
    QTest::newRow("control characters") << QStringLiteral("a\tb\nc");
    QTest::newRow("long") << QString(100000, u'x');
    QTest::newRow("No printer") << QStringLiteral("No printer");
    QTest::newRow("place marker") << QStringLiteral("%1 %n");
}

void tst_Printer::hostileNamesStayAsTheyAre()
{
    QFETCH(const QString, name);
    PrintWidget panel(false, nullptr);
    panel.updateListOfPrinters({QStringLiteral("Alpha"), name}, 1);
    QCOMPARE(panel.getSelectedPrinter(), name);
    QCOMPARE(::printerCombo(panel)->toolTip(), name);
    QCOMPARE(::printerCombo(panel)->itemData(1, Qt::ToolTipRole).toString(), name);
    panel.addPrinterToList(name, true);
    QCOMPARE(panel.getSelectedPrinter(), name);
    QSignalSpy changed(&panel, SIGNAL(currentPrinterSelectionChanged(QString)));
    ::printerCombo(panel)->setCurrentIndex(1);
    ::printerCombo(panel)->setCurrentIndex(0);
    QCOMPARE(changed.at(1), QVariantList{name});
    QVERIFY(showPanel(panel));
}

QTEST_MAIN(tst_Printer)
#include "tst_printer.moc"
