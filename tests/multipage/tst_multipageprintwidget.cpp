// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "multipagefixture.h"
#include "support/expectedsheet.h"
#include "support/metamethods.h"
#include "support/stricttest.h"

#include <applicationfont.h>
#include <printpanels/multipageprintwidget.h>

#include <QtCore/QMetaMethod>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>

#include <type_traits>

/** Construction, names, style sheet, fonts, meta-object, modules, buttons, focus and show signals.
 */
class tst_MultiPagePrintWidget : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void constructorNamesThePanelAndTakesTheParent();
    void bothFlagsChangeNothingButFitToPage();
    void styleSheetIsExact();
    void widthIsFixed();
    void everyPartHasItsName_data();
    void everyPartHasItsName();
    void fonts_data();
    void fonts();
    void stateAtConstruction();
    void overridesHaveTheirSignatures();
    void ownOperationsHaveTheirSignatures();
    void metaObjectTable();
    void methodOffsets();
    void onlyTheCallWithoutArgumentIsCloned();
    void parseAnswersThroughTheMetaObject();

    void buttonsEnabling_data();
    void buttonsEnabling();
    void modulesChangeNothing_data();
    void modulesChangeNothing();
    void operationsOfOtherPanelsDoNothing();

    void everyShowEmitsTheShowSignalOnce();
    void losingTheFocusEmitsFocusLost();
    void theHostMayHoldItThroughTheInterface();
};

void tst_MultiPagePrintWidget::constructorNamesThePanelAndTakesTheParent()
{
    QWidget host;
    const MultiPagePrintWidget panel(false, false, &host);
    QCOMPARE(panel.objectName(), QStringLiteral("MultiPagePrintWidget"));
    QCOMPARE(panel.parentWidget(), &host);
    QVERIFY(!panel.isWindow());
    QCOMPARE(MultiPagePrintWidget(false, false, nullptr).parentWidget(), nullptr);
    QCOMPARE(MultiPagePrintWidget::staticMetaObject.className(), "MultiPagePrintWidget");
    QCOMPARE(MultiPagePrintWidget::staticMetaObject.superClass(),
             &PrintWidgetInterface::staticMetaObject);
}

void tst_MultiPagePrintWidget::bothFlagsChangeNothingButFitToPage()
{
    for (const bool fit : {false, true}) {
        MultiPageFixture panel(fit);
        QCOMPARE(panel.check("fitToPageCheck")->isChecked(), fit);
        QCOMPARE(stateOf(panel), stateOf(MultiPagePrintWidget(fit, true, nullptr)));
        panel.check("fitToPageCheck")->setChecked(!fit);
        QCOMPARE(stateOf(panel), stateOf(MultiPagePrintWidget(!fit, false, nullptr)));
    }
}

void tst_MultiPagePrintWidget::styleSheetIsExact()
{
    const MultiPageFixture panel;
    QCOMPARE(panel.styleSheet().size(), 2537);
    QCOMPARE(panel.styleSheet(), expectedSheet("panel"));
}

void tst_MultiPagePrintWidget::widthIsFixed()
{
    MultiPageFixture panel;
    QCOMPARE(panel.minimumWidth(), 270);
    QCOMPARE(panel.maximumWidth(), 270);
    panel.resize(800, 600);
    QCOMPARE(panel.size(), QSize(270, 600));
}

void tst_MultiPagePrintWidget::everyPartHasItsName_data()
{
    QTest::addColumn<QByteArray>("className");
    const auto row = [](const char* name, const char* className) {
        QTest::newRow(name) << QByteArray(className);
    };
    row("PrinterListCombo", "JxComboBox");
    row("PreferencesButton", "QPushButton");
    row("orientationCheck", "QCheckBox");
    row("pageRangeFrame", "QFrame");
    row("currentPageRadio", "QRadioButton");
    row("allPagesRadio", "QRadioButton");
    row("selectionRadio", "QRadioButton");
    row("pageRangeButtonGroup", "QButtonGroup");
    row("pageListEdit", "JxLineEdit");
    row("copiesFrame", "QFrame");
    row("copiesEdit", "JxLineEdit");
    row("minusButton", "QPushButton");
    row("plusButton", "QPushButton");
    row("formFillCheck", "QCheckBox");
    row("fitToPageCheck", "QCheckBox");
    row("PrintButton", "QPushButton");
}

