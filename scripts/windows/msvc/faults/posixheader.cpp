// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

// Expected: Visual C++ has no such header

#include <unistd.h>
