// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "executioner.h"
#include "livepanel.h"
#include "support/stricttest.h"
#include "useractions.h"

#include <printpanels/multipageprintwidget.h>
#include <printpanels/printpreviewdialog.h>
#include <printpanels/printwidget.h>
#include <printpanels/quickprintwidget.h>

#include <QtCore/QMetaMethod>
#include <QtCore/QPointer>

#include <memory>

Q_DECLARE_METATYPE(UserAction)
using HostAct = void (*)(QWidget&);
Q_DECLARE_METATYPE(HostAct)

/**
 * Hosts that delete a panel, or the window around it, in a handler of the panel's own signals: at
 * once where a button was clicked, later everywhere.
 */
class tst_DeletedInHandler : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
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
};

namespace {

enum class Rows { Clicks, All };

void addRows(Rows rows)
{
    QTest::addColumn<UserAction>("action");
    const QList<UserAction> actions = userActions();
    for (const UserAction& action : actions) {
        if (rows == Rows::All || action.clicksAButton)
            QTest::newRow(action.name) << action;
    }
}

void addHostRows()
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

void tst_DeletedInHandler::cleanup()
{
    deleteWidgetsLeft();
}

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
    addRows(Rows::Clicks);
}

void tst_DeletedInHandler::panelDeletedAtOnce()
{
    QFETCH(const UserAction, action);
    Executioner host;
    host.victim = action.create();
    QVERIFY(showActive(*host.victim));
    QVERIFY(connect(emitterOf(action, *host.victim), action.signal, &host, SLOT(deleteNow())));
    action.act(host.victim);
    QVERIFY(host.victim.isNull());
    QCOMPARE(host.calls, 1);
    QCOMPARE(widgetsLeft(), QStringList());
}

void tst_DeletedInHandler::panelInAWindowDeletedAtOnce_data()
{
    addRows(Rows::Clicks);
}

void tst_DeletedInHandler::panelInAWindowDeletedAtOnce()
{
    QFETCH(const UserAction, action);
    Executioner host;
    host.victim = action.create();
    const std::unique_ptr<QWidget> window(newWindowAround(host.victim));
    QVERIFY(showActive(*window));
    QVERIFY(connect(emitterOf(action, *host.victim), action.signal, &host, SLOT(deleteNow())));
    action.act(host.victim);
    QVERIFY(host.victim.isNull());
    QCOMPARE(host.calls, 1);
    QCOMPARE(widgetsLeft().size(), 2); // the window and what is in it
}

void tst_DeletedInHandler::windowDeletedAtOnce_data()
{
    addRows(Rows::Clicks);
}

void tst_DeletedInHandler::windowDeletedAtOnce()
{
    QFETCH(const UserAction, action);
    Executioner host;
    const QPointer<QWidget> panel(action.create());
    host.victim = newWindowAround(panel);
    QVERIFY(showActive(*host.victim));
    QVERIFY(connect(emitterOf(action, *panel), action.signal, &host, SLOT(deleteNow())));
    action.act(panel);
    QVERIFY(host.victim.isNull());
    QCOMPARE(host.calls, 1);
    QCOMPARE(widgetsLeft(), QStringList());
}

void tst_DeletedInHandler::panelDeletedSoon_data()
{
    addRows(Rows::All);
}

void tst_DeletedInHandler::panelDeletedSoon()
{
    QFETCH(const UserAction, action);
    Executioner host;
    host.victim = action.create();
    QVERIFY(showActive(*host.victim));
    QVERIFY(connect(emitterOf(action, *host.victim), action.signal, &host, SLOT(deleteSoon())));
    action.act(host.victim);
    QTRY_VERIFY(host.victim.isNull());
    QVERIFY(host.calls > 0);
    QCOMPARE(widgetsLeft(), QStringList());
}

void tst_DeletedInHandler::panelInAWindowDeletedSoon_data()
{
    addRows(Rows::All);
}

void tst_DeletedInHandler::panelInAWindowDeletedSoon()
{
    QFETCH(const UserAction, action);
    Executioner host;
    host.victim = action.create();
    const std::unique_ptr<QWidget> window(newWindowAround(host.victim));
    QVERIFY(showActive(*window));
    QVERIFY(connect(emitterOf(action, *host.victim), action.signal, &host, SLOT(deleteSoon())));
    action.act(host.victim);
    QTRY_VERIFY(host.victim.isNull());
    QVERIFY(host.calls > 0);
    QCOMPARE(widgetsLeft().size(), 2); // the window and what is in it
}

void tst_DeletedInHandler::windowDeletedSoon_data()
{
    addRows(Rows::All);
}

void tst_DeletedInHandler::windowDeletedSoon()
{
    QFETCH(const UserAction, action);
    Executioner host;
    const QPointer<QWidget> panel(action.create());
    host.victim = newWindowAround(panel);
    QVERIFY(showActive(*host.victim));
    QVERIFY(connect(emitterOf(action, *panel), action.signal, &host, SLOT(deleteSoon())));
    action.act(panel);
    QTRY_VERIFY(host.victim.isNull());
    QVERIFY(host.calls > 0);
    QCOMPARE(widgetsLeft(), QStringList());
}

void tst_DeletedInHandler::panelDeletedSoonWhileTheHostActs_data()
{
    addHostRows();
}

void tst_DeletedInHandler::panelDeletedSoonWhileTheHostActs()
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

void tst_DeletedInHandler::windowDeletedSoonWhileTheHostActs_data()
{
    addHostRows();
}

void tst_DeletedInHandler::windowDeletedSoonWhileTheHostActs()
{
    QFETCH(const HostAct, act);
    QFETCH(const QByteArray, signal);
    Executioner host;
    QWidget* const panel = newMultiPagePanel();
    host.victim = newWindowAround(panel);
    QVERIFY(showActive(*host.victim));
    part<QWidget>(*panel, "copiesEdit")->setFocus();
    QVERIFY(connect(panel, signal, &host, SLOT(deleteSoon())));
    act(*host.victim);
    QVERIFY(host.calls > 0);
    QVERIFY(host.victim);
    QTRY_VERIFY(host.victim.isNull());
    QCOMPARE(widgetsLeft(), QStringList());
}

QTEST_MAIN(tst_DeletedInHandler)
#include "tst_deletedinhandler.moc"
