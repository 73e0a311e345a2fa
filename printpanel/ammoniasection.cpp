// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "printpanel/ammoniasection.h"

#include "foundation/hostkit.h"
#include "foundation/widgets/accessibleparts.h"
#include "foundation/widgets/caption.h"
#include "foundation/widgets/lightpalette.h"
#include "foundation/widgets/metrics.h"
#include "foundation/widgets/taborder.h"
#include "printpanel/supplysection.h"

#include <printpanels/printwidget.h>

#include <QtWidgets/QFrame>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QVBoxLayout>

namespace PrintPanels {

namespace {

constexpr int labelValue = 0;
/** The tags that a host can name, one bit each; bit 0 belongs to the first name after "Label". */
constexpr int tagMask = 0b1111;

} // namespace

AmmoniaSection::AmmoniaSection(PrintWidget* panel, const SupplySection& loadedSupply)
    : q(panel), supply(loadedSupply)
{
}

void AmmoniaSection::createAmmoniaFrame(QVBoxLayout* panelLayout)
{
    mainLayout = panelLayout;
    ammoniaWidget = new QFrame;
    ammoniaWidget->setObjectName(QStringLiteral("ammoniaWidget"));
    ammoniaWidget->hide();
    mainLayout->addWidget(ammoniaWidget);
}

// The drop-down stays unconnected until the first mask with a tag.
void AmmoniaSection::createAmmoniaLayout()
{
    discardContents();
    QLabel* caption = createCaption(tr("Item To Print:", "Which item to print label text"));
    caption->setMinimumHeight(rowHeight);
    ammoniaPrintCombo = createCombo();
    setCaption(ammoniaPrintCombo, caption);
    auto* grid = new QGridLayout;
    grid->setContentsMargins(0, 0, 0, 0);
    grid->addWidget(caption, 0, 0, 1, 1, Qt::AlignLeft);
    grid->addWidget(ammoniaPrintCombo, 3, 0, 1, 1, Qt::AlignLeft);
    ammoniaWidget->setLayout(grid);
    createAmmoniaComboList();

    ammoniaSeparator = q->createSeparatorBar();
    ammoniaSeparator->setObjectName(QStringLiteral("ammoniaSeparator"));
    ammoniaSeparator->hide();
    mainLayout->insertWidget(mainLayout->indexOf(ammoniaWidget) + 1, ammoniaSeparator);
    orderTabs(q);
}

JxComboBox* AmmoniaSection::createCombo() const
{
    auto* combo = new JxComboBox(nullptr);
    combo->setObjectName(QStringLiteral("AmmoniaPrintCombo"));
    combo->setFont(ApplicationFont::getWidgetFont(true));
    combo->setMinimumHeight(rowHeight);
    setLightPalette(combo);
    return combo;
}

// A host may build the section again in a handler of the drop-down's own signal. The old widgets
// therefore leave the layout and lose their names at once, but are deleted later.
void AmmoniaSection::discardContents()
{
    ammoniaWidget->hide();
    if (ammoniaSeparator == nullptr)
        return;
    disconnectCombo();
    delete ammoniaWidget->layout();
    QList<QWidget*> old =
        ammoniaWidget->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    old.append(ammoniaSeparator);
    for (QWidget* widget : std::as_const(old)) {
        widget->hide();
        widget->setObjectName(QString());
        widget->deleteLater();
    }
    mainLayout->removeWidget(ammoniaSeparator);
}

void AmmoniaSection::createAmmoniaComboList()
{
    ammoniaItemNames = {tr("Label", "The option to print the label"),
                        tr("High Pressure Tag", "The option to print the high pressure tag"),
                        tr("Low Pressure Tag", "The option to print the low pressure tag"),
                        tr("Vapor State Tag", "The option to print the vapor state tag"),
                        tr("Liquid State Tag", "The option to print the liquid state tag")};
}

// The choice starts over at the label without telling the host, for which the label is the default.
void AmmoniaSection::setVisibleAmmoniaTag(int tag)
{
    const bool hasTags = (tag & tagMask) != 0;
    if (ammoniaPrintCombo == nullptr) {
        if (!hasTags)
            return;
        createAmmoniaLayout();
    }
    disconnectCombo();
    fillCombo(tag);
    ammoniaWidget->setVisible(hasTags);
    ammoniaSeparator->setVisible(hasTags && !supply.isSupplyInfoVisible());
    if (hasTags) {
        ammoniaPrintCombo->setCurrentIndex(0);
        connectCombo();
    }
}

void AmmoniaSection::fillCombo(int tag)
{
    ammoniaPrintCombo->clear();
    ammoniaPrintCombo->addItem(ammoniaItemNames.constFirst(), labelValue);
    for (int i = 1; i < ammoniaItemNames.size(); ++i) {
        const int bit = 1 << (i - 1);
        if ((tag & bit) != 0)
            ammoniaPrintCombo->addItem(ammoniaItemNames.at(i), bit);
    }
}

void AmmoniaSection::connectCombo()
{
    QObject::connect(ammoniaPrintCombo, SIGNAL(currentIndexChanged(int)), q,
                     SLOT(ammoniaPrintComboChanged(int)));
}

void AmmoniaSection::disconnectCombo()
{
    QObject::disconnect(ammoniaPrintCombo, SIGNAL(currentIndexChanged(int)), q,
                        SLOT(ammoniaPrintComboChanged(int)));
}

void AmmoniaSection::ammoniaPrintComboChanged(int index)
{
    if (index < 0 || ammoniaPrintCombo == nullptr)
        return;
    Q_EMIT q->ammoniaPrintTagChanged(ammoniaPrintCombo->itemData(index, Qt::UserRole).toInt());
}

} // namespace PrintPanels
