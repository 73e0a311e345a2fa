// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/support/pdfpages.h"
#include "samplehost/support/plainpdf.h"

QStringList pdfPages(const QString& path)
{
    return PlainPdf(path).texts();
}

QSizeF pdfPageSize(const QString& path)
{
    return PlainPdf(path).pageSize(0);
}
