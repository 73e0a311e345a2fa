// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "foundation/widgets/windowposition.h"

#include <QtWidgets/QWidget>

namespace PrintPanels {

void moveWindow(QWidget* window, int x, int y)
{
    constexpr int farthest = QWIDGETSIZE_MAX;
    window->move(qBound(-farthest, x, farthest), qBound(-farthest, y, farthest));
}

} // namespace PrintPanels
