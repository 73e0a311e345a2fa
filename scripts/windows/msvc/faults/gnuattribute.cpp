// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

// Expected: poisoned identifier

extern "C" __attribute__((weak)) int optionalFunction();
