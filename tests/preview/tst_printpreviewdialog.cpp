// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "previewfixture.h"
#include "referencecanvas.h"
#include "support/metamethods.h"
#include "support/stricttest.h"

#include <containertitlebar.h>

#include <QtTest/QSignalSpy>
#include <QtWidgets/QButtonGroup>
#include <QtWidgets/QPushButton>

#include <limits>
#include <type_traits>

namespace {

const QColor grey(0xc2, 0xc1, 0xc1);

QVariantList request(int start, int end, const QString& list)
{
    return {start, end, list};
}

/** What the popup's canvas shows, on the grey that stands behind it. */
QImage shown(const PreviewFixture& popup)
{
    return popup.view()->grab().toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

} // namespace

class tst_PrintPreviewDialog : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void isAWidgetWithItsOwnMetaObject();
    void metaObjectTable();
    void orientationTip();
    void constructorPassesParentAndFlags_data();
    void constructorPassesParentAndFlags();
    void startsHiddenWithItsNameAndSize();
    void titleNamesTheSizes_data();
    void titleNamesTheSizes();
    void titleSurvivesAnyNumber_data();
    void titleSurvivesAnyNumber();
    void printHandsBackTheRange_data();
    void printHandsBackTheRange();
    void printDoesNotCloseThePopup();
    void disabledPrintButtonDoesNothingButPrintItselfDoes();
    void updateReplacesTheRangeAndTheTitle();
    void orientationAtConstruction_data();
    void orientationAtConstruction();
    void updateChecksTheOrientationWithoutNotifyingTheHost();
    void clickOnOrientationReportsItsId();
    void clickOnTheCheckedOrientationReportsAgain();
    void bothCloseControlsCloseAndThenEmit_data();
    void bothCloseControlsCloseAndThenEmit();
    void nothingElseReportsClosing();
    void popupCanBeShownAgainAfterClosing();
    void dragOfTheTitleBarMovesThePopup();
    void mouseMoveSlotPlacesThePopup();
    void placesBeyondAnyScreenKeepTheSize_data();
    void placesBeyondAnyScreenKeepTheSize();
    void slotsCanBeCalledByName();
    void zoomButtonsZoomTheView();
    void zoomInStopsAboveTheCeiling();
    void zoomFitAfterDraggingCentresAgain();
    void updateFitsAndCentresTheNewImage();
};

void tst_PrintPreviewDialog::isAWidgetWithItsOwnMetaObject()
{
    static_assert(std::is_base_of_v<QWidget, PrintPreviewDialog>);
    static_assert(!std::is_copy_constructible_v<PrintPreviewDialog>);
    QCOMPARE(PrintPreviewDialog::staticMetaObject.className(), "PrintPreviewDialog");
    QCOMPARE(PrintPreviewDialog::staticMetaObject.superClass(), &QWidget::staticMetaObject);
}

void tst_PrintPreviewDialog::metaObjectTable()
{
    const QStringList expected = {
        QStringLiteral(
            "signal public void previewPrintSignal(int sequenceStart, int sequenceEnd, QString "
            "recordList)"),
        QStringLiteral(
            "signal public void orientationChangedSignal(int orientationButtonSelected)"),
        QStringLiteral("signal public void popupHideSignal()"),
        QStringLiteral("slot public void enablePrintButton(bool state)"),
        QStringLiteral("slot public void print()"),
        QStringLiteral("slot public void zoomIn()"),
        QStringLiteral("slot public void zoomOut()"),
        QStringLiteral("slot public void zoomFit()"),
        QStringLiteral("slot public void mouseMoveSlot(int, int)")};
    const QMetaObject& meta = PrintPreviewDialog::staticMetaObject;
    QCOMPARE(ownMethods(meta), expected);
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 9);
    QCOMPARE(meta.propertyCount() - meta.propertyOffset(), 0);
    QCOMPARE(meta.constructorCount(), 0);
}

void tst_PrintPreviewDialog::orientationTip()
{
    QCOMPARE(PrintPreviewDialog::ORIENTATION_TIP, QStringLiteral("Switch Print Orientation"));
    const PreviewFixture popup;
    QCOMPARE(popup.button("portraitButton")->toolTip(), PrintPreviewDialog::ORIENTATION_TIP);
    QCOMPARE(popup.button("landscapeButton")->toolTip(), PrintPreviewDialog::ORIENTATION_TIP);
}

