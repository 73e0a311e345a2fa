// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "printpanelfixture.h"
#include "support/metamethods.h"
#include "support/stricttest.h"

#include <printpanels/printwidget.h>

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QFrame>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QSpinBox>

#include <type_traits>

/** Construction, names, style sheet, meta-object, modules, buttons, user background, show signal.
 */
class tst_PanelInterface : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void everyPartHasItsName_data();
    void everyPartHasItsName();
    void overridesEveryVirtualOperation();
    void publicOperationsHaveTheirSignatures();
    void metaObjectTable();
    void methodOffsets();
    void aPublicSlotCanBeConnectedByText();

    void theHostMayHoldItThroughTheInterface();
};

void tst_PanelInterface::everyPartHasItsName_data()
{
    QTest::addColumn<QByteArray>("className");
    const auto row = [](const char* name, const char* className) {
        QTest::newRow(name) << QByteArray(className);
    };
    row("recordsFrame", "QFrame");
    row("currentRecordRadio", "QRadioButton");
    row("allRecordsRadio", "QRadioButton");
    row("recordListRadio", "QRadioButton");
    row("recordListEdit", "JxLineEdit");
    row("nupFrame", "QFrame");
    row("nupTitleLabel", "QLabel");
    row("replicatingRadio", "QRadioButton");
    row("sequencingRadio", "QRadioButton");
    row("replicatingIconLabel", "QLabel");
    row("sequencingIconLabel", "QLabel");
    row("copiesSpinBox", "JxSpinBox");
    row("plusButton", "DragScrollButton");
    row("minusButton", "DragScrollButton");
    row("locationLabel", "QLabel");
    row("statusLabel", "QLabel");
    row("ammoniaWidget", "QFrame");
    row("ammoniaSeparator", "QFrame");
    row("supplyInfoWidget", "QFrame");
    row("colorTabBar", "ExpandingTabBar");
    row("colorStack", "QStackedWidget");
    row("ribbon1Menu", "ColorMenu");
    row("ribbon2Menu", "ColorMenu");
    row("supplyMenu", "ColorMenu");
    row("tinyLadderCheck", "QCheckBox");
    row("supplyWidthEdit", "JxLineEdit");
    row("userBackgroundCheck", "QCheckBox");
    row("bottomSeparator", "QFrame");
    row("printToFileCheck", "QCheckBox");
    row("errorNumberSpinBox", "JxSpinBox");
    row("showErrorButton", "DragScrollButton");
    row("PrinterListCombo", "JxComboBox");
    row("PreferencesButton", "DragScrollButton");
    row("PrintButton", "DragScrollButton");
    row("PreviewButton", "DragScrollButton");
    row("AmmoniaPrintCombo", "JxComboBox");
    row("stackGroup", "DragScrollGroupBox");
}

void tst_PanelInterface::everyPartHasItsName()
{
    QFETCH(const QByteArray, className);
    PrintPanelFixture panel(true);
    panel.setModule(JxModuleInfo::PipeMarking);
    panel.showSupplyInfo({QStringLiteral("#000000")}, true, 1.0, 0, true);
    const QList<QWidget*> found =
        panel.findChildren<QWidget*>(QLatin1String(QTest::currentDataTag()));
    QCOMPARE(found.size(), 1);
    QVERIFY(found.first()->inherits(className.constData()));
}