void tst_MultiPagePrintWidget::everyPartHasItsName()
{
    QFETCH(const QByteArray, className);
    const MultiPageFixture panel;
    const QList<QObject*> found =
        panel.findChildren<QObject*>(QLatin1String(QTest::currentDataTag()));
    QCOMPARE(found.size(), 1);
    QCOMPARE(found.first()->metaObject()->className(), className.constData());
}

void tst_MultiPagePrintWidget::fonts_data()
{
    QTest::addColumn<bool>("prominent");
    for (const char* label : {"Printer:", "Page Range:"})
        QTest::newRow(label) << false;
    for (const char* label : {"PRINT SETTINGS", "Copies:"})
        QTest::newRow(label) << true;
    for (const char* name : {"PrinterListCombo", "pageListEdit"})
        QTest::newRow(name) << false;
    for (const char* name : {"currentPageRadio", "allPagesRadio", "selectionRadio", "copiesEdit",
                             "formFillCheck", "fitToPageCheck", "orientationCheck", "PrintButton",
                             "PreferencesButton", "minusButton", "plusButton"})
        QTest::newRow(name) << true;
}

// Compared before the style sheet makes the buttons bold.
void tst_MultiPagePrintWidget::fonts()
{
    QFETCH(const bool, prominent);
    QVERIFY(ApplicationFont::getWidgetFont(true) != ApplicationFont::getWidgetFont(false));
    const MultiPageFixture panel;
    const QLatin1String tag(QTest::currentDataTag());
    const QWidget* widget = labelWithText(panel, tag);
    if (!widget)
        widget = panel.findChild<QWidget*>(tag);
    QVERIFY(widget);
    QCOMPARE(widget->font().pixelSize(), ApplicationFont::getWidgetFont(prominent).pixelSize());
    QCOMPARE(widget->font().family(), ApplicationFont::getWidgetFont(prominent).family());
}

void tst_MultiPagePrintWidget::stateAtConstruction()
{
    const MultiPageFixture panel;
    QVERIFY(panel.part<QAbstractButton>("currentPageRadio")->isChecked());
    QVERIFY(!panel.part<QAbstractButton>("allPagesRadio")->isChecked());
    QVERIFY(!panel.part<QAbstractButton>("selectionRadio")->isChecked());
    QVERIFY(!panel.pageList()->isEnabled());
    QCOMPARE(panel.pageList()->text(), QString());
    QVERIFY(!panel.part<QAbstractButton>("PrintButton")->isEnabled());
    QVERIFY(panel.part<QAbstractButton>("PreferencesButton")->isEnabled());
    QCOMPARE(panel.copiesEdit()->text(), QStringLiteral("1"));
    QVERIFY(panel.check("formFillCheck")->isChecked());
    QVERIFY(!panel.check("orientationCheck")->isChecked());
    for (const char* name : {"formFillCheck", "fitToPageCheck", "orientationCheck"})
        QVERIFY(!panel.check(name)->isHidden());
    QCOMPARE(panel.getSelectedPrinter(), QString());
    // Not hidden explicitly: it appears with the window that it is placed in.
    QVERIFY(!panel.testAttribute(Qt::WA_WState_ExplicitShowHide));
}

