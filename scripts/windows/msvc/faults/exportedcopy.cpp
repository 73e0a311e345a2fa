// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

// Expected: deleted

#include <memory>
#include <vector>

class __declspec(dllexport) Owner
{
public:
    std::vector<std::unique_ptr<int>> numbers;
};
