// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_CHEMICALDESIGN_H
#define SAMPLEHOST_CHEMICALDESIGN_H

#include "samplehost/data/recordsource.h"
#include "samplehost/designs/labeldesign.h"
#include "samplehost/label/catalogitem.h"

#include <QtCore/QCoreApplication>

#include <memory>
#include <optional>

namespace SampleHost {

/** A GHS label bound to a data source of chemicals, one label for each record. */
class ChemicalDesign : public LabelDesign
{
    Q_DECLARE_TR_FUNCTIONS(ChemicalDesign)

public:
    /** A design for a source. Without one there are no records, and problem says why. */
    explicit ChemicalDesign(std::unique_ptr<RecordSource> source,
                            const QString& problem = QString());

    /** Takes the records from another source. Existing painters keep theirs. */
    void setSource(std::unique_ptr<RecordSource> source);

    /** The current record, 0-based; clamped to the existing records. */
    int currentIndex() const override { return m_currentIndex; }
    void setCurrentIndex(int index);

    /**
     * Whether the label shows the records of the data source. An unbound label shows one record or
     * catalogue item, without a choice.
     */
    bool isBound() const { return m_bound; }
    /** Binds the label, which closes an item, or unbinds it with its current record. */
    void setBound(bool bound);

    /** Shows a catalogue item, in a size in millimetres, as an unbound label. */
    void openItem(const CatalogItem& item, const QSizeF& sizeMm);
    /** Whether it shows a catalogue item. */
    bool hasItem() const { return m_item.has_value(); }

    /** A description of the data source for the user. */
    QString sourceDescription() const;

    QString title() const override;
    /** The current number of records, or the last known one while they cannot be read, so that the
     * user's choice stays. */
    int recordCount() const override;
    void complete(PrintRequest& request) const override;
    QSizeF labelSizeMm(const PrintRequest& request) const override;
    LabelPainter painter(const PrintRequest& request) const override;

private:
    std::shared_ptr<RecordSource> m_source;
    QString m_sourceProblem;
    mutable int m_knownCount = 0;
    int m_currentIndex = 0;
    bool m_bound = true;
    // The catalogue item that is shown instead of a record.
    std::optional<CatalogItem> m_item;
    QSizeF m_itemSizeMm;
};

} // namespace SampleHost

#endif
