#include "samplehost/app/chemicaldesign.h"

#include "samplehost/label/labelpainter.h"

#include <algorithm>
#include <utility>

namespace SampleHost {

namespace {

/** Reads records one after the other; copies of the same label are read once. */
class RecordReader
{
public:
    explicit RecordReader(const RecordSource* source) : m_source(source) {}

    const Chemical* read(int record, QString& problem)
    {
        if (m_source != nullptr && record != m_record) {
            m_chemical = m_source->record(record - 1, &problem);
            m_record = record;
        }
        return m_chemical ? &*m_chemical : nullptr;
    }

private:
    const RecordSource* m_source;
    std::optional<Chemical> m_chemical;
    int m_record = 0;
};

} // namespace

ChemicalDesign::ChemicalDesign(std::unique_ptr<RecordSource> source) : m_source(std::move(source))
{
}

ChemicalDesign::~ChemicalDesign() = default;

void ChemicalDesign::setCurrentIndex(int index)
{
    m_currentIndex = std::clamp(index, 0, std::max(0, recordCount() - 1));
}

QString ChemicalDesign::sourceDescription() const
{
    return m_source ? m_source->description() : tr("no data source");
}

QString ChemicalDesign::title() const
{
    return tr("Chemical labels");
}

int ChemicalDesign::recordCount() const
{
    return m_source ? m_source->count() : 0;
}

void ChemicalDesign::complete(PrintRequest& request) const
{
    if (!m_bound) {
        request.sequenceStart = m_currentIndex + 1;
        request.sequenceEnd = -1;
        request.customRecordsList.clear();
    }
}

QSizeF ChemicalDesign::labelSizeMm(const PrintRequest& request) const
{
    LabelOptions options;
    options.userBackground = request.userBackground;
    return SampleHost::labelSizeMm(options);
}

LabelPainter ChemicalDesign::painter(const PrintRequest& request) const
{
    LabelOptions options;
    options.userBackground = request.userBackground;
    return [options, reader = RecordReader(m_source.get())](QPainter& painter, const QRectF& area,
                                                            int record, QString& problem) mutable {
        const Chemical* chemical = reader.read(record, problem);
        if (chemical == nullptr) {
            return false;
        }
        paintLabel(painter, area, *chemical, options);
        return true;
    };
}

} // namespace SampleHost
