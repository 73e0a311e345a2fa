// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/printing/labelpreview.h"
#include "samplehost/support/hostfixture.h"
#include "samplehost/support/hosttest.h"
#include "samplehost/support/offscreenscreen.h"
#include "samplehost/window/eventlog.h"
#include "samplehost/window/preferencesdialog.h"

#include <printpanels-hostkit/containertitlebar.h>
#include <printpanels/printpreviewdialog.h>

#include <QtGui/QAction>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>

using namespace SampleHost;
using Outcome = PrintJob::Outcome;

/** Drives the preview popup of the pages as a user does, and looks at what it printed. */
class TestLabelPreview : public HostTest<HostFixture>
{
    Q_OBJECT

private Q_SLOTS:
    void opensOverTheWindow();
    void handsTheRangeBack_data();
    void handsTheRangeBack();
    void printsWhatWasPreviewed();
    void printsInTheChosenOrientation();
    void copiesAreReadWhenPrinting();
    void changesInThePanelWaitForTheNextPreview();
    void previewsAWholeSheet();
    void titleFollowsTheUnit();
    void unitCanBeChangedInThePreferences();
    void markersShowThePrintedSizeOnly();
    void previewsTheAmmoniaItem();
    void printButtonRestsDuringAJob();
    void withoutAPrinterNothingIsPrinted();
    void onePopupPerPage();
    void closingGivesTheFocusBack_data();
    void closingGivesTheFocusBack();
    void shortcutsReachThePopup();
    void popupGoesWithTheWindow();
    void titleBarMovesThePopup();

private:
    PrintPreviewDialog* popup() const { return m_host->labels().preview().popup(); }
    PrintPreviewDialog* pipePopup() const { return m_host->pipes().preview().popup(); }
    QString title() const { return titleOf(popup()); }
    static QString titleOf(const PrintPreviewDialog* dialog);
    static void press(const QWidget* parent, const char* name);
    void pressInPopup(const char* name) const { press(popup(), name); }
    static QImage picture(const PrintPreviewDialog* dialog);
    /** Presses Print in a popup and waits for the job. */
    void print(const PrintPage& page);
    QStringList headings() const;
};

QString TestLabelPreview::titleOf(const PrintPreviewDialog* dialog)
{
    const auto labels = dialog->findChild<ContainerTitleBar*>()->findChildren<QLabel*>();
    for (const QLabel* label : labels) {
        if (!label->text().isEmpty()) {
            return label->text();
        }
    }
    return {};
}

void TestLabelPreview::press(const QWidget* parent, const char* name)
{
    InputSimulation::processEvents();
    auto* button = parent->findChild<QWidget*>(QString::fromLatin1(name));
    QVERIFY2(button != nullptr && button->isVisible(), name);
    QTest::mouseClick(button, Qt::LeftButton);
}

QImage TestLabelPreview::picture(const PrintPreviewDialog* dialog)
{
    InputSimulation::processEvents();
    return dialog->findChild<QWidget*>(QStringLiteral("PreviewView"))->grab().toImage();
}

void TestLabelPreview::print(const PrintPage& page)
{
    QSignalSpy ended(&page.controller(), &PrintController::jobEnded);
    press(page.preview().popup(), "printButton");
    QVERIFY(!ended.isEmpty() || ended.wait(60000));
    QCOMPARE(ended.at(0).at(0).value<Outcome>(), Outcome::Completed);
}

// The chemical that each printed page begins with.
QStringList TestLabelPreview::headings() const
{
    const QStringList pages = pdfPages(m_host->outputPath());
    QStringList names;
    for (const QString& page : pages) {
        names.append(page.left(page.indexOf(QStringLiteral(" CAS "))));
    }
    return names;
}

