// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/pages/labelview.h"
#include "samplehost/pages/recordnavigator.h"
#include "samplehost/simulator/supplysimulator.h"
#include "samplehost/support/hostfixture.h"
#include "samplehost/support/hosttest.h"
#include "samplehost/window/errormessages.h"
#include "samplehost/window/eventlog.h"
#include "samplehost/window/preferencesdialog.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QStatusBar>

using namespace SampleHost;

/** The pages of the host: what they tell their panels, and how they follow what a panel says. */
class TestHostPages : public HostTest<HostFixture, true>
{
    Q_OBJECT

private Q_SLOTS:
    void navigationMovesTheCurrentRecord();
    void navigatorStaysInItsBounds();
    void typedRecordNumberIsShown();
    void labelOfTheCurrentRecordIsShown();
    void sheetShowsTheNupChoice();
    void dynamicLengthForcesReplicating();
    void unboundLabelHasNoRecords();
    void withoutDataThereIsNothingToPrint();
    void preferencesButtonOpensTheDialog();
    void preferencesReachTheWindow();
    void errorTestShowsTheMessage();
    void supplyReachesBothPanels();
    void pipePanelOffersTheMarkersTags();
    void chosenTagIsShownAndPrinted();
    void anotherMarkerStartsAtItsLabel();
    void bothPanelsAreInTheLog();

private:
    template <typename Widget>
    Widget* pipeWidget(const char* name) const
    {
        return m_host->pipes().findChild<Widget*>(QString::fromLatin1(name));
    }
    int currentRecordOfRequest();
};

int TestHostPages::currentRecordOfRequest()
{
    QSignalSpy requests(&m_host->panel(), &PrintWidget::printPreviewSignal);
    m_host->click("PreviewButton");
    return requests.isEmpty() ? -1 : requests.at(0).at(0).toInt();
}

void TestHostPages::navigationMovesTheCurrentRecord()
{
    const int count = int(m_host->productNames().size());
    QCOMPARE(m_host->labels().navigator().count(), count);
    QCOMPARE(currentRecordOfRequest(), 1);
    m_host->click("nextRecordButton");
    m_host->click("nextRecordButton");
    QCOMPARE(currentRecordOfRequest(), 3);
    m_host->click("previousRecordButton");
    QCOMPARE(currentRecordOfRequest(), 2);
    m_host->click("lastRecordButton");
    QCOMPARE(currentRecordOfRequest(), count);
    QVERIFY(!m_host->find<QWidget>("nextRecordButton")->isEnabled());
    m_host->click("firstRecordButton");
    QCOMPARE(currentRecordOfRequest(), 1);
    QVERIFY(!m_host->find<QWidget>("previousRecordButton")->isEnabled());
}

void TestHostPages::navigatorStaysInItsBounds()
{
    RecordNavigator navigator;
    QSignalSpy changed(&navigator, &RecordNavigator::currentIndexChanged);
    QVERIFY(!navigator.isEnabled());
    navigator.setCurrentIndex(5);
    QCOMPARE(navigator.currentIndex(), 0);
    navigator.setCount(10);
    navigator.setCurrentIndex(99);
    QCOMPARE(navigator.currentIndex(), 9);
    navigator.setCurrentIndex(-3);
    QCOMPARE(navigator.currentIndex(), 0);
    navigator.setCurrentIndex(8);
    QCOMPARE(changed.size(), qsizetype(3));
    navigator.setCount(4);
    QCOMPARE(navigator.currentIndex(), 3);
    QCOMPARE(changed.size(), qsizetype(4));
    navigator.setCount(-1);
    QCOMPARE(navigator.count(), 0);
    QCOMPARE(navigator.currentIndex(), 0);
    QVERIFY(!navigator.isEnabled());
}

void TestHostPages::typedRecordNumberIsShown()
{
    auto* box = m_host->find<QSpinBox>("recordNumberBox");
    box->selectAll();
    QTest::keyClicks(box, QStringLiteral("12"));
    QTest::keyClick(box, Qt::Key_Return);
    QCOMPARE(m_host->labels().navigator().currentIndex(), 11);
    QCOMPARE(currentRecordOfRequest(), 12);
}

void TestHostPages::labelOfTheCurrentRecordIsShown()
{
    auto* view = m_host->find<LabelView>("labelView");
    QVERIFY(!view->paperRect().isEmpty());
    QVERIFY(QRectF(view->rect()).contains(view->paperRect()));
    const QImage first = view->grab().toImage();
    m_host->click("nextRecordButton");
    const QImage second = view->grab().toImage();
    QVERIFY(first != second);
    m_host->click("previousRecordButton");
    QCOMPARE(view->grab().toImage(), first);

    m_host->click("backgroundCheck");
    QVERIFY(view->grab().toImage() != first);
}

