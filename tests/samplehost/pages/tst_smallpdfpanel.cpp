// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/support/documentfixture.h"
#include "samplehost/support/hosttest.h"
#include "samplehost/support/offscreenscreen.h"

#include <QtGui/QAction>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QScrollBar>

using namespace SampleHost;

/** The window "Preview and Print" on a screen of 800 x 480, and its keys. */
class TestSmallPdfPanel : public HostTest<DocumentFixture>
{
    Q_OBJECT

private Q_SLOTS:
    void everyCornerIsReachable();
    void escapeClosesBoth();
    void printsFromThere();
    void closesWithItsDocument();
    void keysChooseThePages_data();
    void keysChooseThePages();
    void listOfPagesIsReadyToType();
    void choicesNeedTheWindow();

private:
    QAction& action(const char* name) const
    {
        return *m_host->window->findChild<QAction*>(QLatin1String(name));
    }
    void pressInDialog(Qt::Key key) const
    {
        QWidget* window = m_host->dialog().window();
        QTRY_COMPARE(QApplication::activeWindow(), window);
        QTest::keyClick(window, key, Qt::ControlModifier);
    }
};

void TestSmallPdfPanel::everyCornerIsReachable()
{
    QVERIFY(m_host->openNumbered(3));
    QVERIFY(m_host->showDialog());
    QCOMPARE(m_host->dialog().size(), QSize(1010, 540));
    auto* area = qobject_cast<QScrollArea*>(m_host->dialog().window());
    QVERIFY(area != nullptr);
    InputSimulation::processEvents();
    QCOMPARE(area->frameGeometry(), QRect(0, 0, 800, 480));
    for (QScrollBar* bar : {area->horizontalScrollBar(), area->verticalScrollBar()}) {
        QVERIFY(bar->isVisible());
        bar->setValue(bar->maximum());
    }
    InputSimulation::processEvents();
    const QRect all = m_host->dialog().rect();
    QVERIFY(m_host->dialog().visibleRegion().contains(all.bottomRight()));
    area->horizontalScrollBar()->setValue(0);
    area->verticalScrollBar()->setValue(0);
    QVERIFY(m_host->dialog().visibleRegion().contains(all.topLeft()));
}

void TestSmallPdfPanel::escapeClosesBoth()
{
    QVERIFY(m_host->openNumbered(3));
    QVERIFY(m_host->showDialog());
    QWidget* area = m_host->dialog().window();
    QTest::keyClick(&m_host->dialog(), Qt::Key_Escape);
    QVERIFY(!m_host->dialog().isVisible());
    QVERIFY(!area->isVisible());
    QVERIFY(m_host->window->documentWindow() == nullptr);
    QVERIFY(m_host->showDialog());
    QVERIFY(area->isVisible());
}

void TestSmallPdfPanel::printsFromThere()
{
    QVERIFY(m_host->openNumbered(4));
    QVERIFY(m_host->showDialog());
    m_host->typePages(QStringLiteral("4,2"));
    QCOMPARE(m_host->print(), std::optional(DocumentFixture::Outcome::Completed));
    QCOMPARE(m_host->printedPages(), QStringLiteral("4 2"));
}

void TestSmallPdfPanel::closesWithItsDocument()
{
    QVERIFY(m_host->openNumbered(2));
    QVERIFY(m_host->showDialog());
    QPointer<QWidget> area = m_host->dialog().window();
    m_host->window.reset();
    QVERIFY(area == nullptr);
}

void TestSmallPdfPanel::keysChooseThePages_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("radio");
    QTest::newRow("current") << int(Qt::Key_1) << QStringLiteral("currentPageRadio");
    QTest::newRow("all") << int(Qt::Key_2) << QStringLiteral("allPagesRadio");
    QTest::newRow("list") << int(Qt::Key_3) << QStringLiteral("selectionRadio");
}

void TestSmallPdfPanel::keysChooseThePages()
{
    QFETCH(int, key);
    QFETCH(QString, radio);
    QVERIFY(m_host->openNumbered(4));
    QVERIFY(m_host->showDialog());
    const auto* button = m_host->widget<QRadioButton>(qPrintable(radio));
    pressInDialog(key == Qt::Key_2 ? Qt::Key_1 : Qt::Key_2);
    QVERIFY(!button->isChecked());
    pressInDialog(Qt::Key(key));
    QVERIFY(button->isChecked());
}

void TestSmallPdfPanel::listOfPagesIsReadyToType()
{
    QVERIFY(m_host->openNumbered(4));
    QVERIFY(m_host->showDialog());
    m_host->typePages(QStringLiteral("3"));
    pressInDialog(Qt::Key_1);
    pressInDialog(Qt::Key_3);
    auto* edit = m_host->widget<QLineEdit>("pageListEdit");
    QVERIFY(edit->hasFocus());
    QCOMPARE(edit->selectedText(), edit->text());
}

void TestSmallPdfPanel::choicesNeedTheWindow()
{
    m_host->window->setCurrentPage(m_host->page());
    QVERIFY(!action("printAction").isEnabled());
    QVERIFY(m_host->openNumbered(4));
    QVERIFY(action("printAction").isEnabled());
    QVERIFY(!action("allAction").isEnabled());
    action("printPreviewAction").trigger();
    QVERIFY(m_host->dialog().isVisible());
    QVERIFY(action("allAction").isEnabled());
    QVERIFY(action("printerAction").isEnabled());
    // On another page, the keys choose what that page prints.
    m_host->window->setCurrentPage(m_host->labels());
    InputSimulation::processEvents();
    action("allAction").trigger();
    QVERIFY(m_host->find<QRadioButton>("allRecordsRadio")->isChecked());
    QVERIFY(!m_host->widget<QRadioButton>("allPagesRadio")->isChecked());
    QVERIFY(!m_host->dialog().window()->actions().contains(&action("allAction")));
}

int main(int argc, char** argv)
{
    return runOnScreen<TestSmallPdfPanel>(800, 480, argc, argv);
}

#include "tst_smallpdfpanel.moc"