void tst_PrintPreviewDialog::constructorPassesParentAndFlags_data()
{
    QTest::addColumn<int>("flags");
    addRow("none", 0);
    addRow("frameless dialog", int(Qt::Dialog | Qt::FramelessWindowHint));
    addRow("tool", int(Qt::Tool | Qt::WindowStaysOnTopHint));
    addRow("popup", int(Qt::Popup));
}

void tst_PrintPreviewDialog::constructorPassesParentAndFlags()
{
    QFETCH(const int, flags);
    const Qt::WindowFlags windowFlags(flags);
    QWidget host;
    const PreviewFixture child(PopupContent(), &host, windowFlags);
    QCOMPARE(child.parentWidget(), &host);
    QCOMPARE(child.windowFlags(), QWidget(&host, windowFlags).windowFlags());
    const PreviewFixture alone(PopupContent(), nullptr, windowFlags);
    QCOMPARE(alone.parentWidget(), nullptr);
    QCOMPARE(alone.windowFlags(), QWidget(nullptr, windowFlags).windowFlags());
}

void tst_PrintPreviewDialog::startsHiddenWithItsNameAndSize()
{
    QWidget host;
    const PreviewFixture popup(PopupContent(), &host, Qt::WindowFlags());
    QCOMPARE(popup.objectName(), QStringLiteral("PrintPreviewDialog"));
    QCOMPARE(popup.size(), QSize(860, 500));
    QCOMPARE(popup.minimumSize(), QSize(860, 500));
    QCOMPARE(popup.maximumSize(), QSize(860, 500));
    // Hidden on purpose: it stays so when the host's window appears around it.
    host.show();
    QVERIFY(popup.isHidden());
    QVERIFY(popup.testAttribute(Qt::WA_WState_ExplicitShowHide));
}

void tst_PrintPreviewDialog::titleNamesTheSizes_data()
{
    addColumns<QSizeF, QSizeF, bool, bool, QString>("design", "printed", "printedOnly", "metric",
                                                    "title");
    addRow("inches, both", QSizeF(4, 2), QSizeF(3.5, 1.75), false, false,
           "Print Preview (Design: 4.00\" X 2.00\"  Printed: 3.50\" X 1.75\")");
    addRow("inches, printed only", QSizeF(4, 2), QSizeF(3.5, 1.75), true, false,
           "Print Preview (3.50\" X 1.75\")");
    addRow("millimetres, both", QSizeF(101.6, 50.8), QSizeF(88.9, 44.45), false, true,
           "Print Preview (Design: 102 mm X 51 mm  Printed: 89 mm X 44 mm)");
    addRow("millimetres, printed only", QSizeF(101.6, 50.8), QSizeF(88.9, 44.4), true, true,
           "Print Preview (89 mm X 44 mm)");
    addRow("equal sizes are both named", QSizeF(4, 2), QSizeF(4, 2), false, false,
           "Print Preview (Design: 4.00\" X 2.00\"  Printed: 4.00\" X 2.00\")");
    addRow("no thousands separator", QSizeF(), QSizeF(12345.678, 1000), true, false,
           "Print Preview (12345.68\" X 1000.00\")");
    addRow("rounded up to the next inch", QSizeF(), QSizeF(0.999, 0.004), true, false,
           "Print Preview (1.00\" X 0.00\")");
    addRow("invalid sizes are written as they are", QSizeF(), QSizeF(), false, true,
           "Print Preview (Design: -1 mm X -1 mm  Printed: -1 mm X -1 mm)");
}

void tst_PrintPreviewDialog::titleNamesTheSizes()
{
    PopupContent content;
    QFETCH(const QSizeF, design);
    QFETCH(const QSizeF, printed);
    QFETCH(const bool, printedOnly);
    QFETCH(const bool, metric);
    content.designSize = design;
    content.printedSize = printed;
    content.printedSizeOnly = printedOnly;
    content.metric = metric;

    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German));
    const PreviewFixture constructed(content);
    PreviewFixture titled;
    titled.title(content);
    PreviewFixture updated;
    updated.update(content);
    QLocale::setDefault(before);
    QTEST(constructed.bar()->title(), "title");
    QTEST(titled.bar()->title(), "title");
    QTEST(updated.bar()->title(), "title");
}

