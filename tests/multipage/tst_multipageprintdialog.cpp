// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "multipagefixture.h"
#include "preview/referencecanvas.h"
#include "support/expectedsheet.h"
#include "support/layoutdescription.h"
#include "support/metamethods.h"
#include "support/stricttest.h"

#include <containertitlebar.h>
#include <printpanels/multipageprintdialog.h>
#include <printpanels/multipageprintwidget.h>

#include <QtGui/QWheelEvent>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QFrame>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QVBoxLayout>

#include <type_traits>

namespace {

const QColor surround(0xc2, 0xc1, 0xc1);

ContainerTitleBar* titleBar(const QWidget& dialog)
{
    return dialog.findChild<ContainerTitleBar*>();
}

QWidget* preview(const QWidget& dialog)
{
    return part<QWidget>(dialog, "PreviewView");
}

QAbstractButton* closeButton(const QWidget& dialog)
{
    return titleBar(dialog)->findChild<QAbstractButton*>();
}

QImage page(const QSize& size, const QColor& color)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(color);
    return image;
}

/** The rectangle of a colour in what a widget shows. */
QRect areaOf(QWidget* widget, const QColor& color)
{
    return extentOf(widget->grab().toImage().convertToFormat(QImage::Format_RGB32), color);
}

void drag(QWidget* widget, const QPoint& from, const QPoint& to)
{
    QTest::mousePress(widget, Qt::LeftButton, Qt::NoModifier, from);
    QTest::mouseMove(widget, to);
    QTest::mouseRelease(widget, Qt::LeftButton, Qt::NoModifier, to);
}

/** A dialog with a panel, as a host makes it. */
struct Window
{
    MultiPagePrintWidget* panel = new MultiPagePrintWidget(false, false, nullptr);
    MultiPagePrintDialog dialog{panel, nullptr, Qt::FramelessWindowHint};
};

} // namespace

/** The "Preview and Print" window. */
class tst_MultiPagePrintDialog : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void startsHiddenWithItsSizeAndTitle();
    void parentAndFlagsAreHandedOn();
    void closingNeitherDeletesNorQuits();
    void styleSheetIsExact();
    void metaObjectTable();
    void publicOperationsHaveTheirSignatures();

    void layoutsInOrder();
    void previewFrame();
    void previewTakesTheRemainingWidth();
    void titleBarStartsEmpty();
    void backgroundAndBorderAreDrawn();

    void thePanelBelongsToTheDialog();
    void thePanelAppearsWithTheDialog();
    void aPanelThatTheHostHidStaysHidden();
    void withoutAPanel();
    void thePanelMayBeDeletedFirst();
    void anyWidgetMayBeThePanel();

    void placeholderIsAWhitePage();
    void imagesAreFittedIntoThePreview_data();
    void imagesAreFittedIntoThePreview();
    void nullImageShowsThePlaceholderAndResetsZoomAndPan();
    void imagesBeforeTheFirstShow();

    void titleGoesToTheTitleBar();
    void closeButtonHidesOnly();
    void escapeHidesOnly();
    void signalMoveMovesTheDialog_data();
    void signalMoveMovesTheDialog();
    void draggingTheTitleBarMovesTheDialog();
    void returnPressesNoButton_data();
    void returnPressesNoButton();
};

void tst_MultiPagePrintDialog::startsHiddenWithItsSizeAndTitle()
{
    Window window;
    QVERIFY(!window.dialog.isVisible());
    QVERIFY(window.dialog.testAttribute(Qt::WA_WState_ExplicitShowHide));
    QCOMPARE(window.dialog.objectName(), QStringLiteral("MultiPagePrintDialog"));
    QCOMPARE(window.dialog.windowTitle(), QStringLiteral("Preview and Print"));
    QCOMPARE(window.dialog.size(), QSize(1010, 540));
    QCOMPARE(window.dialog.minimumSize(), QSize(1010, 540));
    QCOMPARE(window.dialog.maximumSize(), QSize(1010, 540));
    QVERIFY(showActive(window.dialog));
    QCOMPARE(window.dialog.size(), QSize(1010, 540));
    window.dialog.resize(300, 300);
    QCOMPARE(window.dialog.size(), QSize(1010, 540));
}

