// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include <printpanels/printwidgetinterface.h>

#include <QtGui/QPalette>
#include <QtWidgets/QFrame>

PrintWidgetInterface::PrintWidgetInterface(bool, QWidget* parent) : QWidget(parent) {}

// Out of line, so that the virtual table is emitted once, in this library.
PrintWidgetInterface::~PrintWidgetInterface() = default;

void PrintWidgetInterface::setNupSeqRepVisible(bool) {}

void PrintWidgetInterface::setNupDynamicLength(bool) {}

bool PrintWidgetInterface::getNupSeqRepOption() const
{
    return false;
}

void PrintWidgetInterface::updateListOfPrinters(const QStringList&, int) {}

void PrintWidgetInterface::addPrinterToList(const QString&, bool) {}

QString PrintWidgetInterface::getSelectedPrinter() const
{
    return QString();
}

void PrintWidgetInterface::setSelectedPrinter(const QString&) {}

bool PrintWidgetInterface::isSupplyInfoVisible() const
{
    return false;
}

bool PrintWidgetInterface::getPrintToFileEnabled() const
{
    return false;
}

void PrintWidgetInterface::hideSupplyInfo() {}

void PrintWidgetInterface::showSupplyInfo(const QStringList&, bool, double, unsigned char, bool) {}

void PrintWidgetInterface::setColorPalette(const QStringList&, const QStringList&) {}

bool PrintWidgetInterface::isTinySupply() const
{
    return false;
}

QFrame* PrintWidgetInterface::createSeparatorBar()
{
    auto* bar = new QFrame;
    bar->setFrameShape(QFrame::HLine);
    bar->setLineWidth(1);
    QPalette palette = bar->palette();
    palette.setBrush(QPalette::WindowText, QBrush(QColor(198, 198, 198)));
    bar->setPalette(palette);
    return bar;
}

void PrintWidgetInterface::updatePrinterLocation(const QString&) {}

void PrintWidgetInterface::updatePrinterStatus(bool, bool, bool) {}
