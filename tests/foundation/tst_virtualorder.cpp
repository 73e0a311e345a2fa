// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "support/stricttest.h"

#include <printpanels/printwidgetinterface.h>

#include <cstddef>
#include <cstring>

/** The places of the interface's operations in the virtual table, which a host is compiled to. */
class tst_VirtualOrder : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void operationsFollowThoseOfQWidgetInTheirOrder_data();
    void operationsFollowThoseOfQWidgetInTheirOrder();
};

// The Itanium C++ ABI says what a pointer to a virtual member holds; MSVC has an ABI of its own.
#ifdef __GXX_ABI_VERSION

namespace {

/** Its first operation has the place that any class's first operation has after those of QWidget.
 */
class NextAfterQWidget : public QWidget
{
public:
    virtual void first();
};

void NextAfterQWidget::first() {}

/**
 * The offset into the virtual table, in bytes. Most processors have it plus 1; some have it as it
 * is and keep the 1 elsewhere. Compared with each other, they tell the same.
 */
template <typename Member>
std::ptrdiff_t offsetOf(Member member)
{
    std::ptrdiff_t words[2];
    static_assert(sizeof(words) == sizeof(member));
    std::memcpy(words, &member, sizeof(words));
    return words[0];
}

} // namespace

void tst_VirtualOrder::operationsFollowThoseOfQWidgetInTheirOrder_data()
{
    addColumns<std::ptrdiff_t, int>("offset", "place");
    int place = 0;
    const auto row = [&place](const char* name, auto member) {
        QTest::newRow(name) << offsetOf(member) << place++;
    };
    using Interface = PrintWidgetInterface;
    row("setModule", &Interface::setModule);
    row("disablePrintButtons", &Interface::disablePrintButtons);
    row("disableAllButtons", &Interface::disableAllButtons);
    row("enablePrintButtons", &Interface::enablePrintButtons);
    row("enableAllButtons", &Interface::enableAllButtons);
    row("setNumberOfCopies", &Interface::setNumberOfCopies);
    row("getNumberOfCopies", &Interface::getNumberOfCopies);
    row("setNupSeqRepVisible", &Interface::setNupSeqRepVisible);
    row("setNupDynamicLength", &Interface::setNupDynamicLength);
    row("getNupSeqRepOption", &Interface::getNupSeqRepOption);
    row("updateListOfPrinters", &Interface::updateListOfPrinters);
    row("addPrinterToList", &Interface::addPrinterToList);
    row("getSelectedPrinter", &Interface::getSelectedPrinter);
    row("setSelectedPrinter", &Interface::setSelectedPrinter);
    row("isSupplyInfoVisible", &Interface::isSupplyInfoVisible);
    row("getPrintToFileEnabled", &Interface::getPrintToFileEnabled);
    row("hideSupplyInfo", &Interface::hideSupplyInfo);
    row("showSupplyInfo", &Interface::showSupplyInfo);
    row("setColorPalette", &Interface::setColorPalette);
    row("isTinySupply", &Interface::isTinySupply);
    row("updateCurrentRangeIndex", &Interface::updateCurrentRangeIndex);
    row("updatePrinterLocation", &Interface::updatePrinterLocation);
    row("updatePrinterStatus", &Interface::updatePrinterStatus);
    QCOMPARE(place, 23);
}

void tst_VirtualOrder::operationsFollowThoseOfQWidgetInTheirOrder()
{
    QFETCH(const std::ptrdiff_t, offset);
    QFETCH(const int, place);
    const std::ptrdiff_t first = offsetOf(&NextAfterQWidget::first);
    QCOMPARE(offset, first + place * std::ptrdiff_t(sizeof(void*)));
}

#else

void tst_VirtualOrder::operationsFollowThoseOfQWidgetInTheirOrder_data() {}

void tst_VirtualOrder::operationsFollowThoseOfQWidgetInTheirOrder()
{
    QSKIP("What a pointer to a virtual member holds is not known here.");
}

#endif

QTEST_APPLESS_MAIN(tst_VirtualOrder)
#include "tst_virtualorder.moc"
