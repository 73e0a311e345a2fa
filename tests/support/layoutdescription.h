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
 * What a layout item is, in one line: "separator" for a horizontal line, "spacer 15x7
 * Minimum/Minimum" (size and policies, horizontal first), the class of a layout, or the class of a
 * widget followed by its object name, if it has one. A null item is "nothing".
 */
QString itemDescription(QLayoutItem* item);

/** itemDescription() of every item of @p layout, in order. */
QStringList layoutDescription(const QLayout* layout);

/** Place of @p widget among the items of @p layout itself, or -1. Layouts inside count as one item.
 */
int indexOfWidget(const QLayout* layout, const QWidget* widget);

/** Whether @p item is @p widget, or a layout that holds it at any depth. */
bool itemHolds(QLayoutItem* item, const QWidget* widget);

/** The innermost layout below @p layout, itself included, that holds @p widget directly; or null.
 */
QLayout* layoutHolding(QLayout* layout, const QWidget* widget);

/** Where an item of a grid stands. */
struct GridCell
{
    int row = -1;
    int column = -1;
    int rowSpan = -1;
    int columnSpan = -1;
};

/** The cell of the item at @p index of @p grid. */
GridCell gridCell(const QGridLayout* grid, int index);

#endif
