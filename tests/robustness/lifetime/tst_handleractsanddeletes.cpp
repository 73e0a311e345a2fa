// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "lifetimetest.h"

#include <printpanels/printwidget.h>

#include <QtCore/QEventLoop>
#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>

struct LivePrintPanel
{
    QPointer<PrintWidget> panel{static_cast<PrintWidget*>(newPrintPanel())};
    QPointer<QComboBox> printers{part<QComboBox>(*panel, "PrinterListCombo")};
    QPointer<QComboBox> tags{part<QComboBox>(*panel, "AmmoniaPrintCombo")};
};

/** Hosts that do more in a handler than delete the panel later. */
class tst_HandlerActsAndDeletes : public LifetimeTest
{
    Q_OBJECT

private Q_SLOTS:
    void takesTheTagsAway_data();
    void takesTheTagsAway();
    void buildsTheTagsAgain();
    void replacesThePrinters();
    void hidesTheSupplyWhoseWidthIsEdited();
    void runsALoopAfterwards();
    void deletesInALoopOfAButtonsHandler();

private:
    /** The user chooses in @p combo, and the handler of @p signal acts and deletes the panel later.
     */
    template <typename Signal, typename Act>
    void deletedAfter(Signal signal, QPointer<QComboBox> LivePrintPanel::*combo, Act act)
    {
        const LivePrintPanel live;
        QVERIFY(showActive(*live.panel));
        connect(live.panel, signal, this, [&] {
            act(*live.panel);
            live.panel->deleteLater();
        });
        QTest::keyClick(live.*combo, Qt::Key_Down);
        QTRY_VERIFY(live.panel.isNull());
        QCOMPARE(widgetsLeft(), QStringList());
    }
};

void tst_HandlerActsAndDeletes::takesTheTagsAway_data()
{
    QTest::addColumn<int>("tags");
    addRow("none left", 0);
    addRow("others", 3);
}

void tst_HandlerActsAndDeletes::takesTheTagsAway()
{
    QFETCH(const int, tags);
    deletedAfter(&PrintWidget::ammoniaPrintTagChanged, &LivePrintPanel::tags,
                 [tags](PrintWidget& panel) { panel.setVisibleAmmoniaTag(tags); });
}

void tst_HandlerActsAndDeletes::buildsTheTagsAgain()
{
    deletedAfter(&PrintWidget::ammoniaPrintTagChanged, &LivePrintPanel::tags,
                 [](PrintWidget& panel) { panel.setModule(JxModuleInfo::PipeMarking); });
}

void tst_HandlerActsAndDeletes::replacesThePrinters()
{
    deletedAfter(&PrintWidget::currentPrinterSelectionChanged, &LivePrintPanel::printers,
                 [](PrintWidget& panel) { panel.updateListOfPrinters({}, 0); });
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
