// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/designs/requestsheet.h"

#include "samplehost/designs/labeldesign.h"
#include "samplehost/label/labelfont.h"
#include "samplehost/print/pageplan.h"

#include <QtGui/QPainter>

#include <algorithm>
#include <utility>

namespace SampleHost {

namespace {

// The number of lines per image that is legible when the preview is scaled down.
constexpr int problemLines = 20;

} // namespace

SheetGeometry sheetOf(const LabelDesign& design, const PrintRequest& request)
{
    return SheetGeometry(design.labelSizeMm(request), request.nup, request.paperMm);
}

bool isPortrait(const QSizeF& size)
{
    return size.height() >= size.width();
}

PrintRequest oriented(const LabelDesign& design, const PrintRequest& request, bool portrait)
{
    PrintRequest turned = request;
    if (isPortrait(sheetOf(design, request).sheetSizeMm()) == portrait) {
        return turned;
    }
    if (request.paperMm.isEmpty()) {
        turned.labelTurned = true;
        std::swap(turned.nup.rows, turned.nup.columns);
    } else {
        turned.paperMm.transpose();
    }
    return turned;
}

QImage renderFirstSheet(const LabelDesign& design, const PrintRequest& request,
                        const QSize& maximumSize, QString* problem)
{
    const SheetGeometry sheet = sheetOf(design, request);
    const QSizeF connection = sheet.sheetSizeMm().scaled(maximumSize, Qt::KeepAspectRatio);
    QImage image(connection.toSize().expandedTo(QSize(1, 1)).boundedTo(maximumSize),
                 QImage::Format_ARGB32_Premultiplied);
    if (image.isNull()) {
        return image;
    }
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    const qreal dotsPerMm = connection.width() / sheet.sheetSizeMm().width();
    const PagePlan plan = PagePlan::make(request, design.recordCount());
    QString reason;
    if (!paintPage(painter, dotsPerMm, sheet, plan.recordsOnPage(0), design.painter(request),
                   reason)) {
        QFont font = labelFont();
        font.setPixelSize(std::max(1, image.height() / problemLines));
        painter.setFont(font);
        painter.setPen(Qt::black);
        painter.setLayoutDirection(Qt::LayoutDirectionAuto);
        painter.drawText(image.rect(), Qt::AlignCenter | Qt::TextWordWrap, reason);
    }
    if (problem != nullptr) {
        *problem = reason;
    }
    return image;
}

} // namespace SampleHost
