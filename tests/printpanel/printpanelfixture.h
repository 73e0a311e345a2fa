// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELFIXTURE_H
#define PRINTPANELFIXTURE_H

#include "support/panelfixture.h"
#include "support/request.h"

#include <printpanels/printwidget.h>

#include <QtCore/QPair>
#include <QtCore/QStringList>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QStackedWidget>

class ColorMenu;
class ExpandingTabBar;
class QButtonGroup;
class QComboBox;

/** A print settings panel and its parts by name. */
class PrintPanelFixture : public PanelFixture<PrintWidget>
{
public:
    explicit PrintPanelFixture(bool testControls = false, QWidget* parent = nullptr);

    QComboBox* printerCombo() const;

    /** A radio button of the records or of the N-up choice. */
    QRadioButton* radio(const char* name) const { return part<QRadioButton>(name); }
    QLineEdit* listEdit() const { return part<QLineEdit>("recordListEdit"); }
    /** The exclusive group of the three radio buttons of the records. */
    QButtonGroup* recordsGroup() const;
    /** Leaves the group without a checked radio button. */
    void uncheckRecords();
    /** What whatToPrint() makes of @p preset. */
    Request requestFrom(Request preset) const;
    /**
     * The first and last record as the panel keeps them. Reads them as those of "All Records",
     * which is checked for a moment without a click, so that nothing is classified anew.
     */
    QPair<int, int> keptRange();

    ExpandingTabBar* colorTabs() const;
    QStackedWidget* colorStack() const { return part<QStackedWidget>("colorStack"); }
    ColorMenu* colorMenu(const char* name) const;
    QLineEdit* widthEdit() const { return part<QLineEdit>("supplyWidthEdit"); }
    /** A tab as "text|colour|tool tip". */
    QString tab(int index) const;
    /** All tabs as tab(). */
    QStringList tabs() const;
    /** Codes of the pages of the stack, as the names of their menus. */
    QStringList stackPages() const;
    /** Tells the panel of one black ribbon and a white supply, 4 inches wide. */
    void showPlainSupply();
};

/** A host's own panel: records every call that goes through the virtual table. */
class OverridingPanel : public PrintPanelFixture
{
public:
    void setNupDynamicLength(bool on) override
    {
        calls.append(on);
        PrintPanelFixture::setNupDynamicLength(on);
    }

    QList<bool> calls;
};

/** The tab text of a ribbon with a colour, of a blank ribbon, and of the supply. */
extern const QString ribbonGlyph;
extern const QString blankGlyph;
extern const QString supplyGlyph;

/** A tab's expected description, as PrintPanelFixture::tab() gives it. */
QString tabOf(const QString& glyph, const char* color, const char* toolTip);

/** Codes of the entries that a menu offers, in order; those it does not show are left out. */
QStringList shownColors(const ColorMenu* menu);

/** A list of colours from texts. */
QStringList colors(std::initializer_list<const char*> codes);

#endif
