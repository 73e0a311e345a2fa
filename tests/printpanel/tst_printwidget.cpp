#include "panelprobe.h"
#include "support/metamethods.h"
#include "support/stricttest.h"

#include <printpanels/printwidget.h>

#include <QtCore/QFile>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QFrame>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QSpinBox>

#include <type_traits>

/** Construction, names, style sheet, meta-object, modules, buttons, user background, show signal. */
class tst_PrintWidget : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void constructorNamesThePanelAndTakesTheParent();
    void styleSheetIsExact();
    void everyPartHasItsName_data();
    void everyPartHasItsName();
    void overridesEveryVirtualOperation();
    void publicOperationsHaveTheirSignatures();
    void metaObjectTable();
    void methodOffsets();
    void publicAndPrivateSlotsCanBeConnectedByText();

    void buttonsAtConstruction();
    void buttonsEnabling_data();
    void buttonsEnabling();

    void modulesThatChangeNothing_data();
    void modulesThatChangeNothing();
    void pipeMarkingHidesTheRecordsAndFillsTheAmmoniaFrame();
    void pipeMarkingTwiceDoublesNothing();
    void anotherModuleAfterPipeMarkingUndoesNothing();

    void userBackgroundStartsHiddenAndUnchecked();
    void userBackgroundIsShownAndHidden();
    void userBackgroundIsCheckedWhileHidden();
    void userBackgroundFollowsTheUser();

    void everyShowEmitsTheShowSignalOnce();
    void showSignalComesAfterTheBaseHandling();
    void aHiddenChildPanelEmitsWhenItsHostIsShown();
    void hostOperationsEmitNothing();
    void theHostMayHoldItThroughTheInterface();
};

void tst_PrintWidget::constructorNamesThePanelAndTakesTheParent()
{
    QWidget host;
    for (const bool printToFile : {false, true}) {
        const PrintWidget panel(printToFile, &host);
        QCOMPARE(panel.objectName(), QStringLiteral("PrintWidget"));
        QCOMPARE(panel.parentWidget(), &host);
        QVERIFY(!panel.isWindow());
    }
    QCOMPARE(PrintWidget(false, nullptr).parentWidget(), nullptr);
    QCOMPARE(PrintWidget::staticMetaObject.className(), "PrintWidget");
    QCOMPARE(PrintWidget::staticMetaObject.superClass(), &PrintWidgetInterface::staticMetaObject);
}

void tst_PrintWidget::styleSheetIsExact()
{
    QFile expected(QStringLiteral(EXPECTED_SHEETS "/printSettingsPanel.qss"));
    QVERIFY(expected.open(QIODevice::ReadOnly));
    const PrintWidget panel(false, nullptr);
    QCOMPARE(panel.styleSheet().size(), 2998);
    QCOMPARE(panel.styleSheet(), QString::fromUtf8(expected.readAll()));
}

void tst_PrintWidget::everyPartHasItsName_data()
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

void tst_PrintWidget::everyPartHasItsName()
{
    QFETCH(const QByteArray, className);
    PrintWidget panel(true, nullptr);
    panel.setModule(JxModuleInfo::PipeMarking);
    panel.showSupplyInfo({QStringLiteral("#000000")}, true, 1.0, 0, true);
    const QList<QWidget*> found =
        panel.findChildren<QWidget*>(QLatin1String(QTest::currentDataTag()));
    QCOMPARE(found.size(), 1);
    QVERIFY(found.first()->inherits(className.constData()));
}