void tst_MultiPagePrintDialog::parentAndFlagsAreHandedOn()
{
    QWidget host;
    const Qt::WindowFlags flags = Qt::Tool | Qt::FramelessWindowHint;
    const MultiPagePrintDialog dialog(nullptr, &host, flags);
    QCOMPARE(dialog.parentWidget(), &host);
    QVERIFY(dialog.isWindow());
    QCOMPARE(dialog.windowFlags(), QDialog(&host, flags).windowFlags());
    const MultiPagePrintDialog plain(nullptr, nullptr, Qt::WindowFlags());
    QCOMPARE(plain.parentWidget(), nullptr);
    QCOMPARE(plain.windowFlags(), QDialog().windowFlags());
}

void tst_MultiPagePrintDialog::closingNeitherDeletesNorQuits()
{
    const MultiPagePrintDialog dialog(nullptr, nullptr, Qt::WindowFlags());
    QVERIFY(!dialog.testAttribute(Qt::WA_DeleteOnClose));
    QVERIFY(!dialog.testAttribute(Qt::WA_QuitOnClose));
}

void tst_MultiPagePrintDialog::styleSheetIsExact()
{
    const MultiPagePrintDialog dialog(nullptr, nullptr, Qt::WindowFlags());
    QCOMPARE(dialog.styleSheet().size(), 80);
    QCOMPARE(dialog.styleSheet(), expectedSheet("multiPageDialogFrame"));
}

void tst_MultiPagePrintDialog::metaObjectTable()
{
    const QMetaObject& meta = MultiPagePrintDialog::staticMetaObject;
    QCOMPARE(meta.className(), "MultiPagePrintDialog");
    QCOMPARE(meta.superClass(), &QDialog::staticMetaObject);
    QCOMPARE(ownMethods(meta),
             QStringList({QStringLiteral("slot public void mouseMoveSlot(int x, int y)")}));
    QCOMPARE(meta.propertyCount() - meta.propertyOffset(), 0);
}

void tst_MultiPagePrintDialog::publicOperationsHaveTheirSignatures()
{
    using Dialog = MultiPagePrintDialog;
    static_assert(std::is_constructible_v<Dialog, QWidget*, QWidget*, Qt::WindowFlags>);
    static_assert(!std::is_copy_constructible_v<Dialog>);
    static_assert(
        std::is_same_v<decltype(&Dialog::setPreviewImage), void (Dialog::*)(const QImage&)>);
    static_assert(std::is_same_v<decltype(&Dialog::setTitle), void (Dialog::*)(const QString&)>);
    static_assert(std::is_same_v<decltype(&Dialog::mouseMoveSlot), void (Dialog::*)(int, int)>);
}

void tst_MultiPagePrintDialog::layoutsInOrder()
{
    Window window;
    const auto* column = qobject_cast<QVBoxLayout*>(window.dialog.layout());
    QVERIFY(column);
    QCOMPARE(column->spacing(), 10);
    QCOMPARE(layoutDescription(column),
             QStringList({QStringLiteral("ContainerTitleBar"), QStringLiteral("QHBoxLayout")}));
    const QLayout* row = column->itemAt(1)->layout();
    QCOMPARE(row->contentsMargins(), QMargins(10, 10, 10, 0));
    QCOMPARE(layoutDescription(row),
             QStringList({QStringLiteral("MultiPagePrintWidget MultiPagePrintWidget"),
                          QStringLiteral("QFrame previewFrame")}));
}

