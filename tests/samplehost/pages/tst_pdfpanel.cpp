// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/support/documentfixture.h"
#include "samplehost/support/hosttest.h"
#include "samplehost/support/offscreenscreen.h"
#include "samplehost/support/signallogging.h"

#include <QtWidgets/QComboBox>
#include <QtWidgets/QDialog>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QStatusBar>

using namespace SampleHost;

/** "Preview and Print": what the host tells its panel, and how it follows what the panel says. */
class TestPdfPanel : public HostTest<DocumentFixture>
{
    Q_OBJECT

private Q_SLOTS:
    void opensAsAFramelessDialog();
    void showsTheCurrentPage();
    void closesAndOpensAgain();
    void typedListMovesThePage();
    void listOfNoPageShowsAnEmptyPage();
    void radiosMoveThePage();
    void turningPagesMovesTheCurrentPage();
    void anotherDocumentStartsAfresh();
    void anotherDocumentFollowsTheTypedList();
    void formFillIsOfferedForForms_data();
    void formFillIsOfferedForForms();
    void optionsChangeThePreview();
    void paperChangesThePreview();
    void printersAreListed();
    void printerIsSharedWithTheOtherPages();
    void settingsButtonOpensThePreferences();
    void emptyCopiesAreCorrected();
    void shortcutsReachThePanel();
    void keysTurnThePages_data();
    void keysTurnThePages();
    void keysTurnNothingWithoutAPage();
    void documentsThatMayNotBePrintedAreNot();
    void eventsAreLogged();
    void everySignalIsLogged();

private:
    QStringList log() const { return m_host->window->eventLog().lines(); }
};

void TestPdfPanel::opensAsAFramelessDialog()
{
    QVERIFY(m_host->openNumbered(12));
    QVERIFY(!m_host->dialog().isVisible());
    QVERIFY(m_host->showDialog());
    QVERIFY(m_host->dialog().windowFlags().testFlag(Qt::FramelessWindowHint));
    QCOMPARE(m_host->dialog().windowType(), Qt::Dialog);
    QCOMPARE(m_host->dialog().parentWidget(), &m_host->page());
    // Over the middle of the host.
    const QPoint off =
        m_host->dialog().geometry().center() - m_host->window->frameGeometry().center();
    QVERIFY(off.manhattanLength() <= 4 || m_host->dialog().pos().x() == 0 ||
            m_host->dialog().pos().y() == 0);
    QVERIFY(m_host->widget("PrintButton")->isEnabled());
}

void TestPdfPanel::showsTheCurrentPage()
{
    QVERIFY(m_host->openNumbered(12));
    QVERIFY(m_host->showDialog());
    QCOMPARE(m_host->title(), QStringLiteral("in.pdf - page 1 of 12"));
    const QImage first = m_host->previewPicture();
    m_host->press("nextRecordButton");
    QCOMPARE(m_host->title(), QStringLiteral("in.pdf - page 2 of 12"));
    QCOMPARE(m_host->preview().shownPage(), 2);
    QVERIFY(m_host->previewPicture() != first);
    m_host->press("previousRecordButton");
    QCOMPARE(m_host->previewPicture(), first);
}

void TestPdfPanel::closesAndOpensAgain()
{
    QVERIFY(m_host->openNumbered(12));
    QVERIFY(m_host->showDialog());
    Q_EMIT m_host->dialog().findChild<ContainerTitleBar*>()->closeButtonClicked();
    QVERIFY(!m_host->dialog().isVisible());
    m_host->press("lastRecordButton");
    QVERIFY(m_host->showDialog());
    QCOMPARE(m_host->title(), QStringLiteral("in.pdf - page 12 of 12"));
    const QImage last = m_host->previewPicture();
    m_host->press("firstRecordButton");
    QVERIFY(m_host->previewPicture() != last);
    m_host->press("lastRecordButton");
    QCOMPARE(m_host->previewPicture(), last);
}