void TestLabelPreview::opensOverTheWindow()
{
    QVERIFY(popup() == nullptr);
    m_host->click("PreviewButton");
    QVERIFY(popup() != nullptr);
    QVERIFY(popup()->isVisible());
    QVERIFY(popup()->isWindow());
    QVERIFY(popup()->windowFlags().testFlag(Qt::FramelessWindowHint));
    QCOMPARE(popup()->windowType(), Qt::Dialog);
    QCOMPARE(popup()->parentWidget(), m_host->window.get());
    const QPoint offset = popup()->geometry().center() - m_host->window->geometry().center();
    QVERIFY(offset.manhattanLength() <= 2);
    QCOMPARE(title(), QStringLiteral("Print Preview (Design: 4.00\" X 3.00\"  Printed: 4.00\" X "
                                     "3.00\")"));
    QVERIFY(popup()->findChild<QAbstractButton*>(QStringLiteral("landscapeButton"))->isChecked());
    QCOMPARE(m_host->outputFiles(), QStringList());
}

void TestLabelPreview::handsTheRangeBack_data()
{
    addColumns<QString, QString, QString>("radio", "list", "arguments");

    addRow("current", "currentRecordRadio", QString(), "(1, -1, \"\")");
    addRow("list", "recordListRadio", "3,1-2", "(0, 0, \"3,1-2\")");
    addRow("all", "allRecordsRadio", QString(), "(1, %1, \"\")");
}

void TestLabelPreview::handsTheRangeBack()
{
    QFETCH(QString, radio);
    QFETCH(QString, list);
    QFETCH(QString, arguments);
    if (arguments.contains(QLatin1String("%1"))) {
        arguments = arguments.arg(m_host->productNames().size());
    }
    m_host->click(qPrintable(radio));
    if (!list.isEmpty()) {
        m_host->typeList(list);
    }
    m_host->click("PreviewButton");
    print(m_host->labels());
    const QStringList lines = m_host->window->eventLog().lines();
    QVERIFY(lines.contains(QStringLiteral("Labels: printPreviewSignal") + arguments));
    QVERIFY(lines.contains(QStringLiteral("Labels preview: previewPrintSignal") + arguments));
}

void TestLabelPreview::printsWhatWasPreviewed()
{
    m_host->typeList(QStringLiteral("1,4-5"));
    m_host->click("PreviewButton");
    print(m_host->labels());
    const QStringList names = m_host->productNames();
    QCOMPARE(headings(), (QStringList{names.at(0), names.at(3), names.at(4)}));
    QCOMPARE(pdfPageSizeMm(m_host->outputPath()), QSizeF(102, 76));
    QVERIFY(popup()->isVisible());
}

void TestLabelPreview::printsInTheChosenOrientation()
{
    m_host->typeList(QStringLiteral("2,7"));
    m_host->click("PreviewButton");
    const QImage landscape = picture(popup());
    pressInPopup("portraitButton");
    QVERIFY(picture(popup()) != landscape);
    QCOMPARE(title(), QStringLiteral("Print Preview (Design: 4.00\" X 3.00\"  Printed: 3.00\" X "
                                     "4.00\")"));
    print(m_host->labels());
    const QStringList names = m_host->productNames();
    QCOMPARE(headings(), (QStringList{names.at(1), names.at(6)}));
    QCOMPARE(pdfPageSizeMm(m_host->outputPath()), QSizeF(76, 102));

    pressInPopup("landscapeButton");
    QCOMPARE(picture(popup()), landscape);
    print(m_host->labels());
    QCOMPARE(pdfPageSizeMm(m_host->outputPath()), QSizeF(102, 76));
    QVERIFY(m_host->window->eventLog().lines().contains(
        QStringLiteral("Labels preview: orientationChangedSignal(1)")));

    // The panel itself prints as designed, and the next preview begins there.
    pressInPopup("portraitButton");
    pressInPopup("closeButton");
    m_host->click("PreviewButton");
    QVERIFY(popup()->findChild<QAbstractButton*>(QStringLiteral("landscapeButton"))->isChecked());
    QCOMPARE(picture(popup()), landscape);
}

void TestLabelPreview::copiesAreReadWhenPrinting()
{
    m_host->typeList(QStringLiteral("2,1"));
    m_host->click("PreviewButton");
    m_host->click("plusButton");
    print(m_host->labels());
    const QStringList names = m_host->productNames();
    QCOMPARE(headings(), (QStringList{names.at(1), names.at(1), names.at(0), names.at(0)}));
}

