// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/pages/panelscroller.h"

#include <QtCore/QEvent>
#include <QtWidgets/QScrollBar>

namespace SampleHost {

PanelScroller::PanelScroller(QWidget* panel, QWidget* parent) : QScrollArea(parent)
{
    setAccessibleName(tr("Print settings"));
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setWidgetResizable(true);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    setWidget(panel);
    panel->installEventFilter(this);
    updateMinimumHeight();
}

void PanelScroller::updateMinimumHeight()
{
    // Otherwise the panel's rows would be squeezed before the panel is scrolled.
    widget()->setMinimumHeight(fullHeight());
    updateGeometry();
}

int PanelScroller::panelWidth() const
{
    return widget()->sizeHint().width() + verticalScrollBar()->sizeHint().width();
}

QSize PanelScroller::sizeHint() const
{
    return {panelWidth(), fullHeight()};
}

QSize PanelScroller::minimumSizeHint() const
{
    return {panelWidth(), 200};
}

int PanelScroller::fullHeight() const
{
    return widget()->sizeHint().height();
}

bool PanelScroller::eventFilter(QObject* watched, QEvent* event)
{
    // A section of the panel was shown or hidden.
    if (event->type() == QEvent::LayoutRequest) {
        updateMinimumHeight();
    }
    return QScrollArea::eventFilter(watched, event);
}

} // namespace SampleHost
