// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/pages/catalogpage.h"
#include "samplehost/simulator/laminatorsimulator.h"
#include "samplehost/simulator/supplysimulator.h"
#include "samplehost/support/hostfixture.h"
#include "samplehost/support/hosttest.h"
#include "samplehost/window/eventlog.h"

#include <printpanels-hostkit/colormenu.h>
#include <printpanels/printpreviewdialog.h>
#include <printpanels/quickprintwidget.h>

#include <QtCore/QSettings>
#include <QtGui/QAction>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QInputDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QStatusBar>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QTabWidget>

using namespace SampleHost;

/** The host's tools around the panels: page count, added printers, laminator, units, event log. */
class TestHostTools : public HostTest<HostFixture>
{
    Q_OBJECT

private Q_SLOTS:
    void countsPages_data();
    void countsPages();
    void addedPrinterIsOffered();
    void namesThatAreNoNewPrinterAreRefused_data();
    void namesThatAreNoNewPrinterAreRefused();
    void onePrinterForAllPanels();
    void laminatorAddsATabBehindTheOthers();
    void filmIsTheSameInAllPanels();
    void ladderTubeIsShown();
    void logListsTheCataloguePanel();
    void logListsThePreview();
    void unitIsKept();
    void documentsAreOfferedOrHidden();
    void recentDocumentIsKept();

private:
    void trigger(const char* name) const;
    QTabBar* tabs(const PrintPage& page) const
    {
        return page.panel().findChild<QTabBar*>(QStringLiteral("colorTabBar"));
    }
};

void TestHostTools::trigger(const char* name) const
{
    m_host->window->findChild<QAction*>(QString::fromLatin1(name))->trigger();
}

void TestHostTools::countsPages_data()
{
    addColumns<QString, QString>("list", "message");

    addRow("current", QString(), "1 page would be printed.");
    addRow("list", "1,4-5", "3 pages would be printed.");
    addRow("nothing", "9999", "0 pages would be printed.");
    addRow("unreadable", "1,", "0 pages would be printed.");
}

void TestHostTools::countsPages()
{
    QFETCH(QString, list);
    if (!list.isEmpty()) {
        m_host->typeList(list);
    }
    trigger("countPagesAction");
    QTEST(m_host->window->statusBar()->currentMessage(), "message");
    m_host->window->setCurrentPage(m_host->pipes());
    trigger("countPagesAction");
    QCOMPARE(m_host->window->statusBar()->currentMessage(),
             QStringLiteral("1 page would be printed."));
}

void TestHostTools::addedPrinterIsOffered()
{
    trigger("addPrinterAction");
    auto* dialog = m_host->window->findChild<QInputDialog*>(QStringLiteral("addPrinterDialog"));
    QVERIFY(dialog != nullptr);
    dialog->setTextValue(QStringLiteral("  Line 4 "));
    dialog->accept();
    auto* printers = m_host->find<QComboBox>("PrinterListCombo");
    QCOMPARE(printers->currentText(), QStringLiteral("Line 4"));
    QCOMPARE(m_host->pipes().panel().getSelectedPrinter(), QStringLiteral("Line 4"));
    QCOMPARE(m_host->find<QLabel>("statusLabel")->text(), QStringLiteral("Offline, Unavailable"));
    // Filled anew, the panel still has it.
    m_host->window->setCurrentPage(m_host->pipes());
    m_host->window->setCurrentPage(m_host->labels());
    QCOMPARE(printers->currentText(), QStringLiteral("Line 4"));
}

void TestHostTools::namesThatAreNoNewPrinterAreRefused_data()
{
    addColumns<QString, QString>("name", "reason");

    addRow("blank", "  ", "Enter the name of the printer.");
    addRow("known", "PDF file", "There is already a printer \"PDF file\". Choose it in the panel.");
}

void TestHostTools::namesThatAreNoNewPrinterAreRefused()
{
    QFETCH(QString, name);
    const int before = m_host->find<QComboBox>("PrinterListCombo")->count();
    trigger("addPrinterAction");
    auto* dialog = m_host->window->findChild<QInputDialog*>(QStringLiteral("addPrinterDialog"));
    dialog->setTextValue(name);
    dialog->accept();
    QCOMPARE(m_host->find<QComboBox>("PrinterListCombo")->count(), before);
    QTEST(m_host->window->statusBar()->currentMessage(), "reason");
}

