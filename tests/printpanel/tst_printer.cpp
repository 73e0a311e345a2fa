// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "printpanelfixture.h"
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

QGridLayout* printerGrid(const PrintPanelFixture& panel)
{
    return qobject_cast<QGridLayout*>(layoutHolding(panel.layout(), panel.printerCombo()));
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
    const PrintPanelFixture panel;
    const QGridLayout* grid = printerGrid(panel);
    QVERIFY(grid);
    QCOMPARE(grid->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(grid->horizontalSpacing(), 0);
    QCOMPARE(grid->verticalSpacing(), 0);
    QCOMPARE(panel.layout()->indexOf(const_cast<QGridLayout*>(grid)), 4);

    const int combo = grid->indexOf(panel.printerCombo());
    QCOMPARE(gridCell(grid, combo).row, 1);
    QCOMPARE(gridCell(grid, combo).column, 0);
    QCOMPARE(gridCell(grid, combo).rowSpan, 1);
    QCOMPARE(gridCell(grid, combo).columnSpan, 5);
    QCOMPARE(grid->itemAt(combo)->alignment(), Qt::AlignLeft);

    QCOMPARE(itemDescription(grid->itemAtPosition(1, 5)),
             QStringLiteral("spacer 5x5 Fixed/Minimum"));

    const int button = grid->indexOf(panel.part<QPushButton>("PreferencesButton"));
    QCOMPARE(gridCell(grid, button).row, 1);
    QCOMPARE(gridCell(grid, button).column, 6);
    QCOMPARE(gridCell(grid, button).columnSpan, 1);
    QCOMPARE(grid->itemAt(button)->alignment(), Qt::AlignRight);
}

void tst_Printer::captionOfTheRow()
{
    const PrintPanelFixture panel;
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
    const PrintPanelFixture panel;
    const QComboBox* combo = panel.printerCombo();
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
    const PrintPanelFixture panel;
    const auto* button = panel.part<QPushButton>("PreferencesButton");
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
    const PrintPanelFixture panel;
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
    QCOMPARE(widgetAt(0, 1), panel.part<QLabel>("locationLabel"));
    QCOMPARE(widgetAt(1, 0), labelWithText(panel, QStringLiteral("Status:")));
    QCOMPARE(widgetAt(1, 1), panel.part<QLabel>("statusLabel"));
    for (const int row : {0, 1}) {
        for (const int column : {0, 1})
            QCOMPARE(widgetAt(row, column)->font(), ApplicationFont::getWidgetFontSmall(false));
    }
}

void tst_Printer::valueLabels_data()
{
    QTest::addColumn<QByteArray>("name");
    addRow("location", QByteArray("locationLabel"));
    addRow("status", QByteArray("statusLabel"));
}

void tst_Printer::valueLabels()
{
    QFETCH(const QByteArray, name);
    const PrintPanelFixture panel;
    const auto* label = panel.part<QLabel>(name.constData());
    QCOMPARE(label->minimumHeight(), 35);
    QCOMPARE(label->maximumHeight(), 35);
}

void tst_Printer::atConstruction()
{
    const PrintPanelFixture panel;
    QCOMPARE(panel.printerCombo()->count(), 0);
    QCOMPARE(panel.getSelectedPrinter(), QString());
    QCOMPARE(panel.part<QLabel>("locationLabel")->text(), QString());
}

void tst_Printer::preferencesButtonEmitsOpenPreferences()
{
    PrintPanelFixture panel;
    QVERIFY(showPanel(panel));
    const QSignalSpy opened(&panel, SIGNAL(openPreferencesSignal()));
    clickOn(panel.part<QPushButton>("PreferencesButton"));
    QCOMPARE(opened.size(), 1);
    panel.disableAllButtons();
    panel.part<QPushButton>("PreferencesButton")->click();
    QCOMPARE(opened.size(), 1);
}

void tst_Printer::status_data()
{
    addColumns<bool, bool, bool, QString>("offline", "remote", "unavailable", "text");
    addRow("nothing", false, false, false, "Online");
    addRow("offline", true, false, false, "Offline");
    addRow("remote", false, true, false, "Remote");
    addRow("remote outranks offline", true, true, false, "Remote");
    addRow("unavailable", false, false, true, "Online, Unavailable");
    addRow("offline, unavailable", true, false, true, "Offline, Unavailable");
    addRow("remote, unavailable", false, true, true, "Remote, Unavailable");
    addRow("all", true, true, true, "Remote, Unavailable");
}

void tst_Printer::status()
{
    QFETCH(const bool, offline);
    QFETCH(const bool, remote);
    QFETCH(const bool, unavailable);
    PrintPanelFixture panel;
    panel.updatePrinterStatus(true, true, true);
    panel.updatePrinterStatus(offline, remote, unavailable);
    QTEST(panel.part<QLabel>("statusLabel")->text(), "text");
}

void tst_Printer::location_data()
{
    QTest::addColumn<QString>("location");
    addRow("plain", "Hall 2, by the door");
    addRow("empty", QString());
    addRow("blanks kept", "  Hall 2  ");
    addRow("two lines", "Hall 2\nDoor 4");
    addRow("markup", "<b>Hall</b> & <img src='x'>");
    addRow("mnemonic", "R&D");
    addRow("a megabyte", QString(1024 * 1024, u'M'));
    addRow("right to left", "\u05e9\u05dc\u05d5\u05dd");
}

void tst_Printer::location()
{
    QFETCH(const QString, location);
    PrintPanelFixture panel;
    panel.updatePrinterLocation(QStringLiteral("before"));
    panel.updatePrinterLocation(location);
    QCOMPARE(panel.part<QLabel>("locationLabel")->text(), location);
    QVERIFY(showPanel(panel));
    QVERIFY(!panel.grab().isNull());
}

void tst_Printer::locationIsShownAsPlainText()
{
    PrintPanelFixture panel;
    auto* label = panel.part<QLabel>("locationLabel");
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
    PrintPanelFixture panel;
    QVERIFY(showPanel(panel));
    const int before = panel.minimumSizeHint().width();
    panel.updatePrinterLocation(QString(4000, u'W'));
    QCoreApplication::sendPostedEvents(&panel, QEvent::LayoutRequest);
    QCOMPARE(panel.minimumSizeHint().width(), before);
    QCOMPARE(panel.sizeHint().width(), before);
}

QTEST_MAIN(tst_Printer)
#include "tst_printer.moc"
