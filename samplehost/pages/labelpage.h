// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_LABELPAGE_H
#define SAMPLEHOST_LABELPAGE_H

#include "samplehost/designs/chemicaldesign.h"
#include "samplehost/pages/printpage.h"

#include <memory>

namespace SampleHost {

class LabelTypeBar;
class LabelView;
class RecordNavigator;

/** The page of GHS labels: the label of the current record, and a panel that prints the records. */
class LabelPage : public PrintPage
{
    Q_OBJECT

public:
    /** A page that prints the records of a design. */
    LabelPage(std::unique_ptr<ChemicalDesign> design, HostSettings& settings, bool testControls,
              QWidget* parent = nullptr);

    const ChemicalDesign& design() const override { return *m_design; }

    /**
     * Shows a catalogue item, in a size in millimetres, instead of the records until the user binds
     * the label to the data source again.
     */
    void openItem(const CatalogItem& item, const QSizeF& sizeMm);

    /** Takes the records from another source. The choices in the panel stay. */
    void setSource(std::unique_ptr<RecordSource> source);

    /** Chooses the current record. */
    RecordNavigator& navigator() const { return *m_navigator; }

private:
    QWidget* createContents(HostSettings& settings);
    void showRecord(int index);
    void applyLabelType();
    void applyUserBackground();
    void updateButtons();
    void updateView();

    std::unique_ptr<ChemicalDesign> m_design;
    HostSettings& m_settings;
    LabelTypeBar* m_typeBar = nullptr;
    LabelView* m_view = nullptr;
    RecordNavigator* m_navigator = nullptr;
    bool m_hadBackground = false;
};

} // namespace SampleHost

#endif