void TestHostPages::sheetShowsTheNupChoice()
{
    auto* frame = m_host->find<QWidget>("nupFrame");
    QVERIFY(!frame->isVisible());
    m_host->window->settings().setNup(NupLayout{2, 1});
    QVERIFY(frame->isVisible());
    QVERIFY(!frame->isEnabled());
    m_host->click("allRecordsRadio");
    QVERIFY(frame->isEnabled());
    m_host->window->settings().setNup(NupLayout{1, 1});
    QVERIFY(!frame->isVisible());
}

void TestHostPages::dynamicLengthForcesReplicating()
{
    m_host->window->settings().setNup(NupLayout{2, 2});
    m_host->click("allRecordsRadio");
    m_host->click("sequencingRadio");
    QVERIFY(m_host->panel().getNupSeqRepOption());
    m_host->click("dynamicLengthCheck");
    QVERIFY(!m_host->panel().getNupSeqRepOption());
    QVERIFY(!m_host->find<QWidget>("nupFrame")->isEnabled());
    m_host->click("dynamicLengthCheck");
    QVERIFY(m_host->panel().getNupSeqRepOption());
}

void TestHostPages::unboundLabelHasNoRecords()
{
    m_host->window->settings().setNup(NupLayout{2, 2});
    m_host->click("nextRecordButton");
    m_host->click("boundCheck");
    QVERIFY(!m_host->find<QWidget>("recordsFrame")->isEnabled());
    QVERIFY(!m_host->find<QWidget>("nupFrame")->isVisible());
    QVERIFY(!m_host->labels().navigator().isEnabled());
    QVERIFY(m_host->find<QWidget>("PrintButton")->isEnabled());
    m_host->click("boundCheck");
    QVERIFY(m_host->find<QWidget>("recordsFrame")->isEnabled());
    QVERIFY(m_host->find<QWidget>("nupFrame")->isVisible());
    QVERIFY(m_host->labels().navigator().isEnabled());
    QCOMPARE(currentRecordOfRequest(), 2);
}

void TestHostPages::withoutDataThereIsNothingToPrint()
{
    HostOptions options;
    options.dataSource.databaseName = m_host->folder.path();
    MainWindow window(options);
    window.show();
    QVERIFY(!window.dataSourceProblem().isEmpty());
    QCOMPARE(window.statusBar()->currentMessage(), window.dataSourceProblem());
    QCOMPARE(window.labelPage().navigator().count(), 0);
    QVERIFY(!window.labelPage().navigator().isEnabled());
    const auto find = [&window](const char* name) {
        return window.labelPage().findChild<QWidget*>(QString::fromLatin1(name));
    };
    QVERIFY(!find("PrintButton")->isEnabled());
    QVERIFY(!find("recordsFrame")->isEnabled());
    // A request that comes all the same names nothing.
    QSignalSpy refused(&window.labelPage().controller(), &PrintController::refused);
    Q_EMIT window.labelPage().panel().widgetPrintSignal(1, -1, QString());
    QCOMPARE(refused.size(), qsizetype(1));
    QVERIFY(!window.grab().isNull());
}

void TestHostPages::preferencesButtonOpensTheDialog()
{
    QVERIFY(m_host->window->findChild<PreferencesDialog*>() == nullptr);
    m_host->click("PreferencesButton");
    auto* dialog = m_host->window->findChild<PreferencesDialog*>();
    QVERIFY(dialog != nullptr);
    QVERIFY(dialog->isVisible());
    dialog->reject();
    QTRY_VERIFY(m_host->window->findChild<PreferencesDialog*>() == nullptr);
}

void TestHostPages::preferencesReachTheWindow()
{
    m_host->window->settings().setOutputFileName(QStringLiteral("other.pdf"));
    const QString path = QDir::toNativeSeparators(m_host->path("other.pdf"));
    QCOMPARE(m_host->find<QLabel>("locationLabel")->text(), path);
    QCOMPARE(pipeWidget<QLabel>("locationLabel")->text(), path);
    m_host->window->settings().setNup(NupLayout{3, 3});
    QCOMPARE(m_host->find<QComboBox>("nupCombo")->currentData().toString(), QStringLiteral("3x3"));
}

void TestHostPages::errorTestShowsTheMessage()
{
    m_host->find<QSpinBox>("errorNumberSpinBox")->setValue(3);
    m_host->click("showErrorButton");
    auto* box = m_host->window->findChild<QMessageBox*>(QStringLiteral("messageBox"));
    QVERIFY(box != nullptr);
    QCOMPARE(box->text(), printErrorMessage(3));
    QCOMPARE(box->windowTitle(), QStringLiteral("Print Error 3"));
}