void tst_MultiPagePrintWidget::overridesHaveTheirSignatures()
{
    using Panel = MultiPagePrintWidget;
    static_assert(std::is_same_v<decltype(&Panel::setModule),
                                 void (Panel::*)(const JxModuleInfo::JxModuleTypes&)>);
    static_assert(std::is_same_v<decltype(&Panel::disablePrintButtons), void (Panel::*)()>);
    static_assert(std::is_same_v<decltype(&Panel::disableAllButtons), void (Panel::*)()>);
    static_assert(std::is_same_v<decltype(&Panel::enablePrintButtons), void (Panel::*)()>);
    static_assert(std::is_same_v<decltype(&Panel::enableAllButtons), void (Panel::*)()>);
    static_assert(std::is_same_v<decltype(&Panel::setNumberOfCopies), void (Panel::*)(int)>);
    static_assert(std::is_same_v<decltype(&Panel::getNumberOfCopies), int (Panel::*)()>);
    static_assert(std::is_same_v<decltype(&Panel::updateListOfPrinters),
                                 void (Panel::*)(const QStringList&, int)>);
    static_assert(std::is_same_v<decltype(&Panel::getSelectedPrinter), QString (Panel::*)() const>);
    static_assert(
        std::is_same_v<decltype(&Panel::setSelectedPrinter), void (Panel::*)(const QString&)>);
    static_assert(std::is_same_v<decltype(&Panel::updateCurrentRangeIndex), void (Panel::*)(int)>);
    // Kept from the interface.
    using Base = PrintWidgetInterface;
    static_assert(std::is_same_v<decltype(&Panel::getNupSeqRepOption), bool (Base::*)() const>);
    static_assert(
        std::is_same_v<decltype(&Panel::addPrinterToList), void (Base::*)(const QString&, bool)>);
    static_assert(
        std::is_same_v<decltype(&Panel::updatePrinterLocation), void (Base::*)(const QString&)>);
}

void tst_MultiPagePrintWidget::ownOperationsHaveTheirSignatures()
{
    using Panel = MultiPagePrintWidget;
    static_assert(std::is_constructible_v<Panel, bool, bool, QWidget*>);
    static_assert(!std::is_constructible_v<Panel, bool, QWidget*>);
    static_assert(!std::is_copy_constructible_v<Panel>);
    static_assert(std::is_same_v<decltype(&Panel::setFormFillOption), void (Panel::*)(bool, bool)>);
    static_assert(
        std::is_same_v<decltype(&Panel::set180OrientationVisible), void (Panel::*)(bool)>);
    static_assert(std::is_same_v<decltype(&Panel::setPageInfo), void (Panel::*)(int, int, bool)>);
    static_assert(std::is_same_v<decltype(&Panel::set180OrientationCheck), void (Panel::*)(bool)>);
    static_assert(std::is_same_v<decltype(&Panel::listRangeParse), bool (Panel::*)()>);
    static_assert(std::is_same_v<decltype(&Panel::recordsRadioChangedSlot), void (Panel::*)(bool)>);
    static_assert(std::is_same_v<decltype(&Panel::checkRangeUpdate), void (Panel::*)(bool)>);
}

void tst_MultiPagePrintWidget::metaObjectTable()
{
    const QStringList expected = {
        QStringLiteral("signal public void printFormFillChangedSignal(int formFillChecked)"),
        QStringLiteral("signal public void fitToPageChangedSignal(int fitToPageChecked)"),
        QStringLiteral("signal public void startPageChangedSignal(int startPage)"),
        QStringLiteral("signal public void orientationChangedSignal(int orientationFlipChecked)"),
        QStringLiteral("slot public void updateCurrentRangeIndex(int sequenceCurrent)"),
        QStringLiteral("slot public void set180OrientationCheck(bool orientation180)"),
        QStringLiteral("slot public void printSlot()"),
        QStringLiteral("slot public void currentPrinterSelectionChangedSlot(int index)"),
        QStringLiteral("slot public void recordsRadioChangedSlot(bool forceUpdate)"),
        QStringLiteral("slot public void recordsRadioChangedSlot()"),
        QStringLiteral("slot public void checkRangeUpdate(bool forceUpdate)"),
        QStringLiteral("slot public bool listRangeParse()"),
        QStringLiteral("slot public void decreaseCopyCount()"),
        QStringLiteral("slot public void increaseCopyCount()")};
    QCOMPARE(ownMethods(MultiPagePrintWidget::staticMetaObject), expected);
}

