// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_PIPEPAGE_H
#define SAMPLEHOST_PIPEPAGE_H

#include "samplehost/designs/pipedesign.h"
#include "samplehost/pages/printpage.h"

class QListWidget;

namespace SampleHost {

class LabelView;

/** The page of pipe markers. The tags of ammonia markers can be printed separately. */
class PipePage : public PrintPage
{
    Q_OBJECT

public:
    PipePage(const HostSettings& settings, bool testControls, QWidget* parent = nullptr);

    const PipeDesign& design() const override { return m_design; }

    /** Selects a marker, 0-based; an index without a marker changes nothing. */
    void setCurrentMarker(int index);

private:
    QWidget* createContents();
    void showMarker(int index);
    void showItem(int item);
    void updateView();

    PipeDesign m_design;
    QListWidget* m_markers = nullptr;
    LabelView* m_view = nullptr;
};

} // namespace SampleHost

#endif
