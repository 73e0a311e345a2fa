// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "preview/referencecanvas.h"
#include "quickprintfixture.h"
#include "support/metamethods.h"
#include "support/stricttest.h"

#include <jxlineedit.h>
#include <jxspinbox.h>

#include <QtCore/QPointer>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QFrame>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

#include <limits>
#include <type_traits>

namespace {

/** A panel that counts its signals. */
class CountedPanel : public QuickPrintFixture
{
public:
    qsizetype total() const
    {
        return printed.size() + previewed.size() + moduleOpened.size() + resized.size();
    }

    QSignalSpy printed{this, &PrintWidgetInterface::widgetPrintSignal};
    QSignalSpy previewed{this, &PrintWidgetInterface::printPreviewSignal};
    QSignalSpy moduleOpened{this, &PrintWidgetInterface::openModuleSignal};
    QSignalSpy resized{this, &QuickPrintWidget::resizeSignal};
};

const QColor ground(Qt::magenta);

void click(QPushButton* button)
{
    QTest::mouseClick(button, Qt::LeftButton);
}

} // namespace

class tst_QuickPrintWidget : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void isAPanelWithItsOwnMetaObject();
    void metaObjectTable();
    void neverTakesTheParentItIsGiven_data();
    void neverTakesTheParentItIsGiven();
    void layoutOfTheHostBecomesTheParent();
    void stateAtTheStart();
    void resizeFrameIsForTwoModules_data();
    void resizeFrameIsForTwoModules();
    void resizeFrameComesAndGoesWithTheModule();
    void buttonsAreEnabledAndDisabled_data();
    void buttonsAreEnabledAndDisabled();
    void copiesAreClamped_data();
    void copiesAreClamped();
    void stepButtonsCountCopies();
    void heldStepButtonRepeats();
    void canvasSizeIsShownWithTwoDecimals_data();
    void canvasSizeIsShownWithTwoDecimals();
    void canvasSizeIsReadFromTheFields_data();
    void canvasSizeIsReadFromTheFields();
    void resizeReportsWhatWasTyped();
    void resizeReportsBadSizesToo();
    void printAsksForTheShownLabel_data();
    void printAsksForTheShownLabel();
    void openInEditorAsksForTheModule();
    void printerNameIsShownAsGiven_data();
    void printerNameIsShownAsGiven();
    void currentRecordChangesNothing();
    void operationsOfOtherPanelsDoNothing();
    void changesByTheHostAreNotReported();
    void placeholderIsWhite();
    void newImageIsFitted();
    void slotsCanBeCalledByName();
};

void tst_QuickPrintWidget::isAPanelWithItsOwnMetaObject()
{
    static_assert(std::is_base_of_v<PrintWidgetInterface, QuickPrintWidget>);
    static_assert(!std::is_copy_constructible_v<QuickPrintWidget>);
    QCOMPARE(QuickPrintWidget::staticMetaObject.className(), "QuickPrintWidget");
    QCOMPARE(QuickPrintWidget::staticMetaObject.superClass(),
             &PrintWidgetInterface::staticMetaObject);
}

void tst_QuickPrintWidget::metaObjectTable()
{
    const QStringList expected = {
        QStringLiteral("signal public void resizeSignal(QSizeF canvasSize)"),
        QStringLiteral("slot public void updateCurrentRangeIndex(int sequenceCurrent)"),
        QStringLiteral("slot public void printSlot()"),
        QStringLiteral("slot public void resizeSlot()")};
    const QMetaObject& meta = QuickPrintWidget::staticMetaObject;
    QCOMPARE(ownMethods(meta), expected);
    QCOMPARE(meta.propertyCount() - meta.propertyOffset(), 0);
    QCOMPARE(meta.constructorCount(), 0);
}

void tst_QuickPrintWidget::neverTakesTheParentItIsGiven_data()
{
    QTest::addColumn<bool>("quickPrint");
    addRow("false", false);
    addRow("true", true);
}

void tst_QuickPrintWidget::neverTakesTheParentItIsGiven()
{
    QFETCH(const bool, quickPrint);
    QWidget host;
    const QuickPrintFixture panel(quickPrint, &host);
    QCOMPARE(panel.parent(), nullptr);
    QVERIFY(host.children().isEmpty());
    QVERIFY(panel.isWindow());
    QCOMPARE(panel.windowFlags(), QWidget().windowFlags());
    // The bool is the host's own: the panel looks the same either way.
    const QuickPrintFixture other(!quickPrint, nullptr);
    QCOMPARE(other.parent(), nullptr);
    QCOMPARE(stateOf(other), stateOf(panel));
}

