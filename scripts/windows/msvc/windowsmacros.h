// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

// <windows.h>, with those macros of the Windows SDK that the one of MinGW-w64 leaves out in C++.
#include <windows.h>

#define max(a, b) (((a) > (b)) ? (a) : (b))
#define min(a, b) (((a) < (b)) ? (a) : (b))
#define small char