void tst_PrintWidget::overridesEveryVirtualOperation()
{
    // The class of a member pointer is the class that declares the member.
    using Types = JxModuleInfo::JxModuleTypes;
    static_assert(std::is_same_v<decltype(&PrintWidget::setModule), void (PrintWidget::*)(const Types&)>);
    static_assert(std::is_same_v<decltype(&PrintWidget::disablePrintButtons), void (PrintWidget::*)()>);
    static_assert(std::is_same_v<decltype(&PrintWidget::disableAllButtons), void (PrintWidget::*)()>);
    static_assert(std::is_same_v<decltype(&PrintWidget::enablePrintButtons), void (PrintWidget::*)()>);
    static_assert(std::is_same_v<decltype(&PrintWidget::enableAllButtons), void (PrintWidget::*)()>);
    static_assert(std::is_same_v<decltype(&PrintWidget::setNumberOfCopies), void (PrintWidget::*)(int)>);
    static_assert(std::is_same_v<decltype(&PrintWidget::getNumberOfCopies), int (PrintWidget::*)()>);
    static_assert(std::is_same_v<decltype(&PrintWidget::setNupSeqRepVisible), void (PrintWidget::*)(bool)>);
    static_assert(std::is_same_v<decltype(&PrintWidget::setNupDynamicLength), void (PrintWidget::*)(bool)>);
    static_assert(std::is_same_v<decltype(&PrintWidget::getNupSeqRepOption), bool (PrintWidget::*)() const>);
    static_assert(std::is_same_v<decltype(&PrintWidget::updateListOfPrinters), void (PrintWidget::*)(const QStringList&, int)>);
    static_assert(std::is_same_v<decltype(&PrintWidget::addPrinterToList), void (PrintWidget::*)(const QString&, bool)>);
    static_assert(std::is_same_v<decltype(&PrintWidget::getSelectedPrinter), QString (PrintWidget::*)() const>);
    static_assert(std::is_same_v<decltype(&PrintWidget::setSelectedPrinter), void (PrintWidget::*)(const QString&)>);
    static_assert(std::is_same_v<decltype(&PrintWidget::isSupplyInfoVisible), bool (PrintWidget::*)() const>);
    static_assert(std::is_same_v<decltype(&PrintWidget::getPrintToFileEnabled), bool (PrintWidget::*)() const>);
    static_assert(std::is_same_v<decltype(&PrintWidget::hideSupplyInfo), void (PrintWidget::*)()>);
    static_assert(std::is_same_v<decltype(&PrintWidget::showSupplyInfo), void (PrintWidget::*)(const QStringList&, bool, double, unsigned char, bool)>);
    static_assert(std::is_same_v<decltype(&PrintWidget::setColorPalette), void (PrintWidget::*)(const QStringList&, const QStringList&)>);
    static_assert(std::is_same_v<decltype(&PrintWidget::isTinySupply), bool (PrintWidget::*)() const>);
    static_assert(std::is_same_v<decltype(&PrintWidget::updateCurrentRangeIndex), void (PrintWidget::*)(int)>);
    static_assert(std::is_same_v<decltype(&PrintWidget::updatePrinterLocation), void (PrintWidget::*)(const QString&)>);
    static_assert(std::is_same_v<decltype(&PrintWidget::updatePrinterStatus), void (PrintWidget::*)(bool, bool, bool)>);
}

void tst_PrintWidget::publicOperationsHaveTheirSignatures()
{
    static_assert(std::is_constructible_v<PrintWidget, bool, QWidget*>);
    static_assert(!std::is_abstract_v<PrintWidget>);
    static_assert(std::is_same_v<decltype(&PrintWidget::setShowUserBackground), void (PrintWidget::*)(bool)>);
    static_assert(std::is_same_v<decltype(&PrintWidget::setPrintUserBackground), void (PrintWidget::*)(bool)>);
    static_assert(std::is_same_v<decltype(&PrintWidget::getPrintUserBackground), bool (PrintWidget::*)() const>);
    static_assert(std::is_invocable_v<decltype(&PrintWidget::whatToPrint), PrintWidget*, int&, int&, QString&>);
    static_assert(std::is_same_v<decltype(&PrintWidget::setRangeValues), void (PrintWidget::*)(int, int, bool)>);
    static_assert(std::is_same_v<decltype(&PrintWidget::listRangeParse), void (PrintWidget::*)()>);
    static_assert(std::is_same_v<decltype(&PrintWidget::createAmmoniaComboList), void (PrintWidget::*)()>);
    static_assert(std::is_same_v<decltype(&PrintWidget::createSupplyInfoLayout), void (PrintWidget::*)()>);
    static_assert(std::is_same_v<decltype(&PrintWidget::addMenuToStack), void (PrintWidget::*)(int, const QString&, const QString&, const QString&, ColorMenu*)>);
    static_assert(std::is_same_v<decltype(&PrintWidget::updateColorSelection), void (PrintWidget::*)(int, const QString&, ColorMenu*)>);
    static_assert(std::is_same_v<decltype(&PrintWidget::setVisibleAmmoniaTag), void (PrintWidget::*)(int)>);
}

