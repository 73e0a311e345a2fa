#include "samplehost/app/printpage.h"

#include "samplehost/app/panelscroller.h"
#include "samplehost/app/printcontroller.h"

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

int PrintPage::fullHeight() const
{
    return m_scroller->fullHeight();
}

} // namespace SampleHost
