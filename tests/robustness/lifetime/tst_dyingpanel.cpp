// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "lifetimetest.h"

#include <printpanels/printwidget.h>

#include <QtCore/QPointer>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>

#include <memory>

/** What happens while a panel is destroyed: it emits nothing, and its children go with it. */
class tst_DyingPanel : public LifetimeTest
{
    Q_OBJECT

private Q_SLOTS:
    void emitsNothing_data();
    void emitsNothing();
    void takesItsChildrenAlong_data();
    void takesItsChildrenAlong();
};

void tst_DyingPanel::emitsNothing_data()
{
    addColumns<Create, QByteArray, QByteArray>("create", "edit", "signal");
    addRow("print panel", Create(newPrintPanel), QByteArray("supplyWidthEdit"),
           QByteArray(SIGNAL(supplyWidthChangedSignal(double))));
    addRow("multi-page panel", Create(newMultiPagePanel), QByteArray("copiesEdit"),
           QByteArray(SIGNAL(focusLost())));
    addRow("multi-page dialog", Create(newMultiPageDialog), QByteArray("copiesEdit"),
           QByteArray(SIGNAL(focusLost())));
}

// A window that is taken apart loses the keyboard before its edits are gone.
void tst_DyingPanel::emitsNothing()
{
    QFETCH(const Create, create);
    QFETCH(const QByteArray, edit);
    QFETCH(const QByteArray, signal);
    std::unique_ptr<QWidget> window(create());
    QVERIFY(showActive(*window));
    auto* panel = window->findChild<PrintWidgetInterface*>();
    if (!panel)
        panel = qobject_cast<PrintWidgetInterface*>(window.get());
    QSignalSpy emitted(panel, signal.constData());
    auto* typed = part<QLineEdit>(*window, edit.constData());
    typed->setFocus();
    QTest::keyClick(typed, Qt::Key_9);
    QVERIFY(typed->hasFocus());
    QVERIFY(emitted.isEmpty());
    window.reset();
    QCOMPARE(emitted.size(), 0);
}

void tst_DyingPanel::takesItsChildrenAlong_data()
{
    QTest::addColumn<bool>("inAHandler");
    addRow("outside of its signals", false);
    addRow("in a handler", true);
}

void tst_DyingPanel::takesItsChildrenAlong()
{
    QFETCH(const bool, inAHandler);
    const QPointer<PrintWidget> panel(static_cast<PrintWidget*>(newPrintPanel()));
    const QPointer<QWidget> printers(part<QComboBox>(*panel, "PrinterListCombo"));
    const QPointer<QWidget> widgetOfTheHost(new QWidget(panel));
    const QPointer<QObject> objectOfTheHost(new QObject(panel));
    connect(panel, &PrintWidget::widgetPrintSignal, this, [panel] { delete panel.data(); });
    if (inAHandler)
        part<QAbstractButton>(*panel, "PrintButton")->click();
    else
        delete panel.data();
    QVERIFY(panel.isNull());
    QVERIFY(printers.isNull());
    QVERIFY(widgetOfTheHost.isNull());
    QVERIFY(objectOfTheHost.isNull());
    QCOMPARE(QApplication::allWidgets(), QWidgetList());
}

QTEST_MAIN(tst_DyingPanel)
#include "tst_dyingpanel.moc"
