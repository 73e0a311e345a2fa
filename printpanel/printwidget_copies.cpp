// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

// ---- Copies and requests: the copy row, the Print and Print Preview buttons ----

#include <printpanels/printwidget.h>

#include "foundation/hostkit.h"
#include "foundation/panelparts.h"
#include "foundation/stylesheets.h"

#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QVBoxLayout>

namespace {

constexpr int rowHeight = 35;
constexpr int copyRow = 4;
constexpr int onlyCurrentRecord = -1;

DragScrollButton* createStepButton(const QString& name, const QString& styleSheet)
{
    auto* button = new DragScrollButton(nullptr);
    button->setObjectName(name);
    PrintPanels::setUpStepButton(button, styleSheet);
    return button;
}

DragScrollButton* createRequestButton(const QString& name, const QString& text)
{
    auto* button = new DragScrollButton(text, nullptr);
    button->setObjectName(name);
    button->setFont(ApplicationFont::getWidgetFont(true));
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    button->setEnabled(false);
    return button;
}

QSpacerItem* createGap(QSizePolicy::Policy horizontal)
{
    return new QSpacerItem(5, 5, horizontal, QSizePolicy::Minimum);
}

} // namespace

// The row lies in the printer grid, so that the plus button stands under the preferences button.
void PrintWidget::createCopyCountLayout()
{
    auto* caption = new QLabel(tr("Copies:", "Label next to the display of the number of copies."));
    caption->setFont(ApplicationFont::getWidgetFont(true));
    auto* minusButton =
        createStepButton(QStringLiteral("minusButton"), StyleSheets::minusStepButton());
    auto* plusButton =
        createStepButton(QStringLiteral("plusButton"), StyleSheets::plusStepButton());
    copiesSpinBox = new JxSpinBox(nullptr);
    copiesSpinBox->setObjectName(QStringLiteral("copiesSpinBox"));
    copiesSpinBox->setFont(ApplicationFont::getWidgetFont(true));
    copiesSpinBox->setRange(1, 999);
    copiesSpinBox->setValue(1);
    copiesSpinBox->setFixedSize(60, rowHeight);
    copiesSpinBox->setButtonSymbols(QAbstractSpinBox::NoButtons);

    printerGrid->addWidget(caption, copyRow, 0);
    printerGrid->addItem(createGap(QSizePolicy::Expanding), copyRow, 1);
    printerGrid->addWidget(minusButton, copyRow, 2);
    printerGrid->addItem(createGap(QSizePolicy::Fixed), copyRow, 3);
    printerGrid->addWidget(copiesSpinBox, copyRow, 4);
    printerGrid->addItem(createGap(QSizePolicy::Fixed), copyRow, 5);
    printerGrid->addWidget(plusButton, copyRow, 6);

    connect(minusButton, SIGNAL(clicked()), copiesSpinBox, SLOT(stepDown()));
    connect(plusButton, SIGNAL(clicked()), copiesSpinBox, SLOT(stepUp()));
}

void PrintWidget::createPrintButtonsLayout()
{
    printButton = createRequestButton(QStringLiteral("PrintButton"),
                                      tr(" Print ", "Button for initiating a print."));
    printButton->setStyleSheet(StyleSheets::tallPushButton());

    previewButton = createRequestButton(QStringLiteral("PreviewButton"),
                                        tr("Print Preview", "Button for showing a print preview."));
    previewButton->setMinimumWidth(127);
    auto* style = new JxPushButtonStyleProxy(nullptr);
    style->setParent(previewButton); // setStyle() does not take ownership
    previewButton->setStyle(style);
    previewButton->setStyleSheet(StyleSheets::tallPushButton());

    auto* grid = new QGridLayout;
    grid->addWidget(printButton, 0, 0);
    grid->addWidget(previewButton, 0, 1);
    mainLayout->addLayout(grid);

    connect(printButton, SIGNAL(clicked(bool)), this, SLOT(printSlot()));
    connect(previewButton, SIGNAL(clicked(bool)), this, SLOT(printPreviewSlot()));
}

void PrintWidget::setNumberOfCopies(int copies)
{
    copiesSpinBox->setValue(copies);
}

int PrintWidget::getNumberOfCopies()
{
    return copiesSpinBox->value();
}

void PrintWidget::whatToPrint(int& sequenceStart, int& sequenceEnd,
                              QString& customRecordsList) const
{
    if (recordListRadio->isChecked()) {
        const QString list = recordListEdit->text();
        if (list.isEmpty())
            return;
        sequenceStart = 0;
        sequenceEnd = 0;
        customRecordsList = list;
    } else if (allRecordsRadio->isChecked()) {
        // The pair is handed out as it was kept at the last classification, not computed anew.
        sequenceStart = rangeStart;
        sequenceEnd = rangeEnd;
    }
}

void PrintWidget::printSlot()
{
    emitRequest(&PrintWidgetInterface::widgetPrintSignal);
}

void PrintWidget::printPreviewSlot()
{
    emitRequest(&PrintWidgetInterface::printPreviewSignal);
}

// Print and preview ask for the same: only the signal differs.
void PrintWidget::emitRequest(void (PrintWidgetInterface::*request)(int, int, const QString&))
{
    int sequenceStart = currentRecord;
    int sequenceEnd = onlyCurrentRecord;
    QString customRecordsList;
    whatToPrint(sequenceStart, sequenceEnd, customRecordsList);
    Q_EMIT(this->*request)(sequenceStart, sequenceEnd, customRecordsList);
}
