// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "livepanel.h"
#include "referencecanvas.h"
#include "support/stricttest.h"

#include <previewinput.h>
#include <printpanels/multipageprintdialog.h>
#include <printpanels/multipageprintwidget.h>
#include <printpanels/printpreviewdialog.h>
#include <printpanels/printwidgetinterface.h>

#include <QtGui/QPointingDevice>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QAbstractSpinBox>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QTabBar>

#include <memory>

using Create = QWidget* (*)();
Q_DECLARE_METATYPE(Create)

/** The panels and the preview windows without a mouse: on a touch screen. */
class tst_Touch : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_screen = QTest::createTouchDevice(); }
    void controlIsLargeEnough_data();
    void controlIsLargeEnough();
    void listRowsAndTabsAreLargeEnough_data();
    void listRowsAndTabsAreLargeEnough();
    void multiPageDialog();
    void popup();
    void dragOnAButtonScrolls();

private:
    void tap(QWidget* widget, QPoint position = {});
    void drag(QWidget* widget, QPoint distance);

    QPointingDevice* m_screen = nullptr;
};

namespace {

constexpr int fingerSize = 35;

bool isForFingers(const QWidget* widget)
{
    const bool isControl =
        qobject_cast<const QAbstractButton*>(widget) || qobject_cast<const QComboBox*>(widget) ||
        qobject_cast<const QAbstractSpinBox*>(widget) || qobject_cast<const QLineEdit*>(widget);
    const bool isPart = qobject_cast<const QAbstractSpinBox*>(widget->parentWidget()) ||
                        qobject_cast<const QTabBar*>(widget->parentWidget());
    return isControl && !isPart && widget->isVisible();
}

/** Shown at its smallest, as in a narrow window of a host. */
std::unique_ptr<QWidget> shownSmall(Create create)
{
    std::unique_ptr<QWidget> window(create());
    window->show();
    window->resize(window->minimumSizeHint());
    QCoreApplication::processEvents();
    return window;
}

bool isToggle(const QWidget* widget)
{
    return qobject_cast<const QCheckBox*>(widget) || qobject_cast<const QRadioButton*>(widget);
}

} // namespace

// At the middle of @p widget unless somewhere else.
void tst_Touch::tap(QWidget* widget, QPoint position)
{
    if (position.isNull())
        position = widget->rect().center();
    QWidget* window = widget->window();
    const QPoint place = widget->mapTo(window, position);
    QTest::touchEvent(window, m_screen).press(0, place, window);
    QTest::touchEvent(window, m_screen).release(0, place, window);
}

void tst_Touch::drag(QWidget* widget, QPoint distance)
{
    QWidget* window = widget->window();
    const QPoint start = widget->mapToGlobal(widget->rect().center());
    const auto at = [&](int tenths) {
        return window->mapFromGlobal(start + distance * tenths / 10);
    };
    QTest::touchEvent(window, m_screen).press(0, at(0), window);
    for (int i = 1; i <= 10; ++i)
        QTest::touchEvent(window, m_screen).move(0, at(i), window);
    QTest::touchEvent(window, m_screen).release(0, at(10), window);
}

void tst_Touch::controlIsLargeEnough_data()
{
    addColumns<Create, int>("create", "number");
    for (const PanelKind& kind : panelKinds()) {
        const std::unique_ptr<QWidget> window = shownSmall(kind.create);
        const QList<QWidget*> children = window->findChildren<QWidget*>();
        for (int i = 0; i < int(children.size()); ++i) {
            const QWidget* child = children.at(i);
            if (isForFingers(child))
                QTest::addRow("%s %s %d", kind.name, qPrintable(child->objectName()), i)
                    << Create(kind.create) << i;
        }
    }
}

