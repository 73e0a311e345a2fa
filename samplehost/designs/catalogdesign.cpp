// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/designs/catalogdesign.h"

#include "samplehost/label/catalogpainter.h"

namespace SampleHost {

CatalogDesign::CatalogDesign() : m_sizeMm(catalogItems().constFirst().sizeMm) {}

void CatalogDesign::setCurrentIndex(int index)
{
    if (index >= 0 && index < recordCount()) {
        m_currentIndex = index;
        m_sizeMm = currentItem().sizeMm;
    }
}

const CatalogItem& CatalogDesign::currentItem() const
{
    return catalogItems().at(m_currentIndex);
}

void CatalogDesign::setSizeMm(const QSizeF& sizeMm)
{
    if (!sizeMm.isEmpty()) {
        m_sizeMm = sizeMm;
    }
}

QString CatalogDesign::title() const
{
    return QStringLiteral("Catalogue item");
}

int CatalogDesign::recordCount() const
{
    return int(catalogItems().size());
}

void CatalogDesign::complete(PrintRequest& request) const
{
    // The panel of this page prints the selected item.
    request.sequenceStart = m_currentIndex + 1;
    request.sequenceEnd = -1;
    request.customRecordsList.clear();
    request.nup = NupLayout{};
}

QSizeF CatalogDesign::labelSizeMm(const PrintRequest& request) const
{
    return request.labelTurned ? m_sizeMm.transposed() : m_sizeMm;
}

LabelPainter CatalogDesign::painter(const PrintRequest& request) const
{
    return [size = labelSizeMm(request)](QPainter& painter, const QRectF& area, int record,
                                         QString& problem) {
        if (record < 1 || record > catalogItems().size()) {
            problem = tr("There is no catalogue item %1.").arg(record);
            return false;
        }
        paintCatalogItem(painter, area, catalogItems().at(record - 1), size);
        return true;
    };
}

} // namespace SampleHost
