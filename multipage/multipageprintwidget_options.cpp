// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

// ---- Options: form fill, fit to page, orientation, and the Print button ----

#include <printpanels/multipageprintwidget.h>

#include "foundation/hostkit.h"
#include "foundation/stylesheets.h"
#include "foundation/widgets/connectionblocker.h"

#include <printpanels/sharedconstants.h>

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QVBoxLayout>

using PrintPanels::ConnectionBlocker;

namespace {

const char* const stateSignal = SIGNAL(stateChanged(int));
const char* const formFillSignal = SIGNAL(printFormFillChangedSignal(int));
const char* const orientationSignal = SIGNAL(orientationChangedSignal(int));

QCheckBox* createCheck(const QString& name, const QString& text)
{
    auto* check = new QCheckBox(text);
    check->setObjectName(name);
    check->setFont(ApplicationFont::getWidgetFont(true));
    check->setStyleSheet(StyleSheets::checkBoxIndicator());
    return check;
}

QPushButton* createPrintButton(const QString& text)
{
    auto* button = new QPushButton(text);
    button->setObjectName(QStringLiteral("PrintButton"));
    button->setFont(ApplicationFont::getWidgetFont(true));
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    button->setAutoDefault(false);
    button->setEnabled(false);
    return button;
}

} // namespace

// Stands in the printer grid, because it is about the paper in the printer.
void MultiPagePrintWidget::createOrientationCheck()
{
    orientationCheck = createCheck(QStringLiteral("orientationCheck"), tr("Print 180 Orientation"));
    orientationCheck->setToolTip(SharedConstants::orientationToolTip);
    connect(orientationCheck, stateSignal, this, orientationSignal);
}

void MultiPagePrintWidget::createOptionsLayout(bool fitToPage)
{
    formFillCheck = createCheck(QStringLiteral("formFillCheck"), tr("Print Only Form Fill Text"));
    formFillCheck->setChecked(true);
    fitToPageCheck = createCheck(QStringLiteral("fitToPageCheck"), tr("Fit To Page "));
    fitToPageCheck->setChecked(fitToPage);
    printButton = createPrintButton(tr("       Print       ", "Button for initiating a print."));

    auto* grid = new QGridLayout;
    grid->addWidget(formFillCheck, 0, 0, 1, 2, Qt::AlignLeft);
    grid->addWidget(fitToPageCheck, 1, 0, Qt::AlignLeft);
    grid->addWidget(printButton, 1, 1, Qt::AlignRight);
    mainLayout->addLayout(grid);

    connect(formFillCheck, stateSignal, this, formFillSignal);
    connect(fitToPageCheck, stateSignal, this, SIGNAL(fitToPageChangedSignal(int)));
    connect(printButton, SIGNAL(clicked(bool)), this, SLOT(printSlot()));
}

void MultiPagePrintWidget::setFormFillOption(bool visible, bool checked)
{
    formFillCheck->setVisible(visible);
    const ConnectionBlocker blocker(formFillCheck, stateSignal, this, formFillSignal);
    formFillCheck->setChecked(checked);
}

void MultiPagePrintWidget::set180OrientationVisible(bool visible)
{
    orientationCheck->setVisible(visible);
}

void MultiPagePrintWidget::set180OrientationCheck(bool orientation180)
{
    const ConnectionBlocker blocker(orientationCheck, stateSignal, this, orientationSignal);
    orientationCheck->setChecked(orientation180);
}

void MultiPagePrintWidget::printSlot()
{
    const bool selection = selectionRadio->isChecked();
    const QString list = selection ? pageListEdit->text() : QString();
    if (!list.isEmpty()) {
        Q_EMIT widgetPrintSignal(0, 0, list);
    } else if (selection) {
        Q_EMIT widgetPrintSignal(currentPage, currentPage, QString());
    } else {
        applyPageChoice();
        Q_EMIT widgetPrintSignal(startPage, endPage, QString());
    }
}