void tst_QuickPrintWidget::layoutOfTheHostBecomesTheParent()
{
    auto* host = new QWidget;
    const QPointer<QuickPrintFixture> panel = new QuickPrintFixture(true, host);
    (new QVBoxLayout(host))->addWidget(panel);
    QCOMPARE(panel->parentWidget(), host);
    host->show();
    QVERIFY(panel->isVisible());
    delete host;
    QVERIFY(panel.isNull());
}

void tst_QuickPrintWidget::stateAtTheStart()
{
    QuickPrintFixture panel;
    QCOMPARE(panel.objectName(), QStringLiteral("QuickPrintWidget"));
    QVERIFY(!panel.button("printButton")->isEnabled());
    QVERIFY(panel.button("openInEditorButton")->isEnabled());
    QVERIFY(panel.button("resizeButton")->isEnabled());
    QCOMPARE(panel.getNumberOfCopies(), 1);
    QCOMPARE(panel.nameLabel()->text(), QString());
    QCOMPARE(panel.lengthEdit()->text(), QString());
    QCOMPARE(panel.widthEdit()->text(), QString());
    QCOMPARE(panel.getCanvasSize(), QSizeF(-1.0, -1.0));
    QVERIFY(!panel.resizeFrame()->isHidden());
    panel.show();
    QVERIFY(panel.resizeFrame()->isVisible());
}

void tst_QuickPrintWidget::resizeFrameIsForTwoModules_data()
{
    addColumns<int, bool>("module", "visible");
    const char* const names[] = {"Unspecified", "JxLabelEditor", "GHS",           "ArcFlashMain",
                                 "PipeMarking", "NFPAMain",      "JxCatalog",     "QuickPrint",
                                 "PDFViewer",   "JavaScript",    "GraphicsViewer"};
    for (int module = 0; module < 11; ++module)
        QTest::newRow(names[module]) << module << (module == 6 || module == 9);
    addRow("beyond the last", 11, false);
    addRow("the highest that the type holds", 15, false);
}

void tst_QuickPrintWidget::resizeFrameIsForTwoModules()
{
    QFETCH(const int, module);
    QFETCH(const bool, visible);
    QuickPrintFixture panel;
    panel.setModule(JxModuleInfo::JxModuleTypes(module));
    QCOMPARE(panel.resizeFrame()->isHidden(), !visible);
    panel.show();
    QCOMPARE(panel.resizeFrame()->isVisible(), visible);
    QCOMPARE(panel.lengthEdit()->isVisible(), visible);
    QCOMPARE(panel.button("resizeButton")->isVisible(), visible);
    QVERIFY(panel.view()->isVisible());
}

void tst_QuickPrintWidget::resizeFrameComesAndGoesWithTheModule()
{
    QuickPrintFixture panel;
    panel.show();
    panel.setModule(JxModuleInfo::JxCatalog);
    QVERIFY(panel.resizeFrame()->isVisible());
    panel.setModule(JxModuleInfo::GHS);
    QVERIFY(!panel.resizeFrame()->isVisible());
    panel.setModule(JxModuleInfo::JavaScript);
    QVERIFY(panel.resizeFrame()->isVisible());
}

void tst_QuickPrintWidget::buttonsAreEnabledAndDisabled_data()
{
    using Operation = void (PrintWidgetInterface::*)();
    addColumns<Operation, bool, bool, bool>("operation", "before", "print", "open");
    using Panel = PrintWidgetInterface;
    addRow("enable print", Operation(&Panel::enablePrintButtons), false, true, false);
    addRow("enable all", Operation(&Panel::enableAllButtons), false, true, true);
    addRow("disable print", Operation(&Panel::disablePrintButtons), true, false, true);
    addRow("disable all", Operation(&Panel::disableAllButtons), true, false, false);
}