void TestPdfPanel::typedListMovesThePage()
{
    QVERIFY(m_host->openNumbered(12));
    QVERIFY(m_host->showDialog());
    QSignalSpy started(&m_host->documentPanel(), &MultiPagePrintWidget::startPageChangedSignal);
    m_host->typePages(QStringLiteral("7-9,2"));
    QCOMPARE(started.size(), qsizetype(1));
    QCOMPARE(started.at(0).at(0).toInt(), 7);
    QCOMPARE(m_host->navigator().currentIndex(), 6);
    QCOMPARE(m_host->title(), QStringLiteral("in.pdf - page 7 of 12"));
    // The user may look at another page; the list stays.
    m_host->press("firstRecordButton");
    QCOMPARE(m_host->navigator().currentIndex(), 0);
    QCOMPARE(m_host->widget<QLineEdit>("pageListEdit")->text(), QStringLiteral("7-9,2"));
}

void TestPdfPanel::listOfNoPageShowsAnEmptyPage()
{
    QVERIFY(m_host->openNumbered(12));
    QVERIFY(m_host->showDialog());
    m_host->press("nextRecordButton");
    m_host->typePages(QStringLiteral("13"));
    // On the way the list said page 1.
    QCOMPARE(m_host->navigator().currentIndex(), 0);
    QCOMPARE(m_host->preview().shownPage(), -1);
    QVERIFY(!m_host->widget("PrintButton")->isEnabled());
    const QString reason = QStringLiteral("the list names none of the 12 pages");
    QCOMPARE(m_host->title(), QStringLiteral("in.pdf - cannot be printed: ") + reason);
    QCOMPARE(m_host->window->statusBar()->currentMessage(),
             QStringLiteral("in.pdf cannot be printed: %1.").arg(reason));
    // The placeholder is white and wider than high.
    const QImage picture = m_host->previewPicture();
    QCOMPARE(picture.pixelColor(picture.rect().center()), QColor(Qt::white));
    QCOMPARE(picture.pixelColor(5, picture.height() / 2), QColor(Qt::white));

    QTest::keyClicks(m_host->widget("pageListEdit"), QStringLiteral(",3"));
    QCOMPARE(m_host->preview().shownPage(), 3);
    QVERIFY(m_host->widget("PrintButton")->isEnabled());
    QVERIFY(m_host->previewPicture() != picture);
}

void TestPdfPanel::radiosMoveThePage()
{
    QVERIFY(m_host->openNumbered(12));
    QVERIFY(m_host->showDialog());
    m_host->typePages(QStringLiteral("99"));
    QVERIFY(!m_host->widget("PrintButton")->isEnabled());
    m_host->press("allPagesRadio");
    QCOMPARE(m_host->preview().shownPage(), 1);
    QVERIFY(m_host->widget("PrintButton")->isEnabled());
    m_host->press("lastRecordButton");
    m_host->press("currentPageRadio");
    QCOMPARE(m_host->preview().shownPage(), 12);
    QCOMPARE(m_host->title(), QStringLiteral("in.pdf - page 12 of 12"));
}

void TestPdfPanel::turningPagesMovesTheCurrentPage()
{
    QVERIFY(m_host->openNumbered(12));
    QVERIFY(m_host->showDialog());
    QSignalSpy requests(&m_host->documentPanel(), &MultiPagePrintWidget::widgetPrintSignal);
    m_host->press("lastRecordButton");
    m_host->press("previousRecordButton");
    m_host->press("PrintButton");
    QCOMPARE(requests.size(), qsizetype(1));
    QCOMPARE(requests.at(0), (QVariantList{11, 11, QString()}));
}

void TestPdfPanel::anotherDocumentStartsAfresh()
{
    QVERIFY(m_host->openBytes(PdfSamples::form(), "form.pdf"));
    QVERIFY(m_host->showDialog());
    m_host->press("formFillCheck");
    m_host->press("orientationCheck");
    m_host->press("plusButton");
    m_host->press("lastRecordButton");
    QVERIFY(m_host->preview().request().rotated180);
    QVERIFY(m_host->preview().request().formFillOnly);
    QCOMPARE(m_host->preview().request().copies, 2);

    m_host->window->eventLog().clear();
    QVERIFY(m_host->openNumbered(2));
    QVERIFY(!m_host->widget<QCheckBox>("orientationCheck")->isChecked());
    QVERIFY(!m_host->preview().request().rotated180);
    QVERIFY(!m_host->preview().request().formFillOnly);
    QCOMPARE(m_host->preview().request().copies, 1);
    QCOMPARE(m_host->title(), QStringLiteral("in.pdf - page 1 of 2"));
    // What the host changed by itself is not reported back.
    QCOMPARE(log().filter(QStringLiteral("orientationChangedSignal")), QStringList());
    QCOMPARE(log().filter(QStringLiteral("printFormFillChangedSignal")), QStringList());
}

