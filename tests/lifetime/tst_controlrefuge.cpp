// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "executioner.h"
#include "livepanel.h"
#include "support/stricttest.h"

#include <printpanels/multipageprintwidget.h>
#include <printpanels/printwidget.h>

#include <QtCore/QEventLoop>
#include <QtCore/QTimer>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>

#include <memory>

using Create = QWidget* (*)();
Q_DECLARE_METATYPE(Create)

/** What becomes of the controls of a panel that is deleted in a handler of its own signals. */
class tst_ControlRefuge : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void controlsOutliveTheSignalHiddenAndSilent();
    void controlsDieWithThePanelOutsideOfASignal();
    void hostsOwnChildrenDieWithThePanel();
    void noLoopNeedsToRunAgain();
    void panelDeletedInALoopInsideTheHandler();
    void tagsTakenAwayBeforeThePanelGoes_data();
    void tagsTakenAwayBeforeThePanelGoes();
    void tagsBuiltAgainBeforeThePanelGoes();
    void printersReplacedBeforeThePanelGoes();
    void supplyHiddenWhileItsWidthIsEdited();
    void otherListenersOfTheControlAreStillCalled();
    void dyingPanelTellsNothing_data();
    void dyingPanelTellsNothing();
};

namespace {

struct LivePrintPanel
{
    QPointer<PrintWidget> panel{static_cast<PrintWidget*>(newPrintPanel())};
    QPointer<QComboBox> printers{part<QComboBox>(*panel, "PrinterListCombo")};
    QPointer<QComboBox> tags{part<QComboBox>(*panel, "AmmoniaPrintCombo")};
};

} // namespace

void tst_ControlRefuge::cleanup()
{
    deleteWidgetsLeft();
}

void tst_ControlRefuge::controlsOutliveTheSignalHiddenAndSilent()
{
    const LivePrintPanel live;
    QVERIFY(showActive(*live.panel));
    const QPointer<QLineEdit> width(part<QLineEdit>(*live.panel, "supplyWidthEdit"));
    int finished = 0;
    connect(width, &QLineEdit::editingFinished, this, [&finished] { ++finished; });
    width->setFocus();
    connect(live.panel, &PrintWidget::currentPrinterSelectionChanged, this,
            [&live] { delete live.panel.data(); });
    live.printers->setCurrentIndex(1);

    QVERIFY(live.panel.isNull());
    QVERIFY(live.printers);
    QVERIFY(width);
    QVERIFY(!live.printers->isVisible());
    QVERIFY(!live.printers->window()->isVisible());
    QVERIFY(!width->hasFocus());
    QCOMPARE(finished, 0);
    QCOMPARE(widgetsLeft(), QStringList());
    QVERIFY(live.printers.isNull());
    QVERIFY(width.isNull());
}

void tst_ControlRefuge::controlsDieWithThePanelOutsideOfASignal()
{
    const LivePrintPanel live;
    // Without the palettes that were replaced while it was set up.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    delete live.panel.data();
    QVERIFY(live.printers.isNull());
    QCOMPARE(QApplication::allWidgets(), QWidgetList());
}

void tst_ControlRefuge::hostsOwnChildrenDieWithThePanel()
{
    const LivePrintPanel live;
    const QPointer<QWidget> widget(new QWidget(live.panel));
    const QPointer<QObject> object(new QObject(live.panel));
    connect(live.panel, &PrintWidget::currentPrinterSelectionChanged, this,
            [&live] { delete live.panel.data(); });
    live.printers->setCurrentIndex(1);
    QVERIFY(live.printers);
    QVERIFY(widget.isNull());
    QVERIFY(object.isNull());
}

void tst_ControlRefuge::noLoopNeedsToRunAgain()
{
    const LivePrintPanel live;
    connect(live.panel, &PrintWidget::currentPrinterSelectionChanged, this,
            [&live] { delete live.panel.data(); });
    live.printers->setCurrentIndex(1);
    // As at the end of main(), with nothing but what is posted.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(live.printers.isNull());
    QCOMPARE(QApplication::allWidgets(), QWidgetList());
}

// As when a handler shows a message box, and the panel goes while the box is open.
void tst_ControlRefuge::panelDeletedInALoopInsideTheHandler()
{
    const LivePrintPanel live;
    bool outlived = false;
    connect(live.panel, &PrintWidget::currentPrinterSelectionChanged, this, [&] {
        QEventLoop inside;
        QTimer::singleShot(0, this, [&] { delete live.panel.data(); });
        QTimer::singleShot(300, &inside, &QEventLoop::quit);
        inside.exec();
        outlived = !live.printers.isNull();
    });
    QEventLoop outside;
    QTimer::singleShot(0, this, [&] {
        live.printers->setCurrentIndex(1);
        outside.quit();
    });
    outside.exec();
    QVERIFY(outlived);
    QTRY_COMPARE(widgetsLeft(), QStringList());
}

