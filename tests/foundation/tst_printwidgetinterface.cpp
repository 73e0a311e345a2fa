// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "plainpanel.h"
#include "support/metamethods.h"
#include "support/stricttest.h"

#include <QtCore/QPointer>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QFrame>
#include <QtWidgets/QVBoxLayout>

#include <type_traits>

class tst_PrintWidgetInterface : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void isAnAbstractWidget();
    void constructorPassesTheParentAndNoFlags();
    void optionalQueriesAnswerTheDefaults();
    void optionalCommandsDoNothing();
    void everyOperationIsVirtual();
    void slotsCalledByNameReachTheOverride();
    void metaObjectTable();
    void methodOffsetsAndCount();
    void printAndPreviewAreDistinctSignalsWithOneSignature();
    void signalsCanBeConnectedByText_data();
    void signalsCanBeConnectedByText();
    void separatorBarIsAGreyLine();
    void separatorBarHasNoParentUntilItIsInALayout();
    void separatorBarIsDrawnInItsGrey();
    void aPanelIsDeletedWithItsHost();
};

void tst_PrintWidgetInterface::isAnAbstractWidget()
{
    static_assert(std::is_base_of_v<QWidget, PrintWidgetInterface>);
    static_assert(std::is_abstract_v<PrintWidgetInterface>);
    static_assert(std::has_virtual_destructor_v<PrintWidgetInterface>);
    static_assert(!std::is_copy_constructible_v<PrintWidgetInterface>);
    QCOMPARE(PrintWidgetInterface::staticMetaObject.className(), "PrintWidgetInterface");
    QCOMPARE(PrintWidgetInterface::staticMetaObject.superClass(), &QWidget::staticMetaObject);
}

void tst_PrintWidgetInterface::constructorPassesTheParentAndNoFlags()
{
    QWidget host;
    for (const bool flag : {false, true}) {
        PlainPanel panel(flag, &host);
        QCOMPARE(panel.parentWidget(), &host);
        QCOMPARE(panel.windowFlags(), QWidget(&host).windowFlags());
        QVERIFY(panel.children().isEmpty());
        QCOMPARE(panel.layout(), nullptr);
    }
    QCOMPARE(PlainPanel().parentWidget(), nullptr);
}

void tst_PrintWidgetInterface::optionalQueriesAnswerTheDefaults()
{
    PlainPanel plain;
    const PrintWidgetInterface& panel = plain;
    QCOMPARE(panel.getNupSeqRepOption(), false);
    QCOMPARE(panel.getSelectedPrinter(), QString());
    QCOMPARE(panel.isSupplyInfoVisible(), false);
    QCOMPARE(panel.getPrintToFileEnabled(), false);
    QCOMPARE(panel.isTinySupply(), false);
}

void tst_PrintWidgetInterface::optionalCommandsDoNothing()
{
    PlainPanel plain;
    PrintWidgetInterface& panel = plain;
    const QStringList names = {QStringLiteral("one"), QStringLiteral("two")};
    panel.setNupSeqRepVisible(true);
    panel.setNupDynamicLength(true);
    panel.updateListOfPrinters(names, 1);
    panel.updateListOfPrinters({}, -7);
    panel.addPrinterToList(names.first(), true);
    panel.setSelectedPrinter(names.first());
    panel.showSupplyInfo(names, true, 4.0, 1, true);
    panel.showSupplyInfo({}, false, -1.0, 255, false);
    panel.setColorPalette(names, {});
    panel.hideSupplyInfo();
    panel.updatePrinterLocation(names.first());
    panel.updatePrinterStatus(true, true, true);
    QCOMPARE(panel.getSelectedPrinter(), QString());
    QCOMPARE(panel.isSupplyInfoVisible(), false);
    QCOMPARE(panel.getNupSeqRepOption(), false);
    QVERIFY(panel.children().isEmpty());
}

