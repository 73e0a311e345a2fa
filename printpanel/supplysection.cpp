// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "printpanel/supplysection.h"

#include "foundation/hostkit.h"
#include "foundation/widgets/accessibleparts.h"
#include "foundation/widgets/caption.h"
#include "foundation/widgets/choicebutton.h"
#include "foundation/widgets/directedbutton.h"
#include "foundation/widgets/lightpalette.h"
#include "foundation/widgets/metrics.h"
#include "foundation/widgets/taborder.h"
#include "foundation/widgets/textdirection.h"
#include "printpanel/ribbontab.h"

#include <printpanels/printwidget.h>
#include <printpanels/sharedconstants.h>

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QFrame>
#include <QtWidgets/QLabel>
#include <QtWidgets/QStackedWidget>
#include <QtWidgets/QVBoxLayout>

namespace PrintPanels {

namespace {

constexpr int ribbonPaletteSize = 9;
constexpr int supplyPaletteSize = 11;

QSpacerItem* createGap()
{
    return new QSpacerItem(20, 10, QSizePolicy::Fixed, QSizePolicy::Minimum);
}

/** The first supply colours and the see-through entry: what a menu offers unless the host says
 * otherwise. */
QStringList defaultPalette(int size)
{
    return SharedConstants::supplyColorCodes.mid(0, size) << SharedConstants::transparentName;
}

ColorMenu* createMenu(const QString& name, const QStringList& palette)
{
    auto* menu = new ColorMenu(nullptr);
    menu->setObjectName(name);
    menu->setColorPalette(palette, QStringList());
    menu->setTransparentColorVisible(true);
    return menu;
}

} // namespace

SupplySection::SupplySection(PrintWidget* panel) : q(panel) {}

QFrame* SupplySection::createSupplyInfoFrame()
{
    supplyInfoWidget = new QFrame;
    supplyInfoWidget->setObjectName(QStringLiteral("supplyInfoWidget"));
    supplyInfoWidget->hide();
    return supplyInfoWidget;
}

void SupplySection::createSupplyInfoLayout()
{
    if (!supplyLayoutPending)
        return;
    supplyLayoutPending = false;
    auto* layout = new QVBoxLayout;
    layout->setContentsMargins(0, 0, 0, 0);
    supplyInfoWidget->setLayout(layout);

    QLabel* title = createCaption(tr("Loaded Supply:", "Title for Supply Color Frame"));
    title->setMinimumHeight(rowHeight);
    tinyLadderCheck = createTinyLadderCheck();
    layout->addWidget(title);
    layout->addLayout(createSupplyWidthRow());
    layout->addWidget(tinyLadderCheck);
    layout->addLayout(createColorTabs());
    setCaption(colorTabBar, title);
    createColorMenus();
    addColorMenus();
    connectSection();
}

QBoxLayout* SupplySection::createSupplyWidthRow()
{
    widthValidator = new SuffixDoubleValidator(0.0, 999999.0, 3, q);
    supplyWidthEdit = new JxLineEdit(nullptr);
    supplyWidthEdit->setObjectName(QStringLiteral("supplyWidthEdit"));
    supplyWidthEdit->setFont(ApplicationFont::getWidgetFont(true));
    supplyWidthEdit->setFixedSize(80, rowHeight);
    supplyWidthEdit->setValidator(widthValidator);
    alignToStart(supplyWidthEdit);

    QLabel* caption = createCaption(tr("Tape Width:", "Label for Supply Tape Width."));
    setCaption(supplyWidthEdit, caption);

    auto* row = new QHBoxLayout;
    row->setContentsMargins(5, 5, 5, 5);
    row->addItem(createGap());
    row->addWidget(caption);
    row->addItem(createGap());
    row->addWidget(supplyWidthEdit);
    row->addItem(createGap());
    return row;
}

QCheckBox* SupplySection::createTinyLadderCheck() const
{
    auto* check = new ChoiceButton<DirectedButton<QCheckBox>, QAccessible::CheckBox>;
    check->setText(tr("0.2\" Ladder Shrink Tube"));
    check->setObjectName(QStringLiteral("tinyLadderCheck"));
    check->setFont(ApplicationFont::getWidgetFont(true));
    return check;
}

QBoxLayout* SupplySection::createColorTabs()
{
    auto* group = new DragScrollGroupBox(q);
    group->setObjectName(QStringLiteral("stackGroup"));
    group->setAttribute(Qt::WA_StyledBackground); // a plain QWidget paints no sheet of its own
    group->setToolTip(tr("Select loaded color.", "ToolTip for color selection."));
    setLightPalette(group);
    colorStack = new QStackedWidget(q);
    colorStack->setObjectName(QStringLiteral("colorStack"));
    auto* groupLayout = new QVBoxLayout(group);
    groupLayout->addWidget(colorStack);

    colorTabBar = new ExpandingTabBar(q);
    colorTabBar->setObjectName(QStringLiteral("colorTabBar"));
    colorTabBar->setShape(QTabBar::RoundedNorth);
    colorTabBar->setExpanding(true);
    colorTabBar->setUsesScrollButtons(false);
    colorTabBar->setIconSize(QSize(25, 25));
    setLightPalette(colorTabBar);

    auto* tabs = new QVBoxLayout;
    tabs->setSpacing(0);
    tabs->addWidget(colorTabBar);
    tabs->addWidget(group);
    return tabs;
}

void SupplySection::createColorMenus()
{
    ribbon1Menu = createMenu(QStringLiteral("ribbon1Menu"), defaultPalette(ribbonPaletteSize));
    ribbon2Menu = createMenu(QStringLiteral("ribbon2Menu"), defaultPalette(ribbonPaletteSize));
    supplyMenu = createMenu(QStringLiteral("supplyMenu"), defaultPalette(supplyPaletteSize));
    if (pendingPalettes) {
        applyPalettes(pendingPalettes->first, pendingPalettes->second);
        pendingPalettes.reset();
    }
    supplyTabIndex = SupplyTab;
    hasSecondRibbon = true;
}

void SupplySection::addColorMenus()
{
    ribbon1Color = QStringLiteral("#000000");
    ribbon2Color = QStringLiteral("#000000");
    supplyColor = QStringLiteral("#ffffff");
    const RibbonTab first = loadedRibbon(1, ribbon1Color);
    const RibbonTab second = loadedRibbon(2, ribbon2Color);
    addMenuToStack(Ribbon1Tab, first.color, first.text, first.toolTip, ribbon1Menu);
    addMenuToStack(Ribbon2Tab, second.color, second.text, second.toolTip, ribbon2Menu);
    addMenuToStack(SupplyTab, supplyColor, QString(QChar(u'\xE917')),
                   tr("Supply", "Label for the supply color."), supplyMenu);
}

void SupplySection::connectSection()
{
    QObject::connect(colorTabBar, SIGNAL(currentChanged(int)), colorStack,
                     SLOT(setCurrentIndex(int)));
    QObject::connect(ribbon1Menu, SIGNAL(colorSignal(QString)), q,
                     SLOT(ribbon1ColorSelectionSlot(QString)));
    QObject::connect(ribbon2Menu, SIGNAL(colorSignal(QString)), q,
                     SLOT(ribbon2ColorSelectionSlot(QString)));
    QObject::connect(supplyMenu, SIGNAL(colorSignal(QString)), q,
                     SLOT(supplyColorSelectionSlot(QString)));
    QObject::connect(supplyWidthEdit, SIGNAL(editingFinished()), q, SLOT(supplyWidthEditedSlot()));
    QObject::connect(tinyLadderCheck, SIGNAL(clicked(bool)), q,
                     SIGNAL(tinyLadderSupplyChangedSignal(bool)));
}

void SupplySection::showSupplyInfo(const QStringList& colors, bool twoRibbons, double width,
                                   unsigned char metric, bool showTinyLadder)
{
    supplyInfoVisible = true;
    supplyInfoWidget->show();
    createSupplyInfoLayout();
    tinyLadderCheck->setVisible(showTinyLadder);

    updateSecondRibbon(colors, twoRibbons);
    ribbon1Color = colors.value(0, nothingLoaded());
    refreshRibbonTab(Ribbon1Tab, reportedRibbon(1, ribbon1Color), ribbon1Menu);
    supplyColor = colors.isEmpty() ? nothingLoaded() : colors.constLast();
    updateColorSelection(supplyTabIndex,
                         supplyColor == nothingLoaded() ? SharedConstants::transparentName
                                                        : supplyColor,
                         supplyMenu);
    showWidth(width, metric != 0);
}

void SupplySection::showWidth(double width, bool metric)
{
    widthSuffix = metric ? SharedConstants::millimetersSuffix : SharedConstants::inchesSuffix;
    widthValidator->setSuffix(widthSuffix);
    supplyWidthEdit->setAccessibleDescription(
        metric ? tr("Millimeters", "Unit of the tape width for screen readers.")
               : tr("Inches", "Unit of the tape width for screen readers."));
    supplyWidthEdit->setText(QString::number(width, 'f', 2));
    lastWidthText = supplyWidthEdit->text();
}

void SupplySection::updateSecondRibbon(const QStringList& colors, bool twoRibbons)
{
    const bool had = hasSecondRibbon;
    hasSecondRibbon = twoRibbons;
    if (!twoRibbons) {
        if (had)
            removeSecondRibbon();
        return;
    }
    ribbon2Color = colors.size() < 2 ? nothingLoaded() : colors.at(1);
    const RibbonTab tab = reportedRibbon(2, ribbon2Color);
    if (had) {
        refreshRibbonTab(Ribbon2Tab, tab, ribbon2Menu);
        return;
    }
    addMenuToStack(Ribbon2Tab, tab.color, tab.text, tab.toolTip, ribbon2Menu);
    supplyTabIndex = SupplyTab;
    ribbon1Menu->setTransparentColorVisible(true);
}

// The only ribbon of a printer cannot be missing, so its menu then offers no transparent entry. The
// page is removed before its tab, because the index that the bar reports counts without both.
void SupplySection::removeSecondRibbon()
{
    ribbon2Color.clear();
    colorStack->removeWidget(ribbon2Menu);
    colorTabBar->removeTab(Ribbon2Tab);
    supplyTabIndex = SupplyTabWithoutRibbon2;
    ribbon1Menu->setTransparentColorVisible(false);
}

void SupplySection::hideSupplyInfo()
{
    supplyInfoVisible = false;
    supplyInfoWidget->hide();
}

bool SupplySection::isSupplyInfoVisible() const
{
    return supplyInfoVisible;
}

bool SupplySection::isTinySupply() const
{
    return !supplyLayoutPending && tinyLadderCheck->isChecked();
}

// Only the text that the printer reported counts as unchanged: going back to it reports nothing,
// and entering the same other width twice reports it twice.
void SupplySection::supplyWidthEditedSlot()
{
    if (supplyLayoutPending)
        return;
    QString text = supplyWidthEdit->text();
    if (text == lastWidthText)
        return;
    text.remove(widthSuffix);
    if (text.isEmpty() || WhiteSpace::isWhiteSpace(text))
        return;
    bool converted = false;
    const double width = text.toDouble(&converted);
    if (converted)
        Q_EMIT q->supplyWidthChangedSignal(width);
}

void SupplySection::setColorPalette(const QStringList& ribbonColors,
                                    const QStringList& supplyColors)
{
    if (supplyLayoutPending)
        pendingPalettes.emplace(ribbonColors, supplyColors);
    else
        applyPalettes(ribbonColors, supplyColors);
}

// The menus take codes as their first list, and never a second one.
void SupplySection::applyPalettes(const QStringList& ribbonColors, const QStringList& supplyColors)
{
    ribbon1Menu->setColorPalette(ribbonColors, QStringList());
    ribbon2Menu->setColorPalette(ribbonColors, QStringList());
    supplyMenu->setColorPalette(supplyColors, QStringList());
    orderTabs(q);
}

void SupplySection::addMenuToStack(int index, const QString& color, const QString& tabText,
                                   const QString& toolTip, ColorMenu* menu)
{
    if (menu == nullptr || supplyLayoutPending)
        return;
    menu->updateSelectedColor(color);
    colorTabBar->insertTab(index, tabText);
    colorTabBar->setTabColorRect(index, color);
    setTabToolTip(index, toolTip);
    colorStack->insertWidget(index, menu);
    orderTabs(q);
}

void SupplySection::updateColorSelection(int index, const QString& color, ColorMenu* menu)
{
    if (menu == nullptr || supplyLayoutPending)
        return;
    menu->updateSelectedColor(color);
    colorTabBar->setTabColorRect(index, color);
}

void SupplySection::labelRibbonTab(int tabIndex, const RibbonTab& tab)
{
    colorTabBar->setTabText(tabIndex, tab.text);
    setTabToolTip(tabIndex, tab.toolTip);
}

// The texts of the tabs are characters of an icon font, which no screen reader can read.
void SupplySection::setTabToolTip(int tabIndex, const QString& toolTip)
{
    colorTabBar->setTabToolTip(tabIndex, toolTip);
    colorTabBar->setAccessibleTabName(tabIndex, toolTip);
}

void SupplySection::refreshRibbonTab(int tabIndex, const RibbonTab& tab, ColorMenu* menu)
{
    labelRibbonTab(tabIndex, tab);
    updateColorSelection(tabIndex, tab.color, menu);
}

void SupplySection::ribbon1ColorSelectionSlot(const QString& color)
{
    if (!supplyLayoutPending)
        selectRibbonColor(Ribbon1Tab, color, ribbon1Color);
}

void SupplySection::ribbon2ColorSelectionSlot(const QString& color)
{
    if (!supplyLayoutPending && hasSecondRibbon)
        selectRibbonColor(Ribbon2Tab, color, ribbon2Color);
}

// Compares before mapping, unlike the supply: choosing "transparent" again for a ribbon that is
// blank already redraws the tab and tells the host once more.
void SupplySection::selectRibbonColor(int tabIndex, const QString& color, QString& stored)
{
    if (color == stored)
        return;
    const int number = tabIndex + 1;
    const bool blank = color == SharedConstants::transparentName;
    stored = blank ? nothingLoaded() : color;
    const RibbonTab tab = blank ? blankRibbon(number) : loadedRibbon(number, color);
    labelRibbonTab(tabIndex, tab);
    colorTabBar->setTabColorRect(tabIndex, tab.color);
    reportSupplyColors();
}

void SupplySection::supplyColorSelectionSlot(const QString& color)
{
    const QString value = color == SharedConstants::transparentName ? nothingLoaded() : color;
    if (supplyLayoutPending || value == supplyColor)
        return;
    supplyColor = value;
    // The tab shows what the menu named: "transparent", not the off-white that is stored.
    colorTabBar->setTabColorRect(supplyTabIndex, color);
    reportSupplyColors();
}

void SupplySection::reportSupplyColors()
{
    Q_EMIT q->supplyColorsChangedSignal({ribbon1Color, ribbon2Color, supplyColor});
}

} // namespace PrintPanels
