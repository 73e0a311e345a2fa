// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_ONEBASED_H
#define PRINTPANELS_ONEBASED_H

#include <limits>

namespace PrintPanels {

/** The 1-based number of a host's 0-based index. The highest index stays as it is. */
constexpr int oneBased(int index)
{
    return index == std::numeric_limits<int>::max() ? index : index + 1;
}

} // namespace PrintPanels

#endif
