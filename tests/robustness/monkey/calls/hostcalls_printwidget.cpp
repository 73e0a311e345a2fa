// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "hostcall.h"

#include <colormenu.h>
#include <printpanels/printwidget.h>

#include <QtCore/QMetaObject>

namespace Monkey {

using namespace Hostile;

namespace {

using Panel = PrintWidget;

HostCall whatToPrintCall()
{
    HostCall call;
    call.signature = "whatToPrint(int&,int&,QString&)";
    call.prepare = [](RandomSource& random, QVariantList& arguments) -> HostCall::Invocation {
        const int start = number(random);
        const int end = number(random);
        const QString list = recordList(random);
        arguments = {start, end, list};
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
    call.prepare = [](RandomSource& random, QVariantList& arguments) -> HostCall::Invocation {
        const int index = number(random);
        const QString code = color(random);
        const QString caption = text(random);
        const bool withMenu = !random.oneIn(4);
        arguments = {index, code, caption, withMenu};
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
    call.prepare = [](RandomSource& random, QVariantList& arguments) -> HostCall::Invocation {
        const int index = number(random);
        const QString code = color(random);
        const int chosen = random.below(4);
        arguments = {index, code, chosen};
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
        hostCall<Panel>("setRangeValues(int,int,bool)", &Panel::setRangeValues, number, number,
                        flag)
            .often(6),
        hostCall<Panel>("updateCurrentRangeIndex(int)", &Panel::updateCurrentRangeIndex, number)
            .often(3),
        hostCall<Panel>("listRangeParse()", &Panel::listRangeParse),
        hostCall<Panel>("setNupSeqRepVisible(bool)", &Panel::setNupSeqRepVisible, flag).often(3),
        hostCall<Panel>("setNupDynamicLength(bool)", &Panel::setNupDynamicLength, flag).often(2),
        hostCall<Panel>("getNupSeqRepOption()", &Panel::getNupSeqRepOption),
        whatToPrintCall(),
    };
}

HostCalls printerCalls()
{
    return {
        hostCall<Panel>("updateListOfPrinters(QStringList,int)", &Panel::updateListOfPrinters,
                        printers, number)
            .often(4),
        hostCall<Panel>("addPrinterToList(QString,bool)", &Panel::addPrinterToList, printer, flag)
            .often(2),
        hostCall<Panel>("setSelectedPrinter(QString)", &Panel::setSelectedPrinter, printer)
            .often(2),
        hostCall<Panel>("getSelectedPrinter()", &Panel::getSelectedPrinter),
        hostCall<Panel>("updatePrinterLocation(QString)", &Panel::updatePrinterLocation, text),
        hostCall<Panel>("updatePrinterStatus(bool,bool,bool)", &Panel::updatePrinterStatus, flag,
                        flag, flag),
        hostCall<Panel>("setNumberOfCopies(int)", &Panel::setNumberOfCopies, number).often(2),
        hostCall<Panel>("getNumberOfCopies()", &Panel::getNumberOfCopies),
    };
}

HostCalls supplyCalls()
{
    return {
        hostCall<Panel>("showSupplyInfo(QStringList,bool,double,uchar,bool)",
                        &Panel::showSupplyInfo, colors, flag, real, byte, flag)
            .often(8),
        hostCall<Panel>("hideSupplyInfo()", &Panel::hideSupplyInfo).often(2),
        hostCall<Panel>("isSupplyInfoVisible()", &Panel::isSupplyInfoVisible),
        hostCall<Panel>("isTinySupply()", &Panel::isTinySupply),
        hostCall<Panel>("createSupplyInfoLayout()", &Panel::createSupplyInfoLayout),
        hostCall<Panel>("setColorPalette(QStringList,QStringList)", &Panel::setColorPalette, colors,
                        colors)
            .often(2),
        addMenuCall(),
        updateColorSelectionCall(),
        hostCall<Panel>("setVisibleAmmoniaTag(int)", &Panel::setVisibleAmmoniaTag, tagMask)
            .often(4),
        hostCall<Panel>("createAmmoniaComboList()", &Panel::createAmmoniaComboList),
    };
}

HostCalls buttonCalls()
{
    return {
        hostCall<Panel>("setModule(JxModuleInfo::JxModuleTypes)", &Panel::setModule, module),
        hostCall<Panel>("disablePrintButtons()", &Panel::disablePrintButtons),
        hostCall<Panel>("enablePrintButtons()", &Panel::enablePrintButtons).often(4),
        hostCall<Panel>("disableAllButtons()", &Panel::disableAllButtons),
        hostCall<Panel>("enableAllButtons()", &Panel::enableAllButtons).often(4),
        hostCall<Panel>("setShowUserBackground(bool)", &Panel::setShowUserBackground, flag),
        hostCall<Panel>("setPrintUserBackground(bool)", &Panel::setPrintUserBackground, flag),
        hostCall<Panel>("getPrintUserBackground()", &Panel::getPrintUserBackground),
        hostCall<Panel>("getPrintToFileEnabled()", &Panel::getPrintToFileEnabled),
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
