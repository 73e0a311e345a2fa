// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "lifetimetest.h"

#include <printpanels/multipageprintdialog.h>
#include <printpanels/multipageprintwidget.h>

#include <QtCore/QTimer>
#include <QtWidgets/QAbstractButton>

using End = void (*)(QDialog&);
Q_DECLARE_METATYPE(End)

/**
 * Hosts that delete a multi-page dialog in a handler of its panel's signals or of its own: at once
 * where a button of the panel was clicked, later everywhere. QDialog does not guard its own
 * signals.
 */
class tst_DialogDeletedInHandler : public LifetimeTest
{
    Q_OBJECT

private Q_SLOTS:
    void dialogDeletedAtOnceByItsPanel_data();
    void dialogDeletedAtOnceByItsPanel();
    void dialogDeletedAtOnceWhileItExecutes_data();
    void dialogDeletedAtOnceWhileItExecutes();
    void dialogDeletedSoonByItsPanel_data();
    void dialogDeletedSoonByItsPanel();
    void dialogDeletedSoonWhileItExecutes_data();
    void dialogDeletedSoonWhileItExecutes();
    void dialogDeletedSoonWhenItEnds_data();
    void dialogDeletedSoonWhenItEnds();
    void dialogDeletedSoonWhenItsExecutionEnds_data();
    void dialogDeletedSoonWhenItsExecutionEnds();

private:
    void deleteByItsPanel(Deleter::When when);
    void deleteWhileItExecutes(Deleter::When when);
};

namespace {

QWidget* panelIn(const QWidget& dialog)
{
    return dialog.findChild<MultiPagePrintWidget*>();
}

QDialog* newDialog()
{
    return qobject_cast<QDialog*>(newMultiPageDialog());
}

void addEndRows()
{
    addColumns<End, QByteArray>("end", "signal");
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

} // namespace

void tst_DialogDeletedInHandler::dialogDeletedAtOnceByItsPanel_data()
{
    addActionRows(Deleter::AtOnce, newMultiPagePanel);
}

void tst_DialogDeletedInHandler::dialogDeletedAtOnceByItsPanel()
{
    deleteByItsPanel(Deleter::AtOnce);
}

void tst_DialogDeletedInHandler::dialogDeletedAtOnceWhileItExecutes_data()
{
    addActionRows(Deleter::AtOnce, newMultiPagePanel);
}

void tst_DialogDeletedInHandler::dialogDeletedAtOnceWhileItExecutes()
{
    deleteWhileItExecutes(Deleter::AtOnce);
}

void tst_DialogDeletedInHandler::dialogDeletedSoonByItsPanel_data()
{
    addActionRows(Deleter::Soon, newMultiPagePanel);
}

void tst_DialogDeletedInHandler::dialogDeletedSoonByItsPanel()
{
    deleteByItsPanel(Deleter::Soon);
}

void tst_DialogDeletedInHandler::dialogDeletedSoonWhileItExecutes_data()
{
    addActionRows(Deleter::Soon, newMultiPagePanel);
}

void tst_DialogDeletedInHandler::dialogDeletedSoonWhileItExecutes()
{
    deleteWhileItExecutes(Deleter::Soon);
}

void tst_DialogDeletedInHandler::deleteByItsPanel(Deleter::When when)
{
    QFETCH(const UserAction, action);
    Deleter host(newMultiPageDialog());
    const QPointer<QWidget> panel(panelIn(*host.target));
    actAndDelete(action, panel, host, when);
    QVERIFY(panel.isNull());
    QCOMPARE(widgetsLeft(), QStringList());
}

void tst_DialogDeletedInHandler::deleteWhileItExecutes(Deleter::When when)
{
    QFETCH(const UserAction, action);
    QDialog* dialog = newDialog();
    Deleter host(dialog);
    const QPointer<QWidget> panel(panelIn(*dialog));
    QVERIFY(connect(emitterOf(action, *panel), action.signal, &host, Deleter::slot(when)));
    QTimer::singleShot(0, this, [&] {
        QVERIFY(QTest::qWaitForWindowActive(dialog));
        action.act(panel);
    });
    QCOMPARE(dialog->exec(), int(QDialog::Rejected));
    QVERIFY(host.target.isNull());
    if (when == Deleter::AtOnce)
        QCOMPARE(host.calls, 1);
    QVERIFY(host.calls > 0);
    QCOMPARE(widgetsLeft(), QStringList());
}

void tst_DialogDeletedInHandler::dialogDeletedSoonWhenItEnds_data()
{
    addEndRows();
}

void tst_DialogDeletedInHandler::dialogDeletedSoonWhenItEnds()
{
    QFETCH(const End, end);
    QFETCH(const QByteArray, signal);
    QDialog* dialog = newDialog();
    Deleter host(dialog);
    QVERIFY(connect(dialog, signal, &host, SLOT(deleteSoon())));
    QVERIFY(showActive(*dialog));
    part<QWidget>(*dialog, "copiesEdit")->setFocus();
    end(*dialog);
    QTRY_VERIFY(host.target.isNull());
    QCOMPARE(host.calls, 1);
    QCOMPARE(widgetsLeft(), QStringList());
}

void tst_DialogDeletedInHandler::dialogDeletedSoonWhenItsExecutionEnds_data()
{
    addEndRows();
}

void tst_DialogDeletedInHandler::dialogDeletedSoonWhenItsExecutionEnds()
{
    QFETCH(const End, end);
    QFETCH(const QByteArray, signal);
    QDialog* dialog = newDialog();
    Deleter host(dialog);
    QVERIFY(connect(dialog, signal, &host, SLOT(deleteSoon())));
    bool accepted = false;
    connect(dialog, &QDialog::accepted, this, [&accepted] { accepted = true; });
    QTimer::singleShot(0, this, [&] {
        QVERIFY(QTest::qWaitForWindowActive(dialog));
        end(*dialog);
    });
    const int result = dialog->exec();
    QCOMPARE(result, int(accepted ? QDialog::Accepted : QDialog::Rejected));
    QTRY_VERIFY(host.target.isNull());
    QCOMPARE(host.calls, 1);
    QCOMPARE(widgetsLeft(), QStringList());
}

QTEST_MAIN(tst_DialogDeletedInHandler)
#include "tst_dialogdeletedinhandler.moc"
