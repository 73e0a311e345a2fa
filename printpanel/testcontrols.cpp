// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "printpanel/testcontrols.h"

#include "foundation/hostkit.h"
#include "foundation/stylesheets.h"
#include "foundation/widgets/accessibleparts.h"
#include "foundation/widgets/caption.h"
#include "foundation/widgets/directedbutton.h"
#include "foundation/widgets/metrics.h"
#include "foundation/widgets/textdirection.h"

#include <printpanels/printwidget.h>

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>

namespace PrintPanels {

namespace {

constexpr int highestErrorNumber = 25;

QSpacerItem* createGap()
{
    return new QSpacerItem(1, 15, QSizePolicy::Minimum, QSizePolicy::Minimum);
}

} // namespace

TestControls::TestControls(PrintWidget* panel) : q(panel) {}

void TestControls::createPrintToFileLayout(QVBoxLayout* panelLayout)
{
    printToFileCheck =
        new DirectedButton<QCheckBox>(tr("Print to file:\n\" guest / logs / printTest_iii . prn \"",
                                         "Option to print to a file."),
                                      q);
    printToFileCheck->setObjectName(QStringLiteral("printToFileCheck"));
    printToFileCheck->setFont(ApplicationFont::getWidgetFont(true));
    printToFileCheck->setStyleSheet(StyleSheets::checkBoxIndicator());

    panelLayout->addWidget(q->createSeparatorBar());
    panelLayout->addItem(createGap());
    panelLayout->addWidget(printToFileCheck);
    panelLayout->addItem(createGap());
    panelLayout->addLayout(createErrorTestRow());
    panelLayout->addWidget(q->createSeparatorBar());
}

QBoxLayout* TestControls::createErrorTestRow()
{
    errorNumberSpinBox = createErrorNumberSpinBox();
    auto* show = new DragScrollButton(tr("Show", "Button for testing the errors."), nullptr);
    show->setObjectName(QStringLiteral("showErrorButton"));
    show->setFont(ApplicationFont::getWidgetFont(true));
    show->setStyleSheet(StyleSheets::primaryPushButton());

    QLabel* caption = createCaption(tr("Error number: ", "Label for testing the errors."));
    setCaption(errorNumberSpinBox, caption);
    auto* row = new QHBoxLayout;
    row->addWidget(caption);
    row->addWidget(errorNumberSpinBox);
    row->addWidget(show);
    QObject::connect(show, SIGNAL(clicked()), q, SLOT(testErrorCodeSlot()));
    return row;
}

JxSpinBox* TestControls::createErrorNumberSpinBox() const
{
    auto* spinBox = new JxSpinBox(nullptr);
    spinBox->setObjectName(QStringLiteral("errorNumberSpinBox"));
    spinBox->setFont(ApplicationFont::getWidgetFont(true));
    spinBox->setRange(0, highestErrorNumber);
    spinBox->setValue(0);
    spinBox->setFixedSize(60, rowHeight);
    spinBox->setButtonSymbols(QAbstractSpinBox::NoButtons);
    alignToStart(spinBox);
    return spinBox;
}

bool TestControls::getPrintToFileEnabled() const
{
    return printToFileCheck != nullptr && printToFileCheck->isChecked();
}

void TestControls::testErrorCodeSlot()
{
    if (errorNumberSpinBox != nullptr)
        Q_EMIT q->testPrintError(errorNumberSpinBox->value());
}

} // namespace PrintPanels
