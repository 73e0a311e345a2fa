// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "accessibility/accessibletree.h"
#include "samplehost/pages/catalogpage.h"
#include "samplehost/pages/recordnavigator.h"
#include "samplehost/printing/printprogressdialog.h"
#include "samplehost/simulator/supplysimulator.h"
#include "samplehost/support/hostfixture.h"
#include "samplehost/support/hosttest.h"

#include <printpanels/multipageprintdialog.h>
#include <printpanels/printpreviewdialog.h>

#include <QtGui/QAction>
#include <QtWidgets/QInputDialog>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QTabWidget>

using namespace SampleHost;

/** What a screen reader calls the controls in the host's windows. */
class TestHostNames : public HostTest<HostFixture, true>
{
    Q_OBJECT

private Q_SLOTS:
    void pages_data();
    void pages();
    void menus();
    void preview();
    void documentWindow();
    void preferences();
    void addPrinter();
    void messages();
    void progress();
    void numberBoxSaysWhatItCounts();

private:
    template <typename Dialog>
    Dialog* dialog(const char* name) const
    {
        return m_host->window->findChild<Dialog*>(QString::fromLatin1(name));
    }
};

namespace {

QString unnamed(QWidget* window)
{
    return unnamedControls(window).join(QLatin1Char('\n'));
}

} // namespace

void TestHostNames::pages_data()
{
    addColumns<int, SupplySimulator::Report>("page", "report");
    addRow("labels", 0, SupplySimulator::Report::TwoRibbons);
    addRow("pipes", 1, SupplySimulator::Report::OneRibbon);
    addRow("catalogue", 2, SupplySimulator::Report::Nothing);
    if (MainWindow::parts().documents) {
        addRow("documents", 3, SupplySimulator::Report::Nothing);
    }
}

void TestHostNames::pages()
{
    QFETCH(int, page);
    QFETCH(SupplySimulator::Report, report);
    m_host->window->supply().setReport(report);
    m_host->window->findChild<QTabWidget*>()->setCurrentIndex(page);
    InputSimulation::processEvents();
    QVERIFY(accessibleControls(m_host->window.get()).size() > 100);
    QCOMPARE(unnamed(m_host->window.get()), QString());
}

void TestHostNames::menus()
{
    const auto menus = m_host->window->findChildren<QMenu*>();
    QVERIFY(menus.size() >= 3);
    for (QMenu* menu : menus) {
        QCOMPARE(unnamed(menu), QString());
    }
}

void TestHostNames::preview()
{
    m_host->click("PreviewButton");
    auto* popup = m_host->window->findChild<PrintPreviewDialog*>();
    QVERIFY(popup != nullptr);
    QCOMPARE(unnamed(popup), QString());
}

void TestHostNames::documentWindow()
{
    auto* window = m_host->window->findChild<MultiPagePrintDialog*>();
    QCOMPARE(window != nullptr, MainWindow::parts().documents);
    if (window != nullptr) {
        QVERIFY(accessibleControls(window).size() > 10);
        QCOMPARE(unnamed(window), QString());
    }
}

void TestHostNames::preferences()
{
    m_host->click("PreferencesButton");
    auto* window = dialog<QDialog>("preferencesDialog");
    QVERIFY(accessibleControls(window).size() >= 8);
    QCOMPARE(unnamed(window), QString());
}

void TestHostNames::addPrinter()
{
    m_host->window->findChild<QAction*>(QStringLiteral("addPrinterAction"))->trigger();
    QCOMPARE(unnamed(dialog<QInputDialog>("addPrinterDialog")), QString());
}

void TestHostNames::messages()
{
    m_host->click("showErrorButton");
    QVERIFY(m_host->messageBox() != nullptr);
    QVERIFY(!accessibleControls(m_host->messageBox()).isEmpty());
    QCOMPARE(unnamed(m_host->messageBox()), QString());
}

void TestHostNames::progress()
{
    m_host->click("allRecordsRadio");
    m_host->click("PrintButton");
    auto* window = dialog<PrintProgressDialog>("printProgressDialog");
    QVERIFY(window != nullptr);
    QVERIFY(!accessibleControls(window).isEmpty());
    QCOMPARE(unnamed(window), QString());
}

void TestHostNames::numberBoxSaysWhatItCounts()
{
    const auto nameIn = [](RecordNavigator::Items items) {
        const RecordNavigator navigator(items);
        return navigator.findChild<QSpinBox*>()->accessibleName();
    };
    QCOMPARE(nameIn(RecordNavigator::Items::Records), QStringLiteral("Record"));
    QCOMPARE(nameIn(RecordNavigator::Items::Pages), QStringLiteral("Page"));
}

QTEST_MAIN(TestHostNames)

#include "tst_hostnames.moc"