void TestHostPages::supplyReachesBothPanels()
{
    m_host->window->supply().setReport(SupplySimulator::Report::OneRibbon);
    QVERIFY(m_host->panel().isSupplyInfoVisible());
    QVERIFY(m_host->pipes().panel().isSupplyInfoVisible());
    m_host->window->supply().setReport(SupplySimulator::Report::Nothing);
    QVERIFY(!m_host->panel().isSupplyInfoVisible());
    QVERIFY(!m_host->pipes().panel().isSupplyInfoVisible());
}

void TestHostPages::pipePanelOffersTheMarkersTags()
{
    m_host->window->setCurrentPage(m_host->pipes());
    QVERIFY(!pipeWidget<QWidget>("recordsFrame")->isVisible());
    auto* items = pipeWidget<QComboBox>("AmmoniaPrintCombo");
    const QList<PipeMarker>& markers = pipeMarkers();
    bool seenTags = false;
    bool seenNone = false;
    for (int index = 0; index < markers.size(); ++index) {
        m_host->pipes().setCurrentMarker(index);
        QList<int> offered{0};
        for (const int bit : {1, 2, 4, 8}) {
            if ((markers.at(index).tags & bit) != 0) {
                offered.append(bit);
            }
        }
        const bool tags = offered.size() > 1;
        (tags ? seenTags : seenNone) = true;
        QCOMPARE(items->isVisible(), tags);
        QList<int> shown;
        for (int i = 0; i < items->count(); ++i) {
            shown.append(items->itemData(i).toInt());
        }
        QCOMPARE(shown, offered);
    }
    QVERIFY(seenTags && seenNone);
    m_host->pipes().setCurrentMarker(-1);
    m_host->pipes().setCurrentMarker(999);
    QCOMPARE(m_host->pipes().design().currentIndex(), int(markers.size()) - 1);
}

void TestHostPages::chosenTagIsShownAndPrinted()
{
    m_host->window->setCurrentPage(m_host->pipes());
    auto* items = pipeWidget<QComboBox>("AmmoniaPrintCombo");
    auto* view = pipeWidget<LabelView>("markerView");
    const QImage whole = view->grab().toImage();
    QTest::keyClick(items, Qt::Key_End);
    QVERIFY(view->grab().toImage() != whole);
    const int item = items->currentData().toInt();
    QCOMPARE(m_host->pipes().design().item(), item);
    QCOMPARE(m_host->pipes().controller().request(1, -1, QString()).ammoniaItem, item);

    QSignalSpy ended(&m_host->pipes().controller(), &PrintController::jobEnded);
    QTest::mouseClick(pipeWidget<QWidget>("PrintButton"), Qt::LeftButton);
    QVERIFY(ended.wait());
    // Wide letters look like words of their own to the reader of the file, hence no blanks.
    QStringList pages = pdfPages(m_host->outputPath());
    QCOMPARE(pages.size(), qsizetype(1));
    QVERIFY(!pages.at(0).isEmpty());
    QVERIFY(!pages[0].remove(QLatin1Char(' ')).contains(QStringLiteral("AMMONIA")));

    QTest::keyClick(items, Qt::Key_Home);
    QCOMPARE(view->grab().toImage(), whole);
    ended.clear();
    QTest::mouseClick(pipeWidget<QWidget>("PrintButton"), Qt::LeftButton);
    QVERIFY(ended.wait());
    pages = pdfPages(m_host->outputPath());
    QCOMPARE(pages.size(), qsizetype(1));
    QVERIFY(pages[0].remove(QLatin1Char(' ')).contains(QStringLiteral("AMMONIA")));
}

void TestHostPages::anotherMarkerStartsAtItsLabel()
{
    m_host->window->setCurrentPage(m_host->pipes());
    auto* items = pipeWidget<QComboBox>("AmmoniaPrintCombo");
    QTest::keyClick(items, Qt::Key_End);
    QVERIFY(m_host->pipes().design().item() != PipeItem::Label);
    QTest::keyClick(pipeWidget<QListWidget>("markerList"), Qt::Key_Down);
    QCOMPARE(m_host->pipes().design().currentIndex(), 1);
    QCOMPARE(items->currentIndex(), 0);
    QCOMPARE(m_host->pipes().design().item(), PipeItem::Label);
}

void TestHostPages::bothPanelsAreInTheLog()
{
    m_host->window->eventLog().clear();
    m_host->click("PreviewButton");
    m_host->window->setCurrentPage(m_host->pipes());
    QTest::keyClick(pipeWidget<QComboBox>("AmmoniaPrintCombo"), Qt::Key_End);
    const QStringList lines = m_host->window->eventLog().lines();
    QVERIFY(lines.contains(QStringLiteral("Labels: printPreviewSignal(1, -1, \"\")")));
    QVERIFY(lines.contains(QStringLiteral("Pipes: printWidgetShowSignal()")));
    QVERIFY(lines.constLast().startsWith(QStringLiteral("Pipes: ammoniaPrintTagChanged(")));
}

QTEST_MAIN(TestHostPages)

#include "tst_hostpages.moc"