void TestHostTools::onePrinterForAllPanels()
{
    for (PrintPage* page :
         {static_cast<PrintPage*>(&m_host->labels()), static_cast<PrintPage*>(&m_host->pipes())}) {
        page->panel().addPrinterToList(QStringLiteral("B"), false);
    }
    m_host->window->eventLog().clear();
    QTest::keyClick(m_host->find<QComboBox>("PrinterListCombo"), Qt::Key_End);
    QCOMPARE(m_host->pipes().panel().getSelectedPrinter(), QStringLiteral("B"));
    QCOMPARE(m_host->window->settings().printer(), QStringLiteral("B"));
    // The user chose in one panel only.
    QCOMPARE(m_host->window->eventLog().lines(),
             QStringList{QStringLiteral("Labels: currentPrinterSelectionChanged(\"B\")")});
}

void TestHostTools::laminatorAddsATabBehindTheOthers()
{
    SupplySimulator& supply = m_host->window->supply();
    supply.setReport(SupplySimulator::Report::OneRibbon);
    QCOMPARE(tabs(m_host->labels())->count(), 2);
    auto* button = supply.findChild<QPushButton*>(QStringLiteral("laminatorButton"));
    QTest::mouseClick(button, Qt::LeftButton);
    QVERIFY(!button->isEnabled());
    const auto lastTab = [this](const PrintPage& page) {
        return tabs(page)->tabText(tabs(page)->count() - 1);
    };
    for (const auto report :
         {SupplySimulator::Report::OneRibbon, SupplySimulator::Report::TwoRibbons,
          SupplySimulator::Report::Nothing, SupplySimulator::Report::OneRibbon}) {
        supply.setReport(report);
        QVERIFY(lastTab(m_host->labels()).contains(QStringLiteral("Film")));
        QVERIFY(lastTab(m_host->pipes()).contains(QStringLiteral("Film")));
    }
    QCOMPARE(tabs(m_host->labels())->count(), 3);
}

void TestHostTools::filmIsTheSameInAllPanels()
{
    SupplySimulator& supply = m_host->window->supply();
    supply.setReport(SupplySimulator::Report::TwoRibbons);
    QTest::mouseClick(supply.findChild<QPushButton*>(QStringLiteral("laminatorButton")),
                      Qt::LeftButton);
    auto* laminator = supply.findChild<LaminatorSimulator*>();
    QSignalSpy changed(laminator, &LaminatorSimulator::filmChanged);
    QCOMPARE(laminator->film(), QStringLiteral("transparent"));
    m_host->window->setCurrentPage(m_host->pipes());
    InputSimulation::processEvents();
    const auto tabPicture = [this](int index) {
        QTabBar* bar = tabs(m_host->pipes());
        return bar->grab(bar->tabRect(index)).toImage();
    };
    const QImage clear = tabPicture(3);
    const QImage tape = tabPicture(2);
    auto* menu = m_host->panel().findChild<ColorMenu*>(QStringLiteral("laminateMenu"));
    Q_EMIT menu->colorSignal(QStringLiteral("#ffff00"));
    Q_EMIT menu->colorSignal(QStringLiteral("#ffff00"));
    QCOMPARE(changed.size(), qsizetype(1));
    QCOMPARE(laminator->film(), QStringLiteral("#ffff00"));
    QVERIFY(tabPicture(3) != clear);
    QCOMPARE(tabPicture(2), tape);
}

void TestHostTools::ladderTubeIsShown()
{
    SupplySimulator& supply = m_host->window->supply();
    supply.setReport(SupplySimulator::Report::OneRibbon);
    auto* use = supply.findChild<QLabel*>(QStringLiteral("useLabel"));
    QCOMPARE(use->text(), QStringLiteral("Tape"));
    supply.findChild<QCheckBox*>(QStringLiteral("ladderCheck"))->setChecked(true);
    m_host->click("tinyLadderCheck");
    QCOMPARE(use->text(), QStringLiteral("Ladder shrink tube"));
    m_host->click("tinyLadderCheck");
    QCOMPARE(use->text(), QStringLiteral("Tape"));
}

