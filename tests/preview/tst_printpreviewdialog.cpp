// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "popup.h"
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
QImage shown(const Popup& popup)
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
    void updateChecksTheOrientationWithoutTellingTheHost();
    void clickOnOrientationTellsItsId();
    void clickOnTheCheckedOrientationTellsAgain();
    void bothCloseControlsCloseAndThenTell_data();
    void bothCloseControlsCloseAndThenTell();
    void nothingElseTellsOfClosing();
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
    const Popup popup;
    QCOMPARE(popup.button("portraitButton")->toolTip(), PrintPreviewDialog::ORIENTATION_TIP);
    QCOMPARE(popup.button("landscapeButton")->toolTip(), PrintPreviewDialog::ORIENTATION_TIP);
}

void tst_PrintPreviewDialog::constructorPassesParentAndFlags_data()
{
    QTest::addColumn<int>("flags");
    QTest::newRow("none") << 0;
    QTest::newRow("frameless dialog") << int(Qt::Dialog | Qt::FramelessWindowHint);
    QTest::newRow("tool") << int(Qt::Tool | Qt::WindowStaysOnTopHint);
    QTest::newRow("popup") << int(Qt::Popup);
}

void tst_PrintPreviewDialog::constructorPassesParentAndFlags()
{
    QFETCH(const int, flags);
    const Qt::WindowFlags windowFlags(flags);
    QWidget host;
    const Popup child(PopupContent(), &host, windowFlags);
    QCOMPARE(child.parentWidget(), &host);
    QCOMPARE(child.windowFlags(), QWidget(&host, windowFlags).windowFlags());
    const Popup alone(PopupContent(), nullptr, windowFlags);
    QCOMPARE(alone.parentWidget(), nullptr);
    QCOMPARE(alone.windowFlags(), QWidget(nullptr, windowFlags).windowFlags());
}

void tst_PrintPreviewDialog::startsHiddenWithItsNameAndSize()
{
    QWidget host;
    const Popup popup(PopupContent(), &host, Qt::WindowFlags());
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
    QTest::addColumn<QSizeF>("design");
    QTest::addColumn<QSizeF>("printed");
    QTest::addColumn<bool>("printedOnly");
    QTest::addColumn<bool>("metric");
    QTest::addColumn<QString>("title");
    QTest::newRow("inches, both")
        << QSizeF(4, 2) << QSizeF(3.5, 1.75) << false << false
        << QStringLiteral("Print Preview (Design: 4.00\" X 2.00\"  Printed: 3.50\" X 1.75\")");
    QTest::newRow("inches, printed only") << QSizeF(4, 2) << QSizeF(3.5, 1.75) << true << false
                                          << QStringLiteral("Print Preview (3.50\" X 1.75\")");
    QTest::newRow("millimetres, both")
        << QSizeF(101.6, 50.8) << QSizeF(88.9, 44.45) << false << true
        << QStringLiteral("Print Preview (Design: 102 mm X 51 mm  Printed: 89 mm X 44 mm)");
    QTest::newRow("millimetres, printed only")
        << QSizeF(101.6, 50.8) << QSizeF(88.9, 44.4) << true << true
        << QStringLiteral("Print Preview (89 mm X 44 mm)");
    QTest::newRow("equal sizes are both named")
        << QSizeF(4, 2) << QSizeF(4, 2) << false << false
        << QStringLiteral("Print Preview (Design: 4.00\" X 2.00\"  Printed: 4.00\" X 2.00\")");
    QTest::newRow("no thousands separator")
        << QSizeF() << QSizeF(12345.678, 1000) << true << false
        << QStringLiteral("Print Preview (12345.68\" X 1000.00\")");
    QTest::newRow("rounded up to the next inch")
        << QSizeF() << QSizeF(0.999, 0.004) << true << false
        << QStringLiteral("Print Preview (1.00\" X 0.00\")");
    QTest::newRow("invalid sizes are written as they are")
        << QSizeF() << QSizeF() << false << true
        << QStringLiteral("Print Preview (Design: -1 mm X -1 mm  Printed: -1 mm X -1 mm)");
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
    const Popup constructed(content);
    Popup titled;
    titled.title(content);
    Popup updated;
    updated.update(content);
    QLocale::setDefault(before);
    QTEST(constructed.bar()->title(), "title");
    QTEST(titled.bar()->title(), "title");
    QTEST(updated.bar()->title(), "title");
}

void tst_PrintPreviewDialog::titleSurvivesAnyNumber_data()
{
    QTest::addColumn<double>("length");
    QTest::addColumn<QString>("inches");
    QTest::addColumn<QString>("millimetres");
    QTest::newRow("not a number") << std::numeric_limits<double>::quiet_NaN()
                                  << QStringLiteral("nan") << QStringLiteral("nan");
    QTest::newRow("infinite") << std::numeric_limits<double>::infinity() << QStringLiteral("inf")
                              << QStringLiteral("inf");
    QTest::newRow("large") << 1e15 << QStringLiteral("1000000000000000.00")
                           << QStringLiteral("1000000000000000");
    QTest::newRow("negative") << -7.25 << QStringLiteral("-7.25") << QStringLiteral("-7");
}

