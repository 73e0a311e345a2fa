// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "lifetimetest.h"

#include <colormenu.h>
#include <printpanels/multipageprintdialog.h>
#include <printpanels/multipageprintwidget.h>
#include <printpanels/printpreviewdialog.h>
#include <printpanels/printwidget.h>
#include <printpanels/quickprintwidget.h>

#include <QtGui/QContextMenuEvent>
#include <QtGui/QImage>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QTabBar>

#include <memory>

/** How a host and a user leave a panel that is then deleted. */
struct UsedPanel
{
    const char* name;
    QWidget* (*create)();
    void (*use)(QWidget&);
};
Q_DECLARE_METATYPE(UsedPanel)

/** That nothing outlives a panel, however it was used, not even until the next event is handled. */
class tst_NothingLeft : public LifetimeTest
{
    Q_OBJECT

private Q_SLOTS:
    void panelAlone_data();
    void panelAlone();
    void panelInAWindow_data();
    void panelInAWindow();

private:
    void addRows();
};

namespace {

PrintWidget& printPanel(QWidget& panel)
{
    return static_cast<PrintWidget&>(panel);
}

MultiPagePrintWidget& multiPagePanel(QWidget& panel)
{
    return static_cast<MultiPagePrintWidget&>(panel);
}

QStringList palette(int first)
{
    QStringList codes = {QStringLiteral("transparent")};
    for (int i = 0; i < 40; ++i)
        codes.append(QStringLiteral("#%1").arg(0x100000 * first + i, 6, 16));
    return codes;
}

void leaveAsItIs(QWidget&) {}

void openAndCloseLists(QWidget& panel)
{
    panel.show();
    const QList<QComboBox*> combos = panel.findChildren<QComboBox*>();
    for (QComboBox* combo : combos) {
        combo->showPopup();
        combo->hidePopup();
    }
}

void leaveAListOpen(QWidget& panel)
{
    panel.show();
    part<QComboBox>(panel, "PrinterListCombo")->showPopup();
}

void openAndCloseMenus(QWidget& panel)
{
    panel.show();
    const QList<QLineEdit*> edits = panel.findChildren<QLineEdit*>();
    for (QLineEdit* edit : edits) {
        if (edit->contextMenuPolicy() != Qt::DefaultContextMenu || !edit->isVisible())
            continue;
        const QPoint place(5, 5);
        QContextMenuEvent event(QContextMenuEvent::Keyboard, place, edit->mapToGlobal(place));
        QCoreApplication::sendEvent(edit, &event);
        if (QWidget* menu = QApplication::activePopupWidget())
            menu->close();
    }
}

void clickEverything(QWidget& panel)
{
    panel.show();
    const QList<QAbstractButton*> buttons = panel.findChildren<QAbstractButton*>();
    for (QAbstractButton* button : buttons)
        button->click();
}

void setPalettes(QWidget& panel)
{
    panel.show();
    printPanel(panel).setColorPalette(palette(1), palette(2));
    printPanel(panel).setColorPalette(palette(3), {});
}

void setPalettesBeforeTheSupply(QWidget& panel)
{
    printPanel(panel).setColorPalette(palette(1), palette(2));
    printPanel(panel).setColorPalette(palette(3), palette(4));
    printPanel(panel).showSupplyInfo({QStringLiteral("#dc0b0b"), QStringLiteral("#ffffff")}, false,
                                     2.0, 1, false);
    panel.show();
}

void takeTheSecondRibbonAway(QWidget& panel)
{
    panel.show();
    const QStringList colors = {QStringLiteral("#dc0b0b"), QStringLiteral("#ffffff")};
    printPanel(panel).showSupplyInfo(colors, false, 2.0, 1, false);
}

void hideTheSupply(QWidget& panel)
{
    panel.show();
    printPanel(panel).hideSupplyInfo();
}

void addAMenu(QWidget& panel)
{
    panel.show();
    auto* menu = new ColorMenu;
    menu->setColorPalette(palette(5), {});
    printPanel(panel).addMenuToStack(3, QStringLiteral("#000000"), QStringLiteral("!"), QString(),
                                     menu);
    part<QTabBar>(panel, "colorTabBar")->setCurrentIndex(3);
}

void buildTheTagsAgain(QWidget& panel)
{
    panel.show();
    for (const int tags : {15, 0, 3}) {
        printPanel(panel).setModule(JxModuleInfo::PipeMarking);
        printPanel(panel).setVisibleAmmoniaTag(tags);
    }
}

void changeThePages(QWidget& panel)
{
    panel.show();
    multiPagePanel(panel).setFormFillOption(true, true);
    multiPagePanel(panel).set180OrientationVisible(true);
    multiPagePanel(panel).updateListOfPrinters({}, 0);
    multiPagePanel(panel).setPageInfo(2, 5, false);
}

void changeTheDialog(QWidget& dialog)
{
    dialog.show();
    static_cast<MultiPagePrintDialog&>(dialog).setPreviewImage(QImage());
    static_cast<MultiPagePrintDialog&>(dialog).setTitle(QString(500, u'x'));
    dialog.close();
}

void dragTheCanvas(QWidget& panel)
{
    panel.show();
    QTest::mousePress(part<QWidget>(panel, "PreviewView"), Qt::LeftButton);
}

QWidget* newBarePrintPanel()
{
    return new PrintWidget(false, nullptr);
}

QWidget* newDialogWithoutAPanel()
{
    return new MultiPagePrintDialog(nullptr, nullptr, Qt::FramelessWindowHint);
}

QList<UsedPanel> usedPanels()
{
    return {
        {"print panel, new", newBarePrintPanel, leaveAsItIs},
        {"print panel, supply shown", newPrintPanel, leaveAsItIs},
        {"print panel, palettes set", newPrintPanel, setPalettes},
        {"print panel, palettes set first", newBarePrintPanel, setPalettesBeforeTheSupply},
        {"print panel, one ribbon", newPrintPanel, takeTheSecondRibbonAway},
        {"print panel, supply hidden", newPrintPanel, hideTheSupply},
        {"print panel, menu of the host", newPrintPanel, addAMenu},
        {"print panel, tags built again", newPrintPanel, buildTheTagsAgain},
        {"print panel, lists opened and closed", newPrintPanel, openAndCloseLists},
        {"print panel, list open", newPrintPanel, leaveAListOpen},
        {"print panel, menus opened and closed", newPrintPanel, openAndCloseMenus},
        {"print panel, clicked", newPrintPanel, clickEverything},
        {"quick print, new", newQuickPanel, leaveAsItIs},
        {"quick print, clicked", newQuickPanel, clickEverything},
        {"quick print, dragged", newQuickPanel, dragTheCanvas},
        {"multi page, new", newMultiPagePanel, leaveAsItIs},
        {"multi page, changed", newMultiPagePanel, changeThePages},
        {"multi page, lists opened and closed", newMultiPagePanel, openAndCloseLists},
        {"multi page, list open", newMultiPagePanel, leaveAListOpen},
        {"multi page, menus opened and closed", newMultiPagePanel, openAndCloseMenus},
        {"multi page, clicked", newMultiPagePanel, clickEverything},
        {"dialog, new", newMultiPageDialog, leaveAsItIs},
        {"dialog, without a panel", newDialogWithoutAPanel, changeTheDialog},
        {"dialog, closed", newMultiPageDialog, changeTheDialog},
        {"dialog, list open", newMultiPageDialog, leaveAListOpen},
        {"dialog, clicked", newMultiPageDialog, clickEverything},
        {"dialog, dragged", newMultiPageDialog, dragTheCanvas},
        {"popup, new", newPreviewPopup, leaveAsItIs},
        {"popup, clicked", newPreviewPopup, clickEverything},
        {"popup, dragged", newPreviewPopup, dragTheCanvas},
    };
}

} // namespace