void tst_PrintWidget::metaObjectTable()
{
    const QStringList expected = {
        QStringLiteral("signal public void ammoniaPrintTagChanged(int data)"),
        QStringLiteral("signal public void testPrintError(int errorNumber)"),
        QStringLiteral("slot public void updateCurrentRangeIndex(int sequenceCurrent)"),
        QStringLiteral("slot public void setVisibleAmmoniaTag(int tag)"),
        QStringLiteral("slot public void updatePrinterLocation(QString location)"),
        QStringLiteral("slot public void updatePrinterStatus(bool offline, bool remote, bool unavailable)"),
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

void tst_PrintWidget::methodOffsets()
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

void tst_PrintWidget::publicAndPrivateSlotsCanBeConnectedByText()
{
    PrintWidget panel(true, nullptr);
    QSpinBox record;
    QVERIFY(connect(&record, SIGNAL(valueChanged(int)), &panel, SLOT(updateCurrentRangeIndex(int))));
    record.setValue(6);
    QCOMPARE(keptRange(panel), qMakePair(7, 7));
}

void tst_PrintWidget::buttonsAtConstruction()
{
    const PrintWidget panel(false, nullptr);
    QVERIFY(!part<QPushButton>(panel, "PrintButton")->isEnabled());
    QVERIFY(!part<QPushButton>(panel, "PreviewButton")->isEnabled());
    QVERIFY(part<QPushButton>(panel, "PreferencesButton")->isEnabled());
}

void tst_PrintWidget::buttonsEnabling_data()
{
    QTest::addColumn<bool>("enabledBefore");
    QTest::addColumn<int>("operation");
    QTest::addColumn<bool>("requests");
    QTest::addColumn<bool>("preferences");

    QTest::newRow("enablePrintButtons leaves preferences disabled") << false << 0 << true << false;
    QTest::newRow("enableAllButtons") << false << 1 << true << true;
    QTest::newRow("disablePrintButtons leaves preferences enabled") << true << 2 << false << true;
    QTest::newRow("disableAllButtons") << true << 3 << false << false;
    QTest::newRow("enablePrintButtons again") << true << 0 << true << true;
    QTest::newRow("disableAllButtons again") << false << 3 << false << false;
}

void tst_PrintWidget::buttonsEnabling()
{
    QFETCH(const bool, enabledBefore);
    QFETCH(const int, operation);
    using Operation = void (PrintWidgetInterface::*)();
    const Operation operations[] = {
        &PrintWidgetInterface::enablePrintButtons, &PrintWidgetInterface::enableAllButtons,
        &PrintWidgetInterface::disablePrintButtons, &PrintWidgetInterface::disableAllButtons};

    PrintWidget panel(false, nullptr);
    enabledBefore ? panel.enableAllButtons() : panel.disableAllButtons();
    (panel.*operations[operation])();
    QTEST(part<QPushButton>(panel, "PrintButton")->isEnabled(), "requests");
    QTEST(part<QPushButton>(panel, "PreviewButton")->isEnabled(), "requests");
    QTEST(part<QPushButton>(panel, "PreferencesButton")->isEnabled(), "preferences");
}

void tst_PrintWidget::modulesThatChangeNothing_data()
{
    QTest::addColumn<int>("module");
    QTest::newRow("Unspecified") << 0;
    QTest::newRow("JxLabelEditor") << 1;
    QTest::newRow("GHS") << 2;
    QTest::newRow("ArcFlashMain") << 3;
    QTest::newRow("NFPAMain") << 5;
    QTest::newRow("JxCatalog") << 6;
    QTest::newRow("QuickPrint") << 7;
    QTest::newRow("PDFViewer") << 8;
    QTest::newRow("JavaScript") << 9;
    QTest::newRow("GraphicsViewer") << 10;
    QTest::newRow("no module of the host: 11") << 11;
    QTest::newRow("no module of the host: -1") << -1;
}

void tst_PrintWidget::modulesThatChangeNothing()
{
    QFETCH(const int, module);
    PrintWidget panel(true, nullptr);
    const QStringList before = stateOf(panel);
    panel.setModule(static_cast<JxModuleInfo::JxModuleTypes>(module));
    QCOMPARE(stateOf(panel), before);
    QVERIFY(!part<QFrame>(panel, "recordsFrame")->isHidden());
    QCOMPARE(part<QComboBox>(panel, "AmmoniaPrintCombo"), nullptr);
}

void tst_PrintWidget::pipeMarkingHidesTheRecordsAndFillsTheAmmoniaFrame()
{
    PrintWidget panel(false, nullptr);
    panel.setModule(static_cast<JxModuleInfo::JxModuleTypes>(4));
    QVERIFY(part<QFrame>(panel, "recordsFrame")->isHidden());
    QVERIFY(part<QFrame>(panel, "ammoniaWidget")->isHidden());
    QVERIFY(part<QFrame>(panel, "ammoniaSeparator")->isHidden());
    QVERIFY(part<QFrame>(panel, "ammoniaWidget")
                ->isAncestorOf(part<QComboBox>(panel, "AmmoniaPrintCombo")));
}

void tst_PrintWidget::pipeMarkingTwiceDoublesNothing()
{
    PrintWidget panel(false, nullptr);
    panel.setModule(JxModuleInfo::PipeMarking);
    const QStringList once = stateOf(panel);
    panel.setModule(JxModuleInfo::PipeMarking);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QStringList twice = stateOf(panel);
    QCOMPARE(twice.size(), once.size());
    twice.sort();
    QStringList expected = once;
    expected.sort();
    QCOMPARE(twice, expected);
}

void tst_PrintWidget::anotherModuleAfterPipeMarkingUndoesNothing()
{
    PrintWidget panel(false, nullptr);
    panel.setModule(JxModuleInfo::PipeMarking);
    const QStringList before = stateOf(panel);
    panel.setModule(JxModuleInfo::GHS);
    QCOMPARE(stateOf(panel), before);
}

void tst_PrintWidget::userBackgroundStartsHiddenAndUnchecked()
{
    PrintWidget panel(false, nullptr);
    auto* check = part<QCheckBox>(panel, "userBackgroundCheck");
    QCOMPARE(check->text(), QStringLiteral("Print User Background"));
    QVERIFY(check->isHidden());
    QVERIFY(!panel.getPrintUserBackground());
    QVERIFY(showPanel(panel));
    QVERIFY(!check->isVisible());
}

void tst_PrintWidget::userBackgroundIsShownAndHidden()
{
    PrintWidget panel(false, nullptr);
    auto* check = part<QCheckBox>(panel, "userBackgroundCheck");
    panel.setShowUserBackground(true);
    QVERIFY(!check->isHidden());
    panel.setShowUserBackground(false);
    QVERIFY(check->isHidden());
    QVERIFY(showPanel(panel));
    panel.setShowUserBackground(true);
    QVERIFY(check->isVisible());
    QVERIFY(!check->isWindow());
}

void tst_PrintWidget::userBackgroundIsCheckedWhileHidden()
{
    PrintWidget panel(false, nullptr);
    panel.setPrintUserBackground(true);
    QVERIFY(panel.getPrintUserBackground());
    QVERIFY(part<QCheckBox>(panel, "userBackgroundCheck")->isChecked());
    QVERIFY(part<QCheckBox>(panel, "userBackgroundCheck")->isHidden());
    panel.setShowUserBackground(true);
    QVERIFY(panel.getPrintUserBackground());
    panel.setPrintUserBackground(false);
    QVERIFY(!panel.getPrintUserBackground());
}

void tst_PrintWidget::userBackgroundFollowsTheUser()
{
    PrintWidget panel(false, nullptr);
    panel.setShowUserBackground(true);
    QVERIFY(showPanel(panel));
    clickOn(part<QCheckBox>(panel, "userBackgroundCheck"));
    QVERIFY(panel.getPrintUserBackground());
    clickOn(part<QCheckBox>(panel, "userBackgroundCheck"));
    QVERIFY(!panel.getPrintUserBackground());
}

void tst_PrintWidget::everyShowEmitsTheShowSignalOnce()
{
    PrintWidget panel(false, nullptr);
    const QSignalSpy shown(&panel, SIGNAL(printWidgetShowSignal()));
    panel.setShowUserBackground(true);
    QCOMPARE(shown.size(), 0);
    for (int show = 1; show <= 3; ++show) {
        QVERIFY(showPanel(panel));
        QCOMPARE(shown.size(), show);
        panel.show();
        QCOMPARE(shown.size(), show);
        panel.hide();
        QCOMPARE(shown.size(), show);
    }
}

void tst_PrintWidget::showSignalComesAfterTheBaseHandling()
{
    PrintWidget panel(false, nullptr);
    bool visibleThen = false;
    connect(&panel, &PrintWidgetInterface::printWidgetShowSignal, this,
            [&] { visibleThen = panel.isVisible(); });
    panel.show();
    QVERIFY(visibleThen);
}

void tst_PrintWidget::aHiddenChildPanelEmitsWhenItsHostIsShown()
{
    QWidget host;
    auto* panel = new PrintWidget(false, &host);
    (new QHBoxLayout(&host))->addWidget(panel);
    const QSignalSpy shown(panel, SIGNAL(printWidgetShowSignal()));
    QVERIFY(showPanel(host));
    QCOMPARE(shown.size(), 1);
    host.hide();
    QVERIFY(showPanel(host));
    QCOMPARE(shown.size(), 2);
}

void tst_PrintWidget::hostOperationsEmitNothing()
{
    PrintWidget panel(true, nullptr);
    QList<QSharedPointer<QSignalSpy>> spies;
    const QMetaObject* meta = panel.metaObject();
    for (int i = QWidget::staticMetaObject.methodCount(); i < meta->methodCount(); ++i) {
        if (meta->method(i).methodType() == QMetaMethod::Signal)
            spies.append(QSharedPointer<QSignalSpy>::create(&panel, meta->method(i)));
    }
    QCOMPARE(spies.size(), 12);

    const QStringList names = {QStringLiteral("one"), QStringLiteral("two")};
    panel.setModule(JxModuleInfo::PipeMarking);
    panel.updateListOfPrinters(names, 1);
    panel.addPrinterToList(QStringLiteral("three"), true);
    panel.setSelectedPrinter(names.first());
    panel.updatePrinterStatus(true, true, true);
    panel.updatePrinterLocation(QStringLiteral("Hall 2"));
    panel.setNumberOfCopies(12);
    panel.setRangeValues(3, 9, true);
    panel.updateCurrentRangeIndex(4);
    panel.setNupSeqRepVisible(true);
    panel.setNupDynamicLength(true);
    panel.setVisibleAmmoniaTag(15);
    panel.setVisibleAmmoniaTag(3);
    panel.showSupplyInfo({QStringLiteral("#dc0b0b"), QStringLiteral("#ffffff")}, false, 4.0, 1, true);
    panel.showSupplyInfo({QStringLiteral("#dc0b0b"), QStringLiteral("#ffffff")}, true, 4.0, 0, true);
    panel.setColorPalette({QStringLiteral("#0018a8")}, {QStringLiteral("#ffffff")});
    panel.hideSupplyInfo();
    panel.setShowUserBackground(true);
    panel.setPrintUserBackground(true);
    panel.enableAllButtons();
    panel.disableAllButtons();
    for (const QSharedPointer<QSignalSpy>& spy : std::as_const(spies))
        QVERIFY2(spy->isEmpty(), spy->signal().constData());
}

void tst_PrintWidget::theHostMayHoldItThroughTheInterface()
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

QTEST_MAIN(tst_PrintWidget)
#include "tst_printwidget.moc"