void tst_PrintPreviewDialog::titleSurvivesAnyNumber()
{
    QFETCH(const double, length);
    QFETCH(const QString, inches);
    QFETCH(const QString, millimetres);
    PopupContent content;
    content.printedSize = QSizeF(length, length);
    content.printedSizeOnly = true;
    Popup popup(content);
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
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("end");
    QTest::addColumn<QString>("list");
    QTest::newRow("one record") << 5 << -1 << QString();
    QTest::newRow("all records") << 1 << 99999 << QString();
    QTest::newRow("a list") << 0 << 0 << QStringLiteral("1,4-5");
    QTest::newRow("nonsense") << std::numeric_limits<int>::min() << std::numeric_limits<int>::max()
                              << QStringLiteral("%1 <b> \n");
    QTest::newRow("a megabyte") << 0 << 0 << QString(1 << 20, u'7');
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
    Popup popup(content);
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
    Popup popup;
    QSignalSpy closed(&popup, &PrintPreviewDialog::popupHideSignal);
    popup.show();
    QTest::mouseClick(popup.button("printButton"), Qt::LeftButton);
    QVERIFY(popup.isVisible());
    QCOMPARE(closed.size(), 0);
}

void tst_PrintPreviewDialog::disabledPrintButtonDoesNothingButPrintItselfDoes()
{
    Popup popup;
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
    Popup popup;
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
    QTest::newRow("portrait") << true;
    QTest::newRow("landscape") << false;
}

void tst_PrintPreviewDialog::orientationAtConstruction()
{
    QFETCH(const bool, portrait);
    PopupContent content;
    content.portrait = portrait;
    const Popup popup(content);
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

void tst_PrintPreviewDialog::updateChecksTheOrientationWithoutTellingTheHost()
{
    Popup popup;
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

void tst_PrintPreviewDialog::clickOnOrientationTellsItsId()
{
    Popup popup;
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

void tst_PrintPreviewDialog::clickOnTheCheckedOrientationTellsAgain()
{
    Popup popup;
    QSignalSpy turned(&popup, &PrintPreviewDialog::orientationChangedSignal);
    popup.show();
    for (int click = 1; click <= 3; ++click) {
        QTest::mouseClick(popup.button("portraitButton"), Qt::LeftButton);
        QCOMPARE(turned.size(), click);
        QCOMPARE(turned.last(), QVariantList{1});
        QVERIFY(popup.button("portraitButton")->isChecked());
    }
}

void tst_PrintPreviewDialog::bothCloseControlsCloseAndThenTell_data()
{
    QTest::addColumn<bool>("cross");
    QTest::newRow("Close button") << false;
    QTest::newRow("cross of the title bar") << true;
}

void tst_PrintPreviewDialog::bothCloseControlsCloseAndThenTell()
{
    QFETCH(const bool, cross);
    Popup popup;
    popup.show();
    int told = 0;
    bool visibleWhenTold = true;
    connect(&popup, &PrintPreviewDialog::popupHideSignal, this, [&] {
        ++told;
        visibleWhenTold = popup.isVisible();
    });
    QTest::mouseClick(cross ? popup.cross() : popup.button("closeButton"), Qt::LeftButton);
    QCOMPARE(told, 1);
    QVERIFY(!visibleWhenTold);
    QVERIFY(!popup.isVisible());
}

void tst_PrintPreviewDialog::nothingElseTellsOfClosing()
{
    auto* popup = new Popup;
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
    Popup popup(content);
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
    Popup popup;
    popup.show();
    popup.move(100, 80);
    ContainerTitleBar* bar = popup.bar();
    const QPointF grip(200, 12);
    sendMouse(*bar, QEvent::MouseButtonPress, grip, Qt::LeftButton, Qt::LeftButton);
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
    Popup popup;
    for (const QPoint& place : {QPoint(12, 34), QPoint(-500, 0), QPoint(0, 0)}) {
        popup.mouseMoveSlot(place.x(), place.y());
        QCOMPARE(popup.pos(), place);
    }
    Q_EMIT popup.bar()->signalMove(77, 66);
    QCOMPARE(popup.pos(), QPoint(77, 66));
}

void tst_PrintPreviewDialog::placesBeyondAnyScreenKeepTheSize_data()
{
    QTest::addColumn<int>("place");
    QTest::addColumn<int>("expected");
    QTest::newRow("highest") << std::numeric_limits<int>::max() << QWIDGETSIZE_MAX;
    QTest::newRow("lowest") << std::numeric_limits<int>::min() << -QWIDGETSIZE_MAX;
}

void tst_PrintPreviewDialog::placesBeyondAnyScreenKeepTheSize()
{
    QFETCH(const int, place);
    QFETCH(const int, expected);
    Popup popup;
    popup.mouseMoveSlot(place, place);
    QCOMPARE(popup.pos(), QPoint(expected, expected));
    QCOMPARE(popup.size(), QSize(860, 500));
}

void tst_PrintPreviewDialog::slotsCanBeCalledByName()
{
    Popup popup;
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
    Popup popup(content);
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
    Popup popup(content);
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
    Popup popup(content);
    popup.show();
    const QImage fitted = shown(popup);
    QWidget& view = *popup.view();
    sendMouse(view, QEvent::MouseButtonPress, QPointF(50, 50), Qt::LeftButton, Qt::LeftButton);
    sendMouse(view, QEvent::MouseMove, QPointF(300, 90), Qt::NoButton, Qt::LeftButton);
    sendMouse(view, QEvent::MouseButtonRelease, QPointF(300, 90), Qt::LeftButton, Qt::NoButton);
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
    Popup popup(content);
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
