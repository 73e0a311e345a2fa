// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "foundation/widgets/stepbutton.h"

#include "foundation/stylesheets.h"
#include "foundation/widgets/metrics.h"
#include "foundation/widgets/stoprepeatonhide.h"

#include <QtWidgets/QPushButton>

namespace PrintPanels {

namespace {

void setUpStepButton(QPushButton* button, const QString& name, const QString& styleSheet)
{
    new StopRepeatOnHide(button);
    button->setObjectName(name);
    button->setStyleSheet(styleSheet);
    button->setFixedSize(squareButton);
    button->setAutoRepeat(true);
}

} // namespace

void setUpPlusButton(QPushButton* button)
{
    setUpStepButton(button, QStringLiteral("plusButton"), StyleSheets::plusStepButton());
}

void setUpMinusButton(QPushButton* button)
{
    setUpStepButton(button, QStringLiteral("minusButton"), StyleSheets::minusStepButton());
}

} // namespace PrintPanels
