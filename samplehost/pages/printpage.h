// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_PRINTPAGE_H
#define SAMPLEHOST_PRINTPAGE_H

#include "samplehost/pages/hostpage.h"
#include "samplehost/printing/printcontroller.h"

class PrintWidget;

namespace SampleHost {

class HostSettings;
class LabelDesign;
class LabelPreview;

/** A page with a print settings panel. */
class PrintPage : public HostPage
{
    Q_OBJECT

public:
    /** The panel. */
    PrintWidget& panel() const { return *m_panel; }

    PrintController& controller() const override { return *m_controller; }

    /** Shows what the panel is about to print. */
    LabelPreview& preview() const { return *m_preview; }

    PageControls controls() const override;
    qint64 pageCount() const override;

    /** What this page prints. */
    virtual const LabelDesign& design() const = 0;

protected:
    /** Creates the panel, with or without test controls. */
    PrintPage(bool testControls, QWidget* parent);

    /** Lays the page out and connects the panel. Called once by the constructor of a subclass. */
    void setUp(QWidget* contents, const LabelDesign& design, const HostSettings& settings);

private:
    PrintWidget* m_panel = nullptr;
    PrintController* m_controller = nullptr;
    LabelPreview* m_preview = nullptr;
};

} // namespace SampleHost

#endif
