// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/pages/catalogpage.h"
#include "samplehost/pages/labelview.h"
#include "samplehost/printing/labelpreview.h"
#include "samplehost/support/hostfixture.h"
#include "samplehost/support/hosttest.h"
#include "samplehost/window/eventlog.h"

#include <printpanels/printpreviewdialog.h>
#include <printpanels/quickprintwidget.h>

#include <QtGui/QAction>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QStatusBar>

using namespace SampleHost;
using Outcome = PrintJob::Outcome;

/** Drives the catalogue page as a user does. */
class TestCatalogPage : public HostTest<HostFixture>
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;
    void startsWithTheFirstItem();
    void selectingAnItemShowsIt();
    void resizedItemIsPrinted();
    void badSizesAreAnswered_data();
    void badSizesAreAnswered();
    void unappliedSizeIsReported();
    void listedSizeComesBack();
    void preCutLabelsHaveAFixedSize();
    void sizesFollowTheUnit();
    void sizeSurvivesAChangeOfUnit();
    void printerFollowsTheChoice();
    void printRestsDuringAJob();
    void menuPrintsTheItem();
    void withoutASelectionNothingCanBePressed();
    void openInEditorShowsTheItem();
    void editedItemIsPrinted();
    void editorWorksWithoutData();
    void bindingEndsTheEditing();

private:
    CatalogPage& page() const { return m_host->window->catalogPage(); }
    QuickPrintWidget& panel() const { return page().panel(); }
    template <typename Widget>
    Widget* find(const char* name) const
    {
        return page().findChild<Widget*>(QString::fromLatin1(name));
    }
    void press(const char* name) const;
    void type(const char* name, const QString& text) const;
    void select(const char* item) const
    {
        page().setCurrentItem(catalogIndexOf(QLatin1String(item)));
    }
    void resize(const QString& length, const QString& width) const;
    /** Presses Print and waits; the pages' texts without blanks. */
    QStringList print() const;
    static QStringList withoutBlanks(QStringList pages);
};

void TestCatalogPage::init()
{
    HostTest::init();
    m_host->window->setCurrentPage(page());
}

void TestCatalogPage::press(const char* name) const
{
    InputSimulation::processEvents();
    auto* widget = find<QWidget>(name);
    QVERIFY2(widget != nullptr && widget->isVisible() && widget->isEnabled(), name);
    QTest::mouseClick(widget, Qt::LeftButton, Qt::NoModifier,
                      QPoint(qMin(10, widget->width() / 2), widget->height() / 2));
}

void TestCatalogPage::type(const char* name, const QString& text) const
{
    auto* edit = find<QLineEdit>(name);
    edit->selectAll();
    QTest::keyClick(edit, Qt::Key_Delete);
    QTest::keyClicks(edit, text);
}

void TestCatalogPage::resize(const QString& length, const QString& width) const
{
    type("lengthEdit", length);
    type("widthEdit", width);
    press("resizeButton");
}

QStringList TestCatalogPage::withoutBlanks(QStringList pages)
{
    return pages.replaceInStrings(QStringLiteral(" "), QString());
}

QStringList TestCatalogPage::print() const
{
    QSignalSpy ended(&page().controller(), &PrintController::jobEnded);
    press("printButton");
    if (ended.isEmpty() && !ended.wait(60000)) {
        return {};
    }
    return withoutBlanks(pdfPages(m_host->outputPath()));
}

void TestCatalogPage::startsWithTheFirstItem()
{
    QCOMPARE(find<QListWidget>("catalogList")->count(), int(catalogItems().size()));
    QCOMPARE(page().design().currentItem().text, QStringLiteral("EXIT"));
    QVERIFY(find<QWidget>("resizeFrame")->isVisible());
    QCOMPARE(find<QLineEdit>("lengthEdit")->text(), QStringLiteral("10.00"));
    QCOMPARE(find<QLineEdit>("widthEdit")->text(), QStringLiteral("5.00"));
    QCOMPARE(find<QLabel>("catalogSizeLabel")->text(), QStringLiteral("10.00 x 5.00 in"));
    QCOMPARE(find<QLabel>("printerNameLabel")->text(), QStringLiteral("PDF file"));
    QVERIFY(find<QWidget>("printButton")->isEnabled());
    QVERIFY(find<QWidget>("openInEditorButton")->isEnabled());
    QCOMPARE(page().message(), QString());
}

