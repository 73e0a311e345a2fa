// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_SUPPLYSECTION_H
#define PRINTPANELS_SUPPLYSECTION_H

#include <QtCore/QCoreApplication>
#include <QtCore/QStringList>

#include <optional>
#include <utility>

class ColorMenu;
class ExpandingTabBar;
class JxLineEdit;
class PrintWidget;
class QBoxLayout;
class QCheckBox;
class QFrame;
class QStackedWidget;
class SuffixDoubleValidator;

namespace PrintPanels {

struct RibbonTab;

/**
 * What is loaded in the printer: tape width, ladder tube, and a tab with a colour menu for each
 * ribbon and for the supply. Empty until the first showSupplyInfo().
 */
class SupplySection
{
    Q_DECLARE_TR_FUNCTIONS(PrintWidget)
    Q_DISABLE_COPY_MOVE(SupplySection)

public:
    explicit SupplySection(PrintWidget* panel);

    /** Builds the empty, hidden frame of the section; the caller adds it to a layout. */
    QFrame* createSupplyInfoFrame();
    /** Builds the contents, once. */
    void createSupplyInfoLayout();

    void showSupplyInfo(const QStringList& colors, bool twoRibbons, double width,
                        unsigned char metric, bool showTinyLadder);
    void hideSupplyInfo();
    bool isSupplyInfoVisible() const;
    bool isTinySupply() const;
    void supplyWidthEditedSlot();

    void setColorPalette(const QStringList& ribbonColors, const QStringList& supplyColors);
    void addMenuToStack(int index, const QString& color, const QString& tabText,
                        const QString& toolTip, ColorMenu* menu);
    void updateColorSelection(int index, const QString& color, ColorMenu* menu);
    void ribbon1ColorSelectionSlot(const QString& color);
    void ribbon2ColorSelectionSlot(const QString& color);
    void supplyColorSelectionSlot(const QString& color);

private:
    /** Positions of the tabs. The supply comes last, after one ribbon or two. */
    enum TabIndex { Ribbon1Tab, Ribbon2Tab, SupplyTab, SupplyTabWithoutRibbon2 = Ribbon2Tab };

    QBoxLayout* createSupplyWidthRow();
    QCheckBox* createTinyLadderCheck() const;
    QBoxLayout* createColorTabs();
    void createColorMenus();
    void addColorMenus();
    void connectSection();

    void showWidth(double width, bool metric);
    void updateSecondRibbon(const QStringList& colors, bool twoRibbons);
    void removeSecondRibbon();
    void applyPalettes(const QStringList& ribbonColors, const QStringList& supplyColors);
    void labelRibbonTab(int tabIndex, const RibbonTab& tab);
    void setTabToolTip(int tabIndex, const QString& toolTip);
    void refreshRibbonTab(int tabIndex, const RibbonTab& tab, ColorMenu* menu);
    void selectRibbonColor(int tabIndex, const QString& color, QString& stored);
    void reportSupplyColors();

    PrintWidget* const q;
    QFrame* supplyInfoWidget = nullptr;
    bool supplyInfoVisible = false;
    bool supplyLayoutPending = true;

    SuffixDoubleValidator* widthValidator = nullptr;
    QString widthSuffix;
    JxLineEdit* supplyWidthEdit = nullptr;
    QString lastWidthText;
    QCheckBox* tinyLadderCheck = nullptr;

    QStackedWidget* colorStack = nullptr;
    ExpandingTabBar* colorTabBar = nullptr;
    bool hasSecondRibbon = false;
    int supplyTabIndex = Ribbon1Tab;
    ColorMenu* ribbon1Menu = nullptr;
    ColorMenu* ribbon2Menu = nullptr;
    ColorMenu* supplyMenu = nullptr;
    QString ribbon1Color;
    QString ribbon2Color;
    QString supplyColor;
    /** Ribbon and supply colours that a host set before there were menus. */
    std::optional<std::pair<QStringList, QStringList>> pendingPalettes;
};

} // namespace PrintPanels

#endif