void tst_MultiPagePrintWidget::methodOffsets()
{
    const QMetaObject& meta = MultiPagePrintWidget::staticMetaObject;
    const int offset = PrintWidgetInterface::staticMetaObject.methodCount();
    QCOMPARE(meta.methodOffset(), offset);
    QCOMPARE(meta.methodCount() - offset, 14);
    QCOMPARE(meta.indexOfSignal("printFormFillChangedSignal(int)") - offset, 0);
    QCOMPARE(meta.indexOfSignal("orientationChangedSignal(int)") - offset, 3);
    QCOMPARE(meta.indexOfSlot("updateCurrentRangeIndex(int)") - offset, 4);
    QCOMPARE(meta.indexOfSlot("increaseCopyCount()") - offset, 13);
    QCOMPARE(meta.propertyCount() - meta.propertyOffset(), 0);
    QCOMPARE(meta.enumeratorCount() - meta.enumeratorOffset(), 0);
}

void tst_MultiPagePrintWidget::onlyTheCallWithoutArgumentIsCloned()
{
    const QMetaObject& meta = MultiPagePrintWidget::staticMetaObject;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        const QMetaMethod method = meta.method(i);
        QCOMPARE(bool(method.attributes() & QMetaMethod::Cloned),
                 method.methodSignature() == QByteArray("recordsRadioChangedSlot()"));
    }
}

void tst_MultiPagePrintWidget::parseAnswersThroughTheMetaObject()
{
    MultiPageFixture panel;
    panel.setPageInfo(1, 10, true);
    const QSignalBlocker quiet(panel.pageList());
    panel.pageList()->setText(QStringLiteral("7"));
    bool changed = false;
    QVERIFY(QMetaObject::invokeMethod(&panel, "listRangeParse", Q_RETURN_ARG(bool, changed)));
    QVERIFY(changed);
    QVERIFY(QMetaObject::invokeMethod(&panel, "listRangeParse", Q_RETURN_ARG(bool, changed)));
    QVERIFY(!changed);
}

void tst_MultiPagePrintWidget::buttonsEnabling_data()
{
    addColumns<int, bool>("operation", "enabled");
    addRow("enablePrintButtons", 0, true);
    addRow("enableAllButtons", 1, true);
    addRow("disablePrintButtons", 2, false);
    addRow("disableAllButtons", 3, false);
}

void tst_MultiPagePrintWidget::buttonsEnabling()
{
    QFETCH(const int, operation);
    QFETCH(const bool, enabled);
    using Operation = void (PrintWidgetInterface::*)();
    const Operation operations[] = {
        &PrintWidgetInterface::enablePrintButtons, &PrintWidgetInterface::enableAllButtons,
        &PrintWidgetInterface::disablePrintButtons, &PrintWidgetInterface::disableAllButtons};

    for (const bool before : {false, true}) {
        MultiPageFixture panel;
        QStringList expected = stateOf(panel);
        panel.part<QAbstractButton>("PrintButton")->setEnabled(before);
        (panel.*operations[operation])();
        QCOMPARE(panel.part<QAbstractButton>("PrintButton")->isEnabled(), enabled);
        // Nothing else follows, not even the settings button.
        panel.part<QAbstractButton>("PrintButton")->setEnabled(false);
        QCOMPARE(stateOf(panel), expected);
    }
}

void tst_MultiPagePrintWidget::modulesChangeNothing_data()
{
    QTest::addColumn<int>("module");
    for (int module = -1; module <= 11; ++module)
        QTest::addRow("%d", module) << module;
}