void tst_QuickPrintWidget::buttonsAreEnabledAndDisabled()
{
    using Operation = void (PrintWidgetInterface::*)();
    QFETCH(const Operation, operation);
    QFETCH(const bool, before);
    QuickPrintFixture panel;
    panel.button("printButton")->setEnabled(before);
    panel.button("openInEditorButton")->setEnabled(before);
    for (int round = 0; round < 2; ++round) {
        (panel.*operation)();
        QTEST(panel.button("printButton")->isEnabled(), "print");
        QTEST(panel.button("openInEditorButton")->isEnabled(), "open");
        QVERIFY(panel.button("resizeButton")->isEnabled());
    }
}

void tst_QuickPrintWidget::copiesAreClamped_data()
{
    addColumns<int, int>("given", "shown");
    addRow("0", 0, 1);
    addRow("1", 1, 1);
    addRow("17", 17, 17);
    addRow("999", 999, 999);
    addRow("1000", 1000, 999);
    addRow("1500", 1500, 999);
    addRow("-3", -3, 1);
    addRow("lowest", std::numeric_limits<int>::min(), 1);
    addRow("highest", std::numeric_limits<int>::max(), 999);
}

void tst_QuickPrintWidget::copiesAreClamped()
{
    QFETCH(const int, given);
    QuickPrintFixture panel;
    panel.setNumberOfCopies(given);
    QTEST(panel.getNumberOfCopies(), "shown");
    QTEST(panel.copies()->value(), "shown");
}

void tst_QuickPrintWidget::stepButtonsCountCopies()
{
    QuickPrintFixture panel;
    panel.show();
    click(panel.button("minusButton"));
    QCOMPARE(panel.getNumberOfCopies(), 1);
    click(panel.button("plusButton"));
    click(panel.button("plusButton"));
    QCOMPARE(panel.getNumberOfCopies(), 3);
    click(panel.button("minusButton"));
    QCOMPARE(panel.getNumberOfCopies(), 2);
    panel.setNumberOfCopies(998);
    click(panel.button("plusButton"));
    click(panel.button("plusButton"));
    QCOMPARE(panel.getNumberOfCopies(), 999);
}

void tst_QuickPrintWidget::heldStepButtonRepeats()
{
    QuickPrintFixture panel;
    panel.show();
    QPushButton* plus = panel.button("plusButton");
    plus->setAutoRepeatDelay(1);
    plus->setAutoRepeatInterval(1);
    QTest::mousePress(plus, Qt::LeftButton);
    QTRY_VERIFY(panel.getNumberOfCopies() >= 5);
    QTest::mouseRelease(plus, Qt::LeftButton);
    QVERIFY(panel.button("minusButton")->autoRepeat());
}

void tst_QuickPrintWidget::canvasSizeIsShownWithTwoDecimals_data()
{
    addColumns<QSizeF, QString, QString>("size", "length", "width");
    addRow("rounded", QSizeF(3.14159, 2), "3.14", "2.00");
    addRow("rounded up", QSizeF(9.996, 0.005001), "10.00", "0.01");
    addRow("no thousands separator", QSizeF(12345.6, 1e6), "12345.60", "1000000.00");
    addRow("invalid", QSizeF(), "-1.00", "-1.00");
    addRow(
        "no numbers",
        QSizeF(std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity()),
        "nan", "inf");
}

void tst_QuickPrintWidget::canvasSizeIsShownWithTwoDecimals()
{
    QFETCH(const QSizeF, size);
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German));
    QuickPrintFixture panel;
    panel.setCanvasSize(size);
    QLocale::setDefault(before);
    QTEST(panel.lengthEdit()->text(), "length");
    QTEST(panel.widthEdit()->text(), "width");
}

void tst_QuickPrintWidget::canvasSizeIsReadFromTheFields_data()
{
    addColumns<QString, double>("text", "expected");
    addRow("number", "2.5", 2.5);
    addRow("whole number", "7", 7.0);
    addRow("blanks around", " 3.25 ", 3.25);
    addRow("exponent", "1e2", 100.0);
    addRow("zero", "0", 0.0);
    addRow("negative", "-4.5", -4.5);
    addRow("empty", QString(), -1.0);
    addRow("letters", "abc", -1.0);
    addRow("comma", "1,5", -1.0);
    addRow("thousands separator", "1,000", -1.0);
    addRow("unit", "4 in", -1.0);
    addRow("two numbers", "1 2", -1.0);
    addRow("too large for a number", "1e999", -1.0);
    addRow("long nonsense", QString(30000, u'x'), -1.0);
}

