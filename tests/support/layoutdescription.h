// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef LAYOUTDESCRIPTION_H
#define LAYOUTDESCRIPTION_H

#include <QtCore/QStringList>

class QGridLayout;
class QLayout;
class QLayoutItem;
class QWidget;

/**
 * Returns a one-line description of a layout item: "separator" for a horizontal line, "spacer 15x7
 * Minimum/Minimum" for a spacer (size hint and size policies, horizontal first), the class name of
 * a layout, or the class name of a widget followed by its object name, if any. For null, returns
 * "nothing".
 */
QString itemDescription(QLayoutItem* item);

/** Returns itemDescription() for every item of @p layout, in order; empty if @p layout is null. */
QStringList layoutDescription(const QLayout* layout);

/**
 * Returns the 0-based index of @p widget among the items of @p layout, or -1. A nested layout
 * counts as one item and is not searched.
 */
int indexOfWidget(const QLayout* layout, const QWidget* widget);

/** Returns true if @p item is @p widget, or a layout that contains it at any depth. */
bool itemHolds(QLayoutItem* item, const QWidget* widget);

/** Returns the layout that contains @p widget directly: @p layout or one inside it; or null. */
QLayout* layoutHolding(QLayout* layout, const QWidget* widget);

/** The position of an item in a grid layout, 0-based. */
struct GridCell
{
    int row = -1;
    int column = -1;
    int rowSpan = -1;
    int columnSpan = -1;
};

/** Returns the cell of the item at @p index (0-based) of @p grid. */
GridCell gridCell(const QGridLayout* grid, int index);

#endif
