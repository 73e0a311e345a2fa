// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

// ---- Ammonia tags: the label or one of its tags ----

#include <printpanels/printwidget.h>

#include "foundation/hostkit.h"

#include <QtWidgets/QFrame>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QVBoxLayout>

namespace {

constexpr int rowHeight = 35;
constexpr int labelValue = 0;
/** Bits of the host's mask, in the order of the item names after "Label". */
constexpr int tagBits[] = {1, 2, 4, 8};

const char* const indexSignal = SIGNAL(currentIndexChanged(int));
const char* const indexSlot = SLOT(ammoniaPrintComboChanged(int));

} // namespace

void PrintWidget::createAmmoniaFrame()
{
    ammoniaWidget = new QFrame;
    ammoniaWidget->setObjectName(QStringLiteral("ammoniaWidget"));
    ammoniaWidget->hide();
    mainLayout->addWidget(ammoniaWidget);
}

// Not connected here: the first mask with a tag does that.
void PrintWidget::createAmmoniaLayout()
{
    discardAmmoniaContents();

    auto* caption = new QLabel(tr("Item To Print:", "Which item to print label text"));
    caption->setFont(ApplicationFont::getWidgetFont(true));
    caption->setMinimumHeight(rowHeight);
    ammoniaPrintCombo = new JxComboBox(nullptr);
    ammoniaPrintCombo->setObjectName(QStringLiteral("AmmoniaPrintCombo"));
    ammoniaPrintCombo->setFont(ApplicationFont::getWidgetFont(true));
    ammoniaPrintCombo->setMinimumHeight(rowHeight);

    auto* grid = new QGridLayout;
    grid->setContentsMargins(0, 0, 0, 0);
    grid->addWidget(caption, 0, 0, 1, 1, Qt::AlignLeft);
    grid->addWidget(ammoniaPrintCombo, 3, 0, 1, 1, Qt::AlignLeft);
    ammoniaWidget->setLayout(grid);
    createAmmoniaComboList();

    ammoniaSeparator = createSeparatorBar();
    ammoniaSeparator->setObjectName(QStringLiteral("ammoniaSeparator"));
    ammoniaSeparator->hide();
    mainLayout->insertWidget(mainLayout->indexOf(ammoniaWidget) + 1, ammoniaSeparator);
}

// A host may build the section again from a handler of the drop-down's own signal, so the old
// widgets leave the layout and lose their names at once, but die only when control is back in the
// event loop.
void PrintWidget::discardAmmoniaContents()
{
    ammoniaWidget->hide();
    if (ammoniaSeparator == nullptr)
        return;
    disconnect(ammoniaPrintCombo, indexSignal, this, indexSlot);
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

void PrintWidget::createAmmoniaComboList()
{
    ammoniaItemNames = {tr("Label", "The option to print the label"),
                        tr("High Pressure Tag", "The option to print the high pressure tag"),
                        tr("Low Pressure Tag", "The option to print the low pressure tag"),
                        tr("Vapor State Tag", "The option to print the vapor state tag"),
                        tr("Liquid State Tag", "The option to print the liquid state tag")};
}

// Starts the choice over at the label without telling the host, for which the label is the default.
void PrintWidget::setVisibleAmmoniaTag(int tag)
{
    if (ammoniaPrintCombo == nullptr) {
        int knownTags = 0;
        for (int bit : tagBits)
            knownTags |= tag & bit;
        if (knownTags == 0)
            return;
        createAmmoniaLayout();
    }
    disconnect(ammoniaPrintCombo, indexSignal, this, indexSlot);
    ammoniaPrintCombo->clear();
    ammoniaPrintCombo->addItem(ammoniaItemNames.constFirst(), labelValue);
    int nameIndex = 0;
    for (int bit : tagBits) {
        ++nameIndex;
        if ((tag & bit) != 0)
            ammoniaPrintCombo->addItem(ammoniaItemNames.at(nameIndex), bit);
    }

    const bool hasTags = ammoniaPrintCombo->count() > 1;
    ammoniaWidget->setVisible(hasTags);
    ammoniaSeparator->setVisible(hasTags && !supplyInfoVisible);
    if (hasTags) {
        ammoniaPrintCombo->setCurrentIndex(0);
        connect(ammoniaPrintCombo, indexSignal, this, indexSlot);
    }
}

void PrintWidget::ammoniaPrintComboChanged(int index)
{
    if (index < 0 || ammoniaPrintCombo == nullptr)
        return;
    Q_EMIT ammoniaPrintTagChanged(ammoniaPrintCombo->itemData(index, Qt::UserRole).toInt());
}
