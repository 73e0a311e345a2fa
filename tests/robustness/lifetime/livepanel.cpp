// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "livepanel.h"

#include <printpanels/multipageprintdialog.h>
#include <printpanels/multipageprintwidget.h>
#include <printpanels/printpreviewdialog.h>
#include <printpanels/printwidget.h>
#include <printpanels/quickprintwidget.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QPointer>
#include <QtCore/QSizeF>
#include <QtGui/QImage>
#include <QtWidgets/QApplication>
#include <QtWidgets/QVBoxLayout>

namespace {

QStringList printers()
{
    return {QStringLiteral("Alpha"), QStringLiteral("Beta"), QStringLiteral("Gamma")};
}

QImage picture()
{
    QImage image(40, 30, QImage::Format_RGB32);
    image.fill(Qt::green);
    return image;
}

} // namespace

QWidget* newPrintPanel()
{
    auto* panel = new PrintWidget(true, nullptr);
    panel->enableAllButtons();
    panel->updateListOfPrinters(printers(), 0);
    panel->setVisibleAmmoniaTag(15);
    panel->showSupplyInfo(
        {QStringLiteral("#dc0b0b"), QStringLiteral("#248d4f"), QStringLiteral("#ffffff")}, true,
        4.0, 0, true);
    panel->setRangeValues(0, 9, true);
    panel->setNupSeqRepVisible(true);
    panel->setShowUserBackground(true);
    return panel;
}

QWidget* newQuickPanel()
{
    auto* panel = new QuickPrintWidget(true, nullptr);
    panel->setModule(JxModuleInfo::JxCatalog);
    panel->enableAllButtons();
    panel->setCurrentPrinterName(QStringLiteral("Alpha"));
    panel->setCanvasSize(QSizeF(4, 2));
    panel->updateQuickPrint(picture());
    return panel;
}

QWidget* newMultiPagePanel()
{
    auto* panel = new MultiPagePrintWidget(false, false, nullptr);
    panel->enableAllButtons();
    panel->updateListOfPrinters(printers(), 0);
    panel->setPageInfo(3, 20, true);
    return panel;
}

QWidget* newMultiPageDialog()
{
    auto* dialog = new MultiPagePrintDialog(newMultiPagePanel(), nullptr, Qt::FramelessWindowHint);
    dialog->setTitle(QStringLiteral("Manual"));
    dialog->setPreviewImage(picture());
    return dialog;
}

QWidget* newPreviewPopup()
{
    return new PrintPreviewDialog(nullptr, Qt::FramelessWindowHint, picture(), QSizeF(4, 2),
                                  QSizeF(4, 2), false, true, false, 1, 5, QString());
}

QList<PanelKind> panelKinds()
{
    return {{"print panel", newPrintPanel},
            {"quick print panel", newQuickPanel},
            {"multi-page panel", newMultiPagePanel},
            {"multi-page dialog", newMultiPageDialog},
            {"preview popup", newPreviewPopup}};
}

QWidget* newWindowAround(QWidget* panel)
{
    auto* window = new QWidget;
    auto* inner = new QWidget;
    (new QVBoxLayout(window))->addWidget(inner);
    (new QVBoxLayout(inner))->addWidget(panel);
    panel->show();
    return window;
}

QStringList widgetsLeft()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QStringList names;
    const QWidgetList left = QApplication::allWidgets();
    for (const QWidget* widget : left) {
        // Qt makes one for itself when the mouse leaves a window, and keeps it.
        if (widget->windowType() != Qt::Desktop)
            names.append(QString::fromLatin1(widget->metaObject()->className()));
    }
    return names;
}

void deleteWidgetsLeft()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QList<QPointer<QWidget>> left;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows)
        left.append(window);
    // One may be the child of another, as the list of a combo box is.
    for (const QPointer<QWidget>& window : left)
        delete window.data();
}