void tst_PanelInterface::overridesEveryVirtualOperation()
{
    // The class of a member pointer is the class that declares the member.
    using Types = JxModuleInfo::JxModuleTypes;
    static_assert(
        std::is_same_v<decltype(&PrintWidget::setModule), void (PrintWidget::*)(const Types&)>);
    static_assert(
        std::is_same_v<decltype(&PrintWidget::disablePrintButtons), void (PrintWidget::*)()>);
    static_assert(
        std::is_same_v<decltype(&PrintWidget::disableAllButtons), void (PrintWidget::*)()>);
    static_assert(
        std::is_same_v<decltype(&PrintWidget::enablePrintButtons), void (PrintWidget::*)()>);
    static_assert(
        std::is_same_v<decltype(&PrintWidget::enableAllButtons), void (PrintWidget::*)()>);
    static_assert(
        std::is_same_v<decltype(&PrintWidget::setNumberOfCopies), void (PrintWidget::*)(int)>);
    static_assert(
        std::is_same_v<decltype(&PrintWidget::getNumberOfCopies), int (PrintWidget::*)()>);
    static_assert(
        std::is_same_v<decltype(&PrintWidget::setNupSeqRepVisible), void (PrintWidget::*)(bool)>);
    static_assert(
        std::is_same_v<decltype(&PrintWidget::setNupDynamicLength), void (PrintWidget::*)(bool)>);
    static_assert(
        std::is_same_v<decltype(&PrintWidget::getNupSeqRepOption), bool (PrintWidget::*)() const>);
    static_assert(std::is_same_v<decltype(&PrintWidget::updateListOfPrinters),
                                 void (PrintWidget::*)(const QStringList&, int)>);
    static_assert(std::is_same_v<decltype(&PrintWidget::addPrinterToList),
                                 void (PrintWidget::*)(const QString&, bool)>);
    static_assert(std::is_same_v<decltype(&PrintWidget::getSelectedPrinter),
                                 QString (PrintWidget::*)() const>);
    static_assert(std::is_same_v<decltype(&PrintWidget::setSelectedPrinter),
                                 void (PrintWidget::*)(const QString&)>);
    static_assert(
        std::is_same_v<decltype(&PrintWidget::isSupplyInfoVisible), bool (PrintWidget::*)() const>);
    static_assert(std::is_same_v<decltype(&PrintWidget::getPrintToFileEnabled),
                                 bool (PrintWidget::*)() const>);
    static_assert(std::is_same_v<decltype(&PrintWidget::hideSupplyInfo), void (PrintWidget::*)()>);
    static_assert(std::is_same_v<decltype(&PrintWidget::showSupplyInfo),
                                 void (PrintWidget::*)(const QStringList&, bool, double,
                                                       unsigned char, bool)>);
    static_assert(std::is_same_v<decltype(&PrintWidget::setColorPalette),
                                 void (PrintWidget::*)(const QStringList&, const QStringList&)>);
    static_assert(
        std::is_same_v<decltype(&PrintWidget::isTinySupply), bool (PrintWidget::*)() const>);
    static_assert(std::is_same_v<decltype(&PrintWidget::updateCurrentRangeIndex),
                                 void (PrintWidget::*)(int)>);
    static_assert(std::is_same_v<decltype(&PrintWidget::updatePrinterLocation),
                                 void (PrintWidget::*)(const QString&)>);
    static_assert(std::is_same_v<decltype(&PrintWidget::updatePrinterStatus),
                                 void (PrintWidget::*)(bool, bool, bool)>);
}

void tst_PanelInterface::publicOperationsHaveTheirSignatures()
{
    static_assert(std::is_constructible_v<PrintWidget, bool, QWidget*>);
    static_assert(!std::is_abstract_v<PrintWidget>);
    static_assert(
        std::is_same_v<decltype(&PrintWidget::setShowUserBackground), void (PrintWidget::*)(bool)>);
    static_assert(std::is_same_v<decltype(&PrintWidget::setPrintUserBackground),
                                 void (PrintWidget::*)(bool)>);
    static_assert(std::is_same_v<decltype(&PrintWidget::getPrintUserBackground),
                                 bool (PrintWidget::*)() const>);
    static_assert(std::is_invocable_v<decltype(&PrintWidget::whatToPrint), PrintWidget*, int&, int&,
                                      QString&>);
    static_assert(std::is_same_v<decltype(&PrintWidget::setRangeValues),
                                 void (PrintWidget::*)(int, int, bool)>);
    static_assert(std::is_same_v<decltype(&PrintWidget::listRangeParse), void (PrintWidget::*)()>);
    static_assert(
        std::is_same_v<decltype(&PrintWidget::createAmmoniaComboList), void (PrintWidget::*)()>);
    static_assert(
        std::is_same_v<decltype(&PrintWidget::createSupplyInfoLayout), void (PrintWidget::*)()>);
    static_assert(std::is_same_v<decltype(&PrintWidget::addMenuToStack),
                                 void (PrintWidget::*)(int, const QString&, const QString&,
                                                       const QString&, ColorMenu*)>);
    static_assert(std::is_same_v<decltype(&PrintWidget::updateColorSelection),
                                 void (PrintWidget::*)(int, const QString&, ColorMenu*)>);
    static_assert(
        std::is_same_v<decltype(&PrintWidget::setVisibleAmmoniaTag), void (PrintWidget::*)(int)>);
}

