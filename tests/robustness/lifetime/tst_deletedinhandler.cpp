// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "lifetimetest.h"

#include <printpanels/multipageprintwidget.h>
#include <printpanels/printpreviewdialog.h>
#include <printpanels/printwidget.h>
#include <printpanels/quickprintwidget.h>

#include <QtCore/QMetaMethod>
#include <QtCore/QPointer>

#include <memory>

using HostAct = void (*)(QWidget&);
Q_DECLARE_METATYPE(HostAct)

/**
 * Hosts that delete a panel, or the window around it, in a handler of the panel's own signals: at
 * once where a button was clicked, later everywhere.
 */
class tst_DeletedInHandler : public LifetimeTest
{
    Q_OBJECT

private Q_SLOTS:
    void everySignalHasARow();
    void panelDeletedAtOnce_data();
    void panelDeletedAtOnce();
    void panelInAWindowDeletedAtOnce_data();
    void panelInAWindowDeletedAtOnce();
    void windowDeletedAtOnce_data();
    void windowDeletedAtOnce();
    void panelDeletedSoon_data();
    void panelDeletedSoon();
    void panelInAWindowDeletedSoon_data();
    void panelInAWindowDeletedSoon();
    void windowDeletedSoon_data();
    void windowDeletedSoon();
    void panelDeletedSoonWhileTheHostActs_data();
    void panelDeletedSoonWhileTheHostActs();
    void windowDeletedSoonWhileTheHostActs_data();
    void windowDeletedSoonWhileTheHostActs();

private:
    void deletePanel(Deleter::When when);
    void deletePanelInAWindow(Deleter::When when);
    void deleteWindow(Deleter::When when);
    void deleteWhileTheHostActs(bool inAWindow);
};

namespace {

void addHostRows()
{
    addColumns<HostAct, QByteArray>("act", "signal");
    const QByteArray shown = SIGNAL(printWidgetShowSignal());
    const QByteArray left = SIGNAL(focusLost());
    const auto row = [](const char* name, HostAct act, const QByteArray& signal) {
        addRow(name, act, signal);
    };
    row(
        "shows",
        [](QWidget& panel) {
            panel.hide();
            panel.show();
        },
        shown);
    row(
        "hides", [](QWidget& panel) { panel.hide(); }, left);
    row(
        "disables", [](QWidget& panel) { panel.setEnabled(false); }, left);
    row(
        "closes", [](QWidget& panel) { panel.close(); }, left);
}

/** The signals that @p meta declares and inherits from the panels' interface, as SIGNAL() texts. */
QByteArrayList signalsOf(const QMetaObject& meta)
{
    QByteArrayList texts;
    for (int i = QWidget::staticMetaObject.methodCount(); i < meta.methodCount(); ++i) {
        if (meta.method(i).methodType() == QMetaMethod::Signal)
            texts.append('2' + meta.method(i).methodSignature());
    }
    return texts;
}

} // namespace

void tst_DeletedInHandler::everySignalHasARow()
{
    // Only what the host does shows a panel.
    QByteArrayList known = {QMetaObject::normalizedSignature(SIGNAL(printWidgetShowSignal()))};
    const QList<UserAction> actions = userActions();
    for (const UserAction& action : actions)
        known.append(QMetaObject::normalizedSignature(action.signal));
    for (const QMetaObject* meta :
         {&PrintWidget::staticMetaObject, &QuickPrintWidget::staticMetaObject,
          &MultiPagePrintWidget::staticMetaObject, &PrintPreviewDialog::staticMetaObject}) {
        const QByteArrayList texts = signalsOf(*meta);
        QVERIFY(!texts.isEmpty());
        for (const QByteArray& text : texts)
            QVERIFY2(known.contains(text), text.constData());
    }
}

void tst_DeletedInHandler::panelDeletedAtOnce_data()
{
    addActionRows(Deleter::AtOnce);
}

void tst_DeletedInHandler::panelDeletedAtOnce()
{
    deletePanel(Deleter::AtOnce);
}

void tst_DeletedInHandler::panelDeletedSoon_data()
{
    addActionRows(Deleter::Soon);
}

void tst_DeletedInHandler::panelDeletedSoon()
{
    deletePanel(Deleter::Soon);
}

void tst_DeletedInHandler::deletePanel(Deleter::When when)
{
    QFETCH(const UserAction, action);
    Deleter host(action.create());
    actAndDelete(action, host.target, host, when);
    QCOMPARE(widgetsLeft(), QStringList());
}

void tst_DeletedInHandler::panelInAWindowDeletedAtOnce_data()
{
    addActionRows(Deleter::AtOnce);
}

void tst_DeletedInHandler::panelInAWindowDeletedAtOnce()
{
    deletePanelInAWindow(Deleter::AtOnce);
}

void tst_DeletedInHandler::panelInAWindowDeletedSoon_data()
{
    addActionRows(Deleter::Soon);
}

void tst_DeletedInHandler::panelInAWindowDeletedSoon()
{
    deletePanelInAWindow(Deleter::Soon);
}

void tst_DeletedInHandler::deletePanelInAWindow(Deleter::When when)
{
    QFETCH(const UserAction, action);
    Deleter host(action.create());
    const std::unique_ptr<QWidget> window(newWindowAround(host.target));
    actAndDelete(action, host.target, host, when);
    QCOMPARE(widgetsLeft().size(), 2); // the window and what is in it
}

void tst_DeletedInHandler::windowDeletedAtOnce_data()
{
    addActionRows(Deleter::AtOnce);
}

void tst_DeletedInHandler::windowDeletedAtOnce()
{
    deleteWindow(Deleter::AtOnce);
}

void tst_DeletedInHandler::windowDeletedSoon_data()
{
    addActionRows(Deleter::Soon);
}

void tst_DeletedInHandler::windowDeletedSoon()
{
    deleteWindow(Deleter::Soon);
}

void tst_DeletedInHandler::deleteWindow(Deleter::When when)
{
    QFETCH(const UserAction, action);
    const QPointer<QWidget> panel(action.create());
    Deleter host(newWindowAround(panel));
    actAndDelete(action, panel, host, when);
    QCOMPARE(widgetsLeft(), QStringList());
}

void tst_DeletedInHandler::panelDeletedSoonWhileTheHostActs_data()
{
    addHostRows();
}

void tst_DeletedInHandler::panelDeletedSoonWhileTheHostActs()
{
    deleteWhileTheHostActs(false);
}

void tst_DeletedInHandler::windowDeletedSoonWhileTheHostActs_data()
{
    addHostRows();
}

void tst_DeletedInHandler::windowDeletedSoonWhileTheHostActs()
{
    deleteWhileTheHostActs(true);
}

void tst_DeletedInHandler::deleteWhileTheHostActs(bool inAWindow)
{
    QFETCH(const HostAct, act);
    QFETCH(const QByteArray, signal);
    QWidget* const panel = newMultiPagePanel();
    Deleter host(inAWindow ? newWindowAround(panel) : panel);
    QVERIFY(showActive(*host.target));
    part<QWidget>(*panel, "copiesEdit")->setFocus();
    QVERIFY(connect(panel, signal, &host, SLOT(deleteSoon())));
    act(*host.target);
    QVERIFY(host.calls > 0);
    QVERIFY(host.target);
    QTRY_VERIFY(host.target.isNull());
    QCOMPARE(widgetsLeft(), QStringList());
}

QTEST_MAIN(tst_DeletedInHandler)
#include "tst_deletedinhandler.moc"