void TestHostTools::logListsTheCataloguePanel()
{
    EventLog& log = m_host->window->eventLog();
    QuickPrintWidget& panel = m_host->window->catalogPage().panel();
    log.clear();
    Q_EMIT panel.resizeSignal(QSizeF(-1.0, 2.5));
    Q_EMIT panel.printPreviewSignal(-1, -1, QString());
    Q_EMIT panel.supplyWidthChangedSignal(1.5);
    QStringList lines = log.lines();
    // The answer to a request may be another line.
    QCOMPARE(lines.at(0), QStringLiteral("Catalogue: resizeSignal(-1 x 2.5)"));
    QVERIFY(lines.contains(QStringLiteral("Catalogue: printPreviewSignal(-1, -1, \"\")")));
    QVERIFY(lines.contains(QStringLiteral("Catalogue: supplyWidthChangedSignal(1.5)")));
}

void TestHostTools::logListsThePreview()
{
    PrintPreviewDialog preview(nullptr, Qt::Dialog, QImage(), QSizeF(), QSizeF(), false, true, true,
                               1, -1, QString());
    EventLog log;
    log.watch(preview, QStringLiteral("P"));
    Q_EMIT preview.previewPrintSignal(0, 0, QStringLiteral("1,4"));
    Q_EMIT preview.orientationChangedSignal(1);
    Q_EMIT preview.popupHideSignal();
    QCOMPARE(log.lines(), (QStringList{QStringLiteral("P: previewPrintSignal(0, 0, \"1,4\")"),
                                       QStringLiteral("P: orientationChangedSignal(1)"),
                                       QStringLiteral("P: popupHideSignal()")}));
}

void TestHostTools::unitIsKept()
{
    const QTemporaryDir folder;
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder.path());
    QCoreApplication::setOrganizationName(QStringLiteral("printpanels-test"));
    HostSettings settings;
    QSignalSpy changed(&settings, &HostSettings::changed);
    settings.setMetric(false);
    QCOMPARE(changed.size(), qsizetype(0));
    settings.setMetric(true);
    QCOMPARE(changed.size(), qsizetype(1));
    settings.save();
    HostSettings later;
    QVERIFY(!later.isMetric());
    later.load();
    QVERIFY(later.isMetric());
}

void TestHostTools::documentsAreOfferedOrHidden()
{
    const bool documents = MainWindow::parts().documents;
    QStringList titles;
    const auto* pages = m_host->window->findChild<QTabWidget*>();
    for (int i = 0; i < pages->count(); ++i) {
        titles.append(pages->tabText(i));
    }
    QStringList expected{QStringLiteral("Chemical Labels"), QStringLiteral("Pipe Markers"),
                         QStringLiteral("Catalogue")};
    expected += documents ? QStringList{QStringLiteral("Documents")} : QStringList();
    QCOMPARE(titles, expected);
    QStringList entries;
    const auto* menu = m_host->window->menuBar()->actions().constFirst()->menu();
    const auto actions = menu->actions();
    for (const QAction* action : actions) {
        entries.append(action->text());
    }
    QCOMPARE(entries.contains(QStringLiteral("&Open Document...")), documents);
    QCOMPARE(entries.filter(QStringLiteral("Document")).size(), documents ? 2 : 0);
    QCOMPARE(entries.constFirst(),
             documents ? QStringLiteral("&Open Document...") : QStringLiteral("&Print"));
    QVERIFY(m_host->window->documentWindow() == nullptr);
}

// A build with documents finds it again.
void TestHostTools::recentDocumentIsKept()
{
    const QTemporaryDir folder;
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder.path());
    QCoreApplication::setOrganizationName(QStringLiteral("printpanels-test"));
    const QString key = QStringLiteral("documents/recent");
    const QString path = folder.filePath(QStringLiteral("a.pdf"));
    QSettings().setValue(key, path);
    m_host->window->persistSettings();
    m_host->window->settings().setMetric(true);
    QVERIFY(m_host->window->saveSettings());
    QCOMPARE(QSettings().value(key).toString(), path);
}

QTEST_MAIN(TestHostTools)

#include "tst_hosttools.moc"
