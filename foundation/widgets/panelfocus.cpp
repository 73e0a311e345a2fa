// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "foundation/widgets/panelfocus.h"

#include "foundation/widgets/focusreturn.h"
#include "foundation/widgets/focusring.h"
#include "foundation/widgets/pressonreturn.h"

namespace PrintPanels {

void setUpFocus(QWidget* panel)
{
    new FocusRing(panel);
    new FocusReturn(panel);
    new PressOnReturn(panel);
}

} // namespace PrintPanels