void tst_NothingLeft::addRows()
{
    QTest::addColumn<UsedPanel>("used");
    const QList<UsedPanel> rows = usedPanels();
    for (const UsedPanel& row : rows)
        QTest::newRow(row.name) << row;
}

void tst_NothingLeft::panelAlone_data()
{
    addRows();
}

void tst_NothingLeft::panelAlone()
{
    QFETCH(const UsedPanel, used);
    const QWidgetList windows = QApplication::topLevelWidgets();
    const QWidgetList widgets = QApplication::allWidgets();
    std::unique_ptr<QWidget> panel(used.create());
    used.use(*panel);
    QVERIFY(QApplication::allWidgets().size() > widgets.size());
    panel.reset();
    QCOMPARE(QApplication::topLevelWidgets(), windows);
    QCOMPARE(QApplication::allWidgets(), widgets);
}

void tst_NothingLeft::panelInAWindow_data()
{
    addRows();
}

void tst_NothingLeft::panelInAWindow()
{
    QFETCH(const UsedPanel, used);
    const QWidgetList windows = QApplication::topLevelWidgets();
    const QWidgetList widgets = QApplication::allWidgets();
    QWidget* const panel = used.create();
    std::unique_ptr<QWidget> window(newWindowAround(panel));
    window->show();
    used.use(*panel);
    window.reset();
    QCOMPARE(QApplication::topLevelWidgets(), windows);
    QCOMPARE(QApplication::allWidgets(), widgets);
}

QTEST_MAIN(tst_NothingLeft)
#include "tst_nothingleft.moc"
