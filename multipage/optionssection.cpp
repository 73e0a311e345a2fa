// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "multipage/optionssection.h"

#include "foundation/hostkit.h"
#include "foundation/stylesheets.h"
#include "foundation/widgets/connectionblocker.h"
#include "foundation/widgets/directedbutton.h"
#include "foundation/widgets/fittedfont.h"
#include "foundation/widgets/metrics.h"

#include <printpanels/multipageprintwidget.h>
#include <printpanels/sharedconstants.h>

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QPushButton>

namespace PrintPanels::MultiPage {

namespace {

QCheckBox* createCheck(const QString& name, const QString& text)
{
    auto* check = new DirectedButton<QCheckBox>(text);
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

OptionsSection::OptionsSection(MultiPagePrintWidget* panel) : q(panel) {}

QCheckBox* OptionsSection::createOrientationCheck()
{
    orientationCheck = createCheck(QStringLiteral("orientationCheck"), tr("Print 180 Orientation"));
    orientationCheck->setToolTip(SharedConstants::orientationToolTip);
    // Beside it are a spacer and the button for the printer's settings.
    fitText(orientationCheck, q->width() - squareButton.width() - 5, 1);
    QObject::connect(orientationCheck, SIGNAL(stateChanged(int)), q,
                     SIGNAL(orientationChangedSignal(int)));
    return orientationCheck;
}

QGridLayout* OptionsSection::createOptionsLayout(bool fitToPage)
{
    formFillCheck = createCheck(QStringLiteral("formFillCheck"), tr("Print Only Form Fill Text"));
    formFillCheck->setChecked(true);
    fitToPageCheck = createCheck(QStringLiteral("fitToPageCheck"), tr("Fit To Page "));
    fitToPageCheck->setChecked(fitToPage);
    printButton = createPrintButton(tr("       Print       ", "Button for initiating a print."));
    fitText(formFillCheck, q->width());
    new FittedFont({{{fitToPageCheck, printButton}, q->width(), 1}});

    auto* grid = new QGridLayout;
    grid->addWidget(formFillCheck, 0, 0, 1, 2, Qt::AlignLeft);
    grid->addWidget(fitToPageCheck, 1, 0, Qt::AlignLeft);
    grid->addWidget(printButton, 1, 1, Qt::AlignRight);

    QObject::connect(formFillCheck, SIGNAL(stateChanged(int)), q,
                     SIGNAL(printFormFillChangedSignal(int)));
    QObject::connect(fitToPageCheck, SIGNAL(stateChanged(int)), q,
                     SIGNAL(fitToPageChangedSignal(int)));
    QObject::connect(printButton, SIGNAL(clicked(bool)), q, SLOT(printSlot()));
    return grid;
}

void OptionsSection::setPrintEnabled(bool enabled)
{
    printButton->setEnabled(enabled);
}

void OptionsSection::setFormFillOption(bool visible, bool checked)
{
    formFillCheck->setVisible(visible);
    const ConnectionBlocker blocker(formFillCheck, SIGNAL(stateChanged(int)), q,
                                    SIGNAL(printFormFillChangedSignal(int)));
    formFillCheck->setChecked(checked);
}

void OptionsSection::set180OrientationVisible(bool visible)
{
    orientationCheck->setVisible(visible);
}

void OptionsSection::set180OrientationCheck(bool orientation180)
{
    const ConnectionBlocker blocker(orientationCheck, SIGNAL(stateChanged(int)), q,
                                    SIGNAL(orientationChangedSignal(int)));
    orientationCheck->setChecked(orientation180);
}

} // namespace PrintPanels::MultiPage
