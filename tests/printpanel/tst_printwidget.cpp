// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "panelprobe.h"
#include "support/layoutdescription.h"
#include "support/stricttest.h"

#include <applicationfont.h>
#include <printpanels/printwidget.h>

#include <QtCore/QFile>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QFrame>
#include <QtWidgets/QHBoxLayout>
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
    QFile expected(QStringLiteral(EXPECTED_SHEETS "/printSettingsPanel.qss"));
    QVERIFY(expected.open(QIODevice::ReadOnly));
    const PrintWidget panel(false, nullptr);
    QCOMPARE(panel.styleSheet().size(), 2998);
    QCOMPARE(panel.styleSheet(), QString::fromUtf8(expected.readAll()));
}

// The sheets make push buttons bold, so family and size are compared.
void tst_PrintWidget::everyTextHasThePanelsFont()
{
    PrintWidget panel(true, nullptr);
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
                               layoutHolding(panel.layout(), part<QLabel>(panel, "statusLabel"));
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
    // The highest value that the enumeration's bits can hold.
    QTest::newRow("no module of the host: 15") << 15;
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
