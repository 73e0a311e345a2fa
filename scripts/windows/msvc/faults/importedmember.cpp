// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

// Expected: definition of dllimport static field

#include <printpanels/printpreviewdialog.h>

const QString PrintPreviewDialog::ORIENTATION_TIP;
