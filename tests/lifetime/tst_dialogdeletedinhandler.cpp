// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "executioner.h"
#include "livepanel.h"
#include "support/stricttest.h"
#include "useractions.h"

#include <printpanels/multipageprintdialog.h>
#include <printpanels/multipageprintwidget.h>

#include <QtCore/QTimer>
#include <QtWidgets/QAbstractButton>

Q_DECLARE_METATYPE(UserAction)
using End = void (*)(QDialog&);
Q_DECLARE_METATYPE(End)

/** Hosts that delete a multi-page dialog in a handler of its panel's signals or of its own. */
class tst_DialogDeletedInHandler : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void dialogDeletedAtOnceByItsPanel_data();
    void dialogDeletedAtOnceByItsPanel();
    void dialogDeletedAtOnceWhileItExecutes_data();
    void dialogDeletedAtOnceWhileItExecutes();
    void dialogDeletedAtOnceWhenItEnds_data();
    void dialogDeletedAtOnceWhenItEnds();
    void dialogDeletedAtOnceWhenItsExecutionEnds_data();
    void dialogDeletedAtOnceWhenItsExecutionEnds();

private:
    void addActionRows();
    void addEndRows();
};

namespace {

QWidget* panelIn(const QDialog& dialog)
{
    return dialog.findChild<MultiPagePrintWidget*>();
}

QDialog* newDialog()
{
    return qobject_cast<QDialog*>(newMultiPageDialog());
}

} // namespace

void tst_DialogDeletedInHandler::cleanup()
{
    deleteWidgetsLeft();
}

void tst_DialogDeletedInHandler::addActionRows()
{
    QTest::addColumn<UserAction>("action");
    const QList<UserAction> actions = userActions();
    for (const UserAction& action : actions) {
        if (action.create == newMultiPagePanel && !action.leavesWindow)
            QTest::newRow(action.name) << action;
    }
}

void tst_DialogDeletedInHandler::dialogDeletedAtOnceByItsPanel_data()
{
    addActionRows();
}

void tst_DialogDeletedInHandler::dialogDeletedAtOnceByItsPanel()
{
    QFETCH(const UserAction, action);
    Executioner host;
    QDialog* dialog = newDialog();
    host.victim = dialog;
    QVERIFY(showActive(*dialog));
    const QPointer<QWidget> panel(panelIn(*dialog));
    QVERIFY(connect(panel, action.signal, &host, SLOT(deleteNow())));
    action.act(panel);
    QVERIFY(host.victim.isNull());
    QVERIFY(panel.isNull());
    QCOMPARE(host.calls, 1);
    QCOMPARE(widgetsLeft(), QStringList());
}

void tst_DialogDeletedInHandler::dialogDeletedAtOnceWhileItExecutes_data()
{
    addActionRows();
}

void tst_DialogDeletedInHandler::dialogDeletedAtOnceWhileItExecutes()
{
    QFETCH(const UserAction, action);
    Executioner host;
    QDialog* dialog = newDialog();
    host.victim = dialog;
    const QPointer<QWidget> panel(panelIn(*dialog));
    QVERIFY(connect(panel, action.signal, &host, SLOT(deleteNow())));
    QTimer::singleShot(0, this, [&] {
        QVERIFY(QTest::qWaitForWindowActive(dialog));
        action.act(panel);
    });
    QCOMPARE(dialog->exec(), int(QDialog::Rejected));
    QVERIFY(host.victim.isNull());
    QCOMPARE(host.calls, 1);
    QCOMPARE(widgetsLeft(), QStringList());
}

void tst_DialogDeletedInHandler::addEndRows()
{
    QTest::addColumn<End>("end");
    QTest::addColumn<QByteArray>("signal");
    struct Row
    {
        const char* name;
        End end;
        bool accepts;
    };
    const QList<Row> rows = {
        {"escape", [](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); }, false},
        {"title bar",
         [](QDialog& dialog) {
             QTest::mouseClick(part<QAbstractButton>(dialog, "CloseButton"), Qt::LeftButton);
         },
         false},
        {"close", [](QDialog& dialog) { dialog.close(); }, false},
        {"window system", [](QDialog& dialog) { dialog.windowHandle()->close(); }, false},
        {"reject", [](QDialog& dialog) { dialog.reject(); }, false},
        {"accept", [](QDialog& dialog) { dialog.accept(); }, true},
    };
    for (const Row& row : rows) {
        const QByteArray byResult = row.accepts ? SIGNAL(accepted()) : SIGNAL(rejected());
        QTest::newRow(row.name) << row.end << byResult;
        QTest::addRow("%s, finished", row.name) << row.end << QByteArray(SIGNAL(finished(int)));
    }
}

void tst_DialogDeletedInHandler::dialogDeletedAtOnceWhenItEnds_data()
{
    addEndRows();
}

void tst_DialogDeletedInHandler::dialogDeletedAtOnceWhenItEnds()
{
    QFETCH(const End, end);
    QFETCH(const QByteArray, signal);
    Executioner host;
    QDialog* dialog = newDialog();
    host.victim = dialog;
    QVERIFY(connect(dialog, signal, &host, SLOT(deleteNow())));
    QVERIFY(showActive(*dialog));
    part<QWidget>(*dialog, "copiesEdit")->setFocus();
    end(*dialog);
    QVERIFY(host.victim.isNull());
    QCOMPARE(host.calls, 1);
    QCOMPARE(widgetsLeft(), QStringList());
}

void tst_DialogDeletedInHandler::dialogDeletedAtOnceWhenItsExecutionEnds_data()
{
    addEndRows();
}

void tst_DialogDeletedInHandler::dialogDeletedAtOnceWhenItsExecutionEnds()
{
    QFETCH(const End, end);
    QFETCH(const QByteArray, signal);
    Executioner host;
    QDialog* dialog = newDialog();
    host.victim = dialog;
    QVERIFY(connect(dialog, signal, &host, SLOT(deleteNow())));
    QTimer::singleShot(0, this, [&] {
        QVERIFY(QTest::qWaitForWindowActive(dialog));
        end(*dialog);
    });
    QCOMPARE(dialog->exec(), int(QDialog::Rejected));
    QVERIFY(host.victim.isNull());
    QCOMPARE(host.calls, 1);
    QCOMPARE(widgetsLeft(), QStringList());
}

QTEST_MAIN(tst_DialogDeletedInHandler)
#include "tst_dialogdeletedinhandler.moc"