void tst_MultiPagePrintDialog::previewFrame()
{
    Window window;
    const auto* frame = part<QFrame>(window.dialog, "previewFrame");
    QCOMPARE(frame->styleSheet(), expectedSheet("previewFrame"));
    QCOMPARE(frame->layout()->metaObject()->className(), "QVBoxLayout");
    QCOMPARE(frame->layout()->spacing(), 0);
    QCOMPARE(frame->layout()->contentsMargins(), QMargins(1, 1, 1, 1));
    QCOMPARE(layoutDescription(frame->layout()),
             QStringList({QStringLiteral("QWidget PreviewView")}));
    QCOMPARE(preview(window.dialog)->sizeHint(), QSize(750, 450));
}

void tst_MultiPagePrintDialog::previewTakesTheRemainingWidth()
{
    Window window;
    QVERIFY(showActive(window.dialog));
    const QRect panel = window.panel->geometry();
    const QRect frame = part<QFrame>(window.dialog, "previewFrame")->geometry();
    const QMargins margins = window.dialog.layout()->contentsMargins();
    QCOMPARE(panel.width(), 270);
    QCOMPARE(panel.left(), margins.left() + 10);
    QCOMPARE(frame.right() + 1, 1010 - margins.right() - 10);
    QCOMPARE(frame.left() - panel.right() - 1,
             window.dialog.layout()->itemAt(1)->layout()->spacing());
    QCOMPARE(panel.top(), frame.top());
    QCOMPARE(panel.top(), titleBar(window.dialog)->geometry().bottom() + 1 + 10 + 10);
    QCOMPARE(frame.bottom() + 1, 540 - margins.bottom());
}

void tst_MultiPagePrintDialog::titleBarStartsEmpty()
{
    Window window;
    QCOMPARE(window.dialog.findChildren<ContainerTitleBar*>().size(), 1);
    QCOMPARE(titleBar(window.dialog)->title(), QString());
    QCOMPARE(titleBar(window.dialog)->font().pixelSize(), 14);
    QCOMPARE(closeButton(window.dialog)->toolTip(), QString());
}

void tst_MultiPagePrintDialog::backgroundAndBorderAreDrawn()
{
    Window window;
    QVERIFY(showActive(window.dialog));
    const QImage shown = window.dialog.grab().toImage();
    for (const QPoint& edge : {QPoint(0, 200), QPoint(1009, 200), QPoint(500, 0), QPoint(500, 539)})
        QCOMPARE(shown.pixelColor(edge), QColor(0xfd, 0x78, 0x00));
    for (const QPoint& inside : {QPoint(1, 200), QPoint(1008, 200), QPoint(500, 538)})
        QCOMPARE(shown.pixelColor(inside), QColor(0xf2, 0xf2, 0xf2));
}

void tst_MultiPagePrintDialog::thePanelBelongsToTheDialog()
{
    QPointer<MultiPagePrintWidget> panel;
    {
        Window window;
        panel = window.panel;
        QCOMPARE(panel->parentWidget(), &window.dialog);
    }
    QVERIFY(panel.isNull());
}

void tst_MultiPagePrintDialog::thePanelAppearsWithTheDialog()
{
    Window window;
    QSignalSpy shown(window.panel, &PrintWidgetInterface::printWidgetShowSignal);
    QVERIFY(!window.panel->isVisible());
    window.dialog.show();
    QVERIFY(window.panel->isVisible());
    QCOMPARE(shown.size(), 1);
    window.dialog.hide();
    window.dialog.show();
    QCOMPARE(shown.size(), 2);
}

void tst_MultiPagePrintDialog::aPanelThatTheHostHidStaysHidden()
{
    Window window;
    window.panel->hide();
    window.dialog.show();
    QVERIFY(!window.panel->isVisible());
}

void tst_MultiPagePrintDialog::withoutAPanel()
{
    MultiPagePrintDialog dialog(nullptr, nullptr, Qt::FramelessWindowHint);
    QVERIFY(showActive(dialog));
    QCOMPARE(layoutDescription(dialog.layout()->itemAt(1)->layout()),
             QStringList({QStringLiteral("QFrame previewFrame")}));
    dialog.setPreviewImage(page(QSize(100, 100), Qt::red));
    QVERIFY(areaOf(preview(dialog), Qt::red).isValid());
    closeButton(dialog)->click();
    QVERIFY(!dialog.isVisible());
}

