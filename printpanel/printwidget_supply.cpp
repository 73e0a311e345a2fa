// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

// ---- Loaded supply: width, ladder tube, one tab per ribbon and one for the supply ----

#include <printpanels/printwidget.h>

#include "foundation/hostkit.h"
#include "printpanel/ribbonlook.h"

#include <printpanels/sharedconstants.h>

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QFrame>
#include <QtWidgets/QLabel>
#include <QtWidgets/QStackedWidget>
#include <QtWidgets/QVBoxLayout>

using namespace PrintPanels;

namespace {

constexpr int rowHeight = 35;
constexpr int secondRibbonTab = 1;

QSpacerItem* createGap()
{
    return new QSpacerItem(20, 10, QSizePolicy::Fixed, QSizePolicy::Minimum);
}

/** The colour that a host reports for ribbon 2, which it may leave out. */
QString secondRibbonColor(const QStringList& colors)
{
    return colors.size() < 2 ? nothingLoaded() : colors.at(1);
}

} // namespace

void PrintWidget::createSupplyInfoFrame()
{
    supplyInfoWidget = new QFrame;
    supplyInfoWidget->setObjectName(QStringLiteral("supplyInfoWidget"));
    supplyInfoWidget->hide();
    supplyLayoutPending = true;
    mainLayout->addWidget(supplyInfoWidget);
}

void PrintWidget::createSupplyInfoLayout()
{
    if (!supplyLayoutPending)
        return;
    supplyLayoutPending = false;
    auto* layout = new QVBoxLayout;
    layout->setContentsMargins(0, 0, 0, 0);
    supplyInfoWidget->setLayout(layout);

    auto* title = new QLabel(tr("Loaded Supply:", "Title for Supply Color Frame"));
    title->setFont(ApplicationFont::getWidgetFont(true));
    title->setMinimumHeight(rowHeight);
    layout->addWidget(title);
    createSupplyWidthRow(layout);
    tinyLadderCheck = new QCheckBox(tr("0.2\" Ladder Shrink Tube"));
    tinyLadderCheck->setObjectName(QStringLiteral("tinyLadderCheck"));
    tinyLadderCheck->setFont(ApplicationFont::getWidgetFont(true));
    layout->addWidget(tinyLadderCheck);
    createColorTabs(layout);
    createColorMenus();
    addColorMenus();
    connectSupplySection();
}

void PrintWidget::createSupplyWidthRow(QBoxLayout* sectionLayout)
{
    auto* caption = new QLabel(tr("Tape Width:", "Label for Supply Tape Width."));
    caption->setFont(ApplicationFont::getWidgetFont(true));
    widthValidator = new SuffixDoubleValidator(0.0, 999999.0, 3, this);
    supplyWidthEdit = new JxLineEdit(nullptr);
    supplyWidthEdit->setObjectName(QStringLiteral("supplyWidthEdit"));
    supplyWidthEdit->setFont(ApplicationFont::getWidgetFont(true));
    supplyWidthEdit->setFixedSize(80, rowHeight);
    supplyWidthEdit->setValidator(widthValidator);

    auto* row = new QHBoxLayout;
    row->setContentsMargins(5, 5, 5, 5);
    row->addItem(createGap());
    row->addWidget(caption);
    row->addItem(createGap());
    row->addWidget(supplyWidthEdit);
    row->addItem(createGap());
    sectionLayout->addLayout(row);
}

void PrintWidget::createColorTabs(QBoxLayout* sectionLayout)
{
    auto* group = new DragScrollGroupBox(this);
    group->setObjectName(QStringLiteral("stackGroup"));
    group->setAttribute(Qt::WA_StyledBackground); // a plain QWidget paints no sheet of its own
    group->setToolTip(tr("Select loaded color.", "ToolTip for color selection."));
    colorStack = new QStackedWidget(this);
    colorStack->setObjectName(QStringLiteral("colorStack"));
    auto* groupLayout = new QVBoxLayout(group);
    groupLayout->addWidget(colorStack);

    colorTabBar = new ExpandingTabBar(this);
    colorTabBar->setObjectName(QStringLiteral("colorTabBar"));
    colorTabBar->setShape(QTabBar::RoundedNorth);
    colorTabBar->setExpanding(true);
    colorTabBar->setUsesScrollButtons(false);
    colorTabBar->setIconSize(QSize(25, 25));

    auto* tabs = new QVBoxLayout;
    tabs->setSpacing(0);
    tabs->addWidget(colorTabBar);
    tabs->addWidget(group);
    sectionLayout->addLayout(tabs);
}