void tst_PrintPreviewDialog::titleSurvivesAnyNumber_data()
{
    addColumns<double, QString, QString>("length", "inches", "millimetres");
    addRow("not a number", std::numeric_limits<double>::quiet_NaN(), "nan", "nan");
    addRow("infinite", std::numeric_limits<double>::infinity(), "inf", "inf");
    addRow("large", 1e15, "1000000000000000.00", "1000000000000000");
    addRow("negative", -7.25, "-7.25", "-7");
}

void tst_PrintPreviewDialog::titleSurvivesAnyNumber()
{
    QFETCH(const double, length);
    QFETCH(const QString, inches);
    QFETCH(const QString, millimetres);
    PopupContent content;
    content.printedSize = QSizeF(length, length);
    content.printedSizeOnly = true;
    PreviewFixture popup(content);
    QCOMPARE(popup.bar()->title(), QStringLiteral("Print Preview (") + inches +
                                       QStringLiteral("\" X ") + inches + QStringLiteral("\")"));
    content.metric = true;
    popup.title(content);
    QCOMPARE(popup.bar()->title(), QStringLiteral("Print Preview (") + millimetres +
                                       QStringLiteral(" mm X ") + millimetres +
                                       QStringLiteral(" mm)"));
}

void tst_PrintPreviewDialog::printHandsBackTheRange_data()
{
    addColumns<int, int, QString>("start", "end", "list");
    addRow("one record", 5, -1, QString());
    addRow("all records", 1, 99999, QString());
    addRow("a list", 0, 0, "1,4-5");
    addRow("nonsense", std::numeric_limits<int>::min(), std::numeric_limits<int>::max(),
           "%1 <b> \n");
    addRow("a megabyte", 0, 0, QString(1 << 20, u'7'));
}

void tst_PrintPreviewDialog::printHandsBackTheRange()
{
    PopupContent content;
    QFETCH(const int, start);
    QFETCH(const int, end);
    QFETCH(const QString, list);
    content.sequenceStart = start;
    content.sequenceEnd = end;
    content.recordList = list;
    PreviewFixture popup(content);
    QSignalSpy printed(&popup, &PrintPreviewDialog::previewPrintSignal);
    popup.show();
    QTest::mouseClick(popup.button("printButton"), Qt::LeftButton);
    QCOMPARE(printed.size(), 1);
    QCOMPARE(printed.last(), request(start, end, list));
    popup.print();
    QCOMPARE(printed.size(), 2);
    QCOMPARE(printed.last(), request(start, end, list));
}

void tst_PrintPreviewDialog::printDoesNotCloseThePopup()
{
    PreviewFixture popup;
    QSignalSpy closed(&popup, &PrintPreviewDialog::popupHideSignal);
    popup.show();
    QTest::mouseClick(popup.button("printButton"), Qt::LeftButton);
    QVERIFY(popup.isVisible());
    QCOMPARE(closed.size(), 0);
}

void tst_PrintPreviewDialog::disabledPrintButtonDoesNothingButPrintItselfDoes()
{
    PreviewFixture popup;
    QSignalSpy printed(&popup, &PrintPreviewDialog::previewPrintSignal);
    popup.show();
    QVERIFY(popup.button("printButton")->isEnabled());
    popup.enablePrintButton(false);
    QVERIFY(!popup.button("printButton")->isEnabled());
    QVERIFY(popup.button("closeButton")->isEnabled());
    QTest::mouseClick(popup.button("printButton"), Qt::LeftButton);
    QCOMPARE(printed.size(), 0);
    popup.print();
    QCOMPARE(printed.size(), 1);
    QCOMPARE(printed.last(), request(3, 8, QString()));
    popup.enablePrintButton(true);
    QVERIFY(popup.button("printButton")->isEnabled());
}

