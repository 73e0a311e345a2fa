// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "foundation/widgets/caption.h"

#include "foundation/hostkit.h"
#include "foundation/widgets/textdirection.h"

#include <QtWidgets/QLabel>

namespace PrintPanels {

QLabel* createCaption(const QString& text)
{
    auto* caption = new QLabel(text);
    caption->setFont(ApplicationFont::getWidgetFont(true));
    alignToStart(caption);
    return caption;
}

} // namespace PrintPanels
