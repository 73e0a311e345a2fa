// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_METRICS_H
#define PRINTPANELS_METRICS_H

#include <QtCore/QSize>

namespace PrintPanels {

/** Height of a row of controls in pixels, sized for touch. */
constexpr int rowHeight = 35;
/** A button with a picture instead of a text. */
constexpr QSize squareButton(rowHeight, rowHeight);

} // namespace PrintPanels

#endif