void TestLabelPreview::changesInThePanelWaitForTheNextPreview()
{
    m_host->typeList(QStringLiteral("2"));
    m_host->click("PreviewButton");
    const QImage before = picture(popup());
    m_host->click("allRecordsRadio");
    m_host->window->settings().setNup(NupLayout{2, 2});
    m_host->window->settings().setPaper(Paper::A4);
    m_host->click("backgroundCheck");
    QCOMPARE(picture(popup()), before);
    print(m_host->labels());
    QCOMPARE(headings(), QStringList{m_host->productNames().at(1)});
    QCOMPARE(pdfPageSizeMm(m_host->outputPath()), QSizeF(102, 76));
}

void TestLabelPreview::previewsAWholeSheet()
{
    m_host->window->settings().setNup(NupLayout{2, 3});
    m_host->typeList(QStringLiteral("1-7"));
    m_host->click("sequencingRadio");
    m_host->click("PreviewButton");
    // Two rows and three columns of 101.6 x 76.2 mm with gaps of 3 mm and margins of 5 mm.
    m_host->window->settings().setMetric(true);
    QCOMPARE(title(), QStringLiteral("Print Preview (Design: 102 mm X 76 mm  Printed: 321 mm X "
                                     "165 mm)"));
    print(m_host->labels());
    QCOMPARE(pdfPageSizeMm(m_host->outputPath()), QSizeF(321, 165));
    QStringList pages = pdfPages(m_host->outputPath());
    QCOMPARE(pages.size(), qsizetype(2));
    QCOMPARE(pages.at(0).count(QStringLiteral(" CAS ")), qsizetype(6));
    QCOMPARE(pages.at(1).count(QStringLiteral(" CAS ")), qsizetype(1));

    pressInPopup("portraitButton");
    QCOMPARE(title(), QStringLiteral("Print Preview (Design: 102 mm X 76 mm  Printed: 165 mm X "
                                     "321 mm)"));
    print(m_host->labels());
    QCOMPARE(pdfPageSizeMm(m_host->outputPath()), QSizeF(165, 321));
    pages = pdfPages(m_host->outputPath());
    QCOMPARE(pages.size(), qsizetype(2));
    QCOMPARE(pages.at(0).count(QStringLiteral(" CAS ")), qsizetype(6));
}

void TestLabelPreview::titleFollowsTheUnit()
{
    m_host->click("PreviewButton");
    pressInPopup("zoomInButton");
    const QImage zoomed = picture(popup());
    auto* action = m_host->window->findChild<QAction*>(QStringLiteral("metricAction"));
    action->trigger();
    QVERIFY(m_host->window->settings().isMetric());
    QCOMPARE(title(), QStringLiteral("Print Preview (Design: 102 mm X 76 mm  Printed: 102 mm X "
                                     "76 mm)"));
    // The user keeps the view of the label.
    QCOMPARE(picture(popup()), zoomed);
    action->trigger();
    QCOMPARE(title(), QStringLiteral("Print Preview (Design: 4.00\" X 3.00\"  Printed: 4.00\" X "
                                     "3.00\")"));
}

void TestLabelPreview::unitCanBeChangedInThePreferences()
{
    PreferencesDialog dialog(m_host->window->settings());
    auto* units = dialog.findChild<QComboBox*>(QStringLiteral("preferencesUnitCombo"));
    QCOMPARE(units->currentText(), QStringLiteral("Inches"));
    QTest::keyClick(units, Qt::Key_Down);
    QCOMPARE(units->currentText(), QStringLiteral("Millimetres"));
    dialog.accept();
    QVERIFY(m_host->window->settings().isMetric());
    QVERIFY(m_host->window->findChild<QAction*>(QStringLiteral("metricAction"))->isChecked());
    QCOMPARE(PreferencesDialog(m_host->window->settings())
                 .findChild<QComboBox*>(QStringLiteral("preferencesUnitCombo"))
                 ->currentText(),
             QStringLiteral("Millimetres"));
}