void tst_Touch::controlIsLargeEnough()
{
    QFETCH(const Create, create);
    QFETCH(const int, number);
    const std::unique_ptr<QWidget> window = shownSmall(create);
    QWidget* control = window->findChildren<QWidget*>().at(number);
    QVERIFY2(control->width() >= fingerSize && control->height() >= fingerSize,
             qPrintable(QStringLiteral("%1 x %2").arg(control->width()).arg(control->height())));
    // Wherever it is hit, but for what is left of its row.
    auto* toggle = isToggle(control) ? qobject_cast<QAbstractButton*>(control) : nullptr;
    if (!toggle || !toggle->isEnabled())
        return;
    const int width = qMin(toggle->width(), qMax(toggle->sizeHint().width(), fingerSize));
    const QRect area = QRect(0, 0, width, toggle->height()).adjusted(1, 1, -2, -2);
    for (const QPoint& corner :
         {area.topLeft(), area.topRight(), area.bottomLeft(), area.bottomRight()}) {
        QSignalSpy clicked(toggle, &QAbstractButton::clicked);
        tap(toggle, corner);
        QCOMPARE(clicked.count(), 1);
    }
}

void tst_Touch::listRowsAndTabsAreLargeEnough_data()
{
    addColumns<Create>("create");
    for (const PanelKind& kind : panelKinds()) {
        const std::unique_ptr<QWidget> window(kind.create());
        if (window->findChild<QComboBox*>())
            addRow(kind.name, Create(kind.create));
    }
}

void tst_Touch::listRowsAndTabsAreLargeEnough()
{
    QFETCH(const Create, create);
    const std::unique_ptr<QWidget> window(create());
    QVERIFY(showActive(*window));
    const QList<QComboBox*> combos = window->findChildren<QComboBox*>();
    for (QComboBox* combo : combos) {
        QVERIFY(combo->count() > 1);
        combo->showPopup();
        for (int row = 0; row < combo->count(); ++row) {
            const QModelIndex index = combo->model()->index(row, 0);
            QVERIFY(combo->view()->visualRect(index).height() >= fingerSize);
        }
        combo->hidePopup();
    }
    const QList<QTabBar*> bars = window->findChildren<QTabBar*>();
    for (const QTabBar* bar : bars) {
        for (int i = 0; i < bar->count(); ++i) {
            QVERIFY(bar->tabRect(i).height() >= fingerSize);
            QVERIFY(bar->tabRect(i).width() >= fingerSize);
        }
    }
}

void tst_Touch::multiPageDialog()
{
    const std::unique_ptr<QWidget> window(newMultiPageDialog());
    auto* dialog = qobject_cast<MultiPagePrintDialog*>(window.get());
    auto* panel = dialog->findChild<MultiPagePrintWidget*>();
    new PreviewInput(dialog, [] {});
    QVERIFY(showActive(*dialog));
    QSignalSpy printers(panel, &PrintWidgetInterface::currentPrinterSelectionChanged);
    QSignalSpy prints(panel, &PrintWidgetInterface::widgetPrintSignal);
    QSignalSpy fits(panel, &MultiPagePrintWidget::fitToPageChangedSignal);

    auto* printer = part<QComboBox>(*dialog, "PrinterListCombo");
    tap(printer);
    QTRY_VERIFY(printer->view()->isVisible());
    // Right after the list opened, the end of the tap that opened it chooses nothing.
    QTest::qWait(QApplication::doubleClickInterval() + 100);
    QWidget* list = printer->view()->viewport();
    tap(list, printer->view()->visualRect(printer->model()->index(1, 0)).center());
    QTRY_VERIFY(!printer->view()->isVisible());
    QVERIFY(printers.count() > 0);
    QCOMPARE(panel->getSelectedPrinter(), QStringLiteral("Beta"));

    tap(part<QWidget>(*dialog, "allPagesRadio"), QPoint(12, 17));
    tap(part<QWidget>(*dialog, "fitToPageCheck"), QPoint(20, 18));
    QCOMPARE(fits.count(), 1);
    tap(part<QWidget>(*dialog, "plusButton"));
    tap(part<QWidget>(*dialog, "plusButton"));
    tap(part<QWidget>(*dialog, "minusButton"));
    QCOMPARE(panel->getNumberOfCopies(), 2);

    auto* view = part<QWidget>(*dialog, "PreviewView");
    QTest::touchEvent(dialog, m_screen)
        .press(0, view->mapTo(dialog, QPoint(100, 100)), dialog)
        .press(1, view->mapTo(dialog, QPoint(200, 100)), dialog);
    QTest::touchEvent(dialog, m_screen)
        .move(0, view->mapTo(dialog, QPoint(105, 100)), dialog)
        .move(1, view->mapTo(dialog, QPoint(195, 100)), dialog);
    QTest::touchEvent(dialog, m_screen)
        .release(0, view->mapTo(dialog, QPoint(105, 100)), dialog)
        .release(1, view->mapTo(dialog, QPoint(195, 100)), dialog);
    const QRect pinched = extentOf(view->grab().toImage(), Qt::green);
    drag(view, QPoint(20, 0));
    QVERIFY(qAbs(extentOf(view->grab().toImage(), Qt::green).left() - pinched.left() - 20) <= 2);

    tap(part<QWidget>(*dialog, "PrintButton"));
    QCOMPARE(prints.count(), 1);
    QCOMPARE(prints.constFirst().at(0).toInt(), 1);
    QCOMPARE(prints.constFirst().at(1).toInt(), 20);

    auto* cross = part<QWidget>(*dialog, "CloseButton");
    const QPoint corner = dialog->pos();
    drag(cross->parentWidget(), QPoint(30, 40));
    QTRY_COMPARE(dialog->pos(), corner + QPoint(30, 40));
    tap(cross);
    QTRY_VERIFY(!dialog->isVisible());
}

