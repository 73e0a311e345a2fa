// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "multipage/printersection.h"

#include "foundation/hostkit.h"
#include "foundation/widgets/accessibleparts.h"
#include "foundation/widgets/caption.h"
#include "foundation/widgets/fittedfont.h"
#include "foundation/widgets/lightpalette.h"
#include "foundation/widgets/metrics.h"
#include "foundation/widgets/printersettingsbutton.h"

#include <printpanels/multipageprintwidget.h>

#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

namespace PrintPanels::MultiPage {

namespace {

JxComboBox* createPrinterCombo()
{
    auto* combo = new JxComboBox(nullptr);
    combo->setObjectName(QStringLiteral("PrinterListCombo"));
    combo->setFont(ApplicationFont::getWidgetFont(false));
    combo->setFixedSize(200, rowHeight);
    setLightPalette(combo);
    return combo;
}

QPushButton* createPrinterSettingsButton()
{
    auto* button = new QPushButton;
    button->setFont(ApplicationFont::getWidgetFont(true));
    button->setAutoDefault(false);
    setUpPrinterSettingsButton(button);
    return button;
}

} // namespace

PrinterSection::PrinterSection(MultiPagePrintWidget* panel) : q(panel) {}

QLabel* PrinterSection::createPrinterCaption() const
{
    QLabel* caption = createCaption(tr("Printer:", "Label showing printer name."));
    caption->setFont(ApplicationFont::getWidgetFont(false));
    caption->setFixedHeight(30);
    fitText(caption, q->width());
    return caption;
}

QGridLayout* PrinterSection::createPrinterLayout(QLabel* caption)
{
    printerCombo = createPrinterCombo();
    setCaption(printerCombo, caption);
    printerSettingsButton = createPrinterSettingsButton();

    auto* grid = new QGridLayout;
    grid->setContentsMargins(0, 0, 0, 0);
    grid->addWidget(printerCombo, 1, 0, Qt::AlignLeft);
    grid->addItem(new QSpacerItem(5, 5, QSizePolicy::Expanding, QSizePolicy::Fixed), 1, 1);
    grid->addWidget(printerSettingsButton, 1, 2, Qt::AlignRight);

    QObject::connect(printerCombo, SIGNAL(activated(QString)), q,
                     SIGNAL(currentPrinterSelectionChanged(QString)));
    QObject::connect(printerSettingsButton, SIGNAL(clicked(bool)), q,
                     SIGNAL(openPreferencesSignal()));
    return grid;
}

void PrinterSection::updateListOfPrinters(const QStringList& printers, int currentIndex)
{
    fillPrinterCombo(printers, currentIndex);
    // From the first list on, a change of the index is the user's choice.
    QObject::connect(printerCombo, SIGNAL(currentIndexChanged(int)), q,
                     SLOT(currentPrinterSelectionChangedSlot(int)), Qt::UniqueConnection);
}

void PrinterSection::fillPrinterCombo(const QStringList& printers, int currentIndex)
{
    const ConnectionBlocker blocker = blockSelectionChange();
    printerCombo->clear();
    if (printers.isEmpty())
        printerCombo->addItem(QStringLiteral("No printer"));
    else
        printerCombo->addItems(printers);
    // The one item that stands for no printer is current, whatever index the host gives.
    printerCombo->setCurrentIndex(printers.isEmpty() ? 0 : currentIndex);
}

/** While the host changes the selection, it is not told of it. */
ConnectionBlocker PrinterSection::blockSelectionChange()
{
    return ConnectionBlocker(printerCombo, SIGNAL(currentIndexChanged(int)), q,
                             SLOT(currentPrinterSelectionChangedSlot(int)));
}

QString PrinterSection::getSelectedPrinter() const
{
    return printerCombo->currentText();
}

void PrinterSection::setSelectedPrinter(const QString& name)
{
    const ConnectionBlocker blocker = blockSelectionChange();
    printerCombo->setCurrentIndex(
        printerCombo->findData(name, Qt::DisplayRole, Qt::MatchExactly | Qt::MatchCaseSensitive));
}

void PrinterSection::currentPrinterSelectionChangedSlot(int index)
{
    Q_EMIT q->currentPrinterSelectionChanged(printerCombo->itemText(index));
}

} // namespace PrintPanels::MultiPage
