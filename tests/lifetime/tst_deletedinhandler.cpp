// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "executioner.h"
#include "livepanel.h"
#include "support/stricttest.h"
#include "useractions.h"

#include <QtCore/QPointer>

#include <memory>

Q_DECLARE_METATYPE(UserAction)
using HostAct = void (*)(QWidget&);
Q_DECLARE_METATYPE(HostAct)

/** Hosts that delete a panel, or the window around it, in a handler of the panel's own signals. */
class tst_DeletedInHandler : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void panelDeletedAtOnce_data();
    void panelDeletedAtOnce();
    void panelInAWindowDeletedAtOnce_data();
    void panelInAWindowDeletedAtOnce();
    void windowDeletedAtOnce_data();
    void windowDeletedAtOnce();
    void panelDeletedSoon_data();
    void panelDeletedSoon();
    void deletedSoonWhileTheHostActs_data();
    void deletedSoonWhileTheHostActs();
};

namespace {

constexpr bool everyAction = true;
constexpr bool inItsWindowOnly = false;

void addRows(bool every)
{
    QTest::addColumn<UserAction>("action");
    const QList<UserAction> actions = userActions();
    for (const UserAction& action : actions) {
        if (every || !action.leavesWindow)
            QTest::newRow(action.name) << action;
    }
}

} // namespace

void tst_DeletedInHandler::cleanup()
{
    deleteWidgetsLeft();
}

void tst_DeletedInHandler::panelDeletedAtOnce_data()
{
    addRows(inItsWindowOnly);
}

void tst_DeletedInHandler::panelDeletedAtOnce()
{
    QFETCH(const UserAction, action);
    Executioner host;
    host.victim = action.create();
    QVERIFY(showActive(*host.victim));
    QVERIFY(connect(host.victim, action.signal, &host, SLOT(deleteNow())));
    action.act(host.victim);
    QVERIFY(host.victim.isNull());
    QCOMPARE(host.calls, 1);
    QCOMPARE(widgetsLeft(), QStringList());
}

void tst_DeletedInHandler::panelInAWindowDeletedAtOnce_data()
{
    addRows(everyAction);
}

void tst_DeletedInHandler::panelInAWindowDeletedAtOnce()
{
    QFETCH(const UserAction, action);
    Executioner host;
    host.victim = action.create();
    const std::unique_ptr<QWidget> window(newWindowAround(host.victim));
    QVERIFY(showActive(*window));
    QVERIFY(connect(host.victim, action.signal, &host, SLOT(deleteNow())));
    action.act(host.victim);
    QVERIFY(host.victim.isNull());
    QCOMPARE(host.calls, 1);
    QCOMPARE(widgetsLeft().size(), 2); // the window and what is in it
}

void tst_DeletedInHandler::windowDeletedAtOnce_data()
{
    addRows(inItsWindowOnly);
}

void tst_DeletedInHandler::windowDeletedAtOnce()
{
    QFETCH(const UserAction, action);
    Executioner host;
    const QPointer<QWidget> panel(action.create());
    host.victim = newWindowAround(panel);
    QVERIFY(showActive(*host.victim));
    QVERIFY(connect(panel, action.signal, &host, SLOT(deleteNow())));
    action.act(panel);
    QVERIFY(host.victim.isNull());
    QCOMPARE(host.calls, 1);
    QCOMPARE(widgetsLeft(), QStringList());
}

void tst_DeletedInHandler::panelDeletedSoon_data()
{
    addRows(everyAction);
}

void tst_DeletedInHandler::panelDeletedSoon()
{
    QFETCH(const UserAction, action);
    Executioner host;
    host.victim = action.create();
    QVERIFY(showActive(*host.victim));
    QVERIFY(connect(host.victim, action.signal, &host, SLOT(deleteSoon())));
    action.act(host.victim);
    QTRY_VERIFY(host.victim.isNull());
    QVERIFY(host.calls > 0);
    QCOMPARE(widgetsLeft(), QStringList());
}

void tst_DeletedInHandler::deletedSoonWhileTheHostActs_data()
{
    QTest::addColumn<HostAct>("act");
    QTest::addColumn<QByteArray>("signal");
    const QByteArray shown = SIGNAL(printWidgetShowSignal());
    const QByteArray left = SIGNAL(focusLost());
    QTest::newRow("shows") << HostAct([](QWidget& panel) {
        panel.hide();
        panel.show();
    }) << shown;
    QTest::newRow("hides") << HostAct([](QWidget& panel) { panel.hide(); }) << left;
    QTest::newRow("disables") << HostAct([](QWidget& panel) { panel.setEnabled(false); }) << left;
    QTest::newRow("closes") << HostAct([](QWidget& panel) { panel.close(); }) << left;
}

// Where Qt itself goes on with the panel, so that a host must not delete it at once.
void tst_DeletedInHandler::deletedSoonWhileTheHostActs()
{
    QFETCH(const HostAct, act);
    QFETCH(const QByteArray, signal);
    Executioner host;
    host.victim = newMultiPagePanel();
    QVERIFY(showActive(*host.victim));
    part<QWidget>(*host.victim, "copiesEdit")->setFocus();
    QVERIFY(connect(host.victim, signal, &host, SLOT(deleteSoon())));
    act(*host.victim);
    QVERIFY(host.calls > 0);
    QVERIFY(host.victim);
    QTRY_VERIFY(host.victim.isNull());
    QCOMPARE(widgetsLeft(), QStringList());
}

QTEST_MAIN(tst_DeletedInHandler)
#include "tst_deletedinhandler.moc"
