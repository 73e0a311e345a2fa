// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/pages/hostpage.h"

#include "samplehost/pages/panelscroller.h"

#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QFrame>
#include <QtWidgets/QHBoxLayout>

namespace SampleHost {

HostPage::HostPage(QWidget* parent) : QWidget(parent) {}

HostPage::~HostPage() = default;

void HostPage::setUpLayout(QWidget* contents, QWidget* panel)
{
    // Created first, so that the panel comes first in the tab order.
    m_scroller = new PanelScroller(panel, this);
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

void HostPage::print()
{
    if (QAbstractButton* button = controls().print) {
        button->click();
    }
}

int HostPage::fullHeight() const
{
    return m_scroller != nullptr ? m_scroller->fullHeight() : 0;
}

} // namespace SampleHost
