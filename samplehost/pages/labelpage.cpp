// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/pages/labelpage.h"

#include "samplehost/pages/labeltypebar.h"
#include "samplehost/pages/labelview.h"
#include "samplehost/pages/recordnavigator.h"
#include "samplehost/printing/hostsettings.h"
#include "samplehost/printing/labelpreview.h"

#include <printpanels-hostkit/jxmoduleinfo.h>
#include <printpanels/printwidget.h>

#include <QtWidgets/QVBoxLayout>

#include <algorithm>
#include <utility>

namespace SampleHost {

LabelPage::LabelPage(std::unique_ptr<ChemicalDesign> design, HostSettings& settings,
                     bool testControls, QWidget* parent)
    : PrintPage(testControls, parent), m_design(std::move(design)), m_settings(settings)
{
    setUp(createContents(settings), *m_design, settings);
    panel().setModule(JxModuleInfo::GHS);
    connect(m_navigator, &RecordNavigator::currentIndexChanged, this, &LabelPage::showRecord);
    connect(m_typeBar, &LabelTypeBar::changed, this, &LabelPage::applyLabelType);
    connect(&settings, &HostSettings::changed, this, &LabelPage::applyLabelType);
    m_navigator->setCount(m_design->recordCount());
    applyLabelType();
}

QWidget* LabelPage::createContents(HostSettings& settings)
{
    m_typeBar = new LabelTypeBar(settings);
    m_view = new LabelView;
    m_view->setObjectName(QStringLiteral("labelView"));
    m_view->setAccessibleName(tr("Label"));
    m_navigator = new RecordNavigator;
    m_navigator->setObjectName(QStringLiteral("recordNavigator"));
    auto* contents = new QWidget;
    auto* column = new QVBoxLayout(contents);
    column->addWidget(m_typeBar);
    column->addWidget(m_view, 1);
    column->addWidget(m_navigator);
    return contents;
}

void LabelPage::showRecord(int index)
{
    m_design->setCurrentIndex(index);
    panel().updateCurrentRangeIndex(m_design->currentIndex());
    updateView();
}

void LabelPage::setSource(std::unique_ptr<RecordSource> source)
{
    m_design->setSource(std::move(source));
    m_navigator->setCount(m_design->recordCount());
    m_design->setCurrentIndex(m_navigator->currentIndex());
    applyLabelType();
}

void LabelPage::openItem(const CatalogItem& item, const QSizeF& sizeMm)
{
    preview().dismiss();
    m_design->openItem(item, sizeMm);
    m_typeBar->setBound(false);
    applyLabelType();
}

void LabelPage::applyLabelType()
{
    if (m_design->hasItem() && m_typeBar->isBound()) {
        preview().dismiss();
    }
    m_design->setBound(m_typeBar->isBound());
    const int count = m_design->recordCount();
    // Whether a list stands for one record or several depends on how many there are.
    panel().listRangeParse();
    const bool choosable = m_design->isBound() && count > 0;
    m_navigator->setEnabled(choosable);
    panel().setRangeValues(m_design->currentIndex(), std::max(0, count - 1), choosable);
    panel().setNupSeqRepVisible(m_settings.nup().labelsPerPage() > 1);
    panel().setNupDynamicLength(m_typeBar->isDynamicLength());
    applyUserBackground();
    updateButtons();
    updateView();
}

void LabelPage::updateButtons()
{
    if (controller().isPrinting()) {
        return;
    }
    if (m_design->recordCount() > 0) {
        panel().enableAllButtons();
    } else {
        panel().disableAllButtons();
    }
}

void LabelPage::applyUserBackground()
{
    const bool has = m_typeBar->hasUserBackground();
    if (has != m_hadBackground) {
        m_hadBackground = has;
        panel().setShowUserBackground(has);
        // A new layer is printed by default.
        panel().setPrintUserBackground(has);
    }
}

void LabelPage::updateView()
{
    PrintRequest shown;
    shown.sequenceStart = m_design->currentIndex() + 1;
    shown.userBackground = m_typeBar->hasUserBackground();
    m_view->setSheet(m_design->labelSizeMm(shown),
                     [paintLabel = m_design->painter(shown),
                      record = shown.sequenceStart](QPainter& painter, const QRectF& paper) {
                         QString problem;
                         if (!paintLabel(painter, paper, record, problem)) {
                             // The paper is white with dark windows, too.
                             painter.setPen(Qt::black);
                             painter.drawText(paper, Qt::AlignCenter | Qt::TextWordWrap, problem);
                         }
                     });
}

} // namespace SampleHost
