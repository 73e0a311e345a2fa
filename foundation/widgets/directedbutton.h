// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_DIRECTEDBUTTON_H
#define PRINTPANELS_DIRECTEDBUTTON_H

#include "foundation/widgets/textdirection.h"

#include <QtWidgets/QStyleOptionButton>

namespace PrintPanels {

/**
 * A check box or radio button whose text keeps its direction in a layout of the other one, where
 * the colon at its end would change sides. text() is as it was set.
 */
template <typename Button>
class DirectedButton : public Button
{
public:
    using Button::Button;

protected:
    void initStyleOption(QStyleOptionButton* option) const override
    {
        Button::initStyleOption(option);
        option->text = isolated(option->text, this);
    }
};

} // namespace PrintPanels

#endif