void tst_PrintWidgetInterface::everyOperationIsVirtual()
{
    FullPanel full;
    PrintWidgetInterface& panel = full;
    panel.setModule(JxModuleInfo::GHS);
    panel.disablePrintButtons();
    panel.disableAllButtons();
    panel.enablePrintButtons();
    panel.enableAllButtons();
    panel.setNumberOfCopies(3);
    QCOMPARE(panel.getNumberOfCopies(), 7);
    panel.setNupSeqRepVisible(true);
    panel.setNupDynamicLength(true);
    QVERIFY(panel.getNupSeqRepOption());
    panel.updateListOfPrinters({}, 0);
    panel.addPrinterToList({}, false);
    QCOMPARE(panel.getSelectedPrinter(), QStringLiteral("13"));
    panel.setSelectedPrinter({});
    QVERIFY(panel.isSupplyInfoVisible());
    QVERIFY(panel.getPrintToFileEnabled());
    panel.hideSupplyInfo();
    panel.showSupplyInfo({}, false, 0.0, 0, false);
    panel.setColorPalette({}, {});
    QVERIFY(panel.isTinySupply());
    panel.updateCurrentRangeIndex(0);
    panel.updatePrinterLocation({});
    panel.updatePrinterStatus(false, false, false);
    QCOMPARE(full.calls, 23);
}

void tst_PrintWidgetInterface::slotsCalledByNameReachTheOverride()
{
    PlainPanel panel;
    QVERIFY(QMetaObject::invokeMethod(&panel, "updateCurrentRangeIndex", Q_ARG(int, 41)));
    QCOMPARE(panel.current, 41);
    QVERIFY(QMetaObject::invokeMethod(&panel, "updatePrinterLocation", Q_ARG(QString, QString())));
    QVERIFY(QMetaObject::invokeMethod(&panel, "updatePrinterStatus", Q_ARG(bool, true),
                                      Q_ARG(bool, true), Q_ARG(bool, true)));
}

void tst_PrintWidgetInterface::metaObjectTable()
{
    const QStringList expected = {
        QStringLiteral("signal public void widgetPrintSignal(int sequenceStart, int sequenceEnd, "
                       "QString customRecordsList)"),
        QStringLiteral("signal public void printPreviewSignal(int sequenceStart, int sequenceEnd, "
                       "QString customRecordsList)"),
        QStringLiteral("signal public void openPreferencesSignal()"),
        QStringLiteral("signal public void currentPrinterSelectionChanged(QString printerName)"),
        QStringLiteral("signal public void openModuleSignal()"),
        QStringLiteral("signal public void focusLost()"),
        QStringLiteral("signal public void printWidgetShowSignal()"),
        QStringLiteral("signal public void supplyWidthChangedSignal(double width)"),
        QStringLiteral("signal public void supplyColorsChangedSignal(QStringList colors)"),
        QStringLiteral("signal public void tinyLadderSupplyChangedSignal(bool tinySupply)"),
        QStringLiteral("slot public void updateCurrentRangeIndex(int sequenceCurrent)"),
        QStringLiteral("slot public void updatePrinterLocation(QString)"),
        QStringLiteral("slot public void updatePrinterStatus(bool, bool, bool)")};
    QCOMPARE(ownMethods(PrintWidgetInterface::staticMetaObject), expected);
}

void tst_PrintWidgetInterface::methodOffsetsAndCount()
{
    const QMetaObject& meta = PrintWidgetInterface::staticMetaObject;
    const int offset = QWidget::staticMetaObject.methodCount();
    QCOMPARE(meta.methodOffset(), offset);
    QCOMPARE(meta.methodCount() - offset, 13);
    QCOMPARE(meta.indexOfSignal("widgetPrintSignal(int,int,QString)") - offset, 0);
    QCOMPARE(meta.indexOfSignal("tinyLadderSupplyChangedSignal(bool)") - offset, 9);
    QCOMPARE(meta.indexOfSlot("updateCurrentRangeIndex(int)") - offset, 10);
    QCOMPARE(meta.indexOfSlot("updatePrinterStatus(bool,bool,bool)") - offset, 12);
    QCOMPARE(meta.propertyCount() - meta.propertyOffset(), 0);
    QCOMPARE(meta.constructorCount(), 0);
}

