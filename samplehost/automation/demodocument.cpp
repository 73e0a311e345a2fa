// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/automation/demodocument.h"

#include "samplehost/designs/labeldesign.h"
#include "samplehost/label/labelfont.h"

#include <QtGui/QPainter>
#include <QtGui/QPdfWriter>

#include <algorithm>

namespace SampleHost {

namespace {

constexpr int mostPages = 12;
constexpr int resolution = 300;
constexpr qreal marginMm = 20;
constexpr qreal dotsPerMm = resolution / 25.4;

QRectF labelPlace(const QSizeF& labelMm, const QRectF& paper)
{
    const QRectF room = paper.adjusted(marginMm, 2 * marginMm, -marginMm, -2 * marginMm);
    const QSizeF size = labelMm.scaled(room.size(), Qt::KeepAspectRatio);
    return QRectF(room.topLeft() * dotsPerMm, size * dotsPerMm);
}

} // namespace

DemoDocument::DemoDocument(QObject* parent) : QObject(parent) {}

QString DemoDocument::path() const
{
    return m_folder.filePath(QStringLiteral("Safety labels.pdf"));
}

bool DemoDocument::write(const LabelDesign& design)
{
    const int count = std::min(design.recordCount(), mostPages);
    QPdfWriter writer(path());
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setPageMargins(QMarginsF());
    writer.setResolution(resolution);
    QPainter painter;
    if (count < 1 || !painter.begin(&writer)) {
        return false;
    }
    PrintRequest request;
    request.sequenceEnd = count;
    design.complete(request);
    const QRectF paper(QPointF(), QPageSize(QPageSize::A4).size(QPageSize::Millimeter));
    const QRectF place = labelPlace(design.labelSizeMm(request), paper);
    const LabelPainter paintLabel = design.painter(request);
    QFont font = labelFont();
    font.setPointSize(18);
    painter.setFont(font);
    painter.setLayoutDirection(Qt::LeftToRight);
    const QPointF headPoint(marginMm * dotsPerMm, 1.4 * marginMm * dotsPerMm);
    for (int record = 1; record <= count; ++record) {
        QString problem;
        if (record > 1) {
            writer.newPage();
        }
        painter.drawText(headPoint,
                         QStringLiteral("Safety labels, page %1 of %2").arg(record).arg(count));
        painter.save();
        const bool painted = paintLabel(painter, place, record, problem);
        painter.restore();
        painter.drawRect(place);
        if (!painted) {
            return false;
        }
    }
    return painter.end();
}

} // namespace SampleHost
