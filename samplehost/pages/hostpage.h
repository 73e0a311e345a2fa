// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_HOSTPAGE_H
#define SAMPLEHOST_HOSTPAGE_H

#include "samplehost/pages/pagecontrols.h"

#include <QtWidgets/QWidget>

namespace SampleHost {

class JobController;
class PanelScroller;

/** A page of the window, with the operations that the window calls on the current page. */
class HostPage : public QWidget
{
    Q_OBJECT

public:
    ~HostPage() override;

    /** Runs the print jobs of this page. */
    virtual JobController& controller() const = 0;

    /** The page's own controls for printing. */
    virtual PageControls controls() const = 0;

    /** Prints, as the page's own Print button does. */
    void print();

    /** The number of pages that print() would print now; -1 if the page cannot tell. */
    virtual qint64 pageCount() const { return -1; }

    /** The height at which the whole panel is visible; 0 for a page without a panel. */
    int fullHeight() const;

protected:
    explicit HostPage(QWidget* parent);

    /** Puts contents on the left and a panel on the right. Called once at most. */
    void setUpLayout(QWidget* contents, QWidget* panel);

private:
    PanelScroller* m_scroller = nullptr;
};

} // namespace SampleHost

#endif
