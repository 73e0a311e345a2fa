// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_CHOICEBUTTON_H
#define PRINTPANELS_CHOICEBUTTON_H

#include "foundation/widgets/accessibleparts.h"

#include <QtGui/QAccessible>

class QAbstractButton;

namespace PrintPanels {

QAccessibleInterface* createAccessibleChoice(QAbstractButton* button, QAccessible::Role role);

/**
 * A checkable button of the class @p Button that assistive technology presents as @p role, and
 * clicks. It would toggle a @p Button instead, of which receivers of clicks are not told.
 */
template <typename Button, QAccessible::Role role>
class ChoiceButton : public Button, public AccessiblePart
{
public:
    QAccessibleInterface* createAccessible() override { return createAccessibleChoice(this, role); }
};

} // namespace PrintPanels

#endif
