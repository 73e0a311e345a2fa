// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/pages/catalogpage.h"
#include "samplehost/printing/labelpreview.h"
#include "samplehost/support/hostfixture.h"
#include "samplehost/support/hosttest.h"
#include "samplehost/window/controlaction.h"

#include <printpanels/printpreviewdialog.h>
#include <printpanels/quickprintwidget.h>

#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QToolBar>

using namespace SampleHost;

/** The actions for the controls of the current page. */
class TestPageActions : public HostTest<HostFixture>
{
    Q_OBJECT

private Q_SLOTS:
    void actionFollowsItsControl();
    void actionForgetsAControlThatGoes();
    void keysChooseTheRecords_data();
    void keysChooseTheRecords();
    void listIsReadyToType_data();
    void listIsReadyToType();
    void listIsScrolledIntoView();
    void printersOpen();
    void keysPrint();
    void keysOpenThePreview();
    void choicesOfTheCurrentPage();
    void noChoicesWithoutRecords();
    void printRestsDuringAJob();

private:
    QAction& action(const char* name) const
    {
        return *m_host->window->findChild<QAction*>(QLatin1String(name));
    }
    void press(int key, Qt::KeyboardModifiers modifiers = Qt::ControlModifier) const
    {
        m_host->window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_host->window.get()));
        QTest::keyClick(m_host->window.get(), Qt::Key(key), modifiers);
    }
    bool isChecked(const char* radio) const
    {
        return m_host->find<QRadioButton>(radio)->isChecked();
    }
};

void TestPageActions::actionFollowsItsControl()
{
    QWidget window;
    auto* button = new QPushButton(&window);
    ControlAction action(QStringLiteral("Press"));
    QVERIFY(!action.isEnabled());
    action.setControl(button);
    QVERIFY(!action.isEnabled());
    window.show();
    QVERIFY(action.isEnabled());
    window.setEnabled(false);
    QVERIFY(!action.isEnabled());
    window.setEnabled(true);
    QVERIFY(action.isEnabled());
    button->hide();
    QVERIFY(!action.isEnabled());
    button->show();
    QSignalSpy clicked(button, &QPushButton::clicked);
    action.trigger();
    QCOMPARE(clicked.size(), qsizetype(1));
    action.setControl(nullptr);
    QVERIFY(!action.isEnabled());
    action.trigger();
    QCOMPARE(clicked.size(), qsizetype(1));
}

void TestPageActions::actionForgetsAControlThatGoes()
{
    QWidget window;
    auto* button = new QPushButton(&window);
    ControlAction action(QStringLiteral("Press"));
    action.setControl(button);
    window.show();
    QVERIFY(action.isEnabled());
    delete button;
    QVERIFY(!action.isEnabled());
    action.trigger();
}

void TestPageActions::keysChooseTheRecords_data()
{
    addColumns<int, QString>("key", "radio");
    QTest::newRow("all") << int(Qt::Key_2) << QStringLiteral("allRecordsRadio");
    QTest::newRow("list") << int(Qt::Key_3) << QStringLiteral("recordListRadio");
    QTest::newRow("current") << int(Qt::Key_1) << QStringLiteral("currentRecordRadio");
}

void TestPageActions::keysChooseTheRecords()
{
    QFETCH(int, key);
    QFETCH(QString, radio);
    // Another choice than the expected one.
    press(key == Qt::Key_1 ? Qt::Key_2 : Qt::Key_1);
    QVERIFY(!isChecked(qPrintable(radio)));
    press(key);
    QVERIFY(isChecked(qPrintable(radio)));
}

void TestPageActions::listIsReadyToType_data()
{
    QTest::addColumn<bool>("withMouse");
    addRow("key", false);
    addRow("mouse", true);
}

