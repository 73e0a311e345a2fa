// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "support/layoutdescription.h"

#include <QtCore/QMetaEnum>
#include <QtWidgets/QFrame>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLayout>
#include <QtWidgets/QSizePolicy>

namespace {

QString policyName(QSizePolicy::Policy policy)
{
    return QString::fromLatin1(QMetaEnum::fromType<QSizePolicy::Policy>().valueToKey(policy));
}

QString spacerDescription(QSpacerItem* spacer)
{
    const QSize size = spacer->sizeHint();
    const QSizePolicy policy = spacer->sizePolicy();
    return QStringLiteral("spacer %1x%2 %3/%4")
        .arg(size.width())
        .arg(size.height())
        .arg(policyName(policy.horizontalPolicy()), policyName(policy.verticalPolicy()));
}

QString widgetDescription(const QWidget* widget)
{
    const auto* frame = qobject_cast<const QFrame*>(widget);
    if (frame && frame->frameShape() == QFrame::HLine)
        return QStringLiteral("separator");
    const QString className = QString::fromLatin1(widget->metaObject()->className());
    return widget->objectName().isEmpty() ? className
                                          : className + QLatin1Char(' ') + widget->objectName();
}

} // namespace

QString itemDescription(QLayoutItem* item)
{
    if (!item)
        return QStringLiteral("nothing");
    if (QSpacerItem* spacer = item->spacerItem())
        return spacerDescription(spacer);
    if (const QLayout* inner = item->layout())
        return QString::fromLatin1(inner->metaObject()->className());
    return widgetDescription(item->widget());
}

QStringList layoutDescription(const QLayout* layout)
{
    QStringList lines;
    for (int i = 0; layout && i < layout->count(); ++i)
        lines.append(itemDescription(layout->itemAt(i)));
    return lines;
}

int indexOfWidget(const QLayout* layout, const QWidget* widget)
{
    return layout ? layout->indexOf(widget) : -1;
}

bool itemHolds(QLayoutItem* item, const QWidget* widget)
{
    if (!item || !widget)
        return false;
    if (QLayout* inner = item->layout())
        return layoutHolding(inner, widget) != nullptr;
    return item->widget() == widget;
}

QLayout* layoutHolding(QLayout* layout, const QWidget* widget)
{
    if (!layout || !widget)
        return nullptr;
    if (layout->indexOf(widget) >= 0)
        return layout;
    for (int i = 0; i < layout->count(); ++i) {
        if (QLayout* found = layoutHolding(layout->itemAt(i)->layout(), widget))
            return found;
    }
    return nullptr;
}

GridCell gridCell(const QGridLayout* grid, int index)
{
    GridCell cell;
    grid->getItemPosition(index, &cell.row, &cell.column, &cell.rowSpan, &cell.columnSpan);
    return cell;
}