void tst_MultiPagePrintDialog::thePanelMayBeDeletedFirst()
{
    Window window;
    QVERIFY(showActive(window.dialog));
    delete window.panel;
    window.dialog.setPreviewImage(QImage());
    window.dialog.setTitle(QStringLiteral("still here"));
    QVERIFY(!window.dialog.grab().isNull());
    window.dialog.close();
    window.dialog.show();
    QVERIFY(window.dialog.isVisible());
}

void tst_MultiPagePrintDialog::anyWidgetMayBeThePanel()
{
    auto* edit = new QLineEdit;
    const MultiPagePrintDialog dialog(edit, nullptr, Qt::WindowFlags());
    QCOMPARE(edit->parentWidget(), &dialog);
}

void tst_MultiPagePrintDialog::placeholderIsAWhitePage()
{
    Window window;
    QVERIFY(showActive(window.dialog));
    QWidget* view = preview(window.dialog);
    // 60 x 40, scaled until one side fits.
    const double scale = qMin(view->width() / 60.0, view->height() / 40.0);
    const QRect area = areaOf(view, Qt::white);
    QVERIFY(qAbs(area.width() - 60 * scale) <= 2);
    QVERIFY(qAbs(area.height() - 40 * scale) <= 2);
}

void tst_MultiPagePrintDialog::imagesAreFittedIntoThePreview_data()
{
    QTest::addColumn<QSize>("size");
    addRow("a portrait page", QSize(595, 842));
    addRow("a landscape page", QSize(842, 595));
    addRow("small", QSize(10, 10));
    addRow("wide", QSize(4000, 20));
}

void tst_MultiPagePrintDialog::imagesAreFittedIntoThePreview()
{
    QFETCH(const QSize, size);
    Window window;
    QVERIFY(showActive(window.dialog));
    window.dialog.setPreviewImage(page(size, Qt::red));
    QWidget* view = preview(window.dialog);
    const QRect area = areaOf(view, Qt::red);
    const QSize fitted = size.scaled(view->size(), Qt::KeepAspectRatio);
    QVERIFY(qAbs(area.width() - fitted.width()) <= 2);
    QVERIFY(qAbs(area.height() - fitted.height()) <= 2);
    QVERIFY((area.center() - view->rect().center()).manhattanLength() <= 4);
    QCOMPARE(areaOf(view, Qt::white), QRect());
    if (size.height() > size.width())
        QCOMPARE(view->grab().toImage().pixelColor(3, view->height() / 2), surround);
}

void tst_MultiPagePrintDialog::nullImageShowsThePlaceholderAndResetsZoomAndPan()
{
    Window window;
    QVERIFY(showActive(window.dialog));
    QWidget* view = preview(window.dialog);
    const QImage fresh = view->grab().toImage();
    turnWheel(*view, QPoint(0, -120));
    drag(view, QPoint(200, 200), QPoint(320, 260));
    QVERIFY(view->grab().toImage() != fresh);
    window.dialog.setPreviewImage(QImage());
    QCOMPARE(view->grab().toImage(), fresh);

    window.dialog.setPreviewImage(page(QSize(100, 300), Qt::red));
    QVERIFY(areaOf(view, Qt::red).isValid());
    window.dialog.setPreviewImage(QImage());
    QCOMPARE(view->grab().toImage(), fresh);
}

void tst_MultiPagePrintDialog::imagesBeforeTheFirstShow()
{
    Window window;
    window.dialog.setPreviewImage(QImage());
    window.dialog.setPreviewImage(page(QSize(595, 842), Qt::red));
    QVERIFY(showActive(window.dialog));
    const QRect area = areaOf(preview(window.dialog), Qt::red);
    QVERIFY(qAbs(area.height() - preview(window.dialog)->height()) <= 2);
}

