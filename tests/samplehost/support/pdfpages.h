// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PDFPAGES_H
#define PDFPAGES_H

#include <QtCore/QSizeF>
#include <QtCore/QStringList>

// A look at a PDF file that the host printed: with Qt PDF, or with PlainPdf in a build without it.

/** The texts of a PDF file's pages, with single blanks; empty when the file cannot be read. */
QStringList pdfPages(const QString& path);

/** The size of the first page of a PDF file in points; empty when the file cannot be read. */
QSizeF pdfPageSize(const QString& path);

/** The size of the first page of a PDF file in whole millimetres. */
QSizeF pdfPageSizeMm(const QString& path);

#endif
