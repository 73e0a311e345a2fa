// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/pages/panelscroller.h"

#include <QtCore/QEvent>
#include <QtWidgets/QScrollBar>

#include <algorithm>

namespace SampleHost {

namespace {

// Enough for every panel in every language, so that the column is the same on all pages.
constexpr int usualPanelWidth = 336;

} // namespace

PanelScroller::PanelScroller(QWidget* panel, QWidget* parent) : QScrollArea(parent)
{
    setAccessibleName(tr("Print settings"));
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setWidgetResizable(true);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    setWidget(panel);
    panel->installEventFilter(this);
    updatePanelSize();
}

void PanelScroller::updatePanelSize()
{
    // The panel keeps its width when a section that is wider goes, and with or without scroll bar.
    m_panelWidth = std::max({m_panelWidth, usualPanelWidth, widget()->sizeHint().width()});
    widget()->setFixedWidth(m_panelWidth);
    // Otherwise the panel's rows would be squeezed before the panel is scrolled.
    widget()->setMinimumHeight(fullHeight());
    updateGeometry();
}

int PanelScroller::columnWidth() const
{
    return m_panelWidth + verticalScrollBar()->sizeHint().width();
}

QSize PanelScroller::sizeHint() const
{
    return {columnWidth(), fullHeight()};
}

QSize PanelScroller::minimumSizeHint() const
{
    return {columnWidth(), 200};
}

int PanelScroller::fullHeight() const
{
    return widget()->sizeHint().height();
}

bool PanelScroller::eventFilter(QObject* watched, QEvent* event)
{
    // A section of the panel was shown or hidden.
    if (event->type() == QEvent::LayoutRequest) {
        updatePanelSize();
    }
    return QScrollArea::eventFilter(watched, event);
}

} // namespace SampleHost
