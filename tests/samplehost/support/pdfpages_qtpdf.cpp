// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/support/pdfpages.h"

#include <QtPdf/QPdfDocument>
#include <QtPdf/QPdfSelection>

QStringList pdfPages(const QString& path)
{
    QPdfDocument document;
    QStringList pages;
    if (document.load(path) == QPdfDocument::Error::None) {
        for (int page = 0; page < document.pageCount(); ++page) {
            pages.append(document.getAllText(page).text().simplified());
        }
    }
    return pages;
}

QSizeF pdfPageSize(const QString& path)
{
    QPdfDocument document;
    return document.load(path) == QPdfDocument::Error::None ? document.pagePointSize(0) : QSizeF();
}
