// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "multipage/copiessection.h"

#include "foundation/hostkit.h"
#include "foundation/widgets/accessibleparts.h"
#include "foundation/widgets/caption.h"
#include "foundation/widgets/fittedfont.h"
#include "foundation/widgets/metrics.h"
#include "foundation/widgets/stepbutton.h"
#include "foundation/widgets/textdirection.h"

#include <printpanels/multipageprintwidget.h>

#include <QtGui/QIntValidator>
#include <QtWidgets/QFrame>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

namespace PrintPanels::MultiPage {

namespace {

constexpr int minCopies = 1;
constexpr int maxCopies = 999;

JxLineEdit* createCopiesEdit()
{
    auto* edit = new JxLineEdit(nullptr);
    edit->setObjectName(QStringLiteral("copiesEdit"));
    edit->setFont(ApplicationFont::getWidgetFont(true));
    edit->setText(QStringLiteral("1"));
    edit->setFixedSize(50, rowHeight);
    alignToStart(edit);
    auto* validator = new QIntValidator(minCopies, maxCopies, edit);
    // Only what is read can be typed: plain digits, without the separators of any language.
    QLocale plainDigits = QLocale::c();
    plainDigits.setNumberOptions(QLocale::RejectGroupSeparator);
    validator->setLocale(plainDigits);
    edit->setValidator(validator);
    return edit;
}

QPushButton* createStepButton(void (*setUp)(QPushButton*))
{
    auto* button = new QPushButton;
    button->setFont(ApplicationFont::getWidgetFont(true));
    button->setAutoDefault(false);
    setUp(button);
    return button;
}

} // namespace

CopiesSection::CopiesSection(MultiPagePrintWidget* panel) : q(panel) {}

QFrame* CopiesSection::createCopiesFrame()
{
    auto* frame = new QFrame;
    frame->setObjectName(QStringLiteral("copiesFrame"));
    frame->setFixedWidth(q->width() - 10);
    frame->setLayout(createCopiesRow(frame->width()));

    QObject::connect(minusButton, SIGNAL(clicked()), q, SLOT(decreaseCopyCount()));
    QObject::connect(plusButton, SIGNAL(clicked()), q, SLOT(increaseCopyCount()));
    QObject::connect(copiesEdit, SIGNAL(focusLost()), q, SIGNAL(focusLost()));
    return frame;
}

QBoxLayout* CopiesSection::createCopiesRow(int width)
{
    copiesEdit = createCopiesEdit();
    minusButton = createStepButton(setUpMinusButton);
    plusButton = createStepButton(setUpPlusButton);

    QLabel* caption =
        createCaption(tr("Copies:", "Label next to the display of the number of copies."));
    setCaption(copiesEdit, caption);
    announceSteps(copiesEdit, minusButton, plusButton);

    auto* row = new QHBoxLayout;
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(caption);
    row->addItem(new QSpacerItem(1, 1, QSizePolicy::Expanding, QSizePolicy::Minimum));
    row->addWidget(copiesEdit);
    row->addWidget(minusButton);
    row->addWidget(plusButton);
    fitText(caption, width - copiesEdit->width() - 2 * squareButton.width() - 1, 3);
    return row;
}

void CopiesSection::setNumberOfCopies(int copies)
{
    copiesEdit->setText(QString::number(copies));
}

int CopiesSection::getNumberOfCopies() const
{
    // A text that is not a number counts as 0.
    return qMax(minCopies, copiesEdit->text().toInt());
}

// The steps set the number through the panel, so that a derived panel's override takes part.
void CopiesSection::decreaseCopyCount()
{
    const int copies = copiesEdit->text().toInt();
    if (copies > minCopies)
        q->setNumberOfCopies(copies - 1);
}

void CopiesSection::increaseCopyCount()
{
    const int copies = copiesEdit->text().toInt();
    if (copies < maxCopies)
        q->setNumberOfCopies(copies + 1);
}

} // namespace PrintPanels::MultiPage
