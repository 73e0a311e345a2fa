// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "imagelesspanels.h"

#include <printpanels/multipageprintdialog.h>
#include <printpanels/multipageprintwidget.h>
#include <printpanels/printpreviewdialog.h>
#include <printpanels/printwidget.h>
#include <printpanels/quickprintwidget.h>

#include <QtGui/QImage>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleOptionButton>

namespace {

const QStringList printers = {QStringLiteral("Alpha"), QStringLiteral("Beta")};

QString text(const QRect& rect)
{
    return QStringLiteral("%1,%2 %3x%4")
        .arg(rect.x())
        .arg(rect.y())
        .arg(rect.width())
        .arg(rect.height());
}

QString indicator(const QAbstractButton* button, QStyle::SubElement element)
{
    QStyleOptionButton option;
    option.initFrom(button);
    return text(button->style()->subElementRect(element, &option, button));
}

} // namespace

PanelPointer printPanel()
{
    auto panel = std::make_unique<PrintWidget>(true, nullptr);
    panel->updateListOfPrinters(printers, 0);
    panel->showSupplyInfo(
        {QStringLiteral("#000000"), QStringLiteral("#fffffe"), QStringLiteral("#ffffff")}, true,
        4.0, 0, true);
    panel->setRangeValues(0, 9, true);
    panel->setNupSeqRepVisible(true);
    panel->setShowUserBackground(true);
    return panel;
}

PanelPointer pipeMarkingPanel()
{
    auto panel = std::make_unique<PrintWidget>(false, nullptr);
    panel->setModule(JxModuleInfo::PipeMarking);
    panel->setVisibleAmmoniaTag(15);
    panel->enableAllButtons();
    return panel;
}

PanelPointer quickPanel()
{
    auto panel = std::make_unique<QuickPrintWidget>(true, nullptr);
    panel->setCurrentPrinterName(printers.first());
    panel->enableAllButtons();
    return panel;
}

PanelPointer multiPagePanel()
{
    auto panel = std::make_unique<MultiPagePrintWidget>(true, false, nullptr);
    panel->updateListOfPrinters(printers, 0);
    panel->setPageInfo(1, 10, true);
    panel->setFormFillOption(true, true);
    panel->set180OrientationVisible(true);
    return panel;
}

PanelPointer multiPageDialog()
{
    return std::make_unique<MultiPagePrintDialog>(multiPagePanel().release(), nullptr,
                                                  Qt::FramelessWindowHint);
}

PanelPointer previewPopup()
{
    return std::make_unique<PrintPreviewDialog>(nullptr, Qt::FramelessWindowHint,
                                                QImage(40, 20, QImage::Format_RGB32), QSizeF(4, 2),
                                                QSizeF(4, 2), false, true, false, 1, 1, QString());
}

QStringList placesOf(const QWidget& window)
{
    QStringList lines;
    const QList<QWidget*> children = window.findChildren<QWidget*>();
    for (const QWidget* child : children) {
        // Only the window that is active has a focus ring.
        if (!child->isVisible() || child->inherits("PrintPanels::FocusRing"))
            continue;
        const QRect rect(child->mapTo(&window, QPoint()), child->size());
        QString line = QStringLiteral("%1 %2 %3")
                           .arg(QString::fromLatin1(child->metaObject()->className()),
                                child->objectName(), text(rect));
        if (const auto* check = qobject_cast<const QCheckBox*>(child))
            line += u' ' + indicator(check, QStyle::SE_CheckBoxIndicator);
        if (const auto* radio = qobject_cast<const QRadioButton*>(child))
            line += u' ' + indicator(radio, QStyle::SE_RadioButtonIndicator);
        lines.append(line);
    }
    return lines;
}
