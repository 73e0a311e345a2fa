// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

// Expected: variable length array

int firstOf(int count)
{
    int numbers[count];
    numbers[0] = count;
    return numbers[0];
}
