// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "printpanel/printersection.h"

#include "foundation/hostkit.h"
#include "foundation/widgets/accessibleparts.h"
#include "foundation/widgets/caption.h"
#include "foundation/widgets/elidedlabel.h"
#include "foundation/widgets/lightpalette.h"
#include "foundation/widgets/metrics.h"
#include "foundation/widgets/printersettingsbutton.h"
#include "foundation/widgets/stepbutton.h"
#include "foundation/widgets/textdirection.h"

#include <printpanels/printwidget.h>

#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>

namespace PrintPanels {

namespace {

constexpr int gridColumns = 7;
constexpr int copyRow = 4;

QLabel* createValueLabel(const QString& name)
{
    auto* label = new ElidedLabel;
    label->setObjectName(name);
    label->setFont(ApplicationFont::getWidgetFontSmall(false));
    label->setFixedHeight(rowHeight);
    return label;
}

QLabel* createSmallCaption(const QString& text)
{
    QLabel* caption = createCaption(text);
    caption->setFont(ApplicationFont::getWidgetFontSmall(false));
    return caption;
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
    setLightPalette(combo);
    return combo;
}

QSpacerItem* createGap(QSizePolicy::Policy horizontal)
{
    return new QSpacerItem(5, 5, horizontal, QSizePolicy::Minimum);
}

} // namespace

PrinterSection::PrinterSection(PrintWidget* panel)
    : q(panel),
      onlineText(tr("Online", "Printer status")),
      offlineText(tr("Offline", "Printer status")),
      remoteText(tr("Remote", "Printer status")),
      unavailableText(tr(", Unavailable", "Printer status"))
{
}

QGridLayout* PrinterSection::createPrinterSelectorLayout()
{
    QLabel* caption = createCaption(tr("Printer:", "Label showing printer name."));
    caption->setFixedHeight(rowHeight);
    printerCombo = createPrinterCombo();
    setCaption(printerCombo, caption);
    preferencesButton = new DragScrollButton(nullptr);
    setUpPrinterSettingsButton(preferencesButton);

    printerGrid = new QGridLayout;
    printerGrid->setSpacing(0);
    printerGrid->setContentsMargins(0, 0, 0, 0);
    printerGrid->addWidget(caption, 0, 0, 1, gridColumns, Qt::AlignLeft);
    printerGrid->addWidget(printerCombo, 1, 0, 1, 5, Qt::AlignLeft);
    printerGrid->addItem(createGap(QSizePolicy::Fixed), 1, 5);
    printerGrid->addWidget(preferencesButton, 1, 6, Qt::AlignRight);
    printerGrid->addLayout(createPrinterStatusLayout(), 2, 0, 1, gridColumns);

    QObject::connect(printerCombo, SIGNAL(currentIndexChanged(int)), q,
                     SLOT(currentPrinterSelectionChangedSlot(int)));
    QObject::connect(preferencesButton, SIGNAL(clicked(bool)), q, SIGNAL(openPreferencesSignal()));
    return printerGrid;
}

QGridLayout* PrinterSection::createPrinterStatusLayout()
{
    locationLabel = createValueLabel(QStringLiteral("locationLabel"));
    statusLabel = createValueLabel(QStringLiteral("statusLabel"));

    auto* grid = new QGridLayout;
    grid->addWidget(
        createSmallCaption(tr("Location:", "Label next to the printer physical location.")), 0, 0);
    grid->addWidget(locationLabel, 0, 1);
    grid->addWidget(createSmallCaption(tr("Status:", "Label next to the printer status.")), 1, 0);
    grid->addWidget(statusLabel, 1, 1);
    grid->setColumnStretch(1, 1);
    grid->setHorizontalSpacing(5);
    grid->setVerticalSpacing(0);
    return grid;
}

void PrinterSection::createCopyCountLayout()
{
    QLabel* caption =
        createCaption(tr("Copies:", "Label next to the display of the number of copies."));
    auto* minusButton = new DragScrollButton(nullptr);
    setUpMinusButton(minusButton);
    auto* plusButton = new DragScrollButton(nullptr);
    setUpPlusButton(plusButton);
    copiesSpinBox = createCopiesSpinBox();
    setCaption(copiesSpinBox, caption);
    announceSteps(copiesSpinBox, minusButton, plusButton);

    printerGrid->addWidget(caption, copyRow, 0);
    printerGrid->addItem(createGap(QSizePolicy::Expanding), copyRow, 1);
    printerGrid->addWidget(minusButton, copyRow, 2);
    printerGrid->addItem(createGap(QSizePolicy::Fixed), copyRow, 3);
    printerGrid->addWidget(copiesSpinBox, copyRow, 4);
    printerGrid->addItem(createGap(QSizePolicy::Fixed), copyRow, 5);
    printerGrid->addWidget(plusButton, copyRow, 6);

    QObject::connect(minusButton, SIGNAL(clicked()), copiesSpinBox, SLOT(stepDown()));
    QObject::connect(plusButton, SIGNAL(clicked()), copiesSpinBox, SLOT(stepUp()));
}

JxSpinBox* PrinterSection::createCopiesSpinBox() const
{
    auto* spinBox = new JxSpinBox(nullptr);
    spinBox->setObjectName(QStringLiteral("copiesSpinBox"));
    spinBox->setFont(ApplicationFont::getWidgetFont(true));
    spinBox->setRange(1, 999);
    spinBox->setValue(1);
    spinBox->setFixedSize(60, rowHeight);
    spinBox->setButtonSymbols(QAbstractSpinBox::NoButtons);
    alignToStart(spinBox);
    return spinBox;
}

/** While the host changes the selection, it is not told of it. */
ConnectionBlocker PrinterSection::blockSelectionChange()
{
    return ConnectionBlocker(printerCombo, SIGNAL(currentIndexChanged(int)), q,
                             SLOT(currentPrinterSelectionChangedSlot(int)));
}

void PrinterSection::updateListOfPrinters(const QStringList& printers, int currentIndex)
{
    const ConnectionBlocker blocker = blockSelectionChange();
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

void PrinterSection::addPrinterToList(const QString& name, bool atTop)
{
    const ConnectionBlocker blocker = blockSelectionChange();
    const int index = atTop ? 0 : printerCombo->count();
    printerCombo->insertItem(index, name);
    printerCombo->setItemData(index, name, Qt::ToolTipRole);
    if (index == 0) {
        printerCombo->setCurrentIndex(0);
        printerCombo->setToolTip(name);
    }
}

void PrinterSection::setSelectedPrinter(const QString& name)
{
    const ConnectionBlocker blocker = blockSelectionChange();
    printerCombo->setCurrentText(name);
    // The tool tip shows the printer that the host names, even if the list does not have it.
    printerCombo->setToolTip(name);
}

QString PrinterSection::getSelectedPrinter() const
{
    return printerCombo->currentText();
}

void PrinterSection::currentPrinterSelectionChangedSlot(int printerIndex)
{
    const QString name = printerCombo->itemText(printerIndex);
    printerCombo->setToolTip(name);
    Q_EMIT q->currentPrinterSelectionChanged(name);
}

void PrinterSection::setPreferencesEnabled(bool enabled)
{
    preferencesButton->setEnabled(enabled);
}

void PrinterSection::updatePrinterLocation(const QString& location)
{
    locationLabel->setText(location);
}

void PrinterSection::updatePrinterStatus(bool offline, bool remote, bool unavailable)
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

void PrinterSection::setNumberOfCopies(int copies)
{
    copiesSpinBox->setValue(copies);
}

int PrinterSection::getNumberOfCopies() const
{
    return copiesSpinBox->value();
}

} // namespace PrintPanels
