// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "hostcall.h"

#include "preview/previewview.h"

#include <printpanels/multipageprintdialog.h>
#include <printpanels/multipageprintwidget.h>
#include <printpanels/printpreviewdialog.h>
#include <printpanels/quickprintwidget.h>

#include <QtCore/QMetaObject>

namespace Monkey {

using namespace Hostile;

namespace {

/** The call by its name of a slot with one argument. */
template <typename Value>
HostCall slotWithArgument(const char* signature, Value (*generator)(RandomSource&))
{
    HostCall call;
    call.signature = signature;
    call.prepare = [name = call.name(), generator](
                       RandomSource& random, QVariantList& arguments) -> HostCall::Invocation {
        const Value value = generator(random);
        arguments = {value};
        return [name, value](QWidget& panel) {
            QMetaObject::invokeMethod(&panel, name.constData(),
                                      QArgument<Value>(QMetaType::fromType<Value>().name(), value));
        };
    };
    return call;
}

/** What PrintWidgetInterface declares and the panel's class may leave as it is. */
template <typename Panel>
HostCalls interfaceCalls()
{
    using Base = PrintWidgetInterface;
    return {
        hostCall<Panel>("setModule(JxModuleInfo::JxModuleTypes)", &Base::setModule, module),
        hostCall<Panel>("disablePrintButtons()", &Base::disablePrintButtons),
        hostCall<Panel>("disableAllButtons()", &Base::disableAllButtons),
        hostCall<Panel>("enablePrintButtons()", &Base::enablePrintButtons).often(3),
        hostCall<Panel>("enableAllButtons()", &Base::enableAllButtons).often(3),
        hostCall<Panel>("setNumberOfCopies(int)", &Base::setNumberOfCopies, number).often(2),
        hostCall<Panel>("getNumberOfCopies()", &Base::getNumberOfCopies),
        hostCall<Panel>("setNupSeqRepVisible(bool)", &Base::setNupSeqRepVisible, flag),
        hostCall<Panel>("setNupDynamicLength(bool)", &Base::setNupDynamicLength, flag),
        hostCall<Panel>("getNupSeqRepOption()", &Base::getNupSeqRepOption),
        hostCall<Panel>("updateListOfPrinters(QStringList,int)", &Base::updateListOfPrinters,
                        printers, number)
            .often(3),
        hostCall<Panel>("addPrinterToList(QString,bool)", &Base::addPrinterToList, printer, flag),
        hostCall<Panel>("getSelectedPrinter()", &Base::getSelectedPrinter),
        hostCall<Panel>("setSelectedPrinter(QString)", &Base::setSelectedPrinter, printer).often(2),
        hostCall<Panel>("isSupplyInfoVisible()", &Base::isSupplyInfoVisible),
        hostCall<Panel>("getPrintToFileEnabled()", &Base::getPrintToFileEnabled),
        hostCall<Panel>("hideSupplyInfo()", &Base::hideSupplyInfo),
        hostCall<Panel>("showSupplyInfo(QStringList,bool,double,uchar,bool)", &Base::showSupplyInfo,
                        colors, flag, real, byte, flag),
        hostCall<Panel>("setColorPalette(QStringList,QStringList)", &Base::setColorPalette, colors,
                        colors),
        hostCall<Panel>("isTinySupply()", &Base::isTinySupply),
        hostCall<Panel>("updatePrinterLocation(QString)", &Base::updatePrinterLocation, text),
        hostCall<Panel>("updatePrinterStatus(bool,bool,bool)", &Base::updatePrinterStatus, flag,
                        flag, flag),
    };
}

} // namespace

HostCall slotByName(const char* signature)
{
    HostCall call;
    call.signature = signature;
    call.prepare = [name = call.name()](RandomSource&, QVariantList&) -> HostCall::Invocation {
        return [name](QWidget& panel) { QMetaObject::invokeMethod(&panel, name.constData()); };
    };
    return call;
}

HostCall slotByName(const char* signature, int (*generator)(RandomSource&))
{
    return slotWithArgument(signature, generator);
}

HostCall slotByName(const char* signature, QString (*generator)(RandomSource&))
{
    return slotWithArgument(signature, generator);
}

HostCalls quickPrintWidgetCalls()
{
    using Panel = QuickPrintWidget;
    return interfaceCalls<Panel>() +
           HostCalls{
               hostCall<Panel>("setCurrentPrinterName(QString)", &Panel::setCurrentPrinterName,
                               printer)
                   .often(2),
               hostCall<Panel>("updateQuickPrint(QImage)", &Panel::updateQuickPrint, image)
                   .often(4),
               hostCall<Panel>("setCanvasSize(QSizeF)", &Panel::setCanvasSize, size).often(4),
               hostCall<Panel>("getCanvasSize()", &Panel::getCanvasSize),
               hostCall<Panel>("updateCurrentRangeIndex(int)", &Panel::updateCurrentRangeIndex,
                               number),
               hostCall<Panel>("printSlot()", &Panel::printSlot).emitting("widgetPrintSignal"),
               hostCall<Panel>("resizeSlot()", &Panel::resizeSlot).emitting("resizeSignal"),
           };
}

HostCalls multiPagePrintWidgetCalls()
{
    using Panel = MultiPagePrintWidget;
    const char* const startPage = "startPageChangedSignal";
    return interfaceCalls<Panel>() +
           HostCalls{
               hostCall<Panel>("setPageInfo(int,int,bool)", &Panel::setPageInfo, number, number,
                               flag)
                   .emitting(startPage)
                   .often(6),
               hostCall<Panel>("setFormFillOption(bool,bool)", &Panel::setFormFillOption, flag,
                               flag)
                   .often(2),
               hostCall<Panel>("set180OrientationVisible(bool)", &Panel::set180OrientationVisible,
                               flag),
               hostCall<Panel>("set180OrientationCheck(bool)", &Panel::set180OrientationCheck,
                               flag),
               hostCall<Panel>("updateCurrentRangeIndex(int)", &Panel::updateCurrentRangeIndex,
                               number)
                   .emitting(startPage)
                   .often(4),
               hostCall<Panel>("printSlot()", &Panel::printSlot).emitting("widgetPrintSignal"),
               hostCall<Panel>("currentPrinterSelectionChangedSlot(int)",
                               &Panel::currentPrinterSelectionChangedSlot, number)
                   .emitting("currentPrinterSelectionChanged"),
               slotByName("recordsRadioChangedSlot()").emitting(startPage),
               hostCall<Panel>("recordsRadioChangedSlot(bool)", &Panel::recordsRadioChangedSlot,
                               flag)
                   .emitting(startPage),
               hostCall<Panel>("checkRangeUpdate(bool)", &Panel::checkRangeUpdate, flag)
                   .emitting(startPage),
               hostCall<Panel>("listRangeParse()", &Panel::listRangeParse).emitting(startPage),
               hostCall<Panel>("decreaseCopyCount()", &Panel::decreaseCopyCount),
               hostCall<Panel>("increaseCopyCount()", &Panel::increaseCopyCount),
           };
}

HostCalls multiPagePrintDialogCalls()
{
    using Panel = MultiPagePrintDialog;
    return {
        hostCall<Panel>("setPreviewImage(QImage)", &Panel::setPreviewImage, image).often(2),
        hostCall<Panel>("setTitle(QString)", &Panel::setTitle, text),
        hostCall<Panel>("mouseMoveSlot(int,int)", &Panel::mouseMoveSlot, number, number),
    };
}

HostCalls printPreviewDialogCalls()
{
    using Panel = PrintPreviewDialog;
    return {
        hostCall<Panel>("updatePreview(QImage,QSizeF,QSizeF,bool,bool,bool,int,int,QString)",
                        &Panel::updatePreview, image, size, size, flag, flag, flag, number, number,
                        recordList)
            .often(4),
        hostCall<Panel>("setUpTitleBar(QSizeF,QSizeF,bool,bool)", &Panel::setUpTitleBar, size, size,
                        flag, flag)
            .often(2),
        hostCall<Panel>("enablePrintButton(bool)", &Panel::enablePrintButton, flag).often(2),
        hostCall<Panel>("print()", &Panel::print).emitting("previewPrintSignal"),
        hostCall<Panel>("zoomIn()", &Panel::zoomIn).often(2),
        hostCall<Panel>("zoomOut()", &Panel::zoomOut).often(2),
        hostCall<Panel>("zoomFit()", &Panel::zoomFit),
        hostCall<Panel>("mouseMoveSlot(int,int)", &Panel::mouseMoveSlot, number, number),
    };
}

HostCalls previewViewCalls()
{
    using Panel = PrintPanels::PreviewView;
    return {
        hostCall<Panel>("setImage(QImage)", &Panel::setImage, image).often(3),
        hostCall<Panel>("zoomIn()", &Panel::zoomIn).often(2),
        hostCall<Panel>("zoomOut()", &Panel::zoomOut).often(2),
        hostCall<Panel>("resetZoom()", &Panel::resetZoom),
        hostCall<Panel>("scaleBy(double)", &Panel::scaleBy, real),
        hostCall<Panel>("fitToView()", &Panel::fitToView),
        hostCall<Panel>("imageSize()", &Panel::imageSize),
        hostCall<Panel>("zoom()", &Panel::zoom),
        hostCall<Panel>("sizeHint()", &Panel::sizeHint),
    };
}

} // namespace Monkey
