// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "panelsinuse.h"

#include "livepanel.h"
#include "support/inputevents.h"

#include <colormenu.h>
#include <containertitlebar.h>

#include <QtCore/QPointer>
#include <QtGui/QContextMenuEvent>
#include <QtTest/QTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleOptionSlider>
#include <QtWidgets/QTabBar>

namespace {

using Find = QWidget* (*)(const QWidget&);

void hold(QWidget* widget, const QPoint& position)
{
    QTest::mousePress(widget->window()->windowHandle(), Qt::LeftButton, {},
                      widget->mapTo(widget->window(), position));
}

void drag(QWidget* widget, const QPoint& from, const QPoint& way)
{
    MouseDrag mouse(widget, from);
    mouse.moveBy(way.x() / 2, way.y() / 2);
    mouse.moveBy(way.x(), way.y());
}

void askForMenu(QWidget* widget)
{
    widget->setFocus();
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(5, 5),
                            widget->mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(widget, &event);
}

bool aPopupIsOpen(const QWidget&)
{
    return QApplication::activePopupWidget() != nullptr;
}

bool aToolTipIsShown(const QWidget&)
{
    return !visibleToolTip().isEmpty();
}

bool theHandIsClosed(const QWidget&)
{
    return QApplication::overrideCursor() != nullptr;
}

bool theMouseIsDown(const QWidget&)
{
    return QGuiApplication::mouseButtons() == Qt::LeftButton;
}

QWidget* swatch(const QWidget& panel)
{
    return part<QWidget>(*part<QWidget>(panel, "ribbon1Menu"), "#000000");
}

QWidget* titleBar(const QWidget& panel)
{
    return panel.findChild<ContainerTitleBar*>();
}

QScrollBar* menuBar(const QWidget& panel)
{
    return part<QWidget>(panel, "ribbon1Menu")
        ->findChild<QAbstractScrollArea*>()
        ->verticalScrollBar();
}

QWidget* newPanelWithLongPalette()
{
    QWidget* panel = newPrintPanel();
    QStringList colors = {QStringLiteral("#000000")};
    for (int i = 0; i < 60; ++i)
        colors.append(QStringLiteral("#%1").arg(0x100000 + i, 6, 16));
    part<ColorMenu>(*panel, "ribbon1Menu")->setColorPalette(colors, {});
    return panel;
}

QWidget* newDialogWithALongTitle()
{
    QWidget* dialog = newMultiPageDialog();
    dialog->findChild<ContainerTitleBar*>()->setTitle(QString(500, u'x'));
    return dialog;
}

void addList(QList<PanelInUse>& uses, const char* name, const char* pressed, QWidget* (*create)(),
             const char* combo)
{
    const auto open = [combo](QWidget& panel) { part<QComboBox>(panel, combo)->showPopup(); };
    uses.append({name, create, open, aPopupIsOpen});
    uses.append({pressed, create,
                 [combo, open](QWidget& panel) {
                     open(panel);
                     QAbstractItemView* view = part<QComboBox>(panel, combo)->view();
                     hold(view->viewport(), QPoint(10, 10));
                     QTest::keyClick(view, Qt::Key_Down);
                 },
                 aPopupIsOpen});
}

void addToolTip(QList<PanelInUse>& uses, const char* name, QWidget* (*create)(), Find find)
{
    uses.append({name, create,
                 [find](QWidget& panel) { askForToolTip(find(panel), QPoint(12, 8)); },
                 aToolTipIsShown});
}

void addHeld(QList<PanelInUse>& uses, const char* name, QWidget* (*create)(), Find find)
{
    uses.append({name, create,
                 [find](QWidget& panel) {
                     QWidget* widget = find(panel);
                     hold(widget, QPoint(12, widget->height() / 2));
                 },
                 theMouseIsDown});
}

void addDrag(QList<PanelInUse>& uses, const char* name, QWidget* (*create)(), Find find,
             const QPoint& way)
{
    uses.append({name, create,
                 [find, way](QWidget& panel) { drag(find(panel), QPoint(20, 15), way); },
                 theMouseIsDown});
}

void addCanvas(QList<PanelInUse>& uses, const char* name, QWidget* (*create)())
{
    uses.append({name, create,
                 [](QWidget& panel) {
                     drag(part<QWidget>(panel, "PreviewView"), QPoint(50, 50), QPoint(20, 10));
                 },
                 theHandIsClosed});
}

void addMenu(QList<PanelInUse>& uses, const char* name, QWidget* (*create)(), const char* edit,
             bool loops)
{
    uses.append({name, create, [edit](QWidget& panel) { askForMenu(part<QWidget>(panel, edit)); },
                 aPopupIsOpen, loops});
}

void addSlider(QList<PanelInUse>& uses)
{
    uses.append({"print panel: slider of a menu dragged", newPanelWithLongPalette,
                 [](QWidget& panel) {
                     QScrollBar* bar = menuBar(panel);
                     QStyleOptionSlider option;
                     option.initFrom(bar);
                     option.orientation = Qt::Vertical;
                     option.maximum = bar->maximum();
                     option.pageStep = bar->pageStep();
                     option.subControls = QStyle::SC_All;
                     const QRect slider = bar->style()->subControlRect(
                         QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider, bar);
                     drag(bar, slider.center(), QPoint(0, 10));
                 },
                 [](const QWidget& panel) {
                     return menuBar(panel)->isSliderDown() && menuBar(panel)->value() > 0;
                 }});
}

} // namespace

