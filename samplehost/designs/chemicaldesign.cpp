// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/designs/chemicaldesign.h"

#include "samplehost/data/recordreader.h"
#include "samplehost/label/catalogpainter.h"
#include "samplehost/label/labelpainter.h"

#include <algorithm>
#include <utility>

namespace SampleHost {

namespace {

LabelOptions optionsOf(const PrintRequest& request)
{
    LabelOptions options;
    options.userBackground = request.userBackground;
    options.landscape = !request.labelTurned;
    return options;
}

} // namespace

ChemicalDesign::ChemicalDesign(std::unique_ptr<RecordSource> source, const QString& problem)
    : m_source(std::move(source)), m_sourceProblem(problem)
{
}

void ChemicalDesign::setSource(std::unique_ptr<RecordSource> source)
{
    m_source = std::move(source);
}

void ChemicalDesign::setCurrentIndex(int index)
{
    m_currentIndex = std::clamp(index, 0, std::max(0, recordCount() - 1));
}

void ChemicalDesign::setBound(bool bound)
{
    m_bound = bound;
    if (bound) {
        m_item.reset();
    }
}

void ChemicalDesign::openItem(const CatalogItem& item, const QSizeF& sizeMm)
{
    m_bound = false;
    m_item = item;
    m_itemSizeMm = sizeMm;
}

QString ChemicalDesign::sourceDescription() const
{
    return m_source ? m_source->description() : tr("no data source");
}

QString ChemicalDesign::title() const
{
    return m_item ? QStringLiteral("Catalogue item") : QStringLiteral("Chemical labels");
}

int ChemicalDesign::recordCount() const
{
    if (m_item) {
        return 1;
    }
    QString problem;
    const int count = m_source ? m_source->count(&problem) : 0;
    if (problem.isEmpty()) {
        m_knownCount = count;
    }
    return m_knownCount;
}

void ChemicalDesign::complete(PrintRequest& request) const
{
    if (!m_bound) {
        request.sequenceStart = m_item ? 1 : m_currentIndex + 1;
        request.sequenceEnd = -1;
        request.customRecordsList.clear();
    }
}

QSizeF ChemicalDesign::labelSizeMm(const PrintRequest& request) const
{
    if (m_item) {
        return request.labelTurned ? m_itemSizeMm.transposed() : m_itemSizeMm;
    }
    return SampleHost::labelSizeMm(optionsOf(request));
}

LabelPainter ChemicalDesign::painter(const PrintRequest& request) const
{
    if (m_item) {
        return [item = *m_item, size = labelSizeMm(request)](QPainter& painter, const QRectF& area,
                                                             int, QString&) {
            paintCatalogItem(painter, area, item, size);
            return true;
        };
    }
    if (!m_source) {
        return [reason = m_sourceProblem](QPainter&, const QRectF&, int, QString& problem) {
            problem = reason;
            return false;
        };
    }
    const auto purpose =
        request.isSingleRecord() ? RecordReader::Purpose::Display : RecordReader::Purpose::Run;
    return
        [options = optionsOf(request), reader = std::make_shared<RecordReader>(m_source, purpose)](
            QPainter& painter, const QRectF& area, int record, QString& problem) {
            const Chemical* chemical = reader->record(record - 1, problem);
            if (chemical == nullptr) {
                return false;
            }
            paintLabel(painter, area, *chemical, options);
            return true;
        };
}

} // namespace SampleHost
