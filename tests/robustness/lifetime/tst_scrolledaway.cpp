// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "lifetimetest.h"
#include "support/inputevents.h"

#include <QtCore/QPointer>
#include <QtWidgets/QApplication>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QScrollBar>

#include <memory>

/**
 * Hosts that delete a panel in a scroll area when it is scrolled, as by a drag on the panel. The
 * signal is that of the area's bar, so the panel may go at once.
 */
class tst_ScrolledAway : public LifetimeTest
{
    Q_OBJECT

private Q_SLOTS:
    void byADragOnThePanel_data();
    void byADragOnThePanel();
    void byTheAreasOwnBar();
    void whileTheCanvasIsDragged();
};

namespace {

/** An area that is too small for its panel, inside a window. */
struct Scrolled
{
    explicit Scrolled(QWidget* what) : panel(what)
    {
        window->resize(300, 300);
        area->resize(250, 250);
        area->setWidget(panel);
        panel->setMinimumSize(900, 900);
    }

    std::unique_ptr<QWidget> window = std::make_unique<QWidget>();
    QPointer<QScrollArea> area = new QScrollArea(window.get());
    QPointer<QWidget> panel;
};

} // namespace

void tst_ScrolledAway::byADragOnThePanel_data()
{
    addColumns<QByteArray, bool, bool, bool>("pressed", "wholeArea", "sideways", "atOnce");
    for (const char* name : {"PrintButton", "PreferencesButton", "stackGroup", "#000000"}) {
        for (const int choice : {0, 1, 2, 3, 4, 5, 6, 7}) {
            const bool wholeArea = (choice & 1) != 0;
            const bool sideways = (choice & 2) != 0;
            const bool atOnce = (choice & 4) != 0;
            QTest::addRow("%s %s, %s %s", name, sideways ? "sideways" : "up",
                          wholeArea ? "area" : "panel", atOnce ? "at once" : "later")
                << QByteArray(name) << wholeArea << sideways << atOnce;
        }
    }
}

void tst_ScrolledAway::byADragOnThePanel()
{
    QFETCH(const QByteArray, pressed);
    QFETCH(const bool, wholeArea);
    QFETCH(const bool, sideways);
    QFETCH(const bool, atOnce);
    const Scrolled scrolled(newPrintPanel());
    QVERIFY(showActive(*scrolled.window));
    auto* grip = part<QWidget>(*scrolled.panel, pressed.constData());
    const QPoint corner = grip->mapTo(scrolled.panel, QPoint(4, 4));
    scrolled.area->ensureVisible(corner.x(), corner.y());
    QScrollBar* bar =
        sideways ? scrolled.area->horizontalScrollBar() : scrolled.area->verticalScrollBar();
    bar->setValue(qMax(bar->value(), 1));
    const QPointer<QWidget> gripThen(grip);
    Deleter host(wholeArea ? scrolled.area.data() : scrolled.panel.data());
    const Deleter::When when = atOnce ? Deleter::AtOnce : Deleter::Soon;
    QVERIFY(connect(bar, SIGNAL(valueChanged(int)), &host, Deleter::slot(when)));
    const QPoint step = sideways ? QPoint(15, 0) : QPoint(0, 15);
    MouseDrag drag(grip, QPoint(4, 4));
    for (int i = 1; i < 4; ++i)
        drag.moveBy(i * step.x(), i * step.y());
    drag.release();
    QVERIFY(host.calls > 0);
    if (atOnce)
        QVERIFY(gripThen.isNull());
    QTRY_VERIFY(gripThen.isNull());
    QVERIFY(scrolled.panel.isNull());
    QCOMPARE(scrolled.area.isNull(), wholeArea);
}

void tst_ScrolledAway::byTheAreasOwnBar()
{
    const Scrolled scrolled(newPrintPanel());
    QVERIFY(showActive(*scrolled.window));
    Deleter host(scrolled.panel);
    QScrollBar* bar = scrolled.area->verticalScrollBar();
    QVERIFY(connect(bar, SIGNAL(valueChanged(int)), &host, Deleter::slot(Deleter::AtOnce)));
    MouseDrag press(bar, QPoint(bar->width() / 2, bar->height() - 3));
    QVERIFY(scrolled.panel.isNull());
    QTest::qWait(700); // as long as it takes until the bar's button repeats
    press.release();
    QVERIFY(host.calls > 0);
    QCOMPARE(scrolled.area->widget(), nullptr);
}

void tst_ScrolledAway::whileTheCanvasIsDragged()
{
    const Scrolled scrolled(newQuickPanel());
    QVERIFY(showActive(*scrolled.window));
    auto* canvas = part<QWidget>(*scrolled.panel, "PreviewView");
    scrolled.area->ensureWidgetVisible(canvas);
    Deleter host(scrolled.panel);
    QScrollBar* bar = scrolled.area->verticalScrollBar();
    QVERIFY(connect(bar, SIGNAL(valueChanged(int)), &host, Deleter::slot(Deleter::AtOnce)));
    MouseDrag drag(canvas, QPoint(50, 50));
    drag.moveBy(5, 5);
    QVERIFY(QApplication::overrideCursor() != nullptr);
    bar->setValue(bar->maximum());
    drag.moveBy(10, 10);
    drag.release();
    QVERIFY(scrolled.panel.isNull());
    QCOMPARE(QApplication::overrideCursor(), nullptr);
}

QTEST_MAIN(tst_ScrolledAway)
#include "tst_scrolledaway.moc"
