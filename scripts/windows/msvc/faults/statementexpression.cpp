// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

// Expected: GNU statement expression

int one = ({
    const int number = 1;
    number;
});
