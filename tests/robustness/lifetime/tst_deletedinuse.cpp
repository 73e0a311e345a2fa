// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "livepanel.h"
#include "panelsinuse.h"
#include "support/inputevents.h"
#include "support/stricttest.h"

#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtWidgets/QApplication>

#include <memory>

Q_DECLARE_METATYPE(PanelInUse)

/** Hosts that delete a panel while the user is in the middle of something on it. */
class tst_DeletedInUse : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() override;
    void deletedAtOnce_data();
    void deletedAtOnce();
    void deletedInAWindow_data();
    void deletedInAWindow();
    void deletedFromTheEventLoop_data();
    void deletedFromTheEventLoop();

private:
    void addRows(bool withLoops);
    void nothingGoesOn();
};

void tst_DeletedInUse::cleanup()
{
    // The window that the mouse was pressed in may be gone; Qt still waits for the release.
    auto window = std::make_unique<QWidget>();
    window->show();
    QTest::mouseRelease(window->windowHandle(), Qt::LeftButton, {}, QPoint(1, 1));
    window.reset();
    deleteWidgetsLeft();
}

void tst_DeletedInUse::addRows(bool withLoops)
{
    QTest::addColumn<PanelInUse>("use");
    const QList<PanelInUse> uses = panelsInUse();
    for (const PanelInUse& use : uses) {
        if (withLoops || !use.loops)
            QTest::newRow(use.name) << use;
    }
}

void tst_DeletedInUse::nothingGoesOn()
{
    QCOMPARE(QApplication::overrideCursor(), nullptr);
    QCOMPARE(QApplication::activePopupWidget(), nullptr);
    QCOMPARE(QWidget::mouseGrabber(), nullptr);
    QCOMPARE(visibleToolTip(), QString());
}

void tst_DeletedInUse::deletedAtOnce_data()
{
    addRows(false);
}

void tst_DeletedInUse::deletedAtOnce()
{
    QFETCH(const PanelInUse, use);
    std::unique_ptr<QWidget> panel(use.create());
    QVERIFY(showActive(*panel));
    use.begin(*panel);
    QVERIFY(use.isGoingOn(*panel));
    panel.reset();
    nothingGoesOn();
    QCOMPARE(widgetsLeft().join(u' '), QString());
}

void tst_DeletedInUse::deletedInAWindow_data()
{
    addRows(false);
}

void tst_DeletedInUse::deletedInAWindow()
{
    QFETCH(const PanelInUse, use);
    QWidget* panel = use.create();
    const std::unique_ptr<QWidget> window(newWindowAround(panel));
    QVERIFY(showActive(*window));
    use.begin(*panel);
    QVERIFY(use.isGoingOn(*panel));
    const QPoint place(window->width() / 2, window->height() / 2);
    delete panel;
    // The user, who knows nothing of it, goes on.
    QTest::mouseMove(window->windowHandle(), place);
    QTest::mouseRelease(window->windowHandle(), Qt::LeftButton, {}, place);
    QTest::keyClick(window->windowHandle(), Qt::Key_Down);
    nothingGoesOn();
    QCOMPARE(widgetsLeft().join(u' '),
             QStringLiteral("QWidget QWidget")); // the window and what is in it
}

void tst_DeletedInUse::deletedFromTheEventLoop_data()
{
    addRows(true);
}

void tst_DeletedInUse::deletedFromTheEventLoop()
{
    QFETCH(const PanelInUse, use);
    const QPointer<QWidget> panel(use.create());
    QVERIFY(showActive(*panel));
    bool wentOn = false;
    const auto end = [&] {
        wentOn = use.isGoingOn(*panel);
        delete panel.data();
    };
    if (use.loops)
        QTimer::singleShot(100, this, end);
    use.begin(*panel);
    if (!use.loops)
        QTimer::singleShot(0, this, end);
    QTRY_VERIFY(panel.isNull());
    QVERIFY(wentOn);
    nothingGoesOn();
    QCOMPARE(widgetsLeft().join(u' '), QString());
}

QTEST_MAIN(tst_DeletedInUse)
#include "tst_deletedinuse.moc"