void TestPdfPanel::anotherDocumentFollowsTheTypedList()
{
    QVERIFY(m_host->openNumbered(12));
    QVERIFY(m_host->showDialog());
    m_host->typePages(QStringLiteral("3"));
    QVERIFY(m_host->openNumbered(5, "other.pdf"));
    QCOMPARE(m_host->title(), QStringLiteral("other.pdf - page 3 of 5"));
    QCOMPARE(m_host->navigator().currentIndex(), 2);
    QVERIFY(m_host->openNumbered(2, "short.pdf"));
    QCOMPARE(m_host->preview().shownPage(), -1);
    QVERIFY(!m_host->widget("PrintButton")->isEnabled());
}

void TestPdfPanel::formFillIsOfferedForForms_data()
{
    QTest::addColumn<bool>("form");
    addRow("form", true);
    addRow("no form", false);
}

void TestPdfPanel::formFillIsOfferedForForms()
{
    QFETCH(bool, form);
    QVERIFY(form ? m_host->openBytes(PdfSamples::form()) : m_host->openNumbered(12));
    QVERIFY(m_host->showDialog());
    QCOMPARE(m_host->widget("formFillCheck")->isVisible(), form);
    QVERIFY(!m_host->widget<QCheckBox>("formFillCheck")->isChecked());
    QVERIFY(m_host->widget("orientationCheck")->isVisible());
}

void TestPdfPanel::optionsChangeThePreview()
{
    m_host->window->settings().setPaper(Paper::A4);
    QVERIFY(m_host->openBytes(PdfSamples::form()));
    QVERIFY(m_host->showDialog());
    QImage before = m_host->previewPicture();
    for (const char* option : {"orientationCheck", "formFillCheck"}) {
        m_host->press(option);
        const QImage after = m_host->previewPicture();
        QVERIFY2(after != before, option);
        m_host->press(option);
        QVERIFY2(m_host->previewPicture() == before, option);
    }
    // A page smaller than the paper grows when it is fitted.
    QVERIFY(m_host->openNumbered(4));
    m_host->press("lastRecordButton");
    before = m_host->previewPicture();
    QVERIFY(m_host->preview().request().fitToPage);
    m_host->press("fitToPageCheck");
    QVERIFY(!m_host->preview().request().fitToPage);
    QVERIFY(m_host->previewPicture() != before);
}

void TestPdfPanel::paperChangesThePreview()
{
    QVERIFY(m_host->openNumbered(4));
    QVERIFY(m_host->showDialog());
    m_host->press("lastRecordButton");
    m_host->press("fitToPageCheck");
    const QImage before = m_host->previewPicture();
    m_host->window->settings().setPaper(Paper::A4);
    QVERIFY(m_host->previewPicture() != before);
    m_host->window->settings().setPaper(Paper::LabelSize);
    QCOMPARE(m_host->previewPicture(), before);
}

void TestPdfPanel::printersAreListed()
{
    QVERIFY(m_host->openNumbered(1));
    auto* printers = m_host->widget<QComboBox>("PrinterListCombo");
    printers->clear();
    m_host->window->eventLog().clear();
    QVERIFY(m_host->showDialog());
    QCOMPARE(printers->itemText(0), QStringLiteral("PDF file"));
    QCOMPARE(m_host->documentPanel().getSelectedPrinter(), QStringLiteral("PDF file"));
    QCOMPARE(log().filter(QStringLiteral("currentPrinterSelectionChanged")), QStringList());
}

void TestPdfPanel::printerIsSharedWithTheOtherPages()
{
    QVERIFY(m_host->openNumbered(1));
    QVERIFY(m_host->showDialog());
    auto* printers = m_host->widget<QComboBox>("PrinterListCombo");
    printers->addItem(QStringLiteral("Hall"));
    printers->setCurrentIndex(printers->findText(QStringLiteral("Hall")));
    QCOMPARE(m_host->window->settings().printer(), QStringLiteral("Hall"));
    QCOMPARE(m_host->window->statusBar()->currentMessage(), QStringLiteral("Hall (unavailable)"));
    m_host->window->settings().setPrinter(QStringLiteral("PDF file"));
    QCOMPARE(m_host->documentPanel().getSelectedPrinter(), QStringLiteral("PDF file"));
    m_host->documentPanel().currentPrinterSelectionChangedSlot(0);
    QCOMPARE(m_host->window->statusBar()->currentMessage(),
             QStringLiteral("PDF file: ") + m_host->outputPath());
}

