// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/pages/printpage.h"

#include "samplehost/designs/labeldesign.h"
#include "samplehost/pages/panelscroller.h"
#include "samplehost/print/pageplan.h"
#include "samplehost/printing/labelpreview.h"
#include "samplehost/printing/printcontroller.h"

#include <printpanels/printwidget.h>

#include <QtWidgets/QFrame>
#include <QtWidgets/QHBoxLayout>

namespace SampleHost {

PrintPage::PrintPage(bool testControls, QWidget* parent)
    : QWidget(parent), m_panel(new PrintWidget(testControls, nullptr))
{
    m_scroller = new PanelScroller(m_panel, this);
}

void PrintPage::setUp(QWidget* contents, const LabelDesign& design, const HostSettings& settings)
{
    m_controller = new PrintController(*m_panel, design, settings, this);
    m_preview = new LabelPreview(*m_controller, design, settings, *this);
    auto* border = new QFrame;
    border->setFrameShape(QFrame::VLine);
    border->setForegroundRole(QPalette::Mid);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addWidget(contents, 1);
    row->addWidget(border);
    row->addWidget(m_scroller);
}

qint64 PrintPage::pageCount() const
{
    int sequenceStart = design().currentIndex() + 1;
    int sequenceEnd = -1;
    QString customRecordsList;
    m_panel->whatToPrint(sequenceStart, sequenceEnd, customRecordsList);
    const PrintRequest request =
        m_controller->request(sequenceStart, sequenceEnd, customRecordsList);
    return PagePlan::make(request, design().recordCount()).pageCount();
}

int PrintPage::fullHeight() const
{
    return m_scroller->fullHeight();
}

} // namespace SampleHost