void tst_ControlRefuge::tagsTakenAwayBeforeThePanelGoes_data()
{
    QTest::addColumn<int>("tags");
    QTest::newRow("none left") << 0;
    QTest::newRow("others") << 3;
}

void tst_ControlRefuge::tagsTakenAwayBeforeThePanelGoes()
{
    QFETCH(const int, tags);
    const LivePrintPanel live;
    QVERIFY(showActive(*live.panel));
    connect(live.panel, &PrintWidget::ammoniaPrintTagChanged, this, [&] {
        live.panel->setVisibleAmmoniaTag(tags);
        delete live.panel.data();
    });
    QTest::keyClick(live.tags, Qt::Key_Down);
    QVERIFY(live.panel.isNull());
    QCOMPARE(widgetsLeft(), QStringList());
}

void tst_ControlRefuge::tagsBuiltAgainBeforeThePanelGoes()
{
    const LivePrintPanel live;
    QVERIFY(showActive(*live.panel));
    connect(live.panel, &PrintWidget::ammoniaPrintTagChanged, this, [&] {
        live.panel->setModule(JxModuleInfo::PipeMarking);
        delete live.panel.data();
    });
    QTest::keyClick(live.tags, Qt::Key_Down);
    QVERIFY(live.panel.isNull());
    QCOMPARE(widgetsLeft(), QStringList());
}

void tst_ControlRefuge::printersReplacedBeforeThePanelGoes()
{
    const LivePrintPanel live;
    QVERIFY(showActive(*live.panel));
    connect(live.panel, &PrintWidget::currentPrinterSelectionChanged, this, [&] {
        live.panel->updateListOfPrinters({}, 0);
        delete live.panel.data();
    });
    QTest::keyClick(live.printers, Qt::Key_Down);
    QVERIFY(live.panel.isNull());
    QCOMPARE(widgetsLeft(), QStringList());
}

void tst_ControlRefuge::supplyHiddenWhileItsWidthIsEdited()
{
    const LivePrintPanel live;
    QVERIFY(showActive(*live.panel));
    connect(live.panel, &PrintWidget::supplyWidthChangedSignal, this,
            [&live] { delete live.panel.data(); });
    auto* width = part<QLineEdit>(*live.panel, "supplyWidthEdit");
    width->setFocus();
    width->clear();
    QTest::keyClick(width, Qt::Key_9);
    live.panel->hideSupplyInfo();
    QVERIFY(live.panel.isNull());
    QCOMPARE(widgetsLeft(), QStringList());
}

// They fall silent for what comes later, not for the signal that is under way.
void tst_ControlRefuge::otherListenersOfTheControlAreStillCalled()
{
    const QPointer<QWidget> panel(newMultiPagePanel());
    auto* fit = part<QCheckBox>(*panel, "fitToPageCheck");
    connect(static_cast<MultiPagePrintWidget*>(panel.data()),
            &MultiPagePrintWidget::fitToPageChangedSignal, this, [panel] { delete panel.data(); });
    int heard = 0;
    connect(fit, &QCheckBox::stateChanged, this, [&heard] { ++heard; });
    fit->click();
    QVERIFY(panel.isNull());
    QCOMPARE(heard, 1);
}

void tst_ControlRefuge::dyingPanelTellsNothing_data()
{
    QTest::addColumn<Create>("create");
    QTest::addColumn<QByteArray>("edit");
    QTest::addColumn<QByteArray>("signal");
    QTest::newRow("print panel") << Create(newPrintPanel) << QByteArray("supplyWidthEdit")
                                 << QByteArray(SIGNAL(supplyWidthChangedSignal(double)));
    QTest::newRow("multi-page panel")
        << Create(newMultiPagePanel) << QByteArray("copiesEdit") << QByteArray(SIGNAL(focusLost()));
    QTest::newRow("multi-page dialog") << Create(newMultiPageDialog) << QByteArray("copiesEdit")
                                       << QByteArray(SIGNAL(focusLost()));
}

// A window that is taken apart loses the keyboard before its edits are gone.
void tst_ControlRefuge::dyingPanelTellsNothing()
{
    QFETCH(const Create, create);
    QFETCH(const QByteArray, edit);
    QFETCH(const QByteArray, signal);
    std::unique_ptr<QWidget> window(create());
    QVERIFY(showActive(*window));
    auto* panel = window->findChild<PrintWidgetInterface*>();
    if (!panel)
        panel = qobject_cast<PrintWidgetInterface*>(window.get());
    QSignalSpy told(panel, signal.constData());
    auto* typed = part<QLineEdit>(*window, edit.constData());
    typed->setFocus();
    QTest::keyClick(typed, Qt::Key_9);
    QVERIFY(typed->hasFocus());
    QVERIFY(told.isEmpty());
    window.reset();
    QCOMPARE(told.size(), 0);
}

QTEST_MAIN(tst_ControlRefuge)
#include "tst_controlrefuge.moc"