void tst_QuickPrintWidget::canvasSizeIsReadFromTheFields()
{
    QFETCH(const QString, text);
    QFETCH(const double, expected);
    QuickPrintFixture panel;
    panel.setCanvasSize(QSizeF(6, 3));
    panel.lengthEdit()->setText(text);
    QCOMPARE(panel.getCanvasSize(), QSizeF(expected, 3.0));
    panel.setCanvasSize(QSizeF(6, 3));
    panel.widthEdit()->setText(text);
    QCOMPARE(panel.getCanvasSize(), QSizeF(6.0, expected));
}

void tst_QuickPrintWidget::resizeReportsWhatWasTyped()
{
    CountedPanel panel;
    panel.show();
    QTest::keyClicks(panel.lengthEdit(), QStringLiteral("4.25"));
    QTest::keyClicks(panel.widthEdit(), QStringLiteral("1.5"));
    QCOMPARE(panel.total(), 0);
    click(panel.button("resizeButton"));
    QCOMPARE(panel.total(), 1);
    QCOMPARE(panel.resized.size(), 1);
    QCOMPARE(panel.resized.last().first().toSizeF(), QSizeF(4.25, 1.5));
}

void tst_QuickPrintWidget::resizeReportsBadSizesToo()
{
    CountedPanel panel;
    panel.show();
    panel.setCanvasSize(QSizeF(3, 2));
    panel.lengthEdit()->clear();
    QTest::keyClicks(panel.lengthEdit(), QStringLiteral("abc"));
    QCOMPARE(panel.lengthEdit()->text(), QStringLiteral("abc"));
    click(panel.button("resizeButton"));
    QCOMPARE(panel.resized.last().first().toSizeF(), QSizeF(-1.0, 2.0));
    panel.widthEdit()->clear();
    panel.resizeSlot();
    QCOMPARE(panel.resized.size(), 2);
    QCOMPARE(panel.resized.last().first().toSizeF(), QSizeF(-1.0, -1.0));
}

void tst_QuickPrintWidget::printAsksForTheShownLabel_data()
{
    QTest::addColumn<int>("copies");
    for (const int copies : {1, 2, 999})
        QTest::addRow("%d copies", copies) << copies;
}

void tst_QuickPrintWidget::printAsksForTheShownLabel()
{
    QFETCH(const int, copies);
    CountedPanel panel;
    panel.show();
    panel.setNumberOfCopies(copies);
    panel.updateCurrentRangeIndex(4);
    click(panel.button("printButton"));
    QCOMPARE(panel.total(), 0);
    panel.enablePrintButtons();
    click(panel.button("printButton"));
    QCOMPARE(panel.total(), 1);
    QCOMPARE(panel.printed.size(), 1);
    QCOMPARE(panel.printed.last(), QVariantList({-1, -1, QString()}));
    panel.disableAllButtons();
    panel.printSlot();
    QCOMPARE(panel.printed.size(), 2);
    QCOMPARE(panel.printed.last(), QVariantList({-1, -1, QString()}));
}

void tst_QuickPrintWidget::openInEditorAsksForTheModule()
{
    CountedPanel panel;
    panel.show();
    click(panel.button("openInEditorButton"));
    QCOMPARE(panel.moduleOpened.size(), 1);
    QCOMPARE(panel.total(), 1);
    panel.disableAllButtons();
    click(panel.button("openInEditorButton"));
    QCOMPARE(panel.total(), 1);
}

void tst_QuickPrintWidget::printerNameIsShownAsGiven_data()
{
    QTest::addColumn<QString>("name");
    addRow("plain", "Label Printer 3");
    addRow("empty", QString());
    addRow("markup", "<b>Printer</b> <img src='x'>");
    addRow("ampersand", "Salt & Pepper");
    addRow("lines", "one\ntwo\nthree");
    addRow("place marker", "%1 %2");
}

void tst_QuickPrintWidget::printerNameIsShownAsGiven()
{
    QFETCH(const QString, name);
    QuickPrintFixture panel;
    panel.setCurrentPrinterName(QStringLiteral("another"));
    panel.setCurrentPrinterName(name);
    QCOMPARE(panel.nameLabel()->text(), name);
    QCOMPARE(panel.nameLabel()->textFormat(), Qt::PlainText);
    QVERIFY(panel.nameLabel()->wordWrap());
}