void TestPageActions::listIsReadyToType()
{
    QFETCH(bool, withMouse);
    auto* edit = m_host->find<QLineEdit>("recordListEdit");
    m_host->typeList(QStringLiteral("4-5"));
    press(Qt::Key_1);
    QVERIFY(!edit->isEnabled());
    if (withMouse) {
        m_host->click("recordListRadio");
    } else {
        press(Qt::Key_3);
    }
    QVERIFY(edit->hasFocus());
    QCOMPARE(edit->selectedText(), QStringLiteral("4-5"));
    QTest::keyClicks(edit, QStringLiteral("7"));
    QCOMPARE(edit->text(), QStringLiteral("7"));
    // Also if the list is chosen already.
    m_host->find<QWidget>("copiesSpinBox")->setFocus();
    press(Qt::Key_3);
    QVERIFY(edit->hasFocus());
}

void TestPageActions::listIsScrolledIntoView()
{
    m_host->window->resize(800, 450);
    InputSimulation::processEvents();
    auto* edit = m_host->find<QLineEdit>("recordListEdit");
    QVERIFY(edit->visibleRegion().isEmpty());
    press(Qt::Key_3);
    InputSimulation::processEvents();
    QCOMPARE(edit->visibleRegion().boundingRect(), edit->rect());
}

void TestPageActions::printersOpen()
{
    auto* printers = m_host->find<QComboBox>("PrinterListCombo");
    QVERIFY(!printers->view()->isVisible());
    press(Qt::Key_F4, Qt::NoModifier);
    QVERIFY(printers->view()->isVisible());
    printers->hidePopup();
}

void TestPageActions::keysPrint()
{
    QSignalSpy ended(&m_host->labels().controller(), &PrintController::jobEnded);
    press(Qt::Key_P);
    QVERIFY(!ended.isEmpty() || ended.wait());
    QCOMPARE(pdfPages(m_host->outputPath()).size(), qsizetype(1));
}

void TestPageActions::keysOpenThePreview()
{
    press(Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier);
    QVERIFY(m_host->labels().preview().popup() != nullptr);
    QVERIFY(m_host->labels().preview().popup()->isVisible());
}

void TestPageActions::choicesOfTheCurrentPage()
{
    const QStringList names{QStringLiteral("printAction"),   QStringLiteral("printPreviewAction"),
                            QStringLiteral("currentAction"), QStringLiteral("allAction"),
                            QStringLiteral("listAction"),    QStringLiteral("printerAction")};
    const auto enabled = [&] {
        InputSimulation::processEvents();
        QStringList found;
        for (const QString& name : names) {
            if (action(qPrintable(name)).isEnabled()) {
                found.append(name);
            }
        }
        return found;
    };
    QCOMPARE(enabled(), names);
    m_host->window->setCurrentPage(m_host->window->catalogPage());
    QCOMPARE(enabled(), QStringList{QStringLiteral("printAction")});
    m_host->window->setCurrentPage(m_host->labels());
    QCOMPARE(enabled(), names);
    m_host->window->setCurrentPage(m_host->pipes());
    auto* all = m_host->pipes().panel().findChild<QRadioButton*>(QStringLiteral("allRecordsRadio"));
    QCOMPARE(action("allAction").isEnabled(), all->isVisible() && all->isEnabled());
    QVERIFY(action("printAction").isEnabled());
}

void TestPageActions::noChoicesWithoutRecords()
{
    QVERIFY(action("allAction").isEnabled());
    m_host->click("boundCheck");
    QVERIFY(!action("allAction").isEnabled());
    QVERIFY(!action("listAction").isEnabled());
    QVERIFY(action("printerAction").isEnabled());
    m_host->click("boundCheck");
    QVERIFY(action("allAction").isEnabled());
}

void TestPageActions::printRestsDuringAJob()
{
    QSignalSpy ended(&m_host->labels().controller(), &PrintController::jobEnded);
    m_host->click("allRecordsRadio");
    m_host->click("PrintButton");
    QVERIFY(m_host->labels().controller().isPrinting());
    QVERIFY(!action("printAction").isEnabled());
    QVERIFY(!action("printPreviewAction").isEnabled());
    QVERIFY(!ended.isEmpty() || ended.wait(60000));
    QVERIFY(action("printAction").isEnabled());
    QVERIFY(action("printPreviewAction").isEnabled());
}

QTEST_MAIN(TestPageActions)

#include "tst_pageactions.moc"