void tst_PrintPreviewDialog::updateReplacesTheRangeAndTheTitle()
{
    PreviewFixture popup;
    QSignalSpy printed(&popup, &PrintPreviewDialog::previewPrintSignal);
    PopupContent next;
    next.sequenceStart = 0;
    next.sequenceEnd = 0;
    next.recordList = QStringLiteral("2,7");
    next.printedSizeOnly = true;
    next.metric = true;
    popup.update(next);
    QCOMPARE(printed.size(), 0);
    QCOMPARE(popup.bar()->title(), QStringLiteral("Print Preview (4 mm X 2 mm)"));
    popup.print();
    QCOMPARE(printed.last(), request(0, 0, QStringLiteral("2,7")));
    popup.title(PopupContent());
    popup.print();
    QCOMPARE(printed.last(), request(0, 0, QStringLiteral("2,7")));
}

void tst_PrintPreviewDialog::orientationAtConstruction_data()
{
    QTest::addColumn<bool>("portrait");
    addRow("portrait", true);
    addRow("landscape", false);
}

void tst_PrintPreviewDialog::orientationAtConstruction()
{
    QFETCH(const bool, portrait);
    PopupContent content;
    content.portrait = portrait;
    const PreviewFixture popup(content);
    QPushButton* upright = popup.button("portraitButton");
    QPushButton* lying = popup.button("landscapeButton");
    QVERIFY(upright->isCheckable() && lying->isCheckable());
    QCOMPARE(upright->isChecked(), portrait);
    QCOMPARE(lying->isChecked(), !portrait);
    const auto* group = popup.findChild<QButtonGroup*>();
    QVERIFY(group);
    QCOMPARE(group->parent(), &popup);
    QVERIFY(group->exclusive());
    QCOMPARE(group->buttons().size(), 2);
    QCOMPARE(group->button(0), lying);
    QCOMPARE(group->button(1), upright);
}

void tst_PrintPreviewDialog::updateChecksTheOrientationWithoutNotifyingTheHost()
{
    PreviewFixture popup;
    QSignalSpy turned(&popup, &PrintPreviewDialog::orientationChangedSignal);
    PopupContent content;
    for (const bool portrait : {false, false, true, true, false}) {
        content.portrait = portrait;
        popup.update(content);
        QCOMPARE(popup.button("portraitButton")->isChecked(), portrait);
        QCOMPARE(popup.button("landscapeButton")->isChecked(), !portrait);
    }
    QCOMPARE(turned.size(), 0);
}

void tst_PrintPreviewDialog::clickOnOrientationReportsItsId()
{
    PreviewFixture popup;
    QSignalSpy turned(&popup, &PrintPreviewDialog::orientationChangedSignal);
    popup.show();
    QTest::mouseClick(popup.button("landscapeButton"), Qt::LeftButton);
    QCOMPARE(turned.size(), 1);
    QCOMPARE(turned.last(), QVariantList{0});
    QVERIFY(popup.button("landscapeButton")->isChecked());
    QVERIFY(!popup.button("portraitButton")->isChecked());
    QTest::mouseClick(popup.button("portraitButton"), Qt::LeftButton);
    QCOMPARE(turned.size(), 2);
    QCOMPARE(turned.last(), QVariantList{1});
    QVERIFY(popup.isVisible());
}

void tst_PrintPreviewDialog::clickOnTheCheckedOrientationReportsAgain()
{
    PreviewFixture popup;
    QSignalSpy turned(&popup, &PrintPreviewDialog::orientationChangedSignal);
    popup.show();
    for (int click = 1; click <= 3; ++click) {
        QTest::mouseClick(popup.button("portraitButton"), Qt::LeftButton);
        QCOMPARE(turned.size(), click);
        QCOMPARE(turned.last(), QVariantList{1});
        QVERIFY(popup.button("portraitButton")->isChecked());
    }
}

void tst_PrintPreviewDialog::bothCloseControlsCloseAndThenEmit_data()
{
    QTest::addColumn<bool>("cross");
    addRow("Close button", false);
    addRow("cross of the title bar", true);
}