void TestLabelPreview::markersShowThePrintedSizeOnly()
{
    m_host->window->setCurrentPage(m_host->pipes());
    m_host->window->settings().setMetric(true);
    press(&m_host->pipes(), "PreviewButton");
    QVERIFY(popup() == nullptr);
    const QSizeF size = m_host->pipes().design().labelSizeMm(
        m_host->pipes().controller().request(1, -1, QString()));
    QVERIFY(size.width() > size.height());
    const QString width = QString::number(size.width(), 'f', 0);
    const QString height = QString::number(size.height(), 'f', 0);
    const QString pattern = QStringLiteral("Print Preview (%1 mm X %2 mm)");
    QCOMPARE(titleOf(pipePopup()), pattern.arg(width, height));
    press(pipePopup(), "portraitButton");
    QCOMPARE(titleOf(pipePopup()), pattern.arg(height, width));
    print(m_host->pipes());
    // A PDF file measures in points.
    const QSizeF rest = pdfPageSizeMm(m_host->outputPath()) - size.transposed();
    QVERIFY(qAbs(rest.width()) <= 1 && qAbs(rest.height()) <= 1);
    QStringList pages = pdfPages(m_host->outputPath());
    QCOMPARE(pages.size(), qsizetype(1));
    QVERIFY(!pages.at(0).isEmpty());
}

void TestLabelPreview::previewsTheAmmoniaItem()
{
    m_host->window->setCurrentPage(m_host->pipes());
    press(&m_host->pipes(), "PreviewButton");
    const QImage whole = picture(pipePopup());
    const QString wholeTitle = titleOf(pipePopup());
    auto* items = m_host->pipes().findChild<QComboBox*>(QStringLiteral("AmmoniaPrintCombo"));
    QTest::keyClick(items, Qt::Key_End);
    QCOMPARE(picture(pipePopup()), whole);
    press(&m_host->pipes(), "PreviewButton");
    QVERIFY(picture(pipePopup()) != whole);
    QVERIFY(titleOf(pipePopup()) != wholeTitle);
    const QImage tag = picture(pipePopup());

    // The choice of the panel counts at the next preview.
    QTest::keyClick(items, Qt::Key_Home);
    QCOMPARE(picture(pipePopup()), tag);
    print(m_host->pipes());
    QString text = pdfPages(m_host->outputPath()).value(0);
    QVERIFY(!text.isEmpty());
    QVERIFY(!text.remove(QLatin1Char(' ')).contains(QStringLiteral("AMMONIA")));
}

void TestLabelPreview::printButtonRestsDuringAJob()
{
    m_host->click("allRecordsRadio");
    m_host->click("PreviewButton");
    auto* button = popup()->findChild<QAbstractButton*>(QStringLiteral("printButton"));
    QVERIFY(button->isEnabled());
    QSignalSpy ended(&m_host->labels().controller(), &PrintController::jobEnded);
    pressInPopup("printButton");
    QVERIFY(m_host->labels().controller().isPrinting());
    QVERIFY(!button->isEnabled());
    QVERIFY(!m_host->find<QWidget>("PrintButton")->isEnabled());
    // Asked for all the same, nothing more is started.
    popup()->print();
    QVERIFY(ended.wait(60000));
    QVERIFY(button->isEnabled());
    QCOMPARE(ended.size(), qsizetype(1));
    QVERIFY(!m_host->labels().controller().isPrinting());
}

void TestLabelPreview::withoutAPrinterNothingIsPrinted()
{
    m_host->window->settings().setPrinter(QString());
    m_host->panel().updateListOfPrinters({}, 0);
    QCOMPARE(m_host->panel().getSelectedPrinter(), QStringLiteral("No printer"));
    m_host->click("PreviewButton");
    auto* button = popup()->findChild<QAbstractButton*>(QStringLiteral("printButton"));
    QVERIFY(popup()->isVisible());
    QVERIFY(!button->isEnabled());
}

