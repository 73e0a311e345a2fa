// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/support/pdfpages.h"

QSizeF pdfPageSizeMm(const QString& path)
{
    const QSizeF points = pdfPageSize(path);
    return QSizeF(qRound(points.width() / 72 * 25.4), qRound(points.height() / 72 * 25.4));
}
