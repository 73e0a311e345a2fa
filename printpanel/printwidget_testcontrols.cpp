// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

// ---- Test controls: print to a file, show an error message of the host ----

#include <printpanels/printwidget.h>

#include "foundation/hostkit.h"
#include "foundation/stylesheets.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QVBoxLayout>

namespace {

constexpr int rowHeight = 35;
constexpr int highestErrorNumber = 25;

QSpacerItem* createGap()
{
    return new QSpacerItem(1, 15, QSizePolicy::Minimum, QSizePolicy::Minimum);
}

} // namespace

void PrintWidget::createPrintToFileLayout()
{
    printToFileCheck = new QCheckBox(tr("Print to file:\n\" guest / logs / printTest_iii . prn \"",
                                        "Option to print to a file."),
                                     this);
    printToFileCheck->setObjectName(QStringLiteral("printToFileCheck"));
    printToFileCheck->setFont(ApplicationFont::getWidgetFont(true));
    printToFileCheck->setStyleSheet(StyleSheets::checkBoxIndicator());

    mainLayout->addWidget(createSeparatorBar());
    mainLayout->addItem(createGap());
    mainLayout->addWidget(printToFileCheck);
    mainLayout->addItem(createGap());
    mainLayout->addLayout(createErrorTestRow());
    mainLayout->addWidget(createSeparatorBar());
}

QBoxLayout* PrintWidget::createErrorTestRow()
{
    auto* caption = new QLabel(tr("Error number: ", "Label for testing the errors."));
    caption->setFont(ApplicationFont::getWidgetFont(true));
    errorNumberSpinBox = new JxSpinBox(nullptr);
    errorNumberSpinBox->setObjectName(QStringLiteral("errorNumberSpinBox"));
    errorNumberSpinBox->setFont(ApplicationFont::getWidgetFont(true));
    errorNumberSpinBox->setRange(0, highestErrorNumber);
    errorNumberSpinBox->setValue(0);
    errorNumberSpinBox->setFixedSize(60, rowHeight);
    errorNumberSpinBox->setButtonSymbols(QAbstractSpinBox::NoButtons);
    auto* show = new DragScrollButton(tr("Show", "Button for testing the errors."), nullptr);
    show->setObjectName(QStringLiteral("showErrorButton"));
    show->setFont(ApplicationFont::getWidgetFont(true));
    show->setStyleSheet(StyleSheets::primaryPushButton());

    auto* row = new QHBoxLayout;
    row->addWidget(caption);
    row->addWidget(errorNumberSpinBox);
    row->addWidget(show);
    connect(show, SIGNAL(clicked()), this, SLOT(testErrorCodeSlot()));
    return row;
}

bool PrintWidget::getPrintToFileEnabled() const
{
    return printToFileCheck != nullptr && printToFileCheck->isChecked();
}

void PrintWidget::testErrorCodeSlot()
{
    if (errorNumberSpinBox != nullptr)
        Q_EMIT testPrintError(errorNumberSpinBox->value());
}