void tst_Touch::popup()
{
    const std::unique_ptr<QWidget> window(newPreviewPopup());
    auto* popup = qobject_cast<PrintPreviewDialog*>(window.get());
    new PreviewInput(popup);
    QVERIFY(showActive(*popup));
    QSignalSpy prints(popup, &PrintPreviewDialog::previewPrintSignal);
    QSignalSpy turns(popup, &PrintPreviewDialog::orientationChangedSignal);
    QSignalSpy hides(popup, &PrintPreviewDialog::popupHideSignal);
    auto* view = part<QWidget>(*popup, "PreviewView");
    const auto place = [&] { return extentOf(view->grab().toImage(), Qt::green); };

    const QRect fitted = place();
    tap(part<QWidget>(*popup, "zoomOutButton"));
    const QRect small = place();
    QVERIFY(small.height() < fitted.height());
    drag(view, QPoint(0, 10));
    QVERIFY(qAbs(place().top() - small.top() - 10) <= 2);
    tap(part<QWidget>(*popup, "fitButton"));
    QCOMPARE(place(), fitted);

    tap(part<QWidget>(*popup, "landscapeButton"));
    QCOMPARE(turns.count(), 1);
    tap(part<QWidget>(*popup, "printButton"));
    QCOMPARE(prints.count(), 1);

    auto* cross = part<QWidget>(*popup, "CloseButton");
    const QPoint corner = popup->pos();
    drag(cross->parentWidget(), QPoint(15, 25));
    QTRY_COMPARE(popup->pos(), corner + QPoint(15, 25));
    tap(cross);
    QTRY_VERIFY(!popup->isVisible());
    QCOMPARE(hides.count(), 1);
}

// A panel is longer than a small screen; its buttons are what a finger finds to drag.
void tst_Touch::dragOnAButtonScrolls()
{
    QScrollArea area;
    QWidget* panel = newPrintPanel();
    area.setWidget(panel);
    area.resize(panel->width() + 40, 300);
    QVERIFY(showActive(area));
    QSignalSpy prints(qobject_cast<PrintWidgetInterface*>(panel),
                      &PrintWidgetInterface::widgetPrintSignal);
    QScrollBar* bar = area.verticalScrollBar();
    bar->setValue(bar->maximum());
    const int bottom = bar->value();
    drag(part<QWidget>(*panel, "PrintButton"), QPoint(0, 60));
    QCOMPARE(bar->value(), bottom - 60);
    QCOMPARE(prints.count(), 0);
    bar->setValue(bottom);
    tap(part<QWidget>(*panel, "PrintButton"));
    QCOMPARE(prints.count(), 1);
}

QTEST_MAIN(tst_Touch)
#include "tst_touch.moc"
