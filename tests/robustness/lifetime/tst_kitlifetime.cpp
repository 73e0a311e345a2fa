// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "lifetimetest.h"

#include <colormenu.h>
#include <containertitlebar.h>
#include <dragscrollbutton.h>
#include <dragscrollgroupbox.h>
#include <expandingtabbar.h>
#include <jxcombobox.h>
#include <jxlineedit.h>
#include <jxpushbuttonstyleproxy.h>
#include <jxspinbox.h>
#include <suffixdoublevalidator.h>

#include <QtCore/QPointer>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QApplication>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QStyleFactory>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>
#include <memory>

using Parts = QList<QPointer<QObject>>;

/** That nothing of the kit, in a panel or alone, outlives its owner or needs its neighbours. */
class tst_KitLifetime : public LifetimeTest
{
    Q_OBJECT

private Q_SLOTS:
    void everythingInAPanelIsDeletedWithIt_data();
    void everythingInAPanelIsDeletedWithIt();
    void inAnyOrder_data();
    void inAnyOrder();
    void openListIsDeletedWithItsBox();
    void openMenuIsDeletedWithItsEdit();
    void baseStyleIsDeletedWithItsProxy();
    void proxyBeforeItsButton();
    void validatorBeforeItsEdit();
};

namespace {

void addHelpers(Parts& parts, const QWidget& widget)
{
    if (const auto* edit = qobject_cast<const QLineEdit*>(&widget))
        parts.append(const_cast<QValidator*>(edit->validator()));
    if (const auto* combo = qobject_cast<const QComboBox*>(&widget)) {
        for (QObject* helper : std::initializer_list<QObject*>{
                 combo->view(), combo->model(), combo->itemDelegate(), combo->view()->window()})
            parts.append(helper);
    }
}

/** What a panel consists of: its children, and what these hold without being its parent. */
Parts partsAndHelpersOf(QWidget* panel)
{
    Parts parts = partsOf(panel);
    const QList<QWidget*> children = panel->findChildren<QWidget*>();
    for (const QWidget* child : children)
        addHelpers(parts, *child);
    parts.removeAll(QPointer<QObject>());
    return parts;
}

/** One of each, in a window, all of them in use. */
struct Kit
{
    Kit();
    std::unique_ptr<QWidget> window = std::make_unique<QWidget>();
    Parts parts;
};

void place(QScrollArea* area)
{
    auto* contents = new QWidget;
    contents->setMinimumSize(600, 600);
    auto* column = new QVBoxLayout(contents);
    column->addWidget(new DragScrollButton(QStringLiteral("button")));
    column->addWidget(new DragScrollGroupBox);
    area->setWidget(contents);
    area->setFixedSize(200, 100);
}

Kit::Kit()
{
    auto* column = new QVBoxLayout(window.get());
    auto* combo = new JxComboBox;
    combo->addItems({QStringLiteral("one"), QStringLiteral("two")});
    auto* menu = new ColorMenu;
    menu->setColorPalette({QStringLiteral("#000000"), QStringLiteral("transparent")}, {});
    auto* tabs = new ExpandingTabBar;
    tabs->addTab(QStringLiteral("!"));
    tabs->setTabColorRect(0, QStringLiteral("#000000"));
    auto* edit = new JxLineEdit;
    edit->setValidator(new SuffixDoubleValidator(0, 9, 2, window.get()));
    auto* styled = new DragScrollButton(QStringLiteral("styled"));
    auto* style = new JxPushButtonStyleProxy(nullptr);
    style->setParent(window.get());
    styled->setStyle(style);
    auto* area = new QScrollArea;
    place(area);
    auto* bar = new ContainerTitleBar(nullptr, QStringLiteral("title"), QString(), 14);
    for (QWidget* widget : std::initializer_list<QWidget*>{combo, menu, tabs, edit, styled, area,
                                                           bar, new JxSpinBox(nullptr)}) {
        column->addWidget(widget);
        parts.append(widget);
    }
    parts.append({style, const_cast<QValidator*>(edit->validator()),
                  area->findChild<DragScrollButton*>(), area->findChild<DragScrollGroupBox*>()});
}

} // namespace

void tst_KitLifetime::everythingInAPanelIsDeletedWithIt_data()
{
    addKindRows();
}