void PrintWidget::connectSupplySection()
{
    connect(colorTabBar, SIGNAL(currentChanged(int)), colorStack, SLOT(setCurrentIndex(int)));
    connect(ribbon1Menu, SIGNAL(colorSignal(QString)), this,
            SLOT(ribbon1ColorSelectionSlot(QString)));
    connect(ribbon2Menu, SIGNAL(colorSignal(QString)), this,
            SLOT(ribbon2ColorSelectionSlot(QString)));
    connect(supplyMenu, SIGNAL(colorSignal(QString)), this,
            SLOT(supplyColorSelectionSlot(QString)));
    connect(supplyWidthEdit, SIGNAL(editingFinished()), this, SLOT(supplyWidthEditedSlot()));
    connect(tinyLadderCheck, SIGNAL(clicked(bool)), this,
            SIGNAL(tinyLadderSupplyChangedSignal(bool)));
}

void PrintWidget::showSupplyInfo(const QStringList& colors, bool twoRibbons, double width,
                                 unsigned char metric, bool showTinyLadder)
{
    supplyInfoVisible = true;
    supplyInfoWidget->show();
    createSupplyInfoLayout();
    tinyLadderCheck->setVisible(showTinyLadder);

    updateSecondRibbon(colors, twoRibbons);
    ribbon1Color = colors.value(0, nothingLoaded());
    refreshRibbonTab(0, reportedRibbon(1, ribbon1Color), ribbon1Menu);
    supplyColor = colors.isEmpty() ? nothingLoaded() : colors.constLast();
    updateColorSelection(supplyTabIndex,
                         supplyColor == nothingLoaded() ? SharedConstants::transparentName
                                                        : supplyColor,
                         supplyMenu);

    widthSuffix = metric != 0 ? SharedConstants::millimetersSuffix : SharedConstants::inchesSuffix;
    widthValidator->setSuffix(widthSuffix);
    supplyWidthEdit->setText(QString::number(width, 'f', 2));
    lastWidthText = supplyWidthEdit->text();
}

void PrintWidget::updateSecondRibbon(const QStringList& colors, bool twoRibbons)
{
    const bool had = hasSecondRibbon;
    hasSecondRibbon = twoRibbons;
    if (!twoRibbons) {
        if (had)
            removeSecondRibbon();
        return;
    }
    ribbon2Color = secondRibbonColor(colors);
    const RibbonLook look = reportedRibbon(2, ribbon2Color);
    if (had) {
        refreshRibbonTab(secondRibbonTab, look, ribbon2Menu);
        return;
    }
    addMenuToStack(secondRibbonTab, look.color, look.tabText, look.toolTip, ribbon2Menu);
    supplyTabIndex = 2;
    ribbon1Menu->setTransparentColorVisible(true);
}

// A printer's only ribbon cannot be missing, so its menu then offers no transparent entry. The page
// goes before its tab: the bar tells the stack its new current index as it will be without the two.
void PrintWidget::removeSecondRibbon()
{
    ribbon2Color.clear();
    colorStack->removeWidget(ribbon2Menu);
    colorTabBar->removeTab(secondRibbonTab);
    supplyTabIndex = 1;
    ribbon1Menu->setTransparentColorVisible(false);
}

void PrintWidget::hideSupplyInfo()
{
    supplyInfoVisible = false;
    supplyInfoWidget->hide();
}

bool PrintWidget::isSupplyInfoVisible() const
{
    return supplyInfoVisible;
}

bool PrintWidget::isTinySupply() const
{
    return !supplyLayoutPending && tinyLadderCheck->isChecked();
}

// The text that counts as unchanged is the printer's alone: going back to it tells nothing, and
// entering the same other width twice tells the host twice.
void PrintWidget::supplyWidthEditedSlot()
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
        Q_EMIT supplyWidthChangedSignal(width);
}
