// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/pages/pipepage.h"

#include "samplehost/label/pipemarkerpainter.h"
#include "samplehost/pages/labelview.h"

#include <printpanels-hostkit/jxmoduleinfo.h>
#include <printpanels/printwidget.h>

#include <QtWidgets/QListWidget>
#include <QtWidgets/QVBoxLayout>

namespace SampleHost {

PipePage::PipePage(const HostSettings& settings, bool testControls, QWidget* parent)
    : PrintPage(testControls, parent)
{
    setUp(createContents(), m_design, settings);
    panel().setModule(JxModuleInfo::PipeMarking);
    // Needed before the first marker with tags is shown.
    panel().createAmmoniaComboList();
    connect(m_markers, &QListWidget::currentRowChanged, this, &PipePage::showMarker);
    connect(&panel(), &PrintWidget::ammoniaPrintTagChanged, this, &PipePage::showItem);
    panel().enableAllButtons();
    m_markers->setCurrentRow(0);
}

QWidget* PipePage::createContents()
{
    m_markers = new QListWidget;
    m_markers->setObjectName(QStringLiteral("markerList"));
    m_markers->setAccessibleName(tr("Pipe markers"));
    m_markers->setFrameShape(QFrame::NoFrame);
    m_markers->setSpacing(2);
    m_markers->setFixedHeight(250);
    for (const PipeMarker& marker : pipeMarkers()) {
        m_markers->addItem(marker.title());
    }
    m_view = new LabelView;
    m_view->setObjectName(QStringLiteral("markerView"));
    m_view->setAccessibleName(tr("Pipe marker"));
    auto* contents = new QWidget;
    auto* column = new QVBoxLayout(contents);
    column->addWidget(m_view, 1);
    column->addWidget(m_markers);
    return contents;
}

void PipePage::setCurrentMarker(int index)
{
    if (index >= 0 && index < m_markers->count()) {
        m_markers->setCurrentRow(index);
    }
}

void PipePage::showMarker(int index)
{
    if (index < 0) {
        return;
    }
    m_design.setCurrentIndex(index);
    // The panel selects the whole marker without a signal.
    m_design.setItem(PipeItem::Label);
    panel().setVisibleAmmoniaTag(m_design.currentMarker().tags);
    panel().updateCurrentRangeIndex(index);
    updateView();
}

void PipePage::showItem(int item)
{
    m_design.setItem(item);
    updateView();
}

void PipePage::updateView()
{
    const PipeMarker marker = m_design.currentMarker();
    const int item = m_design.item();
    m_view->setSheet(pipeMarkerSizeMm(marker, item),
                     [marker, item](QPainter& painter, const QRectF& paper) {
                         paintPipeMarker(painter, paper, marker, item);
                     });
}

} // namespace SampleHost
