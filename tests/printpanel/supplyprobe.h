// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SUPPLYPROBE_H
#define SUPPLYPROBE_H

#include "panelprobe.h"

#include <QtCore/QStringList>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QStackedWidget>

class ColorMenu;
class ExpandingTabBar;

ExpandingTabBar* colorTabs(const PrintWidget& panel);
QStackedWidget* colorStack(const PrintWidget& panel);
QLineEdit* widthEdit(const PrintWidget& panel);
ColorMenu* colorMenu(const PrintWidget& panel, const char* name);

/** The tab text of a ribbon with a colour, of a blank ribbon, and of the supply. */
extern const QString ribbonGlyph;
extern const QString blankGlyph;
extern const QString supplyGlyph;

/** A tab as "text|colour|tool tip". */
QString tab(const PrintWidget& panel, int index);

/** All tabs as tab(). */
QStringList tabs(const PrintWidget& panel);

/** A tab's expected description, as tab() gives it. */
QString tabOf(const QString& glyph, const char* color, const char* toolTip);

/** Codes of the entries that a menu offers, in order; those it does not show are left out. */
QStringList shownColors(const ColorMenu* menu);

/** Code of the entry that a menu marks as selected; empty without one. */
QString selectedColor(const ColorMenu* menu);

/** Codes of the pages of the stack, as the names of their menus. */
QStringList stackPages(const PrintWidget& panel);

/** A list of colours from texts. */
QStringList colors(std::initializer_list<const char*> codes);

/** Tells the panel of one black ribbon and a white supply, 4 inches wide. */
void showPlainSupply(PrintWidget& panel);

#endif
