// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

// ---- Copies: the number between its step buttons ----

#include <printpanels/multipageprintwidget.h>

#include "foundation/hostkit.h"
#include "foundation/panelparts.h"
#include "foundation/stylesheets.h"

#include <QtGui/QIntValidator>
#include <QtWidgets/QFrame>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

namespace {

constexpr int fewestCopies = 1;
constexpr int mostCopies = 999;

JxLineEdit* createCopiesEdit()
{
    auto* edit = new JxLineEdit(nullptr);
    edit->setObjectName(QStringLiteral("copiesEdit"));
    edit->setFont(ApplicationFont::getWidgetFont(true));
    edit->setText(QStringLiteral("1"));
    edit->setFixedSize(50, 35);
    auto* validator = new QIntValidator(fewestCopies, mostCopies, edit);
    // What can be typed is what is read: plain digits, without the separators of any language.
    QLocale plainDigits = QLocale::c();
    plainDigits.setNumberOptions(QLocale::RejectGroupSeparator);
    validator->setLocale(plainDigits);
    edit->setValidator(validator);
    return edit;
}

QPushButton* createStepButton(const QString& name, const QString& styleSheet)
{
    auto* button = new QPushButton;
    button->setObjectName(name);
    button->setFont(ApplicationFont::getWidgetFont(true));
    button->setAutoDefault(false);
    PrintPanels::setUpStepButton(button, styleSheet);
    return button;
}

} // namespace

void MultiPagePrintWidget::createCopiesFrame()
{
    auto* frame = new QFrame;
    frame->setObjectName(QStringLiteral("copiesFrame"));
    frame->setFixedWidth(width() - 10);
    frame->setLayout(createCopiesRow());
    mainLayout->addWidget(frame);

    connect(minusButton, SIGNAL(clicked()), this, SLOT(decreaseCopyCount()));
    connect(plusButton, SIGNAL(clicked()), this, SLOT(increaseCopyCount()));
    connect(copiesEdit, SIGNAL(focusLost()), this, SIGNAL(focusLost()));
}

QBoxLayout* MultiPagePrintWidget::createCopiesRow()
{
    auto* caption = new QLabel(tr("Copies:", "Label next to the display of the number of copies."));
    caption->setFont(ApplicationFont::getWidgetFont(true));
    copiesEdit = createCopiesEdit();
    minusButton = createStepButton(QStringLiteral("minusButton"), StyleSheets::minusStepButton());
    plusButton = createStepButton(QStringLiteral("plusButton"), StyleSheets::plusStepButton());

    auto* row = new QHBoxLayout;
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(caption);
    row->addItem(new QSpacerItem(1, 1, QSizePolicy::Expanding, QSizePolicy::Minimum));
    row->addWidget(copiesEdit);
    row->addWidget(minusButton);
    row->addWidget(plusButton);
    return row;
}

void MultiPagePrintWidget::setNumberOfCopies(int copies)
{
    copiesEdit->setText(QString::number(copies));
}

int MultiPagePrintWidget::getNumberOfCopies()
{
    // An unreadable text counts as 0.
    const int copies = copiesEdit->text().toInt();
    return copies < fewestCopies ? fewestCopies : copies;
}

void MultiPagePrintWidget::decreaseCopyCount()
{
    const int copies = copiesEdit->text().toInt();
    if (copies > fewestCopies)
        setNumberOfCopies(copies - 1);
}

void MultiPagePrintWidget::increaseCopyCount()
{
    const int copies = copiesEdit->text().toInt();
    if (copies < mostCopies)
        setNumberOfCopies(copies + 1);
}
