// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "hostcall.h"

#include <colormenu.h>
#include <printpanels/printwidget.h>

#include <QtCore/QMetaObject>

namespace Monkey {

using namespace Hostile;

namespace {

HostCall whatToPrintCall()
{
    HostCall call;
    call.signature = "whatToPrint(int&,int&,QString&)";
    call.prepare = [](RandomSource& random, QVariantList& told) -> HostCall::Thunk {
        const int start = number(random);
        const int end = number(random);
        const QString list = recordList(random);
        told = {start, end, list};
        return [=](QWidget& panel) {
            int first = start;
            int last = end;
            QString records = list;
            static_cast<PrintWidget&>(panel).whatToPrint(first, last, records);
        };
    };
    return call;
}

// The panel owns the menu from then on, unless it has no place for it yet.
HostCall addMenuCall()
{
    HostCall call;
    call.signature = "addMenuToStack(int,QString,QString,QString,ColorMenu*)";
    call.prepare = [](RandomSource& random, QVariantList& told) -> HostCall::Thunk {
        const int index = number(random);
        const QString code = color(random);
        const QString caption = text(random);
        const bool withMenu = !random.oneIn(4);
        told = {index, code, caption, withMenu};
        return [=](QWidget& panel) {
            ColorMenu* added = withMenu ? new ColorMenu : nullptr;
            static_cast<PrintWidget&>(panel).addMenuToStack(index, code, caption, caption, added);
            if (added && !added->parentWidget())
                delete added;
        };
    };
    return call;
}

HostCall updateColorSelectionCall()
{
    HostCall call;
    call.signature = "updateColorSelection(int,QString,ColorMenu*)";
    call.prepare = [](RandomSource& random, QVariantList& told) -> HostCall::Thunk {
        const int index = number(random);
        const QString code = color(random);
        const int chosen = random.below(4);
        told = {index, code, chosen};
        return [=](QWidget& panel) {
            const auto menus = panel.findChildren<ColorMenu*>();
            ColorMenu foreign;
            ColorMenu* menu = chosen == 3 ? &foreign : menus.value(chosen);
            static_cast<PrintWidget&>(panel).updateColorSelection(index, code, menu);
        };
    };
    return call;
}

HostCalls recordCalls()
{
    return {
        hostCall<PrintWidget>("setRangeValues(int,int,bool)", &PrintWidget::setRangeValues, number,
                              number, flag)
            .often(6),
        hostCall<PrintWidget>("updateCurrentRangeIndex(int)", &PrintWidget::updateCurrentRangeIndex,
                              number)
            .often(3),
        hostCall<PrintWidget>("listRangeParse()", &PrintWidget::listRangeParse),
        hostCall<PrintWidget>("setNupSeqRepVisible(bool)", &PrintWidget::setNupSeqRepVisible, flag)
            .often(3),
        hostCall<PrintWidget>("setNupDynamicLength(bool)", &PrintWidget::setNupDynamicLength, flag)
            .often(2),
        hostCall<PrintWidget>("getNupSeqRepOption()", &PrintWidget::getNupSeqRepOption),
        whatToPrintCall(),
    };
}

HostCalls printerCalls()
{
    return {
        hostCall<PrintWidget>("updateListOfPrinters(QStringList,int)",
                              &PrintWidget::updateListOfPrinters, printers, number)
            .often(4),
        hostCall<PrintWidget>("addPrinterToList(QString,bool)", &PrintWidget::addPrinterToList,
                              printer, flag)
            .often(2),
        hostCall<PrintWidget>("setSelectedPrinter(QString)", &PrintWidget::setSelectedPrinter,
                              printer)
            .often(2),
        hostCall<PrintWidget>("getSelectedPrinter()", &PrintWidget::getSelectedPrinter),
        hostCall<PrintWidget>("updatePrinterLocation(QString)", &PrintWidget::updatePrinterLocation,
                              text),
        hostCall<PrintWidget>("updatePrinterStatus(bool,bool,bool)",
                              &PrintWidget::updatePrinterStatus, flag, flag, flag),
        hostCall<PrintWidget>("setNumberOfCopies(int)", &PrintWidget::setNumberOfCopies, number)
            .often(2),
        hostCall<PrintWidget>("getNumberOfCopies()", &PrintWidget::getNumberOfCopies),
    };
}

HostCalls supplyCalls()
{
    return {
        hostCall<PrintWidget>("showSupplyInfo(QStringList,bool,double,uchar,bool)",
                              &PrintWidget::showSupplyInfo, colors, flag, real, byte, flag)
            .often(8),
        hostCall<PrintWidget>("hideSupplyInfo()", &PrintWidget::hideSupplyInfo).often(2),
        hostCall<PrintWidget>("isSupplyInfoVisible()", &PrintWidget::isSupplyInfoVisible),
        hostCall<PrintWidget>("isTinySupply()", &PrintWidget::isTinySupply),
        hostCall<PrintWidget>("createSupplyInfoLayout()", &PrintWidget::createSupplyInfoLayout),
        hostCall<PrintWidget>("setColorPalette(QStringList,QStringList)",
                              &PrintWidget::setColorPalette, colors, colors)
            .often(2),
        addMenuCall(),
        updateColorSelectionCall(),
        hostCall<PrintWidget>("setVisibleAmmoniaTag(int)", &PrintWidget::setVisibleAmmoniaTag,
                              tagMask)
            .often(4),
        hostCall<PrintWidget>("createAmmoniaComboList()", &PrintWidget::createAmmoniaComboList),
    };
}

HostCalls buttonCalls()
{
    return {
        hostCall<PrintWidget>("setModule(JxModuleInfo::JxModuleTypes)", &PrintWidget::setModule,
                              module),
        hostCall<PrintWidget>("disablePrintButtons()", &PrintWidget::disablePrintButtons),
        hostCall<PrintWidget>("enablePrintButtons()", &PrintWidget::enablePrintButtons).often(4),
        hostCall<PrintWidget>("disableAllButtons()", &PrintWidget::disableAllButtons),
        hostCall<PrintWidget>("enableAllButtons()", &PrintWidget::enableAllButtons).often(4),
        hostCall<PrintWidget>("setShowUserBackground(bool)", &PrintWidget::setShowUserBackground,
                              flag),
        hostCall<PrintWidget>("setPrintUserBackground(bool)", &PrintWidget::setPrintUserBackground,
                              flag),
        hostCall<PrintWidget>("getPrintUserBackground()", &PrintWidget::getPrintUserBackground),
        hostCall<PrintWidget>("getPrintToFileEnabled()", &PrintWidget::getPrintToFileEnabled),
    };
}

HostCalls privateSlots()
{
    return {
        slotByName("printSlot()").emitting("widgetPrintSignal"),
        slotByName("printPreviewSlot()").emitting("printPreviewSignal"),
        slotByName("recordsRadioChangedSlot()"),
        slotByName("listRangeChanged()"),
        slotByName("checkRange()"),
        slotByName("currentPrinterSelectionChangedSlot(int)", number)
            .emitting("currentPrinterSelectionChanged"),
        slotByName("ammoniaPrintComboChanged(int)", number).emitting("ammoniaPrintTagChanged"),
        slotByName("ribbon1ColorSelectionSlot(QString)", color)
            .emitting("supplyColorsChangedSignal"),
        slotByName("ribbon2ColorSelectionSlot(QString)", color)
            .emitting("supplyColorsChangedSignal"),
        slotByName("supplyColorSelectionSlot(QString)", color)
            .emitting("supplyColorsChangedSignal"),
        slotByName("supplyWidthEditedSlot()"),
        slotByName("testErrorCodeSlot()").emitting("testPrintError"),
    };
}

} // namespace

HostCalls printWidgetCalls()
{
    return recordCalls() + printerCalls() + supplyCalls() + buttonCalls() + privateSlots();
}

} // namespace Monkey
