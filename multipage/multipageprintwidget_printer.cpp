// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

// ---- Printer: selector, settings button, and the orientation below them ----

#include <printpanels/multipageprintwidget.h>

#include "foundation/hostkit.h"
#include "foundation/panelparts.h"
#include "foundation/widgets/connectionblocker.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

using PrintPanels::ConnectionBlocker;

namespace {

const char* const indexSignal = SIGNAL(currentIndexChanged(int));
const char* const indexSlot = SLOT(currentPrinterSelectionChangedSlot(int));

JxComboBox* createPrinterCombo()
{
    auto* combo = new JxComboBox(nullptr);
    combo->setObjectName(QStringLiteral("PrinterListCombo"));
    combo->setFont(ApplicationFont::getWidgetFont(false));
    combo->setFixedSize(200, 35);
    return combo;
}

QPushButton* createPrinterSettingsButton()
{
    auto* button = new QPushButton;
    button->setObjectName(QStringLiteral("PreferencesButton"));
    button->setFont(ApplicationFont::getWidgetFont(true));
    button->setAutoDefault(false);
    PrintPanels::setUpPrinterSettingsButton(button);
    return button;
}

} // namespace

void MultiPagePrintWidget::createPrinterLayout()
{
    auto* caption = new QLabel(tr("Printer:", "Label showing printer name."));
    caption->setFont(ApplicationFont::getWidgetFont(false));
    caption->setFixedHeight(30);
    mainLayout->addWidget(caption);
    printerCombo = createPrinterCombo();
    printerSettingsButton = createPrinterSettingsButton();
    createOrientationCheck();

    auto* grid = new QGridLayout;
    grid->setContentsMargins(0, 0, 0, 0);
    grid->addWidget(printerCombo, 1, 0, Qt::AlignLeft);
    grid->addItem(new QSpacerItem(5, 5, QSizePolicy::Expanding, QSizePolicy::Fixed), 1, 1);
    grid->addWidget(printerSettingsButton, 1, 2, Qt::AlignRight);
    grid->addWidget(orientationCheck, 2, 0, 3, 1, Qt::AlignLeft);
    mainLayout->addLayout(grid);

    connect(printerCombo, SIGNAL(activated(QString)), this,
            SIGNAL(currentPrinterSelectionChanged(QString)));
    connect(printerSettingsButton, SIGNAL(clicked(bool)), this, SIGNAL(openPreferencesSignal()));
}

void MultiPagePrintWidget::updateListOfPrinters(const QStringList& printers, int currentIndex)
{
    fillPrinterCombo(printers, currentIndex);
    // From the first list on, a change of index is a choice of the user.
    connect(printerCombo, indexSignal, this, indexSlot, Qt::UniqueConnection);
}

void MultiPagePrintWidget::fillPrinterCombo(const QStringList& printers, int currentIndex)
{
    const ConnectionBlocker blocker(printerCombo, indexSignal, this, indexSlot);
    printerCombo->clear();
    if (printers.isEmpty())
        printerCombo->addItem(QStringLiteral("No printer"));
    else
        printerCombo->addItems(printers);
    // The one item that stands for no printer is current, whatever index the host gives.
    printerCombo->setCurrentIndex(printers.isEmpty() ? 0 : currentIndex);
}

QString MultiPagePrintWidget::getSelectedPrinter() const
{
    return printerCombo->currentText();
}

void MultiPagePrintWidget::setSelectedPrinter(const QString& name)
{
    const ConnectionBlocker blocker(printerCombo, indexSignal, this, indexSlot);
    printerCombo->setCurrentIndex(
        printerCombo->findData(name, Qt::DisplayRole, Qt::MatchExactly | Qt::MatchCaseSensitive));
}

void MultiPagePrintWidget::currentPrinterSelectionChangedSlot(int index)
{
    Q_EMIT currentPrinterSelectionChanged(printerCombo->itemText(index));
}
