// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

// Expected: 'getenv' is deprecated

#include <cstdlib>

const char* home = std::getenv("HOME");