QList<PanelInUse> panelsInUse()
{
    QList<PanelInUse> uses;
    addList(uses, "print panel: printers open", "print panel: printer pressed", newPrintPanel,
            "PrinterListCombo");
    addList(uses, "print panel: tags open", "print panel: tag pressed", newPrintPanel,
            "AmmoniaPrintCombo");
    addList(uses, "multi page: printers open", "multi page: printer pressed", newMultiPageDialog,
            "PrinterListCombo");
    addMenu(uses, "print panel: menu of the width", newPrintPanel, "supplyWidthEdit", false);
    addMenu(uses, "print panel: menu of the error number", newPrintPanel, "errorNumberSpinBox",
            true);
    addMenu(uses, "quick print: menu of the copies", newQuickPanel, "copiesSpinBox", true);
    addMenu(uses, "multi page: menu of the copies", newMultiPageDialog, "copiesEdit", false);
    addToolTip(uses, "print panel: tool tip of a swatch", newPrintPanel, swatch);
    addToolTip(uses, "print panel: tool tip of a tab", newPrintPanel,
               [](const QWidget& panel) { return part<QWidget>(panel, "colorTabBar"); });
    addToolTip(uses, "print panel: tool tip of the menus", newPrintPanel,
               [](const QWidget& panel) { return part<QWidget>(panel, "stackGroup"); });
    addToolTip(uses, "multi page: tool tip of the title", newDialogWithALongTitle, titleBar);
    addToolTip(uses, "popup: tool tip of a button", newPreviewPopup,
               [](const QWidget& panel) { return part<QWidget>(panel, "landscapeButton"); });
    addHeld(uses, "print panel: print held", newPrintPanel,
            [](const QWidget& panel) { return part<QWidget>(panel, "PrintButton"); });
    addHeld(uses, "print panel: swatch held", newPrintPanel, swatch);
    addHeld(uses, "print panel: tab held", newPrintPanel,
            [](const QWidget& panel) { return part<QWidget>(panel, "colorTabBar"); });
    addHeld(uses, "quick print: step held", newQuickPanel,
            [](const QWidget& panel) { return part<QWidget>(panel, "plusButton"); });
    addDrag(
        uses, "print panel: text dragged", newPrintPanel,
        [](const QWidget& panel) { return part<QWidget>(panel, "supplyWidthEdit"); },
        QPoint(20, 0));
    addDrag(uses, "print panel: palette dragged", newPanelWithLongPalette, swatch, QPoint(0, -40));
    addSlider(uses);
    addCanvas(uses, "quick print: canvas dragged", newQuickPanel);
    addCanvas(uses, "multi page: canvas dragged", newMultiPageDialog);
    addCanvas(uses, "popup: canvas dragged", newPreviewPopup);
    addDrag(uses, "multi page: title dragged", newMultiPageDialog, titleBar, QPoint(30, 20));
    addDrag(uses, "popup: title dragged", newPreviewPopup, titleBar, QPoint(30, 20));
    return uses;
}
