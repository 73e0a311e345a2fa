// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "foundation/widgets/taborder.h"

#include <QtWidgets/QGridLayout>
#include <QtWidgets/QWidget>

#include <algorithm>
#include <utility>

namespace PrintPanels {

namespace {

void addWidget(QWidget* widget, QWidgetList& order);

bool takesFocus(const QWidget* widget)
{
    return widget->focusPolicy() != Qt::NoFocus && widget->focusProxy() == nullptr;
}

/** The items of @p layout from top to bottom, and in the reading direction within a row. */
QList<QLayoutItem*> itemsInOrder(QLayout* layout)
{
    const auto* grid = qobject_cast<QGridLayout*>(layout);
    QList<std::pair<std::pair<int, int>, QLayoutItem*>> placed;
    for (int i = 0; i < layout->count(); ++i) {
        int row = 0, column = i, rowSpan = 1, columnSpan = 1;
        if (grid)
            grid->getItemPosition(i, &row, &column, &rowSpan, &columnSpan);
        placed.append({{row, column}, layout->itemAt(i)});
    }
    std::stable_sort(placed.begin(), placed.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    QList<QLayoutItem*> items;
    for (const auto& [position, item] : std::as_const(placed))
        items.append(item);
    return items;
}

void addLayout(QLayout* layout, QWidgetList& order)
{
    const QList<QLayoutItem*> items = itemsInOrder(layout);
    for (QLayoutItem* item : items) {
        if (item->widget())
            addWidget(item->widget(), order);
        else if (item->layout())
            addLayout(item->layout(), order);
    }
}

// What a control consists of stays in the control's own order, as with a colour menu's entries.
void addWidget(QWidget* widget, QWidgetList& order)
{
    if (widget->isWindow())
        return;
    if (takesFocus(widget))
        order.append(widget);
    if (widget->layout())
        addLayout(widget->layout(), order);
    if (widget->children().isEmpty())
        return;
    for (QWidget* next = widget->nextInFocusChain(); next != widget;
         next = next->nextInFocusChain()) {
        if (widget->isAncestorOf(next) && takesFocus(next) && !order.contains(next))
            order.append(next);
    }
}

/** The control of @p panel that Tab visits first now. */
QWidget* firstVisited(QWidget* panel, const QWidgetList& controls)
{
    QWidget* first = panel->nextInFocusChain();
    while (!controls.contains(first))
        first = first->nextInFocusChain();
    return first;
}

} // namespace

void orderTabs(QWidget* panel)
{
    QWidgetList order;
    addLayout(panel->layout(), order);
    if (order.isEmpty())
        return;
    // Relative to the panel's own place among the controls of the host.
    QWidget* oldFirst = firstVisited(panel, order);
    QWidget::setTabOrder(oldFirst, order.constFirst());
    QWidget::setTabOrder(order.constFirst(), oldFirst);
    for (qsizetype i = 1; i < order.size(); ++i)
        QWidget::setTabOrder(order.at(i - 1), order.at(i));
}

} // namespace PrintPanels
