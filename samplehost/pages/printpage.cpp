// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/pages/printpage.h"

#include "samplehost/designs/labeldesign.h"
#include "samplehost/print/pageplan.h"
#include "samplehost/printing/labelpreview.h"

#include <printpanels/printwidget.h>

#include <QtWidgets/QAbstractButton>

namespace SampleHost {

PrintPage::PrintPage(bool testControls, QWidget* parent)
    : HostPage(parent), m_panel(new PrintWidget(testControls, nullptr))
{
}

void PrintPage::setUp(QWidget* contents, const LabelDesign& design, const HostSettings& settings)
{
    m_controller = new PrintController(*m_panel, design, settings, this);
    m_preview = new LabelPreview(*m_controller, design, settings, *this);
    setUpLayout(contents, m_panel);
}

void PrintPage::clickPanelButton(const char* name)
{
    if (auto* button = m_panel->findChild<QAbstractButton*>(QLatin1String(name))) {
        button->click();
    }
}

void PrintPage::print()
{
    clickPanelButton("PrintButton");
}

void PrintPage::showPreview()
{
    clickPanelButton("PreviewButton");
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

} // namespace SampleHost