void tst_QuickPrintWidget::currentRecordChangesNothing()
{
    CountedPanel panel;
    const QStringList before = stateOf(panel);
    for (const int index : {0, 5, -1, std::numeric_limits<int>::max()})
        panel.updateCurrentRangeIndex(index);
    QCOMPARE(stateOf(panel), before);
    QCOMPARE(panel.total(), 0);
}

void tst_QuickPrintWidget::operationsOfOtherPanelsDoNothing()
{
    QuickPrintFixture quick;
    PrintWidgetInterface& panel = quick;
    const QStringList before = stateOf(quick);
    const QStringList names = {QStringLiteral("one"), QStringLiteral("two")};
    panel.setNupSeqRepVisible(true);
    panel.setNupDynamicLength(true);
    panel.updateListOfPrinters(names, 1);
    panel.addPrinterToList(names.first(), true);
    panel.setSelectedPrinter(names.first());
    panel.showSupplyInfo(names, true, 4.0, 1, true);
    panel.hideSupplyInfo();
    panel.setColorPalette(names, names);
    panel.updatePrinterLocation(names.first());
    panel.updatePrinterStatus(true, true, true);
    QCOMPARE(panel.getSelectedPrinter(), QString());
    QVERIFY(!panel.getNupSeqRepOption());
    QVERIFY(!panel.isSupplyInfoVisible());
    QVERIFY(!panel.getPrintToFileEnabled());
    QVERIFY(!panel.isTinySupply());
    QCOMPARE(stateOf(quick), before);
}

void tst_QuickPrintWidget::changesByTheHostAreNotReported()
{
    CountedPanel panel;
    panel.setModule(JxModuleInfo::JxCatalog);
    panel.setNumberOfCopies(7);
    panel.setCurrentPrinterName(QStringLiteral("Printer"));
    panel.setCanvasSize(QSizeF(2, 3));
    panel.updateQuickPrint(speckledImage(QSize(9, 9)));
    panel.enableAllButtons();
    panel.show();
    panel.hide();
    QCOMPARE(panel.total(), 0);
}

void tst_QuickPrintWidget::placeholderIsWhite()
{
    QuickPrintFixture panel;
    panel.view()->setFixedSize(200, 200);
    panel.show();
    QImage placeholder(30, 20, QImage::Format_ARGB32_Premultiplied);
    placeholder.fill(0xffffffff);
    ReferenceCanvas reference(placeholder, QSize(200, 200));
    reference.fit();
    const QImage drawn = drawnBy(*panel.view(), ground);
    QCOMPARE(drawn, reference.painted(ground));
    // 30 x 20 at 200 / 30 is 200 x 133, around the pixel (99, 99).
    QCOMPARE(drawn.pixelColor(99, 99), QColor(Qt::white));
    QCOMPARE(drawn.pixelColor(99, 30), ground);
    QCOMPARE(drawn.pixelColor(99, 35), QColor(Qt::white));
}

void tst_QuickPrintWidget::newImageIsFitted()
{
    QuickPrintFixture panel;
    panel.show();
    const QImage image = speckledImage(QSize(64, 30));
    panel.updateQuickPrint(image);
    ReferenceCanvas reference(image, panel.view()->size());
    reference.fit();
    QCOMPARE(drawnBy(*panel.view(), ground), reference.painted(ground));

    QVERIFY(turnWheel(*panel.view(), QPoint(0, 120)));
    reference.zoomIn();
    QCOMPARE(drawnBy(*panel.view(), ground), reference.painted(ground));
    panel.updateQuickPrint(image);
    reference.fit();
    QCOMPARE(drawnBy(*panel.view(), ground), reference.painted(ground));
}

void tst_QuickPrintWidget::slotsCanBeCalledByName()
{
    CountedPanel panel;
    QSignalSpy resized(&panel, SIGNAL(resizeSignal(QSizeF)));
    QVERIFY(resized.isValid());
    QVERIFY(QMetaObject::invokeMethod(&panel, "printSlot"));
    QCOMPARE(panel.printed.size(), 1);
    QVERIFY(QMetaObject::invokeMethod(&panel, "resizeSlot"));
    QCOMPARE(resized.size(), 1);
    QVERIFY(QMetaObject::invokeMethod(&panel, "updateCurrentRangeIndex", Q_ARG(int, 3)));
    QCOMPARE(panel.total(), 2);
}

QTEST_MAIN(tst_QuickPrintWidget)
#include "tst_quickprintwidget.moc"
