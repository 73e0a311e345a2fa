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
    /** A design over a source, which may be null: then there are no records, and problem says why
     * in words for the user. */
    explicit ChemicalDesign(std::unique_ptr<RecordSource> source,
                            const QString& problem = QString());
    ~ChemicalDesign() override;

    /** Takes the records from another source. Painters keep the source they were made for. */
    void setSource(std::unique_ptr<RecordSource> source);

    /** The record that the host shows, 0-based; clamped to the records there are. */
    int currentIndex() const override { return m_currentIndex; }
    void setCurrentIndex(int index);

    /**
     * Whether the label takes its contents from the data source. An unbound label has the contents
     * that it shows now and no records to choose from.
     */
    bool isBound() const { return m_bound; }
    /** Binds the label, which ends what openItem() began, or keeps what it shows now. */
    void setBound(bool bound);

    /** Makes an unbound label of a catalogue item, of a size in millimetres. */
    void openItem(const CatalogItem& item, const QSizeF& sizeMm);
    /** Whether it is one. */
    bool hasItem() const { return m_item.has_value(); }

    /** The data source as a text for the user. */
    QString sourceDescription() const;

    QString title() const override;
    /** The number of records now; while they cannot be read, the number when they last could, so
     * that a choice among them stays until printing tells what is wrong. */
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
    // What an unbound label shows in place of the current record.
    std::optional<CatalogItem> m_item;
    QSizeF m_itemSizeMm;
};

} // namespace SampleHost

#endif