void TestPdfPanel::settingsButtonOpensThePreferences()
{
    QVERIFY(m_host->openNumbered(1));
    QVERIFY(m_host->showDialog());
    m_host->press("PreferencesButton");
    auto* preferences = m_host->window->findChild<QDialog*>(QStringLiteral("preferencesDialog"));
    QVERIFY(preferences != nullptr);
    QVERIFY(preferences->isVisible());
    QCOMPARE(preferences->parentWidget(), &m_host->dialog());
    preferences->reject();
    QVERIFY(m_host->dialog().isVisible());
}

void TestPdfPanel::emptyCopiesAreCorrected()
{
    QVERIFY(m_host->openNumbered(1));
    QVERIFY(m_host->showDialog());
    auto* copies = m_host->widget<QLineEdit>("copiesEdit");
    copies->clear();
    Q_EMIT m_host->documentPanel().focusLost();
    QCOMPARE(copies->text(), QStringLiteral("1"));
    copies->setText(QStringLiteral("25"));
    Q_EMIT m_host->documentPanel().focusLost();
    QCOMPARE(copies->text(), QStringLiteral("25"));
}

void TestPdfPanel::shortcutsReachThePanel()
{
    QVERIFY(m_host->openNumbered(3));
    QVERIFY(m_host->showDialog());
    QTRY_COMPARE(QApplication::activeWindow(), &m_host->dialog());
    QSignalSpy requests(&m_host->documentPanel(), &MultiPagePrintWidget::widgetPrintSignal);
    QWidget* view = m_host->widget("PreviewView");
    const QImage fitted = view->grab().toImage();
    QTest::keyClick(&m_host->dialog(), Qt::Key_Plus, Qt::ControlModifier);
    QVERIFY(view->grab().toImage() != fitted);
    QTest::keyClick(&m_host->dialog(), Qt::Key_0, Qt::ControlModifier);
    QCOMPARE(view->grab().toImage(), fitted);
    QTest::keyClick(&m_host->dialog(), Qt::Key_Minus, Qt::ControlModifier);
    QVERIFY(view->grab().toImage() != fitted);
    QCOMPARE(m_host->documentPanel().getNumberOfCopies(), 1);
    for (const Qt::Key key : {Qt::Key_Plus, Qt::Key_Plus, Qt::Key_Minus})
        QTest::keyClick(&m_host->dialog(), key, Qt::AltModifier);
    QCOMPARE(m_host->documentPanel().getNumberOfCopies(), 2);
    m_host->typePages(QStringLiteral("9"));
    QTest::keyClick(&m_host->dialog(), Qt::Key_P, Qt::ControlModifier);
    QVERIFY(requests.isEmpty());
    m_host->typePages(QStringLiteral("3"));
    QTest::keyClick(&m_host->dialog(), Qt::Key_P, Qt::ControlModifier);
    QCOMPARE(requests.size(), qsizetype(1));
    QTRY_COMPARE(m_host->printedPages(), QStringLiteral("3 3"));
}

void TestPdfPanel::keysTurnThePages_data()
{
    addColumns<QByteArray, QString, QString>("choice", "list", "printed");
    addRow("current page", QByteArray("currentPageRadio"), QString(), QStringLiteral("4"));
    addRow("all pages", QByteArray("allPagesRadio"), QString(), QStringLiteral("1 2 3 4"));
    addRow("list", QByteArray("selectionRadio"), QStringLiteral("2,1"), QStringLiteral("2 1"));
}

