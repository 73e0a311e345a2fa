// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "foundation/widgets/optionradio.h"

#include "foundation/hostkit.h"
#include "foundation/widgets/choicebutton.h"
#include "foundation/widgets/directedbutton.h"

#include <QtWidgets/QButtonGroup>
#include <QtWidgets/QRadioButton>

namespace PrintPanels {

QRadioButton* createOptionRadio(const QString& name, const QString& text)
{
    auto* radio = new ChoiceButton<DirectedButton<QRadioButton>, QAccessible::RadioButton>;
    radio->setText(text);
    radio->setObjectName(name);
    radio->setFont(ApplicationFont::getWidgetFont(true));
    radio->setFocusPolicy(Qt::NoFocus);
    return radio;
}

bool enablesListEdit(const QButtonGroup* group)
{
    // Unsigned, so that the id -1 of no checked button counts as the list does.
    return static_cast<unsigned>(group->checkedId()) > unsigned(AllId);
}

} // namespace PrintPanels
