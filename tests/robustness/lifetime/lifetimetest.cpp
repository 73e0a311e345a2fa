// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "lifetimetest.h"

void LifetimeTest::addActionRows(Deleter::When when, Create create)
{
    QTest::addColumn<UserAction>("action");
    const QList<UserAction> actions = userActions();
    for (const UserAction& action : actions) {
        if ((!create || action.create == create) && (when == Deleter::Soon || action.clicksAButton))
            QTest::newRow(action.name) << action;
    }
}

void LifetimeTest::addKindRows()
{
    QTest::addColumn<Create>("create");
    const QList<PanelKind> kinds = panelKinds();
    for (const PanelKind& kind : kinds)
        QTest::newRow(kind.name) << kind.create;
}

void LifetimeTest::actAndDelete(const UserAction& action, const QPointer<QWidget>& panel,
                                Deleter& host, Deleter::When when)
{
    QVERIFY(showActive(*panel->window()));
    QVERIFY(connect(emitterOf(action, *panel), action.signal, &host, Deleter::slot(when)));
    action.act(panel);
    if (when == Deleter::AtOnce) {
        QVERIFY(host.target.isNull());
        QCOMPARE(host.calls, 1);
    }
    QTRY_VERIFY(host.target.isNull());
    QVERIFY(host.calls > 0);
}
