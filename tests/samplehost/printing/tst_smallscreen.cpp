// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/printing/labelpreview.h"
#include "samplehost/printing/windowscroller.h"
#include "samplehost/support/hostfixture.h"
#include "samplehost/support/hosttest.h"
#include "samplehost/support/offscreenscreen.h"

#include <printpanels-hostkit/containertitlebar.h>
#include <printpanels/printpreviewdialog.h>

#include <QtGui/QScreen>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollBar>

using namespace SampleHost;

namespace {

/** A frameless window of fixed size, with a button in its last corner. */
class FixedWindow : public QWidget
{
public:
    FixedWindow(QWidget* parent, const QSize& size)
        : QWidget(parent, Qt::Dialog | Qt::FramelessWindowHint),
          button(new QPushButton(this)),
          scroller(new WindowScroller(*this, *parent, [this](int x, int y) { move(x, y); }))
    {
        setFixedSize(size);
        button->move(size.width() - button->width(), size.height() - button->height());
    }

    QPushButton* button;
    WindowScroller* scroller;
};

} // namespace

/** Windows of fixed size on a screen of 800 x 480. */
class TestSmallScreen : public HostTest<HostFixture>
{
    Q_OBJECT

private Q_SLOTS:
    void windowThatFitsStandsAlone();
    void windowScrollsOnASmallScreen_data();
    void windowScrollsOnASmallScreen();
    void windowFollowsTheScreen();
    void titleBarMovesTheAreaInsideTheScreen();
    void previewScrolls();
    void previewClosesWithItsOwnControls_data();
    void previewClosesWithItsOwnControls();
    void previewClosesWithItsWindow();
    void previewPrints();

private:
    PrintPreviewDialog* openPreview()
    {
        m_host->click("PreviewButton");
        return m_host->labels().preview().popup();
    }
};

void TestSmallScreen::windowThatFitsStandsAlone()
{
    QWidget host;
    host.setGeometry(700, 400, 100, 80);
    FixedWindow window(&host, QSize(800, 480));
    WindowScroller& scroller = *window.scroller;
    const QRect available(0, 0, 800, 480);
    scroller.open(available);
    QVERIFY(scroller.scrollArea() == nullptr);
    QVERIFY(window.isWindow());
    QVERIFY(window.isVisible());
    QCOMPARE(window.geometry(), available);
}

void TestSmallScreen::windowScrollsOnASmallScreen_data()
{
    QTest::addColumn<QSize>("size");
    addRow("too wide", QSize(900, 300));
    addRow("too high", QSize(300, 700));
    addRow("too large", QSize(1010, 540));
    addRow("by a pixel", QSize(801, 480));
}

void TestSmallScreen::windowScrollsOnASmallScreen()
{
    QFETCH(QSize, size);
    QWidget host;
    FixedWindow window(&host, size);
    WindowScroller& scroller = *window.scroller;
    const QRect available(0, 0, 800, 480);
    scroller.open(available);
    QScrollArea* area = scroller.scrollArea();
    QVERIFY(area != nullptr && area->isVisible());
    InputSimulation::processEvents();
    QVERIFY(available.contains(area->frameGeometry()));
    QCOMPARE(window.size(), size);
    QVERIFY(window.isVisible());
    QCOMPARE(window.window(), area);
    // The last corner can be reached.
    area->horizontalScrollBar()->setValue(area->horizontalScrollBar()->maximum());
    area->verticalScrollBar()->setValue(area->verticalScrollBar()->maximum());
    InputSimulation::processEvents();
    QCOMPARE(window.button->visibleRegion().boundingRect(), window.button->rect());
    // The size that fits needs no scroll bar.
    QCOMPARE(area->horizontalScrollBar()->maximum() > 0, size.width() > area->viewport()->width());
    QCOMPARE(area->verticalScrollBar()->maximum() > 0, size.height() > area->viewport()->height());
    QVERIFY(size.width() > 800 || area->horizontalScrollBar()->maximum() == 0);
}

void TestSmallScreen::windowFollowsTheScreen()
{
    QWidget host;
    FixedWindow window(&host, QSize(860, 500));
    WindowScroller& scroller = *window.scroller;
    const Qt::WindowFlags flags = window.windowFlags();
    for (int round = 0; round < 2; ++round) {
        scroller.open(QRect(0, 0, 800, 480));
        QVERIFY(scroller.scrollArea() != nullptr);
        QVERIFY(!window.isWindow());
        window.close();
        QVERIFY(!window.isVisible());
        QVERIFY(!scroller.scrollArea()->isVisible());
        scroller.open(QRect(0, 0, 1920, 1080));
        QVERIFY(scroller.scrollArea() == nullptr);
        QVERIFY(window.isVisible());
        QCOMPARE(window.windowFlags(), flags);
        QCOMPARE(window.parentWidget(), &host);
        window.close();
    }
}