void tst_MultiPagePrintWidget::modulesChangeNothing()
{
    QFETCH(const int, module);
    MultiPageFixture panel;
    const QStringList before = stateOf(panel);
    panel.setModule(static_cast<JxModuleInfo::JxModuleTypes>(module));
    QCOMPARE(stateOf(panel), before);
}

void tst_MultiPagePrintWidget::operationsOfOtherPanelsDoNothing()
{
    MultiPageFixture panel;
    const QStringList before = stateOf(panel);
    panel.setNupSeqRepVisible(true);
    panel.setNupDynamicLength(true);
    panel.addPrinterToList(QStringLiteral("A"), true);
    panel.showSupplyInfo({QStringLiteral("#000000")}, true, 4.0, 1, true);
    panel.hideSupplyInfo();
    panel.setColorPalette({}, {});
    panel.updatePrinterLocation(QStringLiteral("here"));
    panel.updatePrinterStatus(true, true, true);
    QCOMPARE(stateOf(panel), before);
    QVERIFY(!panel.getNupSeqRepOption());
    QVERIFY(!panel.isSupplyInfoVisible());
    QVERIFY(!panel.getPrintToFileEnabled());
    QVERIFY(!panel.isTinySupply());
    QCOMPARE(panel.getSelectedPrinter(), QString());
}

void tst_MultiPagePrintWidget::everyShowEmitsTheShowSignalOnce()
{
    MultiPageFixture panel;
    QSignalSpy shown(&panel, &PrintWidgetInterface::printWidgetShowSignal);
    panel.show();
    QCOMPARE(shown.size(), 1);
    panel.hide();
    QCOMPARE(shown.size(), 1);
    panel.show();
    QCOMPARE(shown.size(), 2);
}

void tst_MultiPagePrintWidget::losingTheFocusEmitsFocusLost()
{
    QWidget window;
    auto* panel = new MultiPagePrintWidget(false, false, &window);
    auto* other = new QLineEdit(&window);
    QVERIFY(showActive(window));
    QSignalSpy lost(panel, &PrintWidgetInterface::focusLost);

    panel->setFocus();
    QCOMPARE(lost.size(), 0);
    other->setFocus();
    QCOMPARE(lost.size(), 1);

    part<QLineEdit>(*panel, "copiesEdit")->setFocus();
    QCOMPARE(lost.size(), 1);
    other->setFocus();
    QCOMPARE(lost.size(), 2);

    // The page list tells nobody.
    clickOn(part<QAbstractButton>(*panel, "selectionRadio"));
    part<QLineEdit>(*panel, "pageListEdit")->setFocus();
    QVERIFY(part<QLineEdit>(*panel, "pageListEdit")->hasFocus());
    other->setFocus();
    QCOMPARE(lost.size(), 2);
}

void tst_MultiPagePrintWidget::theHostMayHoldItThroughTheInterface()
{
    const QScopedPointer<PrintWidgetInterface> panel(new MultiPagePrintWidget(true, true, nullptr));
    panel->setModule(JxModuleInfo::PDFViewer);
    panel->updateListOfPrinters({QStringLiteral("A"), QStringLiteral("B")}, 1);
    QCOMPARE(panel->getSelectedPrinter(), QStringLiteral("B"));
    panel->setSelectedPrinter(QStringLiteral("A"));
    QCOMPARE(panel->getSelectedPrinter(), QStringLiteral("A"));
    panel->setNumberOfCopies(4);
    QCOMPARE(panel->getNumberOfCopies(), 4);
    panel->updateCurrentRangeIndex(6);
    panel->enableAllButtons();
    QSignalSpy printed(panel.data(), &PrintWidgetInterface::widgetPrintSignal);
    clickOn(part<QAbstractButton>(*panel, "PrintButton"));
    QCOMPARE(takeRequests(printed), QList<Request>({{7, 7, QString()}}));
}

QTEST_MAIN(tst_MultiPagePrintWidget)
#include "tst_multipageprintwidget.moc"