void tst_PrintPreviewDialog::bothCloseControlsCloseAndThenEmit()
{
    QFETCH(const bool, cross);
    PreviewFixture popup;
    popup.show();
    int emitted = 0;
    bool visibleWhenEmitted = true;
    connect(&popup, &PrintPreviewDialog::popupHideSignal, this, [&] {
        ++emitted;
        visibleWhenEmitted = popup.isVisible();
    });
    QTest::mouseClick(cross ? popup.cross() : popup.button("closeButton"), Qt::LeftButton);
    QCOMPARE(emitted, 1);
    QVERIFY(!visibleWhenEmitted);
    QVERIFY(!popup.isVisible());
}

void tst_PrintPreviewDialog::nothingElseReportsClosing()
{
    auto* popup = new PreviewFixture;
    QSignalSpy closed(popup, &PrintPreviewDialog::popupHideSignal);
    popup->show();
    popup->close();
    popup->show();
    popup->hide();
    popup->show();
    QTest::keyClick(popup, Qt::Key_Escape);
    delete popup;
    QCOMPARE(closed.size(), 0);
}

void tst_PrintPreviewDialog::popupCanBeShownAgainAfterClosing()
{
    PopupContent content;
    content.image = speckledImage(QSize(300, 200));
    PreviewFixture popup(content);
    QSignalSpy closed(&popup, &PrintPreviewDialog::popupHideSignal);
    popup.show();
    const QImage first = shown(popup);
    popup.zoomIn();
    QVERIFY(shown(popup) != first);
    for (int round = 1; round <= 3; ++round) {
        QTest::mouseClick(popup.button("closeButton"), Qt::LeftButton);
        QCOMPARE(closed.size(), round);
        popup.show();
        QCOMPARE(shown(popup), first);
    }
}

void tst_PrintPreviewDialog::dragOfTheTitleBarMovesThePopup()
{
    PreviewFixture popup;
    popup.show();
    popup.move(100, 80);
    ContainerTitleBar* bar = popup.bar();
    const QPointF grip(200, 12);
    pressMouse(*bar, grip);
    sendMouse(*bar, QEvent::MouseMove, grip + QPointF(35, 20), Qt::NoButton, Qt::LeftButton);
    QCOMPARE(popup.pos(), QPoint(135, 100));
    sendMouse(*bar, QEvent::MouseMove, grip + QPointF(-10, 5), Qt::NoButton, Qt::LeftButton);
    QCOMPARE(popup.pos(), QPoint(125, 105));
    sendMouse(*bar, QEvent::MouseButtonRelease, grip, Qt::LeftButton, Qt::NoButton);
    QCOMPARE(popup.pos(), QPoint(125, 105));
    QCOMPARE(popup.size(), QSize(860, 500));
}

void tst_PrintPreviewDialog::mouseMoveSlotPlacesThePopup()
{
    PreviewFixture popup;
    for (const QPoint& place : {QPoint(12, 34), QPoint(-500, 0), QPoint(0, 0)}) {
        popup.mouseMoveSlot(place.x(), place.y());
        QCOMPARE(popup.pos(), place);
    }
    Q_EMIT popup.bar()->signalMove(77, 66);
    QCOMPARE(popup.pos(), QPoint(77, 66));
}

void tst_PrintPreviewDialog::placesBeyondAnyScreenKeepTheSize_data()
{
    addColumns<int, int>("place", "expected");
    addRow("highest", std::numeric_limits<int>::max(), QWIDGETSIZE_MAX);
    addRow("lowest", std::numeric_limits<int>::min(), -QWIDGETSIZE_MAX);
}

void tst_PrintPreviewDialog::placesBeyondAnyScreenKeepTheSize()
{
    QFETCH(const int, place);
    QFETCH(const int, expected);
    PreviewFixture popup;
    popup.mouseMoveSlot(place, place);
    QCOMPARE(popup.pos(), QPoint(expected, expected));
    QCOMPARE(popup.size(), QSize(860, 500));
}

