// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_SHEETIMAGE_H
#define SAMPLEHOST_SHEETIMAGE_H

#include "samplehost/pdf/sheets/pdfsheetwriter.h"

#include <QtCore/QBuffer>
#include <QtCore/QList>
#include <QtCore/QRect>
#include <QtGui/QImage>
#include <QtPdf/QPdfDocument>

namespace SampleHost {

/**
 * A 0-based page on white, stretched to size in pixels. A null image if there is not enough
 * memory.
 */
QImage renderPage(QPdfDocument& document, int page, const QSize& size);

/** A sheet as pictures: bands from top to bottom, since all of it may be too much at once. */
class SheetImage
{
public:
    /**
     * Prepares the sheet of a 0-based page, stretched to size in pixels, in bands of bandHeight
     * pixels; the last may be lower. Throws a std::exception when the page cannot be read.
     */
    SheetImage(PdfSource& source, int page, const SheetOptions& options, SheetContents contents,
               const QSize& size, int bandHeight);

    int bandCount() const { return int(m_bands.size()); }

    /** The place of a 0-based band in pixels of the sheet. */
    QRect bandRect(int band) const { return m_bands.at(band); }

    /** The picture of a 0-based band. A null image if there is not enough memory. */
    QImage band(int band);

private:
    Q_DISABLE_COPY_MOVE(SheetImage)

    QList<QRect> m_bands;
    QBuffer m_file;
    QPdfDocument m_view;
};

} // namespace SampleHost

#endif
