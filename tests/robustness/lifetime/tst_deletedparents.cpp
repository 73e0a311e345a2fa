// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "lifetimetest.h"

#include <colormenu.h>
#include <printpanels/multipageprintdialog.h>
#include <printpanels/printwidget.h>

#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtGui/QImage>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialog>
#include <QtWidgets/QTabBar>

#include <memory>

/** Hosts that delete what is around a panel before the panel, or a part of it. */
class tst_DeletedParents : public LifetimeTest
{
    Q_OBJECT

private Q_SLOTS:
    void windowFirst_data();
    void windowFirst();
    void parentBetweenFirst_data();
    void parentBetweenFirst();
    void parentOfTheWindowFirst_data();
    void parentOfTheWindowFirst();
    void parentOfADialogThatExecutesFirst();
    void panelInADialogFirst();
    void partFirst_data();
    void partFirst();
    void menuOfTheHostFirst();
};

namespace {

bool isOfQtsOwn(const QWidget& child)
{
    const bool isInABar = qobject_cast<const QTabBar*>(child.parentWidget()) != nullptr;
    return isInABar || child.objectName().startsWith(QLatin1String("qt_"));
}

/** Names that stand for one child each. Qt's own parts and all swatches but one are left out. */
QStringList namesIn(const QWidget& panel)
{
    QStringList names;
    const QList<QWidget*> children = panel.findChildren<QWidget*>();
    for (const QWidget* child : children) {
        const QString name = child->objectName();
        const bool isSwatch = name.startsWith(u'#') && name != QLatin1String("#000000");
        if (!name.isEmpty() && !isOfQtsOwn(*child) && !isSwatch && !names.contains(name))
            names.append(name);
    }
    return names;
}

/** What a window system does to a window at any time. */
void disturb(QWidget& panel)
{
    panel.grab();
    panel.hide();
    panel.setEnabled(false);
    panel.show();
    panel.setEnabled(true);
    panel.resize(panel.size() + QSize(10, 10));
    QCoreApplication::processEvents();
}

} // namespace

void tst_DeletedParents::windowFirst_data()
{
    addKindRows();
}

void tst_DeletedParents::windowFirst()
{
    QFETCH(const Create, create);
    QWidget* panel = create();
    const QList<QPointer<QObject>> parts = partsOf(panel);
    std::unique_ptr<QWidget> window(newWindowAround(panel));
    QVERIFY(showActive(*window));
    window.reset();
    QVERIFY(areGone(parts));
    QCOMPARE(QApplication::allWidgets(), QWidgetList());
}

void tst_DeletedParents::parentBetweenFirst_data()
{
    addKindRows();
}

void tst_DeletedParents::parentBetweenFirst()
{
    QFETCH(const Create, create);
    QWidget* panel = create();
    const QList<QPointer<QObject>> parts = partsOf(panel);
    const std::unique_ptr<QWidget> window(newWindowAround(panel));
    QVERIFY(showActive(*window));
    delete panel->parentWidget();
    QVERIFY(areGone(parts));
    disturb(*window);
    QCOMPARE(QApplication::allWidgets(), QWidgetList({window.get()}));
}

void tst_DeletedParents::parentOfTheWindowFirst_data()
{
    addKindRows();
}

void tst_DeletedParents::parentOfTheWindowFirst()
{
    QFETCH(const Create, create);
    QWidget* panel = create();
    const QList<QPointer<QObject>> parts = partsOf(panel);
    auto owner = std::make_unique<QWidget>();
    panel->setParent(owner.get(), Qt::Dialog | Qt::FramelessWindowHint);
    owner->show();
    QVERIFY(showActive(*panel));
    owner.reset();
    QVERIFY(areGone(parts));
    QCOMPARE(QApplication::allWidgets(), QWidgetList());
}

void tst_DeletedParents::parentOfADialogThatExecutesFirst()
{
    QPointer<QWidget> owner = new QWidget;
    owner->show();
    auto* dialog = new MultiPagePrintDialog(newMultiPagePanel(), owner, Qt::FramelessWindowHint);
    const QList<QPointer<QObject>> parts = partsOf(dialog);
    QTimer::singleShot(0, this, [&owner] { delete owner.data(); });
    QCOMPARE(dialog->exec(), int(QDialog::Rejected));
    QVERIFY(areGone(parts));
    QCOMPARE(QApplication::allWidgets(), QWidgetList());
}

void tst_DeletedParents::panelInADialogFirst()
{
    const QPointer<QWidget> panel(newMultiPagePanel());
    MultiPagePrintDialog dialog(panel, nullptr, Qt::FramelessWindowHint);
    QVERIFY(showActive(dialog));
    delete panel.data();
    dialog.setTitle(QStringLiteral("Manual"));
    dialog.setPreviewImage(QImage());
    disturb(dialog);
    dialog.accept();
    QVERIFY(!dialog.isVisible());
}

void tst_DeletedParents::partFirst_data()
{
    addColumns<Create, QString>("create", "name");
    const QList<PanelKind> kinds = panelKinds();
    for (const PanelKind& kind : kinds) {
        const std::unique_ptr<QWidget> panel(kind.create());
        const QStringList names = namesIn(*panel);
        for (const QString& name : names)
            QTest::addRow("%s: %s", kind.name, qPrintable(name)) << kind.create << name;
    }
}

// A panel whose part is gone need not answer its host any more, but Qt goes on with it.
void tst_DeletedParents::partFirst()
{
    QFETCH(const Create, create);
    QFETCH(const QString, name);
    QWidget* panel = create();
    const std::unique_ptr<QWidget> window(newWindowAround(panel));
    QVERIFY(showActive(*window));
    const QPointer<QWidget> child(panel->findChild<QWidget*>(name));
    QVERIFY(child);
    child->setFocus();
    delete child.data();
    disturb(*window);
    const QList<QPointer<QObject>> parts = partsOf(panel);
    delete panel;
    QVERIFY(areGone(parts));
    QCOMPARE(widgetsLeft().size(), 2); // the window and what is in it
}

void tst_DeletedParents::menuOfTheHostFirst()
{
    const std::unique_ptr<QWidget> widget(newPrintPanel());
    auto* panel = static_cast<PrintWidget*>(widget.get());
    QVERIFY(showActive(*panel));
    const QPointer<ColorMenu> menu(new ColorMenu);
    panel->addMenuToStack(3, QStringLiteral("#000000"), QStringLiteral("!"), QString(), menu);
    auto* tabs = part<QTabBar>(*panel, "colorTabBar");
    tabs->setCurrentIndex(3);
    QVERIFY(menu->isVisible());
    delete menu.data();
    tabs->setCurrentIndex(0);
    panel->setColorPalette({QStringLiteral("#000000")}, {QStringLiteral("#ffffff")});
    panel->showSupplyInfo({QStringLiteral("#000000")}, false, 2.0, 0, true);
    disturb(*panel);
    QCOMPARE(tabs->count(), 3);
}

QTEST_MAIN(tst_DeletedParents)
#include "tst_deletedparents.moc"