void tst_PanelInterface::metaObjectTable()
{
    const QStringList expected = {
        QStringLiteral("signal public void ammoniaPrintTagChanged(int data)"),
        QStringLiteral("signal public void testPrintError(int errorNumber)"),
        QStringLiteral("slot public void updateCurrentRangeIndex(int sequenceCurrent)"),
        QStringLiteral("slot public void setVisibleAmmoniaTag(int tag)"),
        QStringLiteral("slot public void updatePrinterLocation(QString location)"),
        QStringLiteral(
            "slot public void updatePrinterStatus(bool offline, bool remote, bool unavailable)"),
        QStringLiteral("slot private void printSlot()"),
        QStringLiteral("slot private void printPreviewSlot()"),
        QStringLiteral("slot private void recordsRadioChangedSlot()"),
        QStringLiteral("slot private void listRangeChanged()"),
        QStringLiteral("slot private void checkRange()"),
        QStringLiteral("slot private void currentPrinterSelectionChangedSlot(int printerIndex)"),
        QStringLiteral("slot private void ammoniaPrintComboChanged(int index)"),
        QStringLiteral("slot private void ribbon1ColorSelectionSlot(QString color)"),
        QStringLiteral("slot private void ribbon2ColorSelectionSlot(QString color)"),
        QStringLiteral("slot private void supplyColorSelectionSlot(QString color)"),
        QStringLiteral("slot private void supplyWidthEditedSlot()"),
        QStringLiteral("slot private void testErrorCodeSlot()")};
    QCOMPARE(ownMethods(PrintWidget::staticMetaObject), expected);
}

void tst_PanelInterface::methodOffsets()
{
    const QMetaObject& meta = PrintWidget::staticMetaObject;
    const int offset = PrintWidgetInterface::staticMetaObject.methodCount();
    QCOMPARE(meta.methodOffset(), offset);
    QCOMPARE(meta.methodCount() - offset, 18);
    QCOMPARE(meta.indexOfSignal("ammoniaPrintTagChanged(int)") - offset, 0);
    QCOMPARE(meta.indexOfSlot("updateCurrentRangeIndex(int)") - offset, 2);
    QCOMPARE(meta.indexOfSlot("testErrorCodeSlot()") - offset, 17);
    QCOMPARE(meta.propertyCount() - meta.propertyOffset(), 0);
}

void tst_PanelInterface::aPublicSlotCanBeConnectedByText()
{
    PrintPanelFixture panel(true);
    QSpinBox record;
    QVERIFY(
        connect(&record, SIGNAL(valueChanged(int)), &panel, SLOT(updateCurrentRangeIndex(int))));
    record.setValue(6);
    QCOMPARE(panel.keptRange(), qMakePair(7, 7));
}

void tst_PanelInterface::theHostMayHoldItThroughTheInterface()
{
    QWidget host;
    PrintWidgetInterface* panel = new PrintWidget(true, &host);
    panel->setNumberOfCopies(7);
    QCOMPARE(panel->getNumberOfCopies(), 7);
    panel->addPrinterToList(QStringLiteral("Press"), false);
    QCOMPARE(panel->getSelectedPrinter(), QStringLiteral("Press"));
    QCOMPARE(panel->isSupplyInfoVisible(), false);
    panel->showSupplyInfo({QStringLiteral("#ffffff")}, false, 4.0, 0, false);
    QCOMPARE(panel->isSupplyInfoVisible(), true);
}

QTEST_MAIN(tst_PanelInterface)
#include "tst_panelinterface.moc"
