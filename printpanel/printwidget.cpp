// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include <printpanels/printwidget.h>

#include "foundation/stylesheets.h"
#include "foundation/widgets/palettekeeper.h"
#include "printpanel/printwidget_p.h"

#include <QtWidgets/QCheckBox>

PrintWidget::PrintWidget(bool printToFile, QWidget* parent)
    : PrintWidgetInterface(printToFile, parent),
      d(std::make_unique<PrintPanels::PrintWidgetPrivate>(this, printToFile))
{
    setObjectName(QStringLiteral("PrintWidget"));
    setStyleSheet(StyleSheets::printSettingsPanel());
    new PrintPanels::PaletteKeeper(this);
    d->createWidgetLayout();
}

// Children emit while they are destroyed, such as an edit that loses the focus. A handler would
// then call a panel that is partly destroyed.
PrintWidget::~PrintWidget()
{
    blockSignals(true);
}

void PrintWidget::setModule(const JxModuleInfo::JxModuleTypes& module)
{
    if (module != JxModuleInfo::PipeMarking)
        return;
    d->records.hide();
    d->ammonia.createAmmoniaLayout();
}

void PrintWidget::disablePrintButtons()
{
    d->setPrintButtonsEnabled(false);
}

void PrintWidget::disableAllButtons()
{
    disablePrintButtons();
    d->printer.setPreferencesEnabled(false);
}

void PrintWidget::enablePrintButtons()
{
    d->setPrintButtonsEnabled(true);
}

void PrintWidget::enableAllButtons()
{
    enablePrintButtons();
    d->printer.setPreferencesEnabled(true);
}

void PrintWidget::setShowUserBackground(bool show)
{
    d->userBackgroundCheck->setVisible(show);
}

void PrintWidget::setPrintUserBackground(bool print)
{
    d->userBackgroundCheck->setChecked(print);
}

bool PrintWidget::getPrintUserBackground() const
{
    return d->userBackgroundCheck->isChecked();
}

void PrintWidget::addPrinterToList(const QString& name, bool atTop)
{
    d->printer.addPrinterToList(name, atTop);
}

void PrintWidget::updateListOfPrinters(const QStringList& printers, int currentIndex)
{
    d->printer.updateListOfPrinters(printers, currentIndex);
}

void PrintWidget::setSelectedPrinter(const QString& name)
{
    d->printer.setSelectedPrinter(name);
}

QString PrintWidget::getSelectedPrinter() const
{
    return d->printer.getSelectedPrinter();
}

void PrintWidget::setNumberOfCopies(int copies)
{
    d->printer.setNumberOfCopies(copies);
}

int PrintWidget::getNumberOfCopies()
{
    return d->printer.getNumberOfCopies();
}

void PrintWidget::whatToPrint(int& sequenceStart, int& sequenceEnd,
                              QString& customRecordsList) const
{
    d->records.whatToPrint(sequenceStart, sequenceEnd, customRecordsList);
}

void PrintWidget::setRangeValues(int currentIndex, int lastIndex, bool enabled)
{
    d->records.setRangeValues(currentIndex, lastIndex, enabled);
}

void PrintWidget::listRangeParse()
{
    d->records.listRangeParse();
}

void PrintWidget::setNupSeqRepVisible(bool visible)
{
    d->nup.setNupSeqRepVisible(visible);
}

void PrintWidget::setNupDynamicLength(bool on)
{
    d->nup.setNupDynamicLength(on);
}

bool PrintWidget::getNupSeqRepOption() const
{
    return d->nup.getNupSeqRepOption();
}

void PrintWidget::createAmmoniaComboList()
{
    d->ammonia.createAmmoniaComboList();
}

void PrintWidget::createSupplyInfoLayout()
{
    d->supply.createSupplyInfoLayout();
}

void PrintWidget::showSupplyInfo(const QStringList& colors, bool twoRibbons, double width,
                                 unsigned char metric, bool showTinyLadder)
{
    d->supply.showSupplyInfo(colors, twoRibbons, width, metric, showTinyLadder);
}

void PrintWidget::hideSupplyInfo()
{
    d->supply.hideSupplyInfo();
}

bool PrintWidget::isSupplyInfoVisible() const
{
    return d->supply.isSupplyInfoVisible();
}

bool PrintWidget::isTinySupply() const
{
    return d->supply.isTinySupply();
}

void PrintWidget::setColorPalette(const QStringList& ribbonColors, const QStringList& supplyColors)
{
    d->supply.setColorPalette(ribbonColors, supplyColors);
}

void PrintWidget::addMenuToStack(int index, const QString& color, const QString& tabText,
                                 const QString& toolTip, ColorMenu* menu)
{
    d->supply.addMenuToStack(index, color, tabText, toolTip, menu);
}

void PrintWidget::updateColorSelection(int index, const QString& color, ColorMenu* menu)
{
    d->supply.updateColorSelection(index, color, menu);
}

bool PrintWidget::getPrintToFileEnabled() const
{
    return d->testControls.getPrintToFileEnabled();
}

void PrintWidget::showEvent(QShowEvent* event)
{
    PrintWidgetInterface::showEvent(event);
    Q_EMIT printWidgetShowSignal();
}

void PrintWidget::updateCurrentRangeIndex(int sequenceCurrent)
{
    d->records.updateCurrentRangeIndex(sequenceCurrent);
}

void PrintWidget::setVisibleAmmoniaTag(int tag)
{
    d->ammonia.setVisibleAmmoniaTag(tag);
}

void PrintWidget::updatePrinterLocation(const QString& location)
{
    d->printer.updatePrinterLocation(location);
}

void PrintWidget::updatePrinterStatus(bool offline, bool remote, bool unavailable)
{
    d->printer.updatePrinterStatus(offline, remote, unavailable);
}

#include "moc_printwidget.cpp"