void tst_PrintWidgetInterface::printAndPreviewAreDistinctSignalsWithOneSignature()
{
    PlainPanel panel;
    QSignalSpy printed(&panel, &PrintWidgetInterface::widgetPrintSignal);
    QSignalSpy previewed(&panel, &PrintWidgetInterface::printPreviewSignal);
    Q_EMIT panel.widgetPrintSignal(0, 0, QStringLiteral("1,4-5"));
    QCOMPARE(printed.size(), 1);
    QCOMPARE(previewed.size(), 0);
    Q_EMIT panel.printPreviewSignal(2, -1, QString());
    QCOMPARE(printed.size(), 1);
    QCOMPARE(previewed.size(), 1);
    QCOMPARE(printed.first(), QVariantList({0, 0, QStringLiteral("1,4-5")}));
    QCOMPARE(previewed.first(), QVariantList({2, -1, QString()}));
    static_assert(std::is_same_v<decltype(&PrintWidgetInterface::widgetPrintSignal),
                                 decltype(&PrintWidgetInterface::printPreviewSignal)>);
}

void tst_PrintWidgetInterface::signalsCanBeConnectedByText_data()
{
    QTest::addColumn<QByteArray>("signal");
    for (const char* signal :
         {SIGNAL(widgetPrintSignal(int, int, QString)),
          SIGNAL(printPreviewSignal(int, int, QString)), SIGNAL(openPreferencesSignal()),
          SIGNAL(currentPrinterSelectionChanged(QString)), SIGNAL(openModuleSignal()),
          SIGNAL(focusLost()), SIGNAL(printWidgetShowSignal()),
          SIGNAL(supplyWidthChangedSignal(double)), SIGNAL(supplyColorsChangedSignal(QStringList)),
          SIGNAL(tinyLadderSupplyChangedSignal(bool))})
        QTest::newRow(signal) << QByteArray(signal);
}

void tst_PrintWidgetInterface::signalsCanBeConnectedByText()
{
    QFETCH(const QByteArray, signal);
    PlainPanel panel;
    const QSignalSpy spy(&panel, signal.constData());
    QVERIFY(spy.isValid());
}

void tst_PrintWidgetInterface::separatorBarIsAGreyLine()
{
    PlainPanel panel;
    const QScopedPointer<QFrame> bar(panel.createSeparatorBar());
    QCOMPARE(bar->metaObject()->className(), "QFrame");
    QCOMPARE(bar->frameShape(), QFrame::HLine);
    QCOMPARE(bar->lineWidth(), 1);
    for (const QPalette::ColorGroup group :
         {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        const QBrush brush = bar->palette().brush(group, QPalette::WindowText);
        QCOMPARE(brush.style(), Qt::SolidPattern);
        QCOMPARE(brush.color(), QColor(198, 198, 198, 255));
    }
}

void tst_PrintWidgetInterface::separatorBarHasNoParentUntilItIsInALayout()
{
    PlainPanel panel;
    QFrame* bar = panel.createSeparatorBar();
    QPointer<QFrame> second = panel.createSeparatorBar();
    QVERIFY(bar != second);
    QCOMPARE(bar->parent(), nullptr);
    QVERIFY(panel.children().isEmpty());

    auto* layout = new QVBoxLayout(&panel);
    layout->addWidget(bar);
    QCOMPARE(bar->parent(), &panel);
    delete second;
}

void tst_PrintWidgetInterface::separatorBarIsDrawnInItsGrey()
{
    PlainPanel panel;
    auto* layout = new QVBoxLayout(&panel);
    layout->setContentsMargins(0, 0, 0, 0);
    QFrame* bar = panel.createSeparatorBar();
    layout->addWidget(bar);
    panel.resize(100, 20);
    QVERIFY(bar->sizeHint().height() <= 3);
    const QImage image = bar->grab().toImage();
    bool seen = false;
    for (int y = 0; y < image.height(); ++y)
        seen = seen || image.pixelColor(image.width() / 2, y) == QColor(198, 198, 198);
    QVERIFY(seen);
}

void tst_PrintWidgetInterface::aPanelIsDeletedWithItsHost()
{
    auto* host = new QWidget;
    const QPointer<PlainPanel> panel = new PlainPanel(false, host);
    const QPointer<QFrame> bar = panel->createSeparatorBar();
    (new QVBoxLayout(panel))->addWidget(bar);
    delete host;
    QVERIFY(panel.isNull());
    QVERIFY(bar.isNull());
}

QTEST_MAIN(tst_PrintWidgetInterface)
#include "tst_printwidgetinterface.moc"
