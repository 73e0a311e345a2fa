// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_PRINTPAGE_H
#define SAMPLEHOST_PRINTPAGE_H

#include <QtWidgets/QWidget>

class PrintWidget;

namespace SampleHost {

class HostSettings;
class LabelDesign;
class LabelPreview;
class PanelScroller;
class PrintController;

/** A page of the host: contents on the left, a print panel of its own on the right. */
class PrintPage : public QWidget
{
    Q_OBJECT

public:
    /** The panel. */
    PrintWidget& panel() const { return *m_panel; }

    /** Carries out what the panel asks for. */
    PrintController& controller() const { return *m_controller; }

    /** Shows what the panel is about to print. */
    LabelPreview& preview() const { return *m_preview; }

    /** How many pages Print would print now; 0 when the panel's choice names nothing. */
    qint64 pageCount() const;

    /** The height at which the whole panel is seen. */
    int fullHeight() const;

    /** What this page prints. */
    virtual const LabelDesign& design() const = 0;

protected:
    /** Makes the panel, with test controls or without. */
    PrintPage(bool testControls, QWidget* parent);

    /** Puts contents and panel side by side and starts to answer the panel. Called once. */
    void setUp(QWidget* contents, const LabelDesign& design, const HostSettings& settings);

private:
    PrintWidget* m_panel = nullptr;
    PanelScroller* m_scroller = nullptr;
    PrintController* m_controller = nullptr;
    LabelPreview* m_preview = nullptr;
};

} // namespace SampleHost

#endif
