// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

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

namespace {

QComboBox* printerCombo(const PrintWidget& panel)
{
    return part<QComboBox>(panel, "PrinterListCombo");
}

QGridLayout* printerGrid(const PrintWidget& panel)
{
    return qobject_cast<QGridLayout*>(layoutHolding(panel.layout(), printerCombo(panel)));
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

    void preferencesButtonEmitsOpenPreferences();

    void status_data();
    void status();
    void location_data();
    void location();
    void locationIsShownAsPlainText();
    void aLongLocationDoesNotWidenThePanel();
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
    QCOMPARE(gridCell(grid, combo).row, 1);
    QCOMPARE(gridCell(grid, combo).column, 0);
    QCOMPARE(gridCell(grid, combo).rowSpan, 1);
    QCOMPARE(gridCell(grid, combo).columnSpan, 5);
    QCOMPARE(grid->itemAt(combo)->alignment(), Qt::AlignLeft);

    QCOMPARE(itemDescription(grid->itemAtPosition(1, 5)),
             QStringLiteral("spacer 5x5 Fixed/Minimum"));

    const int button = grid->indexOf(part<QPushButton>(panel, "PreferencesButton"));
    QCOMPARE(gridCell(grid, button).row, 1);
    QCOMPARE(gridCell(grid, button).column, 6);
    QCOMPARE(gridCell(grid, button).columnSpan, 1);
    QCOMPARE(grid->itemAt(button)->alignment(), Qt::AlignRight);
}

void tst_Printer::captionOfTheRow()
{
    const PrintWidget panel(false, nullptr);
    const QGridLayout* grid = printerGrid(panel);
    QLabel* caption = labelWithText(panel, QStringLiteral("Printer:"));
    QVERIFY(caption);
    const int index = grid->indexOf(caption);
    QCOMPARE(gridCell(grid, index).row, 0);
    QCOMPARE(gridCell(grid, index).column, 0);
    QCOMPARE(gridCell(grid, index).rowSpan, 1);
    QCOMPARE(gridCell(grid, index).columnSpan, 7);
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
    // The sheet's minimum height and border raise the minimum to 37; the size asked for is the
    // maximum.
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
    const GridCell cell = gridCell(grid, grid->indexOf(inner));
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
    QTest::newRow("offline, unavailable")
        << true << false << true << QStringLiteral("Offline, Unavailable");
    QTest::newRow("remote, unavailable")
        << false << true << true << QStringLiteral("Remote, Unavailable");
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
    QVERIFY(showPanel(panel));
    const int before = panel.minimumSizeHint().width();
    panel.updatePrinterLocation(QString(4000, u'W'));
    QCoreApplication::sendPostedEvents(&panel, QEvent::LayoutRequest);
    QCOMPARE(panel.minimumSizeHint().width(), before);
    QCOMPARE(panel.sizeHint().width(), before);
}

QTEST_MAIN(tst_Printer)
#include "tst_printer.moc"
