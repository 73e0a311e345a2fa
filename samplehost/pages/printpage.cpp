// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/pages/printpage.h"

#include "samplehost/designs/labeldesign.h"
#include "samplehost/print/pageplan.h"
#include "samplehost/printing/labelpreview.h"

#include <printpanels/printwidget.h>

#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>

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

PageControls PrintPage::controls() const
{
    PageControls controls;
    controls.print = m_panel->findChild<QAbstractButton*>(QStringLiteral("PrintButton"));
    controls.preview = m_panel->findChild<QAbstractButton*>(QStringLiteral("PreviewButton"));
    controls.current = m_panel->findChild<QAbstractButton*>(QStringLiteral("currentRecordRadio"));
    controls.all = m_panel->findChild<QAbstractButton*>(QStringLiteral("allRecordsRadio"));
    controls.list = m_panel->findChild<QAbstractButton*>(QStringLiteral("recordListRadio"));
    controls.listEdit = m_panel->findChild<QLineEdit*>(QStringLiteral("recordListEdit"));
    controls.printers = m_panel->findChild<QComboBox*>(QStringLiteral("PrinterListCombo"));
    return controls;
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