// Whatever is to be printed, the user may look at every page, here and on the host's page.
void TestPdfPanel::keysTurnThePages()
{
    QFETCH(const QByteArray, choice);
    QFETCH(const QString, list);
    QFETCH(const QString, printed);
    QVERIFY(m_host->openNumbered(4));
    QVERIFY(m_host->showDialog());
    QTRY_COMPARE(QApplication::activeWindow(), &m_host->dialog());
    m_host->press(choice.constData());
    if (!list.isEmpty())
        m_host->typePages(list);
    // An edit keeps Ctrl+Home and Ctrl+End.
    m_host->widget("PrintButton")->setFocus();
    const auto expectPage = [&](int page) {
        QCOMPARE(m_host->title(), QStringLiteral("in.pdf - page %1 of 4").arg(page));
        QCOMPARE(m_host->preview().shownPage(), page);
        QCOMPARE(m_host->navigator().currentIndex(), page - 1);
    };
    const struct
    {
        Qt::Key key;
        Qt::KeyboardModifiers modifiers;
        int page;
    } keys[] = {{Qt::Key_Home, Qt::ControlModifier, 1},
                {Qt::Key_PageUp, {}, 1},
                {Qt::Key_PageDown, {}, 2},
                {Qt::Key_PageDown, {}, 3},
                {Qt::Key_PageUp, {}, 2},
                {Qt::Key_End, Qt::ControlModifier, 4},
                {Qt::Key_PageDown, {}, 4}};
    for (const auto& [key, modifiers, page] : keys) {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
        expectPage(page);
    }
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_P, Qt::ControlModifier);
    QTRY_COMPARE(m_host->printedPages(), printed);
}

void TestPdfPanel::keysTurnNothingWithoutAPage()
{
    QVERIFY(m_host->openNumbered(4));
    QVERIFY(m_host->showDialog());
    QTRY_COMPARE(QApplication::activeWindow(), &m_host->dialog());
    m_host->typePages(QStringLiteral("9"));
    const QString title = m_host->title();
    for (const Qt::Key key : {Qt::Key_PageDown, Qt::Key_PageUp}) {
        QTest::keyClick(QApplication::focusWidget(), key);
        QCOMPARE(m_host->preview().shownPage(), -1);
        QCOMPARE(m_host->title(), title);
        QVERIFY(!m_host->widget("PrintButton")->isEnabled());
    }
}

void TestPdfPanel::documentsThatMayNotBePrintedAreNot()
{
    QVERIFY(m_host->openBytes(PdfSamples::encrypted(PdfSamples::form(), QByteArray(), false)));
    QVERIFY(m_host->showDialog());
    QVERIFY(!m_host->widget("PrintButton")->isEnabled());
    QCOMPARE(m_host->title(), QStringLiteral("in.pdf - cannot be printed: the author of the "
                                             "document does not allow it"));
    m_host->press("allPagesRadio");
    QVERIFY(!m_host->widget("PrintButton")->isEnabled());
}

void TestPdfPanel::eventsAreLogged()
{
    QVERIFY(m_host->openBytes(PdfSamples::form()));
    m_host->window->eventLog().clear();
    QVERIFY(m_host->showDialog());
    m_host->typePages(QStringLiteral("2,1"));
    m_host->press("formFillCheck");
    m_host->press("fitToPageCheck");
    m_host->press("orientationCheck");
    m_host->press("PrintButton");
    QStringList lines = log();
    // The offscreen platform decides when the focus moves.
    lines.removeAll(QStringLiteral("Documents: focusLost()"));
    QCOMPARE(lines, (QStringList{QStringLiteral("Documents: printWidgetShowSignal()"),
                                 QStringLiteral("Documents: startPageChangedSignal(1)"),
                                 QStringLiteral("Documents: startPageChangedSignal(2)"),
                                 QStringLiteral("Documents: printFormFillChangedSignal(2)"),
                                 QStringLiteral("Documents: fitToPageChangedSignal(0)"),
                                 QStringLiteral("Documents: orientationChangedSignal(2)"),
                                 QStringLiteral("Documents: widgetPrintSignal(0, 0, \"2,1\")")}));
}

void TestPdfPanel::everySignalIsLogged()
{
    MultiPagePrintWidget panel(false, false, nullptr);
    EventLog events;
    events.watch(panel, QStringLiteral("A"));
    checkThatEverySignalIsLogged(panel, events, 14);
}

// Large enough for the window "Preview and Print" and the host around it.
int main(int argc, char** argv)
{
    return runOnScreen<TestPdfPanel>(1920, 1080, argc, argv);
}

#include "tst_pdfpanel.moc"
