// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/commandline/hostparts.h"
#include "samplehost/pages/catalogpage.h"
#include "samplehost/pages/panelscroller.h"
#include "samplehost/simulator/supplysimulator.h"
#include "samplehost/support/hostfixture.h"
#include "samplehost/support/hosttest.h"
#include "samplehost/window/helpdialog.h"
#include "support/pseudotranslator.h"

#include <printpanels/printpanels_version.h>
#include <printpanels/quickprintwidget.h>

#include <QtGui/QAction>
#include <QtWidgets/QDockWidget>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QStatusBar>
#include <QtWidgets/QTabWidget>
#include <QtWidgets/QToolBar>
#include <QtWidgets/QToolButton>

using namespace SampleHost;

namespace {

constexpr QSize smallScreen(800, 480);
// Of the title bar of a window.
constexpr int frameHeight = 32;

} // namespace

/** The window of the host: what it shows first, and that it fits on small screens. */
class TestHostWindow : public HostTest<HostFixture, true>
{
    Q_OBJECT

private Q_SLOTS:
    void docksStartClosed();
    void simulatorIsShownWholeInALongLanguage();
    void everyPageFitsOnASmallScreen_data();
    void everyPageFitsOnASmallScreen();
    void docksFitOnASmallScreen();
    void printIsInReachOnASmallScreen();
    void panelColumnKeepsOneWidth();
    void panelColumnIsTheSameOnAllPages();
    void labelPropertiesWrap();
    void fullScreenAndBack();
    void aboutTellsTheVersions();
    void helpTellsTheFirstStepsAndTheKeys_data();
    void helpTellsTheFirstStepsAndTheKeys();
    void helpFitsOnASmallScreen();

private:
    QAction& action(const char* name) const
    {
        return *m_host->window->findChild<QAction*>(QLatin1String(name));
    }
    QToolButton& toolButton(const char* actionName) const
    {
        auto* toolBar = m_host->window->findChild<QToolBar*>(QStringLiteral("printToolBar"));
        return *qobject_cast<QToolButton*>(toolBar->widgetForAction(&action(actionName)));
    }
    void press(Qt::Key key) const
    {
        m_host->window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_host->window.get()));
        QTest::keyClick(m_host->window.get(), key);
    }
    /** Whether the whole of a widget is inside the window, and not covered by a scroll area. */
    bool isInSight(const QWidget& widget) const
    {
        const QWidget& window = *m_host->window;
        const QRect place(widget.mapTo(&window, QPoint()), widget.size());
        return widget.isVisible() && window.rect().contains(place) &&
               widget.visibleRegion().boundingRect() == widget.rect();
    }
};

void TestHostWindow::docksStartClosed()
{
    const auto docks = m_host->window->findChildren<QDockWidget*>();
    QCOMPARE(docks.size(), qsizetype(2));
    for (QDockWidget* dock : docks) {
        QVERIFY(!dock->isVisible());
        QVERIFY(!dock->toggleViewAction()->isChecked());
        dock->toggleViewAction()->trigger();
        QVERIFY(dock->isVisible());
    }
}

void TestHostWindow::simulatorIsShownWholeInALongLanguage()
{
    PseudoTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    m_host = std::make_unique<HostFixture>(true);
    m_host->window->resize(1800, 900); // with room for the page, which is longer, too
    m_host->window->show();
    auto* dock = m_host->window->findChild<QDockWidget*>(QStringLiteral("supplyDock"));
    dock->show();
    QCoreApplication::processEvents();
    const auto* area = qobject_cast<QScrollArea*>(dock->widget());
    QCOMPARE(area->horizontalScrollBar()->maximum(), 0);
}

void TestHostWindow::everyPageFitsOnASmallScreen_data()
{
    QTest::addColumn<int>("page");
    addRow("labels", 0);
    addRow("pipes", 1);
    addRow("catalogue", 2);
    if (MainWindow::parts().documents) {
        addRow("documents", 3);
    }
}

void TestHostWindow::everyPageFitsOnASmallScreen()
{
    QFETCH(int, page);
    m_host->window->findChild<QTabWidget*>()->setCurrentIndex(page);
    m_host->window->supply().setReport(SupplySimulator::Report::TwoRibbons);
    m_host->window->settings().setNup(NupLayout{2, 2});
    m_host->window->resize(smallScreen.width(), smallScreen.height() - frameHeight);
    InputSimulation::processEvents();
    // "Well under" what the screen has.
    QVERIFY(m_host->window->minimumSizeHint().width() <= 700);
    QCOMPARE(m_host->window->size(), smallScreen - QSize(0, frameHeight));
    QVERIFY(isInSight(*m_host->window->statusBar()));
}

void TestHostWindow::docksFitOnASmallScreen()
{
    for (QDockWidget* dock : m_host->window->findChildren<QDockWidget*>()) {
        dock->show();
    }
    m_host->window->resize(smallScreen.width(), smallScreen.height() - frameHeight);
    InputSimulation::processEvents();
    QCOMPARE(m_host->window->size(), smallScreen - QSize(0, frameHeight));
}