void TestSmallScreen::titleBarMovesTheAreaInsideTheScreen()
{
    QWidget host;
    FixedWindow window(&host, QSize(900, 200));
    WindowScroller& scroller = *window.scroller;
    const QRect available(0, 0, 800, 480);
    scroller.open(available);
    InputSimulation::processEvents();
    QScrollArea* area = scroller.scrollArea();
    const auto check = [&](const QPoint& corner) {
        QCOMPARE(area->pos(), corner);
        QCOMPARE(window.pos(), QPoint(-area->horizontalScrollBar()->value(), 0));
    };
    // As the title bar of a popup does.
    window.move(0, 120);
    check(QPoint(0, 120));
    window.move(-300, 5000);
    check(QPoint(0, 480 - area->height()));
    area->horizontalScrollBar()->setValue(40);
    check(QPoint(0, 480 - area->height()));
    window.move(33, 10);
    check(QPoint(0, 10));
    QCOMPARE(area->horizontalScrollBar()->value(), 40);
}

void TestSmallScreen::previewScrolls()
{
    PrintPreviewDialog* popup = openPreview();
    QVERIFY(popup != nullptr && popup->isVisible());
    QCOMPARE(popup->size(), QSize(860, 500));
    InputSimulation::processEvents();
    const QRect available = m_host->window->screen()->availableGeometry();
    QCOMPARE(available.size(), QSize(800, 480));
    QVERIFY(available.contains(popup->window()->frameGeometry()));
    QTRY_COMPARE(QApplication::activeWindow(), popup->window());
    auto* area = qobject_cast<QScrollArea*>(popup->window());
    QVERIFY(area != nullptr);
    area->verticalScrollBar()->setValue(area->verticalScrollBar()->maximum());
    area->horizontalScrollBar()->setValue(area->horizontalScrollBar()->maximum());
    InputSimulation::processEvents();
    const auto* close = popup->findChild<QWidget*>(QStringLiteral("closeButton"));
    QCOMPARE(close->visibleRegion().boundingRect(), close->rect());
    // Dragging the title bar leaves all of it reachable.
    const QPoint scrolled = popup->pos();
    Q_EMIT popup->findChild<ContainerTitleBar*>()->signalMove(500, 300);
    QCOMPARE(popup->pos(), scrolled);
    QVERIFY(available.contains(area->frameGeometry()));
}

void TestSmallScreen::previewClosesWithItsOwnControls_data()
{
    QTest::addColumn<bool>("escape");
    addRow("button", false);
    addRow("Escape", true);
}

void TestSmallScreen::previewClosesWithItsOwnControls()
{
    QFETCH(bool, escape);
    PrintPreviewDialog* popup = openPreview();
    QPointer<QWidget> area = popup->window();
    if (escape) {
        QTRY_COMPARE(QApplication::activeWindow(), area.data());
        QTest::keyClick(area.data(), Qt::Key_Escape);
    } else {
        HostFixture::click(popup->findChild<QWidget*>(QStringLiteral("closeButton")));
    }
    QVERIFY(!popup->isVisible());
    QVERIFY(area == nullptr || !area->isVisible());
    // It opens again.
    QCOMPARE(openPreview(), popup);
    QVERIFY(popup->isVisible());
    QVERIFY(popup->window()->isVisible());
}

void TestSmallScreen::previewClosesWithItsWindow()
{
    PrintPreviewDialog* popup = openPreview();
    QVERIFY(popup->window() != popup);
    QVERIFY(popup->window()->close());
    QVERIFY(!popup->isVisible());
    QCOMPARE(openPreview(), popup);
    QVERIFY(popup->window()->isVisible());
}

void TestSmallScreen::previewPrints()
{
    PrintPreviewDialog* popup = openPreview();
    QSignalSpy ended(&m_host->labels().controller(), &PrintController::jobEnded);
    HostFixture::click(popup->findChild<QWidget*>(QStringLiteral("printButton")));
    QVERIFY(!ended.isEmpty() || ended.wait());
    QCOMPARE(pdfPages(m_host->outputPath()).size(), qsizetype(1));
}

int main(int argc, char** argv)
{
    return runOnScreen<TestSmallScreen>(800, 480, argc, argv);
}

#include "tst_smallscreen.moc"
