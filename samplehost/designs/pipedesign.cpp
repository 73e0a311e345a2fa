// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/designs/pipedesign.h"

#include "samplehost/label/pipemarkerpainter.h"

namespace SampleHost {

void PipeDesign::setCurrentIndex(int index)
{
    if (index >= 0 && index < recordCount()) {
        m_currentIndex = index;
        setItem(m_item);
    }
}

const PipeMarker& PipeDesign::currentMarker() const
{
    return pipeMarkers().at(m_currentIndex);
}

void PipeDesign::setItem(int item)
{
    m_item = hasPipeItem(currentMarker(), item) ? item : PipeItem::Label;
}

QString PipeDesign::title() const
{
    return QStringLiteral("Pipe marker");
}

int PipeDesign::recordCount() const
{
    return int(pipeMarkers().size());
}

void PipeDesign::complete(PrintRequest& request) const
{
    // The panel of this page has no records to choose from.
    request.sequenceStart = m_currentIndex + 1;
    request.sequenceEnd = -1;
    request.customRecordsList.clear();
    request.ammoniaItem = m_item;
    // Markers are printed on a roll, one by one.
    request.nup = NupLayout{};
}

QSizeF PipeDesign::labelSizeMm(const PrintRequest& request) const
{
    const int index = request.sequenceStart - 1;
    if (index < 0 || index >= recordCount()) {
        return {};
    }
    const QSizeF size = pipeMarkerSizeMm(pipeMarkers().at(index), request.ammoniaItem);
    return request.labelTurned ? size.transposed() : size;
}

LabelPainter PipeDesign::painter(const PrintRequest& request) const
{
    LabelPainter upright = [item = request.ammoniaItem](QPainter& painter, const QRectF& area,
                                                        int record, QString& problem) {
        if (record < 1 || record > pipeMarkers().size()) {
            problem = tr("There is no pipe marker %1.").arg(record);
            return false;
        }
        paintPipeMarker(painter, area, pipeMarkers().at(record - 1), item);
        return true;
    };
    return request.labelTurned ? turnedPainter(upright) : upright;
}

} // namespace SampleHost