void TestLabelPreview::onePopupPerPage()
{
    m_host->click("PreviewButton");
    PrintPreviewDialog* first = popup();
    const QImage record1 = picture(first);
    m_host->click("nextRecordButton");
    m_host->click("PreviewButton");
    QCOMPARE(popup(), first);
    QVERIFY(picture(first) != record1);
    pressInPopup("closeButton");
    QVERIFY(!first->isVisible());
    m_host->click("PreviewButton");
    QCOMPARE(popup(), first);
    QVERIFY(first->isVisible());
    m_host->window->setCurrentPage(m_host->pipes());
    press(&m_host->pipes(), "PreviewButton");
    QVERIFY(pipePopup() != first);
    QCOMPARE(m_host->window->findChildren<PrintPreviewDialog*>().size(), qsizetype(2));
    // Both are listened to once.
    m_host->window->eventLog().clear();
    press(pipePopup(), "landscapeButton");
    QCOMPARE(m_host->window->eventLog().lines(),
             QStringList{QStringLiteral("Pipes preview: orientationChangedSignal(0)")});
}

void TestLabelPreview::closingGivesTheFocusBack_data()
{
    QTest::addColumn<QString>("control");

    addRow("button", "closeButton");
    addRow("title bar", "title bar");
    addRow("escape", QString());
}

void TestLabelPreview::closingGivesTheFocusBack()
{
    QFETCH(QString, control);
    m_host->window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_host->window.get()));
    auto* copies = m_host->find<QWidget>("copiesSpinBox");
    copies->setFocus();
    m_host->find<QAbstractButton>("PreviewButton")->click();
    QTRY_COMPARE(QApplication::activeWindow(), popup());
    if (control.isEmpty()) {
        QTest::keyClick(popup(), Qt::Key_Escape);
    } else if (control == QLatin1String("title bar")) {
        Q_EMIT popup()->findChild<ContainerTitleBar*>()->closeButtonClicked();
    } else {
        press(popup(), qPrintable(control));
    }
    QVERIFY(!popup()->isVisible());
    QTRY_COMPARE(QApplication::activeWindow(), m_host->window.get());
    QTRY_COMPARE(QApplication::focusWidget(), copies);
    const bool logged = m_host->window->eventLog().lines().contains(
        QStringLiteral("Labels preview: popupHideSignal()"));
    QCOMPARE(logged, !control.isEmpty());
}

void TestLabelPreview::shortcutsReachThePopup()
{
    m_host->click("PreviewButton");
    popup()->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(popup()));
    const QImage fitted = picture(popup());
    QTest::keyClick(popup(), Qt::Key_Plus, Qt::ControlModifier);
    QTest::keyClick(popup(), Qt::Key_Plus, Qt::ControlModifier);
    const QImage zoomed = picture(popup());
    QVERIFY(zoomed != fitted);
    QTest::keyClick(popup(), Qt::Key_Minus, Qt::ControlModifier);
    QVERIFY(picture(popup()) != zoomed);
    QTest::keyClick(popup(), Qt::Key_0, Qt::ControlModifier);
    QCOMPARE(picture(popup()), fitted);
    QSignalSpy ended(&m_host->labels().controller(), &PrintController::jobEnded);
    QTest::keyClick(popup(), Qt::Key_P, Qt::ControlModifier);
    QVERIFY(m_host->labels().controller().isPrinting());
    QTest::keyClick(popup(), Qt::Key_P, Qt::ControlModifier);
    QVERIFY(ended.wait(60000));
    QCOMPARE(headings(), QStringList{m_host->productNames().at(0)});
}

void TestLabelPreview::popupGoesWithTheWindow()
{
    m_host->click("PreviewButton");
    const QPointer<PrintPreviewDialog> dialog(popup());
    pressInPopup("portraitButton");
    m_host->window.reset();
    QVERIFY(dialog.isNull());
}

void TestLabelPreview::titleBarMovesThePopup()
{
    m_host->click("PreviewButton");
    Q_EMIT popup()->findChild<ContainerTitleBar*>()->signalMove(33, 44);
    QCOMPARE(popup()->pos(), QPoint(33, 44));
    // The popup stays where the user has put it.
    m_host->click("PreviewButton");
    QCOMPARE(popup()->pos(), QPoint(33, 44));
}

// Large enough for the window "Print Preview" and the host around it.
int main(int argc, char** argv)
{
    return runOnScreen<TestLabelPreview>(1920, 1080, argc, argv);
}

#include "tst_labelpreview.moc"