void TestHostWindow::printIsInReachOnASmallScreen()
{
    m_host->window->resize(smallScreen.width(), smallScreen.height() - frameHeight);
    m_host->window->supply().setReport(SupplySimulator::Report::TwoRibbons);
    InputSimulation::processEvents();
    QVERIFY(!isInSight(*m_host->find<QWidget>("PrintButton")));
    QToolButton& print = toolButton("printAction");
    QVERIFY(isInSight(print));
    QVERIFY(isInSight(toolButton("printPreviewAction")));
    QCOMPARE(print.toolButtonStyle(), Qt::ToolButtonTextBesideIcon);
    QVERIFY(!print.icon().isNull());

    QSignalSpy ended(&m_host->labels().controller(), &PrintController::jobEnded);
    QTest::mouseClick(&print, Qt::LeftButton);
    QVERIFY(!ended.isEmpty() || ended.wait());
    QCOMPARE(pdfPages(m_host->outputPath()).size(), qsizetype(1));
}

void TestHostWindow::panelColumnKeepsOneWidth()
{
    PrintWidget& panel = m_host->panel();
    const int windowWidth = m_host->window->width();
    const int width = panel.width();
    const int columnWidth = m_host->labels().findChild<PanelScroller*>()->width();
    const auto check = [&] {
        InputSimulation::processEvents();
        QCOMPARE(panel.width(), width);
        QCOMPARE(m_host->labels().findChild<PanelScroller*>()->width(), columnWidth);
        QCOMPARE(m_host->window->width(), windowWidth);
    };
    m_host->window->supply().setReport(SupplySimulator::Report::TwoRibbons);
    check();
    m_host->window->settings().setNup(NupLayout{2, 2});
    check();
    // With and without a scroll bar.
    m_host->window->resize(windowWidth, 1400);
    check();
    m_host->window->resize(windowWidth, 500);
    check();
    m_host->window->supply().setReport(SupplySimulator::Report::Nothing);
    check();
}

void TestHostWindow::panelColumnIsTheSameOnAllPages()
{
    const int width = m_host->labels().findChild<PanelScroller*>()->width();
    for (HostPage* page : {static_cast<HostPage*>(&m_host->pipes()),
                           static_cast<HostPage*>(&m_host->window->catalogPage())}) {
        m_host->window->setCurrentPage(*page);
        InputSimulation::processEvents();
        auto* column = page->findChild<PanelScroller*>();
        QCOMPARE(column->width(), width);
        QVERIFY(column->widget()->width() + column->verticalScrollBar()->sizeHint().width() <=
                width);
    }
}

void TestHostWindow::labelPropertiesWrap()
{
    const QWidget* first = m_host->find<QWidget>("nupCombo");
    const QWidget* last = m_host->find<QWidget>("backgroundCheck");
    const auto rowsApart = [&] {
        InputSimulation::processEvents();
        const auto bottom = [](const QWidget* widget) {
            return widget->mapTo(widget->window(), widget->rect().bottomLeft()).y();
        };
        return bottom(last) > bottom(first);
    };
    m_host->window->resize(1300, 760);
    QVERIFY(!rowsApart());
    m_host->window->resize(760, 760);
    QVERIFY(rowsApart());
    QVERIFY(isInSight(*first));
    QVERIFY(isInSight(*last));
}

void TestHostWindow::fullScreenAndBack()
{
    press(Qt::Key_F11);
    QVERIFY(m_host->window->isFullScreen());
    press(Qt::Key_F11);
    QVERIFY(!m_host->window->isFullScreen());
}

void TestHostWindow::aboutTellsTheVersions()
{
    action("aboutAction").trigger();
    auto* box = m_host->window->findChild<QMessageBox*>(QStringLiteral("aboutBox"));
    QVERIFY(box != nullptr && box->isVisible());
    QCOMPARE(box->textFormat(), Qt::PlainText);
    for (const QString& text :
         {QStringLiteral("Sample Host"), QStringLiteral("PrintPanels " PRINTPANELS_VERSION_STRING),
          QStringLiteral("Qt ") + QLatin1String(qVersion())}) {
        QVERIFY2(box->text().contains(text), qPrintable(text));
    }
}

void TestHostWindow::helpTellsTheFirstStepsAndTheKeys_data()
{
    QTest::addColumn<QString>("part");
    for (const char* part :
         {"record", "list such as 1,4-5", "printer", "Print Preview", "Press Print.", "preferences",
          "Ctrl+P", "Ctrl+Shift+P", "F1", "F11", "Ctrl+3", "F4"}) {
        QTest::newRow(part) << QString::fromLatin1(part);
    }
}

void TestHostWindow::helpTellsTheFirstStepsAndTheKeys()
{
    QFETCH(QString, part);
    press(Qt::Key_F1);
    auto* dialog = m_host->window->findChild<HelpDialog*>();
    QVERIFY(dialog != nullptr && dialog->isVisible());
    const auto* text = dialog->findChild<QPlainTextEdit*>(QStringLiteral("helpText"));
    QVERIFY(text->isReadOnly());
    QVERIFY(text->toPlainText().contains(part));
    QCOMPARE(text->toPlainText().contains(QStringLiteral("PDF document")),
             MainWindow::parts().documents);
}

void TestHostWindow::helpFitsOnASmallScreen()
{
    HelpDialog dialog(MainWindow::parts());
    dialog.show();
    QVERIFY(dialog.width() <= smallScreen.width());
    QVERIFY(dialog.height() <= smallScreen.height() - frameHeight);
    const QScrollBar* bar = dialog.findChild<QPlainTextEdit*>()->verticalScrollBar();
    QVERIFY(bar->maximum() > 0);
    QCOMPARE(bar->value(), 0);
    QTest::keyClick(dialog.findChild<QPlainTextEdit*>(), Qt::Key_PageDown);
    QVERIFY(bar->value() > 0);
}

QTEST_MAIN(TestHostWindow)

#include "tst_hostwindow.moc"
