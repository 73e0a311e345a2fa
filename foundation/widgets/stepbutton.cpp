// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "foundation/widgets/stepbutton.h"

#include "foundation/stylesheets.h"
#include "foundation/widgets/metrics.h"
#include "foundation/widgets/stoprepeatonhide.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QAccessible>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSpinBox>

namespace PrintPanels {

namespace {

void setUpStepButton(QPushButton* button, const QString& name, const QString& accessibleName,
                     const QString& styleSheet)
{
    new StopRepeatOnHide(button);
    button->setObjectName(name);
    button->setAccessibleName(accessibleName);
    button->setStyleSheet(styleSheet);
    button->setFixedSize(squareButton);
    button->setAutoRepeat(true);
}

template <typename Field>
void describeByText(Field* field, QPushButton* button)
{
    button->setAccessibleDescription(field->text());
    QObject::connect(field, &Field::textChanged, button, &QWidget::setAccessibleDescription);
}

// Qt does so only for the steps that the spin box makes by itself.
void announceValue(QSpinBox* spinBox, int value)
{
    QAccessibleValueChangeEvent event(spinBox, value);
    QAccessible::updateAccessibility(&event);
}

} // namespace

void setUpPlusButton(QPushButton* button)
{
    setUpStepButton(button, QStringLiteral("plusButton"),
                    QCoreApplication::translate("PrintPanels", "More Copies",
                                                "Name of the plus button for screen readers."),
                    StyleSheets::plusStepButton());
}

void setUpMinusButton(QPushButton* button)
{
    setUpStepButton(button, QStringLiteral("minusButton"),
                    QCoreApplication::translate("PrintPanels", "Fewer Copies",
                                                "Name of the minus button for screen readers."),
                    StyleSheets::minusStepButton());
}

void announceSteps(QSpinBox* field, QPushButton* minusButton, QPushButton* plusButton)
{
    describeByText(field, minusButton);
    describeByText(field, plusButton);
    QObject::connect(field, &QSpinBox::valueChanged, field,
                     [field](int value) { announceValue(field, value); });
}

// Changes of its text are announced by Qt.
void announceSteps(QLineEdit* field, QPushButton* minusButton, QPushButton* plusButton)
{
    describeByText(field, minusButton);
    describeByText(field, plusButton);
}

} // namespace PrintPanels