void tst_MultiPagePrintDialog::titleGoesToTheTitleBar()
{
    Window window;
    for (const QString& title :
         {QStringLiteral("Page 1 of 12"), QStringLiteral("<b>%1</b>"), QString()}) {
        window.dialog.setTitle(title);
        QCOMPARE(titleBar(window.dialog)->title(), title);
        QCOMPARE(window.dialog.windowTitle(), QStringLiteral("Preview and Print"));
    }
}

void tst_MultiPagePrintDialog::closeButtonHidesOnly()
{
    Window window;
    QVERIFY(showActive(window.dialog));
    const QPointer<MultiPagePrintWidget> panel(window.panel);
    QSignalSpy destroyed(&window.dialog, &QObject::destroyed);
    QSignalSpy quits(qApp, &QGuiApplication::lastWindowClosed);
    QTest::mouseClick(closeButton(window.dialog), Qt::LeftButton);
    QVERIFY(!window.dialog.isVisible());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(destroyed.size(), 0);
    QCOMPARE(quits.size(), 0);
    QVERIFY(panel);
    window.dialog.show();
    QVERIFY(window.dialog.isVisible());
    QVERIFY(panel->isVisible());
}

void tst_MultiPagePrintDialog::escapeHidesOnly()
{
    Window window;
    QVERIFY(showActive(window.dialog));
    QTest::keyClick(&window.dialog, Qt::Key_Escape);
    QVERIFY(!window.dialog.isVisible());
    window.dialog.show();
    QVERIFY(window.panel->isVisible());
}

void tst_MultiPagePrintDialog::signalMoveMovesTheDialog_data()
{
    addColumns<int, int>("x", "y");
    addRow("somewhere", 123, 45);
    addRow("the corner", 0, 0);
    addRow("off the screen", -300, 2000);
}

void tst_MultiPagePrintDialog::signalMoveMovesTheDialog()
{
    QFETCH(const int, x);
    QFETCH(const int, y);
    Window window;
    QVERIFY(showActive(window.dialog));
    Q_EMIT titleBar(window.dialog)->signalMove(x, y);
    QCOMPARE(window.dialog.pos(), QPoint(x, y));
    window.dialog.move(7, 7);
    window.dialog.mouseMoveSlot(x, y);
    QCOMPARE(window.dialog.pos(), QPoint(x, y));
}

void tst_MultiPagePrintDialog::draggingTheTitleBarMovesTheDialog()
{
    Window window;
    QVERIFY(showActive(window.dialog));
    window.dialog.move(100, 100);
    drag(titleBar(window.dialog), QPoint(50, 10), QPoint(80, 30));
    QCOMPARE(window.dialog.pos(), QPoint(130, 120));
}

void tst_MultiPagePrintDialog::returnPressesNoButton_data()
{
    QTest::addColumn<Qt::Key>("key");
    addRow("Return", Qt::Key_Return);
    addRow("Enter", Qt::Key_Enter);
}

void tst_MultiPagePrintDialog::returnPressesNoButton()
{
    QFETCH(const Qt::Key, key);
    Window window;
    window.panel->enableAllButtons();
    QVERIFY(showActive(window.dialog));
    QSignalSpy printed(window.panel, &PrintWidgetInterface::widgetPrintSignal);
    QSignalSpy opened(window.panel, &PrintWidgetInterface::openPreferencesSignal);
    clickOn(part<QAbstractButton>(*window.panel, "selectionRadio"));
    for (const char* name : {"copiesEdit", "pageListEdit", "fitToPageCheck"}) {
        part<QWidget>(*window.panel, name)->setFocus();
        QTest::keyClick(part<QWidget>(*window.panel, name), key);
    }
    QCOMPARE(printed.size(), 0);
    QCOMPARE(opened.size(), 0);
    QCOMPARE(window.panel->getNumberOfCopies(), 1);
    QVERIFY(window.dialog.isVisible());
}

QTEST_MAIN(tst_MultiPagePrintDialog)
#include "tst_multipageprintdialog.moc"
