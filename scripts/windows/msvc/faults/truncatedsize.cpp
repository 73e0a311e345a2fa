// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

// Expected: loses integer precision

#include <vector>

int count(const std::vector<int>& numbers)
{
    return numbers.size();
}