void TestCatalogPage::selectingAnItemShowsIt()
{
    auto* list = find<QListWidget>("catalogList");
    auto* view = find<LabelView>("catalogView");
    auto* preview = find<QWidget>("PreviewView");
    const QImage exit = view->grab().toImage();
    const QImage exitPreview = preview->grab().toImage();
    panel().setNumberOfCopies(7);
    QTest::keyClick(list, Qt::Key_Down);
    QCOMPARE(page().design().currentItem().text, QStringLiteral("NO SMOKING"));
    QVERIFY(view->grab().toImage() != exit);
    QVERIFY(preview->grab().toImage() != exitPreview);
    QCOMPARE(find<QLineEdit>("widthEdit")->text(), QStringLiteral("7.00"));
    QCOMPARE(panel().getNumberOfCopies(), 1);
    page().setCurrentItem(-1);
    page().setCurrentItem(99);
    QCOMPARE(page().design().currentIndex(), 1);
}

void TestCatalogPage::resizedItemIsPrinted()
{
    select("NO SMOKING");
    const QImage before = find<QWidget>("PreviewView")->grab().toImage();
    resize(QStringLiteral("4"), QStringLiteral("8.5"));
    QCOMPARE(page().message(), QString());
    QCOMPARE(find<QLineEdit>("lengthEdit")->text(), QStringLiteral("4.00"));
    QCOMPARE(find<QLineEdit>("widthEdit")->text(), QStringLiteral("8.50"));
    QVERIFY(find<QWidget>("PreviewView")->grab().toImage() != before);
    press("plusButton");
    press("plusButton");
    QCOMPARE(print(), QStringList(3, QStringLiteral("NOSMOKING")));
    QCOMPARE(pdfPageSizeMm(m_host->outputPath()), QSizeF(102, 216));
    const QStringList lines = m_host->window->eventLog().lines();
    QVERIFY(lines.contains(QStringLiteral("Catalogue: resizeSignal(4 x 8.5)")));
    QVERIFY(lines.contains(QStringLiteral("Catalogue: widgetPrintSignal(-1, -1, \"\")")));
}

void TestCatalogPage::badSizesAreAnswered_data()
{
    addColumns<QString, QString, QString>("length", "width", "message");

    const QString noLength = QStringLiteral("The length has to be a number greater than 0.");
    const QString noWidth = QStringLiteral("The width has to be a number greater than 0.");
    addRow("letters", "abc", "5", noLength);
    addRow("empty", QString(), "5", noLength);
    addRow("minus one", "5", "-1", noWidth);
    addRow("zero", "5", "0", noWidth);
    addRow("nan", "nan", "5", noLength);
    addRow("inf", "5", "inf", noWidth);
    addRow("comma", "5,5", "5", noLength);
    addRow("too long", "400", "5",
           "A length of 400 in is too long to be printed; the "
           "greatest is 36.00 in.");
}

void TestCatalogPage::badSizesAreAnswered()
{
    QFETCH(QString, length);
    QFETCH(QString, width);
    QFETCH(QString, message);
    const QImage before = find<QWidget>("PreviewView")->grab().toImage();
    QSignalSpy refused(&page(), &CatalogPage::sizeRefused);
    resize(length, width);
    QCOMPARE(page().message(), message);
    QCOMPARE(refused.size(), qsizetype(1));
    QCOMPARE(m_host->window->statusBar()->currentMessage(), message);
    // Nothing is in the user's way, what was typed can be corrected, and the item is as it was.
    QVERIFY(QApplication::activeModalWidget() == nullptr);
    QCOMPARE(find<QLineEdit>("lengthEdit")->text(), length);
    QCOMPARE(find<QLineEdit>("widthEdit")->text(), width);
    QCOMPARE(find<QWidget>("PreviewView")->grab().toImage(), before);
    QCOMPARE(page().design().sizeMm(), QSizeF(254, 127));
    resize(QStringLiteral("5"), QStringLiteral("5"));
    QCOMPARE(page().message(), QString());
    QCOMPARE(page().design().sizeMm(), QSizeF(127, 127));
}

void TestCatalogPage::unappliedSizeIsReported()
{
    type("lengthEdit", QStringLiteral("6"));
    QCOMPARE(print(), QStringList{QStringLiteral("EXIT")});
    QCOMPARE(pdfPageSizeMm(m_host->outputPath()), QSizeF(254, 127));
    QCOMPARE(page().message(), QStringLiteral("Printed as shown, 10.00 x 5.00 in. Press Resize to "
                                              "use the size in the fields."));
    press("resizeButton");
    QCOMPARE(page().message(), QString());
    QCOMPARE(print(), QStringList{QStringLiteral("EXIT")});
    QCOMPARE(page().message(), QString());
    QCOMPARE(pdfPageSizeMm(m_host->outputPath()), QSizeF(152, 127));
}

void TestCatalogPage::listedSizeComesBack()
{
    resize(QStringLiteral("3"), QStringLiteral("3"));
    press("listedSizeButton");
    QCOMPARE(page().design().sizeMm(), QSizeF(254, 127));
    resize(QStringLiteral("x"), QStringLiteral("3"));
    press("listedSizeButton");
    QCOMPARE(page().message(), QString());
    QCOMPARE(find<QLineEdit>("lengthEdit")->text(), QStringLiteral("10.00"));
}

