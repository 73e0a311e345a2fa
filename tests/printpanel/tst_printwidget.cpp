// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "printpanelfixture.h"
#include "support/expectedsheet.h"
#include "support/layoutdescription.h"
#include "support/stricttest.h"

#include <applicationfont.h>
#include <printpanels/printwidget.h>

#include <QtTest/QSignalSpy>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QFrame>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSpinBox>

/** Construction, names, style sheet, meta-object, modules, buttons, user background, show signal.
 */
class tst_PrintWidget : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void constructorNamesThePanelAndTakesTheParent();
    void styleSheetIsExact();
    void everyTextHasThePanelsFont();

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
    void aHiddenChildPanelEmitsWhenItsHostIsShown();
    void hostOperationsEmitNothing();
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
    const PrintPanelFixture panel;
    QCOMPARE(panel.styleSheet().size(), 2998);
    QCOMPARE(panel.styleSheet(), expectedSheet("printSettingsPanel"));
}

// The sheets make push buttons bold, so family and size are compared.
void tst_PrintWidget::everyTextHasThePanelsFont()
{
    PrintPanelFixture panel(true);
    panel.setModule(JxModuleInfo::PipeMarking);
    panel.createSupplyInfoLayout();
    const QList<QWidget*> children = panel.findChildren<QWidget*>();
    int compared = 0;
    for (const QWidget* child : children) {
        const auto* button = qobject_cast<const QAbstractButton*>(child);
        const auto* label = qobject_cast<const QLabel*>(child);
        const bool hasText = (button && !button->text().isEmpty()) ||
                             (label && !label->text().isEmpty()) ||
                             qobject_cast<const QComboBox*>(child) ||
                             qobject_cast<const QSpinBox*>(child) || child->inherits("JxLineEdit");
        if (!hasText)
            continue;
        const bool small = label && layoutHolding(panel.layout(), label) &&
                           layoutHolding(panel.layout(), label) ==
                               layoutHolding(panel.layout(), panel.part<QLabel>("statusLabel"));
        const QFont expected = small ? ApplicationFont::getWidgetFontSmall(false)
                                     : ApplicationFont::getWidgetFont(true);
        const QByteArray name = (child->objectName() + child->property("text").toString()).toUtf8();
        QVERIFY2(child->font().family() == expected.family(), name.constData());
        QVERIFY2(child->font().pixelSize() == expected.pixelSize(), name.constData());
        ++compared;
    }
    // 11 labels, 9 buttons, 2 combo boxes, 2 spin boxes and 2 line edits.
    QCOMPARE(compared, 26);
}

void tst_PrintWidget::buttonsAtConstruction()
{
    const PrintPanelFixture panel;
    QVERIFY(!panel.part<QPushButton>("PrintButton")->isEnabled());
    QVERIFY(!panel.part<QPushButton>("PreviewButton")->isEnabled());
    QVERIFY(panel.part<QPushButton>("PreferencesButton")->isEnabled());
}

void tst_PrintWidget::buttonsEnabling_data()
{
    addColumns<bool, int, bool, bool>("enabledBefore", "operation", "requests", "preferences");

    addRow("enablePrintButtons leaves preferences disabled", false, 0, true, false);
    addRow("enableAllButtons", false, 1, true, true);
    addRow("disablePrintButtons leaves preferences enabled", true, 2, false, true);
    addRow("disableAllButtons", true, 3, false, false);
    addRow("enablePrintButtons again", true, 0, true, true);
    addRow("disableAllButtons again", false, 3, false, false);
}

void tst_PrintWidget::buttonsEnabling()
{
    QFETCH(const bool, enabledBefore);
    QFETCH(const int, operation);
    using Operation = void (PrintWidgetInterface::*)();
    const Operation operations[] = {
        &PrintWidgetInterface::enablePrintButtons, &PrintWidgetInterface::enableAllButtons,
        &PrintWidgetInterface::disablePrintButtons, &PrintWidgetInterface::disableAllButtons};

    PrintPanelFixture panel;
    enabledBefore ? panel.enableAllButtons() : panel.disableAllButtons();
    (panel.*operations[operation])();
    QTEST(panel.part<QPushButton>("PrintButton")->isEnabled(), "requests");
    QTEST(panel.part<QPushButton>("PreviewButton")->isEnabled(), "requests");
    QTEST(panel.part<QPushButton>("PreferencesButton")->isEnabled(), "preferences");
}