void tst_KitLifetime::everythingInAPanelIsDeletedWithIt()
{
    QFETCH(const Create, create);
    std::unique_ptr<QWidget> panel(create());
    QVERIFY(showActive(*panel));
    const QList<QComboBox*> combos = panel->findChildren<QComboBox*>();
    for (QComboBox* combo : combos) {
        combo->showPopup();
        combo->hidePopup();
    }
    const Parts parts = partsAndHelpersOf(panel.get());
    QVERIFY(parts.size() > 10);
    panel.reset();
    QStringList left;
    for (const QPointer<QObject>& part : parts) {
        if (part)
            left.append(QString::fromLatin1(part->metaObject()->className()));
    }
    QCOMPARE(left, QStringList());
    QVERIFY(QApplication::style() != nullptr);
}

void tst_KitLifetime::inAnyOrder_data()
{
    addColumns<int, bool>("first", "backwards");
    const Kit kit;
    for (int first = 0; first < kit.parts.size(); ++first) {
        const char* name = kit.parts.at(first)->metaObject()->className();
        QTest::addRow("%d, %s, then onwards", first, name) << first << false;
        QTest::addRow("%d, %s, then back", first, name) << first << true;
    }
}

void tst_KitLifetime::inAnyOrder()
{
    QFETCH(const int, first);
    QFETCH(const bool, backwards);
    Kit kit;
    QVERIFY(showActive(*kit.window));
    Parts order = kit.parts;
    std::rotate(order.begin(), order.begin() + first, order.end());
    if (backwards)
        std::reverse(order.begin() + 1, order.end());
    for (const QPointer<QObject>& object : std::as_const(order)) {
        delete object.data();
        kit.window->grab();
        QCoreApplication::processEvents();
    }
    kit.window.reset();
    QVERIFY(areGone(order));
    QCOMPARE(QApplication::allWidgets(), QWidgetList());
}

void tst_KitLifetime::openListIsDeletedWithItsBox()
{
    Kit kit;
    QVERIFY(showActive(*kit.window));
    auto* combo = kit.window->findChild<JxComboBox*>();
    combo->showPopup();
    const QPointer<QWidget> list(combo->view()->window());
    QVERIFY(list->isVisible());
    delete combo;
    QVERIFY(list.isNull());
    QCOMPARE(QApplication::activePopupWidget(), nullptr);
}

void tst_KitLifetime::openMenuIsDeletedWithItsEdit()
{
    Kit kit;
    QVERIFY(showActive(*kit.window));
    auto* edit = kit.window->findChild<JxLineEdit*>();
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(), edit->mapToGlobal(QPoint()));
    QCoreApplication::sendEvent(edit, &event);
    const QPointer<QWidget> menu(QApplication::activePopupWidget());
    QVERIFY(menu);
    delete edit;
    QVERIFY(menu.isNull());
    QCOMPARE(QApplication::activePopupWidget(), nullptr);
}

void tst_KitLifetime::baseStyleIsDeletedWithItsProxy()
{
    const QPointer<QStyle> base(QStyleFactory::create(QStringLiteral("fusion")));
    QVERIFY(base);
    auto proxy = std::make_unique<JxPushButtonStyleProxy>(base);
    proxy.reset();
    QVERIFY(base.isNull());
}

void tst_KitLifetime::proxyBeforeItsButton()
{
    DragScrollButton button(QStringLiteral("text"));
    auto proxy = std::make_unique<JxPushButtonStyleProxy>(nullptr);
    button.setStyle(proxy.get());
    QVERIFY(showActive(button));
    proxy.reset();
    button.grab();
    QTest::mouseClick(&button, Qt::LeftButton);
    QCOMPARE(button.style(), QApplication::style());
}

void tst_KitLifetime::validatorBeforeItsEdit()
{
    JxLineEdit edit;
    auto validator = std::make_unique<SuffixDoubleValidator>(0, 9, 2);
    edit.setValidator(validator.get());
    QTest::keyClicks(&edit, QStringLiteral("x1"));
    QCOMPARE(edit.text(), QStringLiteral("1"));
    validator.reset();
    QTest::keyClicks(&edit, QStringLiteral("x"));
    QCOMPARE(edit.text(), QStringLiteral("1x"));
}

QTEST_MAIN(tst_KitLifetime)
#include "tst_kitlifetime.moc"
