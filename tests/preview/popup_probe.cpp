// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

// A library that brings the panels with it when it is loaded.
#include <printpanels/printpreviewdialog.h>

extern "C" Q_DECL_EXPORT void orientationTip(QString* tip)
{
    *tip = PrintPreviewDialog::ORIENTATION_TIP;
}