void tst_PrintPreviewDialog::slotsCanBeCalledByName()
{
    PreviewFixture popup;
    QSignalSpy printed(&popup, SIGNAL(previewPrintSignal(int, int, QString)));
    QSignalSpy turned(&popup, SIGNAL(orientationChangedSignal(int)));
    QSignalSpy closed(&popup, SIGNAL(popupHideSignal()));
    QVERIFY(printed.isValid() && turned.isValid() && closed.isValid());
    QVERIFY(QMetaObject::invokeMethod(&popup, "enablePrintButton", Q_ARG(bool, false)));
    QVERIFY(!popup.button("printButton")->isEnabled());
    QVERIFY(QMetaObject::invokeMethod(&popup, "print"));
    QCOMPARE(printed.size(), 1);
    for (const char* slot : {"zoomIn", "zoomOut", "zoomFit"})
        QVERIFY(QMetaObject::invokeMethod(&popup, slot));
    QVERIFY(QMetaObject::invokeMethod(&popup, "mouseMoveSlot", Q_ARG(int, 5), Q_ARG(int, 6)));
    QCOMPARE(popup.pos(), QPoint(5, 6));
}

void tst_PrintPreviewDialog::zoomButtonsZoomTheView()
{
    PopupContent content;
    content.image = speckledImage(QSize(120, 90));
    PreviewFixture popup(content);
    popup.show();
    ReferenceCanvas reference(content.image, popup.view()->size());
    reference.fit();
    QCOMPARE(shown(popup), reference.painted(grey));

    const auto click = [&popup](const char* name) {
        QTest::mouseClick(popup.button(name), Qt::LeftButton);
    };
    click("zoomInButton");
    reference.zoomIn();
    QCOMPARE(shown(popup), reference.painted(grey));
    click("zoomOutButton");
    click("zoomOutButton");
    click("zoomOutButton");
    for (int step = 0; step < 3; ++step)
        reference.zoomOut();
    QCOMPARE(shown(popup), reference.painted(grey));
    click("fitButton");
    reference.reset();
    QCOMPARE(shown(popup), reference.painted(grey));
    popup.zoomOut();
    reference.zoomOut();
    QCOMPARE(shown(popup), reference.painted(grey));
    QVERIFY(turnWheel(*popup.view(), QPoint(0, 120)));
    reference.zoomIn();
    QCOMPARE(shown(popup), reference.painted(grey));
}

void tst_PrintPreviewDialog::zoomInStopsAboveTheCeiling()
{
    PopupContent content;
    content.image = speckledImage(QSize(120, 90));
    PreviewFixture popup(content);
    popup.show();
    ReferenceCanvas reference(content.image, popup.view()->size());
    reference.fit();
    int steps = 0;
    while (reference.zoom() < 17.4495) {
        popup.zoomIn();
        reference.zoomIn();
        ++steps;
    }
    QVERIFY(steps > 5);
    const QImage highest = shown(popup);
    QCOMPARE(highest, reference.painted(grey));
    popup.zoomIn();
    QCOMPARE(shown(popup), highest);
}

void tst_PrintPreviewDialog::zoomFitAfterDraggingCentresAgain()
{
    PopupContent content;
    content.image = speckledImage(QSize(120, 90));
    PreviewFixture popup(content);
    popup.show();
    const QImage fitted = shown(popup);
    QWidget& view = *popup.view();
    dragMouse(view, QPointF(50, 50), QPointF(300, 90));
    ReferenceCanvas reference(content.image, view.size());
    reference.fit();
    reference.press(QPointF(50, 50));
    reference.moveTo(QPointF(300, 90));
    QCOMPARE(shown(popup), reference.painted(grey));
    popup.zoomFit();
    QCOMPARE(shown(popup), fitted);
}

void tst_PrintPreviewDialog::updateFitsAndCentresTheNewImage()
{
    PopupContent content;
    content.image = speckledImage(QSize(120, 90));
    PreviewFixture popup(content);
    popup.show();
    popup.zoomIn();
    content.image = speckledImage(QSize(31, 200));
    popup.update(content);
    ReferenceCanvas reference(content.image, popup.view()->size());
    reference.fit();
    QCOMPARE(shown(popup), reference.painted(grey));
    content.image = QImage();
    popup.update(content);
    QImage empty(popup.view()->size(), QImage::Format_ARGB32_Premultiplied);
    empty.fill(grey);
    QCOMPARE(shown(popup), empty);
}

QTEST_MAIN(tst_PrintPreviewDialog)
#include "tst_printpreviewdialog.moc"
