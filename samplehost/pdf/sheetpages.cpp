// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/pdf/sheetpages.h"

#include "samplehost/pdf/sheetimage.h"
#include "samplehost/pdf/sheets/pdfsource.h"
#include "samplehost/pdf/units.h"

#include <QtGui/QPageLayout>
#include <QtGui/QPagedPaintDevice>
#include <QtGui/QPainter>

#include <algorithm>
#include <exception>

namespace SampleHost {

namespace {

// A sheet in the resolution of a printer is more than a hundred megabytes, so it is painted in
// bands.
constexpr int pixelsInBand = 4 * 1024 * 1024;

bool isWhite(const QImage& image)
{
    for (int y = 0; y < image.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        const bool white = std::all_of(line, line + image.width(),
                                       [](QRgb pixel) { return (pixel & RGB_MASK) == RGB_MASK; });
        if (!white) {
            return false;
        }
    }
    return true;
}

QMarginsF unprintablePoints(const QPagedPaintDevice& device)
{
    QPageLayout layout = device.pageLayout();
    layout.setUnits(QPageLayout::Point);
    return layout.minimumMargins();
}

} // namespace

SheetPages::SheetPages(const PdfSheets& sheets) : m_sheets(sheets) {}

qint64 SheetPages::pageCount() const
{
    return m_sheets.count();
}

QSizeF SheetPages::sheetSizeMm() const
{
    const QSizeF paper = m_sheets.options().paper;
    const QSizeF sheet =
        paper.isEmpty() ? m_sheets.source().pageBox(m_sheets.page(0)).shownSize() : paper;
    return sheet / pointsPerMm;
}

void SheetPages::prepareDevice(QPagedPaintDevice& device, qint64 page)
{
    const PageBox box = m_sheets.source().pageBox(m_sheets.page(page));
    const QSizeF paper = m_sheets.options().paper;
    if (paper.isEmpty()) {
        device.setPageSize(
            QPageSize(box.shownSize(), QPageSize::Point, QString(), QPageSize::ExactMatch));
    }
    const bool turned = !paper.isEmpty() && SheetLayout::turnsPaper(box, paper);
    device.setPageOrientation(turned ? QPageLayout::Landscape : QPageLayout::Portrait);
}

bool SheetPages::paint(QPainter& painter, QPagedPaintDevice& device, qint64 page, QString& problem)
{
    try {
        if (paintSheet(painter, device, m_sheets.page(page))) {
            return true;
        }
        problem =
            tr("There is not enough memory to print page %1. Close other programs and print again.")
                .arg(m_sheets.page(page) + 1);
    } catch (const std::exception&) {
        problem = m_sheets.damageText(page);
    }
    return false;
}

bool SheetPages::paintSheet(QPainter& painter, const QPagedPaintDevice& device, int page) const
{
    SheetOptions options = m_sheets.options();
    options.unprintable = unprintablePoints(device);
    const QSizeF points = SheetLayout(m_sheets.source().pageBox(page), options).sheetSize();
    const int resolution = std::min(device.logicalDpiX(), finestResolution);
    const qreal dots = qreal(device.logicalDpiX()) / resolution;
    const QSize size = (points * (resolution / pointsPerInch)).toSize().expandedTo(QSize(1, 1));
    SheetImage sheet(m_sheets.source(), page, options, m_sheets.contents(), size,
                     std::max(1, pixelsInBand / size.width()));
    // Otherwise pictures may go to the printer as JPEG, which smears the edges of letters.
    painter.setRenderHint(QPainter::LosslessImageRendering);
    for (int band = 0; band < sheet.bandCount(); ++band) {
        const QImage image = sheet.band(band);
        if (image.isNull()) {
            return false;
        }
        if (!isWhite(image)) {
            const QRectF rect = sheet.bandRect(band);
            painter.drawImage(QRectF(rect.topLeft() * dots, rect.size() * dots), image);
        }
    }
    return true;
}

} // namespace SampleHost
