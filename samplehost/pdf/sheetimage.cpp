// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/pdf/sheetimage.h"

#include "samplehost/pdf/sheets/pdfsource.h"

#include <QtGui/QPainter>
#include <QtPdf/QPdfDocumentRenderOptions>

#include <algorithm>
#include <stdexcept>

namespace SampleHost {

QImage renderPage(QPdfDocument& document, int page, const QSize& size)
{
    QPdfDocumentRenderOptions options;
    options.setRenderFlags(QPdfDocumentRenderOptions::RenderFlag::Annotations);
    const QImage drawn = document.render(page, size, options);
    if (drawn.isNull()) {
        return QImage();
    }
    QImage image(size, QImage::Format_RGB32);
    if (image.isNull()) {
        return QImage();
    }
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.drawImage(0, 0, drawn);
    return image;
}

SheetImage::SheetImage(PdfSource& source, int page, const SheetOptions& options,
                       SheetContents contents, const QSize& size, int bandHeight)
{
    const QSizeF sheet = SheetLayout(source.pageBox(page), options).sheetSize();
    const qreal pointsPerRow = sheet.height() / size.height();
    m_file.open(QIODevice::ReadWrite);
    // The clip of Qt's renderer is off by a pixel for each band, so every band is a page.
    PdfSheetWriter writer(source, options, contents);
    for (int top = 0; top < size.height(); top += bandHeight) {
        const QRect band(0, top, size.width(), std::min(bandHeight, size.height() - top));
        m_bands.append(band);
        writer.addSheetPart(
            page, QRectF(0, top * pointsPerRow, sheet.width(), band.height() * pointsPerRow));
    }
    writer.write(m_file, QString());
    m_file.seek(0);
    m_view.load(&m_file);
    if (m_view.status() != QPdfDocument::Status::Ready || m_view.pageCount() != bandCount()) {
        throw std::runtime_error("the sheet cannot be shown");
    }
}

QImage SheetImage::band(int band)
{
    return renderPage(m_view, band, m_bands.at(band).size());
}

} // namespace SampleHost
