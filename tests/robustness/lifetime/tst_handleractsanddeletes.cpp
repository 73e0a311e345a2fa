// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "livepanel.h"
#include "support/stricttest.h"

#include <printpanels/printwidget.h>

#include <QtCore/QEventLoop>
#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>

/** Hosts that do more in a handler than delete the panel later. */
class tst_HandlerActsAndDeletes : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void takesTheTagsAway_data();
    void takesTheTagsAway();
    void buildsTheTagsAgain();
    void replacesThePrinters();
    void hidesTheSupplyWhoseWidthIsEdited();
    void runsALoopAfterwards();
    void deletesInALoopOfAButtonsHandler();
};

namespace {

struct LivePrintPanel
{
    QPointer<PrintWidget> panel{static_cast<PrintWidget*>(newPrintPanel())};
    QPointer<QComboBox> printers{part<QComboBox>(*panel, "PrinterListCombo")};
    QPointer<QComboBox> tags{part<QComboBox>(*panel, "AmmoniaPrintCombo")};
};

} // namespace

void tst_HandlerActsAndDeletes::cleanup()
{
    deleteWidgetsLeft();
}

void tst_HandlerActsAndDeletes::takesTheTagsAway_data()
{
    QTest::addColumn<int>("tags");
    QTest::newRow("none left") << 0;
    QTest::newRow("others") << 3;
}

void tst_HandlerActsAndDeletes::takesTheTagsAway()
{
    QFETCH(const int, tags);
    const LivePrintPanel live;
    QVERIFY(showActive(*live.panel));
    connect(live.panel, &PrintWidget::ammoniaPrintTagChanged, this, [&] {
        live.panel->setVisibleAmmoniaTag(tags);
        live.panel->deleteLater();
    });
    QTest::keyClick(live.tags, Qt::Key_Down);
    QTRY_VERIFY(live.panel.isNull());
    QCOMPARE(widgetsLeft(), QStringList());
}

void tst_HandlerActsAndDeletes::buildsTheTagsAgain()
{
    const LivePrintPanel live;
    QVERIFY(showActive(*live.panel));
    connect(live.panel, &PrintWidget::ammoniaPrintTagChanged, this, [&] {
        live.panel->setModule(JxModuleInfo::PipeMarking);
        live.panel->deleteLater();
    });
    QTest::keyClick(live.tags, Qt::Key_Down);
    QTRY_VERIFY(live.panel.isNull());
    QCOMPARE(widgetsLeft(), QStringList());
}

void tst_HandlerActsAndDeletes::replacesThePrinters()
{
    const LivePrintPanel live;
    QVERIFY(showActive(*live.panel));
    connect(live.panel, &PrintWidget::currentPrinterSelectionChanged, this, [&] {
        live.panel->updateListOfPrinters({}, 0);
        live.panel->deleteLater();
    });
    QTest::keyClick(live.printers, Qt::Key_Down);
    QTRY_VERIFY(live.panel.isNull());
    QCOMPARE(widgetsLeft(), QStringList());
}

void tst_HandlerActsAndDeletes::hidesTheSupplyWhoseWidthIsEdited()
{
    const LivePrintPanel live;
    QVERIFY(showActive(*live.panel));
    int calls = 0;
    connect(live.panel, &PrintWidget::supplyWidthChangedSignal, this, [&] {
        ++calls;
        live.panel->deleteLater();
    });
    auto* width = part<QLineEdit>(*live.panel, "supplyWidthEdit");
    width->setFocus();
    width->clear();
    QTest::keyClick(width, Qt::Key_9);
    QCOMPARE(calls, 0);
    live.panel->hideSupplyInfo();
    QVERIFY(calls > 0);
    QTRY_VERIFY(live.panel.isNull());
    QCOMPARE(widgetsLeft(), QStringList());
}

// As a handler that shows a message box.
void tst_HandlerActsAndDeletes::runsALoopAfterwards()
{
    const LivePrintPanel live;
    bool outlivedTheLoop = false;
    connect(live.panel, &PrintWidget::currentPrinterSelectionChanged, this, [&] {
        live.panel->deleteLater();
        QEventLoop inside;
        QTimer::singleShot(100, &inside, &QEventLoop::quit);
        inside.exec();
        outlivedTheLoop = !live.panel.isNull();
    });
    QEventLoop outside;
    QTimer::singleShot(0, this, [&live] { live.printers->setCurrentIndex(1); });
    connect(live.panel, &QObject::destroyed, &outside, &QEventLoop::quit);
    outside.exec();
    QVERIFY(outlivedTheLoop);
    QVERIFY(live.panel.isNull());
    QCOMPARE(widgetsLeft(), QStringList());
}

void tst_HandlerActsAndDeletes::deletesInALoopOfAButtonsHandler()
{
    const LivePrintPanel live;
    QVERIFY(showActive(*live.panel));
    int calls = 0;
    connect(live.panel, &PrintWidget::widgetPrintSignal, this, [&] {
        ++calls;
        QEventLoop inside;
        QTimer::singleShot(0, this, [&live] { delete live.panel.data(); });
        QTimer::singleShot(100, &inside, &QEventLoop::quit);
        inside.exec();
    });
    QTest::mouseClick(part<QAbstractButton>(*live.panel, "PrintButton"), Qt::LeftButton);
    QVERIFY(live.panel.isNull());
    QCOMPARE(calls, 1);
    QCOMPARE(widgetsLeft(), QStringList());
}

QTEST_MAIN(tst_HandlerActsAndDeletes)
#include "tst_handleractsanddeletes.moc"