void TestCatalogPage::preCutLabelsHaveAFixedSize()
{
    resize(QStringLiteral("3"), QStringLiteral("3"));
    press("fixedSizeCheck");
    QVERIFY(!find<QWidget>("resizeFrame")->isVisible());
    QVERIFY(!find<QWidget>("listedSizeButton")->isEnabled());
    QCOMPARE(page().design().sizeMm(), QSizeF(254, 127));
    QCOMPARE(print(), QStringList{QStringLiteral("EXIT")});
    QCOMPARE(page().message(), QString());
    press("fixedSizeCheck");
    QVERIFY(find<QWidget>("resizeFrame")->isVisible());
}

void TestCatalogPage::sizesFollowTheUnit()
{
    m_host->window->settings().setMetric(true);
    QCOMPARE(find<QLineEdit>("lengthEdit")->text(), QStringLiteral("254.00"));
    QCOMPARE(find<QLabel>("catalogSizeLabel")->text(), QStringLiteral("254.00 x 127.00 mm"));
    resize(QStringLiteral("100"), QStringLiteral("50"));
    QCOMPARE(page().design().sizeMm(), QSizeF(100, 50));
    QCOMPARE(print(), QStringList{QStringLiteral("EXIT")});
    QCOMPARE(pdfPageSizeMm(m_host->outputPath()), QSizeF(100, 50));
    m_host->window->settings().setMetric(false);
    QCOMPARE(find<QLineEdit>("lengthEdit")->text(), QStringLiteral("3.94"));
    QCOMPARE(find<QLineEdit>("widthEdit")->text(), QStringLiteral("1.97"));
}

// Two decimals are not enough for every size.
void TestCatalogPage::sizeSurvivesAChangeOfUnit()
{
    m_host->window->settings().setMetric(true);
    resize(QStringLiteral("100"), QStringLiteral("50"));
    m_host->window->settings().setMetric(false);
    press("resizeButton");
    QCOMPARE(page().design().sizeMm(), QSizeF(100, 50));
}

void TestCatalogPage::printerFollowsTheChoice()
{
    m_host->panel().addPrinterToList(QStringLiteral("Gone"), false);
    m_host->pipes().panel().addPrinterToList(QStringLiteral("Gone"), false);
    m_host->window->setCurrentPage(m_host->labels());
    // Shown anew, the panel has forgotten a printer that the system does not know.
    m_host->panel().addPrinterToList(QStringLiteral("Gone"), false);
    QTest::keyClick(m_host->find<QComboBox>("PrinterListCombo"), Qt::Key_End);
    QCOMPARE(find<QLabel>("printerNameLabel")->text(), QStringLiteral("Gone"));
    QCOMPARE(m_host->pipes().panel().getSelectedPrinter(), QStringLiteral("Gone"));
    m_host->window->setCurrentPage(page());
    QSignalSpy ended(&page().controller(), &PrintController::jobEnded);
    press("printButton");
    QVERIFY(!ended.isEmpty() || ended.wait());
    QCOMPARE(
        ended.at(0).at(1).toString(),
        QStringLiteral("The printer \"Gone\" is not known to the system. Choose another printer."));
}

void TestCatalogPage::printRestsDuringAJob()
{
    panel().setNumberOfCopies(50);
    QSignalSpy ended(&page().controller(), &PrintController::jobEnded);
    press("printButton");
    QVERIFY(!find<QWidget>("printButton")->isEnabled());
    // Selecting meanwhile does not open a second way to print.
    select("FIRST AID");
    QVERIFY(!find<QWidget>("printButton")->isEnabled());
    auto* print = m_host->window->findChild<QAction*>(QStringLiteral("printAction"));
    QVERIFY(!print->isEnabled());
    print->trigger();
    QVERIFY(!ended.isEmpty() || ended.wait(60000));
    QVERIFY(find<QWidget>("printButton")->isEnabled());
    QCOMPARE(withoutBlanks(pdfPages(m_host->outputPath())),
             QStringList(50, QStringLiteral("EXIT")));
}

void TestCatalogPage::menuPrintsTheItem()
{
    select("FIRST AID");
    QSignalSpy ended(&page().controller(), &PrintController::jobEnded);
    m_host->window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_host->window.get()));
    QTest::keyClick(m_host->window.get(), Qt::Key_P, Qt::ControlModifier);
    QVERIFY(!ended.isEmpty() || ended.wait());
    QCOMPARE(withoutBlanks(pdfPages(m_host->outputPath())),
             QStringList{QStringLiteral("FIRSTAID")});
}

