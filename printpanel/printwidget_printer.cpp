// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

// ---- Printer: selector, preferences button, location and status ----

#include <printpanels/printwidget.h>

#include "foundation/hostkit.h"
#include "foundation/panelparts.h"
#include "foundation/widgets/connectionblocker.h"
#include "foundation/widgets/elidedlabel.h"

#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QVBoxLayout>

using PrintPanels::ConnectionBlocker;
using PrintPanels::ElidedLabel;

namespace {

constexpr int rowHeight = 35;
constexpr int gridColumns = 7;

const char* const indexSignal = SIGNAL(currentIndexChanged(int));
const char* const indexSlot = SLOT(currentPrinterSelectionChangedSlot(int));

QLabel* createCaption(const QString& text, const QFont& font)
{
    auto* caption = new QLabel(text);
    caption->setFont(font);
    return caption;
}

QLabel* createValueLabel(const QString& name)
{
    auto* label = new ElidedLabel;
    label->setObjectName(name);
    label->setFont(ApplicationFont::getWidgetFontSmall(false));
    label->setFixedHeight(rowHeight);
    return label;
}

JxComboBox* createPrinterCombo()
{
    auto* combo = new JxComboBox(nullptr);
    combo->setObjectName(QStringLiteral("PrinterListCombo"));
    combo->setEditable(false);
    combo->setFont(ApplicationFont::getWidgetFont(true));
    combo->setFixedHeight(rowHeight);
    combo->setMinimumWidth(200);
    combo->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    combo->setFocusPolicy(Qt::NoFocus);
    return combo;
}

DragScrollButton* createPreferencesButton()
{
    auto* button = new DragScrollButton(nullptr);
    button->setObjectName(QStringLiteral("PreferencesButton"));
    PrintPanels::setUpPrinterSettingsButton(button);
    return button;
}

} // namespace

void PrintWidget::createPrinterSelectorLayout()
{
    auto* caption = createCaption(tr("Printer:", "Label showing printer name."),
                                  ApplicationFont::getWidgetFont(true));
    caption->setFixedHeight(rowHeight);
    printerCombo = createPrinterCombo();
    preferencesButton = createPreferencesButton();

    printerGrid = new QGridLayout;
    printerGrid->setSpacing(0);
    printerGrid->setContentsMargins(0, 0, 0, 0);
    printerGrid->addWidget(caption, 0, 0, 1, gridColumns, Qt::AlignLeft);
    printerGrid->addWidget(printerCombo, 1, 0, 1, 5, Qt::AlignLeft);
    printerGrid->addItem(new QSpacerItem(5, 5, QSizePolicy::Fixed, QSizePolicy::Minimum), 1, 5);
    printerGrid->addWidget(preferencesButton, 1, 6, Qt::AlignRight);
    printerGrid->addLayout(createPrinterStatusLayout(), 2, 0, 1, gridColumns);
    mainLayout->addLayout(printerGrid);

    connect(printerCombo, indexSignal, this, indexSlot);
    connect(preferencesButton, SIGNAL(clicked(bool)), this, SIGNAL(openPreferencesSignal()));
}

QGridLayout* PrintWidget::createPrinterStatusLayout()
{
    const QFont small = ApplicationFont::getWidgetFontSmall(false);
    locationLabel = createValueLabel(QStringLiteral("locationLabel"));
    statusLabel = createValueLabel(QStringLiteral("statusLabel"));

    auto* grid = new QGridLayout;
    grid->addWidget(
        createCaption(tr("Location:", "Label next to the printer physical location."), small), 0,
        0);
    grid->addWidget(locationLabel, 0, 1);
    grid->addWidget(createCaption(tr("Status:", "Label next to the printer status."), small), 1, 0);
    grid->addWidget(statusLabel, 1, 1);
    grid->setColumnStretch(1, 1);
    grid->setHorizontalSpacing(5);
    grid->setVerticalSpacing(0);
    return grid;
}

void PrintWidget::updateListOfPrinters(const QStringList& printers, int currentIndex)
{
    const ConnectionBlocker blocker(printerCombo, indexSignal, this, indexSlot);
    printerCombo->clear();
    for (const QString& name : printers) {
        printerCombo->addItem(name);
        printerCombo->setItemData(printerCombo->count() - 1, name, Qt::ToolTipRole);
    }
    if (printers.isEmpty())
        printerCombo->addItem(QStringLiteral("No printer"));
    // The one item that stands for no printer is current, whatever index the host gives.
    printerCombo->setCurrentIndex(printers.isEmpty() ? 0 : currentIndex);
    printerCombo->setToolTip(printerCombo->currentText());
}

void PrintWidget::addPrinterToList(const QString& name, bool atTop)
{
    const ConnectionBlocker blocker(printerCombo, indexSignal, this, indexSlot);
    const int index = atTop ? 0 : printerCombo->count();
    printerCombo->insertItem(index, name);
    printerCombo->setItemData(index, name, Qt::ToolTipRole);
    if (index == 0) {
        printerCombo->setCurrentIndex(0);
        printerCombo->setToolTip(name);
    }
}

void PrintWidget::setSelectedPrinter(const QString& name)
{
    const ConnectionBlocker blocker(printerCombo, indexSignal, this, indexSlot);
    printerCombo->setCurrentText(name);
    // The host names the printer that counts, even one that the list does not hold.
    printerCombo->setToolTip(name);
}

QString PrintWidget::getSelectedPrinter() const
{
    return printerCombo->currentText();
}

void PrintWidget::currentPrinterSelectionChangedSlot(int printerIndex)
{
    const QString name = printerCombo->itemText(printerIndex);
    printerCombo->setToolTip(name);
    Q_EMIT currentPrinterSelectionChanged(name);
}

void PrintWidget::updatePrinterLocation(const QString& location)
{
    locationLabel->setText(location);
}

void PrintWidget::updatePrinterStatus(bool offline, bool remote, bool unavailable)
{
    QString status = onlineText;
    if (remote)
        status = remoteText;
    else if (offline)
        status = offlineText;
    if (unavailable)
        status += unavailableText;
    statusLabel->setText(status);
}
