// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "panelcycles.h"

#include "livepanel.h"

#include <colormenu.h>
#include <containertitlebar.h>
#include <expandingtabbar.h>
#include <jxcombobox.h>
#include <jxlineedit.h>
#include <jxpushbuttonstyleproxy.h>
#include <jxspinbox.h>
#include <printpanels/printpreviewdialog.h>
#include <printpanels/printwidget.h>

#include <QtCore/QCoreApplication>
#include <QtGui/QImage>
#include <QtGui/QPixmapCache>
#include <QtTest/QTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QVBoxLayout>

#include <memory>

namespace {

void click(QWidget& panel, const char* name)
{
    part<QAbstractButton>(panel, name)->click();
}

void type(QWidget& panel, const char* name, const char* text)
{
    auto* edit = part<QLineEdit>(panel, name);
    edit->setFocus();
    QTest::keyClicks(edit, QLatin1String(text));
}

std::unique_ptr<QWidget> shown(QWidget* panel)
{
    panel->show();
    panel->activateWindow();
    QCoreApplication::processEvents();
    return std::unique_ptr<QWidget>(panel);
}

void runPrintPanel()
{
    const std::unique_ptr<QWidget> panel = shown(newPrintPanel());
    part<QComboBox>(*panel, "PrinterListCombo")->setCurrentIndex(1);
    part<QComboBox>(*panel, "AmmoniaPrintCombo")->setCurrentIndex(2);
    click(*panel, "recordListRadio");
    type(*panel, "recordListEdit", "1,3-5");
    part<QLineEdit>(*panel, "supplyWidthEdit")->setText(QStringLiteral("7"));
    click(*part<QWidget>(*panel, "ribbon1Menu"), "#000000");
    static_cast<PrintWidget*>(panel.get())->setModule(JxModuleInfo::PipeMarking);
    static_cast<PrintWidget*>(panel.get())
        ->showSupplyInfo({QStringLiteral("#dc0b0b"), QStringLiteral("#ffffff")}, false, 2.0, 1,
                         false);
    QCoreApplication::processEvents();
}

void runQuickPanel()
{
    const std::unique_ptr<QWidget> panel = shown(newQuickPanel());
    type(*panel, "lengthEdit", "5");
    click(*panel, "plusButton");
    click(*panel, "resizeButton");
    QCoreApplication::processEvents();
}

void runMultiPagePanel()
{
    const std::unique_ptr<QWidget> panel = shown(newMultiPagePanel());
    part<QComboBox>(*panel, "PrinterListCombo")->setCurrentIndex(1);
    click(*panel, "selectionRadio");
    type(*panel, "pageListEdit", "4-6");
    click(*panel, "fitToPageCheck");
    click(*panel, "PrintButton");
    QCoreApplication::processEvents();
}

void runMultiPageDialog()
{
    const std::unique_ptr<QWidget> dialog = shown(newMultiPageDialog());
    click(*dialog, "allPagesRadio");
    click(*dialog, "CloseButton");
    dialog->show();
    QCoreApplication::processEvents();
}

void runPreviewPopup()
{
    const std::unique_ptr<QWidget> window = shown(newPreviewPopup());
    auto* popup = static_cast<PrintPreviewDialog*>(window.get());
    popup->zoomIn();
    QTest::mousePress(part<QWidget>(*popup, "PreviewView"), Qt::LeftButton);
    QImage image(60, 20, QImage::Format_RGB32);
    image.fill(Qt::red);
    popup->updatePreview(image, QSizeF(2, 1), QSizeF(2, 1), true, false, true, 1, 2, QString());
    QCoreApplication::processEvents();
}

void runPanelThatDiesInAHandler()
{
    QWidget* panel = newPrintPanel();
    panel->show();
    QCoreApplication::processEvents();
    QObject::connect(static_cast<PrintWidget*>(panel), &PrintWidget::widgetPrintSignal, panel,
                     [panel] { delete panel; });
    click(*panel, "PrintButton");
}

void runPanelThatIsDeletedLater()
{
    QWidget* panel = newPrintPanel();
    panel->show();
    QCoreApplication::processEvents();
    QObject::connect(static_cast<PrintWidget*>(panel), &PrintWidget::currentPrinterSelectionChanged,
                     panel, &QObject::deleteLater);
    part<QComboBox>(*panel, "PrinterListCombo")->setCurrentIndex(1);
}

void runKit()
{
    auto* window = new QWidget;
    auto* layout = new QVBoxLayout(window);
    auto* combo = new JxComboBox(nullptr);
    combo->addItem(QStringLiteral("item"));
    auto* menu = new ColorMenu(nullptr);
    menu->setColorPalette({QStringLiteral("#000000"), QStringLiteral("transparent")}, {});
    auto* tabs = new ExpandingTabBar(nullptr);
    tabs->addTab(QStringLiteral("!"));
    tabs->setTabColorRect(0, QStringLiteral("#000000"));
    auto* edit = new JxLineEdit(nullptr);
    auto* style = new JxPushButtonStyleProxy(nullptr);
    style->setParent(edit);
    edit->setStyle(style);
    auto* bar = new ContainerTitleBar(nullptr, QStringLiteral("title"), QString(), 14);
    for (QWidget* widget :
         std::initializer_list<QWidget*>{combo, menu, tabs, edit, bar, new JxSpinBox(nullptr)})
        layout->addWidget(widget);
    const std::unique_ptr<QWidget> owner = shown(window);
    combo->showPopup();
    menu->setColorPalette({QStringLiteral("#111111")}, {});
    QCoreApplication::processEvents();
}

} // namespace

QList<PanelCycle> panelCycles()
{
    return {{"print panel", runPrintPanel},
            {"quick print panel", runQuickPanel},
            {"multi-page panel", runMultiPagePanel},
            {"multi-page dialog", runMultiPageDialog},
            {"preview popup", runPreviewPopup},
            {"panel deleted in a handler", runPanelThatDiesInAHandler},
            {"panel deleted later", runPanelThatIsDeletedLater},
            {"host kit", runKit}};
}

void runCycles(const PanelCycle& cycle, int times)
{
    // Qt caches every icon that a style sheet loads under a key of its own, and drops the keys from
    // time to time only; that would hide what the panels themselves leave.
    QPixmapCache::setCacheLimit(0);
    for (int i = 0; i < times; ++i) {
        cycle.run();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }
}
