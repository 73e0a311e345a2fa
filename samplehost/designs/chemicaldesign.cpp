// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/designs/chemicaldesign.h"

#include "samplehost/label/catalogpainter.h"
#include "samplehost/label/labelpainter.h"

#include <algorithm>
#include <utility>

namespace SampleHost {

namespace {

/**
 * Reads records and caches the last one, for copies of a label. An unreadable record is cached,
 * too: with a locked database each attempt takes time, and windows are painted often.
 */
class RecordReader
{
public:
    RecordReader(std::shared_ptr<const RecordSource> source, const QString& problem)
        : m_source(std::move(source)), m_problem(problem)
    {
    }

    const Chemical* read(int record, QString& problem)
    {
        if (m_source != nullptr && record != m_record) {
            m_chemical = m_source->record(record - 1, &m_problem);
            m_record = record;
        }
        if (!m_chemical) {
            problem = m_problem;
            return nullptr;
        }
        return &*m_chemical;
    }

private:
    std::shared_ptr<const RecordSource> m_source;
    QString m_problem;
    std::optional<Chemical> m_chemical;
    int m_record = 0;
};

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
    return m_item ? tr("Catalogue item") : tr("Chemical labels");
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
    return [options = optionsOf(request), reader = RecordReader(m_source, m_sourceProblem)](
               QPainter& painter, const QRectF& area, int record, QString& problem) mutable {
        const Chemical* chemical = reader.read(record, problem);
        if (chemical == nullptr) {
            return false;
        }
        paintLabel(painter, area, *chemical, options);
        return true;
    };
}

} // namespace SampleHost