void tst_PrintWidget::modulesThatChangeNothing_data()
{
    QTest::addColumn<int>("module");
    addRow("Unspecified", 0);
    addRow("JxLabelEditor", 1);
    addRow("GHS", 2);
    addRow("ArcFlashMain", 3);
    addRow("NFPAMain", 5);
    addRow("JxCatalog", 6);
    addRow("QuickPrint", 7);
    addRow("PDFViewer", 8);
    addRow("JavaScript", 9);
    addRow("GraphicsViewer", 10);
    addRow("no module of the host: 11", 11);
    // The highest value that the enumeration's bits can hold.
    addRow("no module of the host: 15", 15);
}

void tst_PrintWidget::modulesThatChangeNothing()
{
    QFETCH(const int, module);
    PrintPanelFixture panel(true);
    const QStringList before = stateOf(panel);
    panel.setModule(static_cast<JxModuleInfo::JxModuleTypes>(module));
    QCOMPARE(stateOf(panel), before);
    QVERIFY(!panel.part<QFrame>("recordsFrame")->isHidden());
    QCOMPARE(panel.part<QComboBox>("AmmoniaPrintCombo"), nullptr);
}

void tst_PrintWidget::pipeMarkingHidesTheRecordsAndFillsTheAmmoniaFrame()
{
    PrintPanelFixture panel;
    panel.setModule(static_cast<JxModuleInfo::JxModuleTypes>(4));
    QVERIFY(panel.part<QFrame>("recordsFrame")->isHidden());
    QVERIFY(panel.part<QFrame>("ammoniaWidget")->isHidden());
    QVERIFY(panel.part<QFrame>("ammoniaSeparator")->isHidden());
    QVERIFY(panel.part<QFrame>("ammoniaWidget")
                ->isAncestorOf(panel.part<QComboBox>("AmmoniaPrintCombo")));
}

void tst_PrintWidget::pipeMarkingTwiceDoublesNothing()
{
    PrintPanelFixture panel;
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
    PrintPanelFixture panel;
    panel.setModule(JxModuleInfo::PipeMarking);
    const QStringList before = stateOf(panel);
    panel.setModule(JxModuleInfo::GHS);
    QCOMPARE(stateOf(panel), before);
}

void tst_PrintWidget::userBackgroundStartsHiddenAndUnchecked()
{
    PrintPanelFixture panel;
    auto* check = panel.part<QCheckBox>("userBackgroundCheck");
    QCOMPARE(check->text(), QStringLiteral("Print User Background"));
    QVERIFY(check->isHidden());
    QVERIFY(!panel.getPrintUserBackground());
    QVERIFY(showPanel(panel));
    QVERIFY(!check->isVisible());
}

void tst_PrintWidget::userBackgroundIsShownAndHidden()
{
    PrintPanelFixture panel;
    auto* check = panel.part<QCheckBox>("userBackgroundCheck");
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
    PrintPanelFixture panel;
    panel.setPrintUserBackground(true);
    QVERIFY(panel.getPrintUserBackground());
    QVERIFY(panel.part<QCheckBox>("userBackgroundCheck")->isChecked());
    QVERIFY(panel.part<QCheckBox>("userBackgroundCheck")->isHidden());
    panel.setShowUserBackground(true);
    QVERIFY(panel.getPrintUserBackground());
    panel.setPrintUserBackground(false);
    QVERIFY(!panel.getPrintUserBackground());
}

void tst_PrintWidget::userBackgroundFollowsTheUser()
{
    PrintPanelFixture panel;
    panel.setShowUserBackground(true);
    QVERIFY(showPanel(panel));
    clickOn(panel.part<QCheckBox>("userBackgroundCheck"));
    QVERIFY(panel.getPrintUserBackground());
    clickOn(panel.part<QCheckBox>("userBackgroundCheck"));
    QVERIFY(!panel.getPrintUserBackground());
}

void tst_PrintWidget::everyShowEmitsTheShowSignalOnce()
{
    PrintPanelFixture panel;
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
    PrintPanelFixture panel(true);
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
    panel.showSupplyInfo({QStringLiteral("#dc0b0b"), QStringLiteral("#ffffff")}, false, 4.0, 1,
                         true);
    panel.showSupplyInfo({QStringLiteral("#dc0b0b"), QStringLiteral("#ffffff")}, true, 4.0, 0,
                         true);
    panel.setColorPalette({QStringLiteral("#0018a8")}, {QStringLiteral("#ffffff")});
    panel.hideSupplyInfo();
    panel.setShowUserBackground(true);
    panel.setPrintUserBackground(true);
    panel.enableAllButtons();
    panel.disableAllButtons();
    for (const QSharedPointer<QSignalSpy>& spy : std::as_const(spies))
        QVERIFY2(spy->isEmpty(), spy->signal().constData());
}

QTEST_MAIN(tst_PrintWidget)
#include "tst_printwidget.moc"