void TestCatalogPage::withoutASelectionNothingCanBePressed()
{
    find<QListWidget>("catalogList")->setCurrentRow(-1);
    QVERIFY(!find<QWidget>("printButton")->isEnabled());
    QVERIFY(!find<QWidget>("openInEditorButton")->isEnabled());
    find<QListWidget>("catalogList")->setCurrentRow(2);
    QVERIFY(find<QWidget>("printButton")->isEnabled());
    QVERIFY(find<QWidget>("openInEditorButton")->isEnabled());
}

void TestCatalogPage::openInEditorShowsTheItem()
{
    auto* view = m_host->find<LabelView>("labelView");
    select("FIRE EXTINGUISHER");
    press("openInEditorButton");
    QVERIFY(m_host->labels().isVisible());
    QCOMPARE(&m_host->window->currentPage(), &m_host->labels());
    QVERIFY(m_host->labels().design().hasItem());
    QVERIFY(!m_host->find<QCheckBox>("boundCheck")->isChecked());
    InputSimulation::processEvents();
    // The paper has the proportions of the item.
    const QRectF paper = view->paperRect();
    QVERIFY(qAbs(paper.height() / paper.width() - 3.0) < 0.01);
    QCOMPARE(view->grab().toImage().pixelColor(paper.topLeft().toPoint() + QPoint(3, 3)),
             QColor(0xc8, 0x10, 0x2e));
    QVERIFY(m_host->window->eventLog().lines().contains(
        QStringLiteral("Catalogue: openModuleSignal()")));
}

void TestCatalogPage::editedItemIsPrinted()
{
    select("CORROSIVE");
    resize(QStringLiteral("6"), QStringLiteral("2"));
    press("openInEditorButton");
    QSignalSpy ended(&m_host->labels().controller(), &PrintController::jobEnded);
    m_host->click("PrintButton");
    QVERIFY(!ended.isEmpty() || ended.wait());
    QCOMPARE(withoutBlanks(pdfPages(m_host->outputPath())),
             QStringList{QStringLiteral("CORROSIVE")});
    QCOMPARE(pdfPageSizeMm(m_host->outputPath()), QSizeF(152, 51));

    ended.clear();
    m_host->click("PreviewButton");
    const PrintPreviewDialog* popup = m_host->labels().preview().popup();
    QTest::mouseClick(popup->findChild<QWidget*>(QStringLiteral("portraitButton")), Qt::LeftButton);
    QTest::mouseClick(popup->findChild<QWidget*>(QStringLiteral("printButton")), Qt::LeftButton);
    QVERIFY(!ended.isEmpty() || ended.wait());
    QCOMPARE(withoutBlanks(pdfPages(m_host->outputPath())),
             QStringList{QStringLiteral("CORROSIVE")});
    QCOMPARE(pdfPageSizeMm(m_host->outputPath()), QSizeF(51, 152));
}

void TestCatalogPage::editorWorksWithoutData()
{
    HostOptions options;
    options.dataSource.databaseName = m_host->folder.path();
    MainWindow window(options);
    window.show();
    QVERIFY(!window.dataSourceProblem().isEmpty());
    auto* button =
        window.labelPage().panel().findChild<QAbstractButton*>(QStringLiteral("PrintButton"));
    QVERIFY(!button->isEnabled());
    window.settings().setOutputPath(m_host->outputPath());
    Q_EMIT window.catalogPage().panel().openModuleSignal();
    QVERIFY(button->isEnabled());
    QSignalSpy ended(&window.labelPage().controller(), &PrintController::jobEnded);
    QTest::mouseClick(button, Qt::LeftButton);
    QVERIFY(!ended.isEmpty() || ended.wait());
    QCOMPARE(withoutBlanks(pdfPages(m_host->outputPath())), QStringList{QStringLiteral("EXIT")});
    window.labelPage().findChild<QCheckBox*>(QStringLiteral("boundCheck"))->setChecked(true);
    QVERIFY(!button->isEnabled());
}

void TestCatalogPage::bindingEndsTheEditing()
{
    m_host->window->setCurrentPage(m_host->labels());
    m_host->click("nextRecordButton");
    const QImage record2 = m_host->find<LabelView>("labelView")->grab().toImage();
    m_host->window->setCurrentPage(page());
    press("openInEditorButton");
    m_host->click("PreviewButton");
    const PrintPreviewDialog* popup = m_host->labels().preview().popup();
    QVERIFY(popup->isVisible());
    m_host->click("boundCheck");
    // The popup would print what the label is not any more.
    QVERIFY(!popup->isVisible());
    QVERIFY(!m_host->labels().design().hasItem());
    QCOMPARE(m_host->find<LabelView>("labelView")->grab().toImage(), record2);
    QCOMPARE(m_host->labels().design().currentIndex(), 1);
}

QTEST_MAIN(TestCatalogPage)

#include "tst_catalogpage.moc"
