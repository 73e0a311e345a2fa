// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/pages/catalogpage.h"

#include "samplehost/designs/catalogsize.h"
#include "samplehost/designs/lengthunit.h"
#include "samplehost/designs/requestsheet.h"
#include "samplehost/label/catalogpainter.h"
#include "samplehost/pages/labelview.h"
#include "samplehost/printing/hostsettings.h"
#include "samplehost/printing/previewcanvas.h"

#include <printpanels-hostkit/jxmoduleinfo.h>
#include <printpanels/quickprintwidget.h>

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

#include <cmath>

namespace SampleHost {

namespace {

// The size of the panel's preview.
constexpr QRect previewPlace(0, 0, 200, 200);

// Half of the last decimal that the panel shows.
constexpr double shownTolerance = 0.005;

bool looksEqual(const QSizeF& a, const QSizeF& b)
{
    return std::abs(a.width() - b.width()) <= shownTolerance &&
           std::abs(a.height() - b.height()) <= shownTolerance;
}

} // namespace

CatalogPage::CatalogPage(const HostSettings& settings, QWidget* parent)
    : HostPage(parent), m_settings(settings), m_panel(new QuickPrintWidget(true, nullptr))
{
    m_controller = new PrintController(*m_panel, m_design, settings, this);
    // The panel would stretch its rows if it became as high as the page.
    auto* holder = new QWidget;
    auto* column = new QVBoxLayout(holder);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(m_panel);
    column->addStretch(1);
    setUpLayout(createContents(), holder);
    m_panel->setModule(JxModuleInfo::JxCatalog);
    m_canvas = new PreviewCanvas(*m_panel, previewPlace);
    connectPanel();
    connect(m_items, &QListWidget::currentRowChanged, this, &CatalogPage::selectItem);
    connect(&settings, &HostSettings::changed, this, &CatalogPage::showSize);
    connect(&settings, &HostSettings::printerChanged, this, &CatalogPage::showPrinter);
    showPrinter();
    m_items->setCurrentRow(0);
}

QWidget* CatalogPage::createContents()
{
    m_view = new LabelView;
    m_view->setObjectName(QStringLiteral("catalogView"));
    m_view->setAccessibleName(tr("Catalogue item"));
    m_message = new QLabel;
    m_message->setObjectName(QStringLiteral("catalogMessage"));
    m_message->setTextFormat(Qt::PlainText);
    m_message->setWordWrap(true);
    m_message->setAlignment(Qt::AlignCenter);
    m_message->setStyleSheet(QStringLiteral("color: #c8102e;"));
    m_items = new QListWidget;
    m_items->setObjectName(QStringLiteral("catalogList"));
    m_items->setAccessibleName(tr("Catalogue items"));
    m_items->setFrameShape(QFrame::NoFrame);
    m_items->setSpacing(2);
    m_items->setFixedHeight(250);
    for (const CatalogItem& item : catalogItems()) {
        m_items->addItem(item.header.isEmpty()
                             ? item.text
                             : item.header + QStringLiteral(" \u2013 ") + item.text);
    }
    auto* contents = new QWidget;
    auto* column = new QVBoxLayout(contents);
    column->addWidget(m_view, 1);
    column->addWidget(m_message);
    column->addWidget(createSizeRow());
    column->addWidget(m_panel->createSeparatorBar());
    column->addWidget(m_items);
    return contents;
}

QWidget* CatalogPage::createSizeRow()
{
    m_fixedSizeCheck = new QCheckBox(tr("Pre-cut labels"));
    m_fixedSizeCheck->setObjectName(QStringLiteral("fixedSizeCheck"));
    m_fixedSizeCheck->setToolTip(tr("The loaded labels have the listed size, so it is fixed"));
    m_listedSizeButton = new QPushButton(tr("Listed Size"));
    m_listedSizeButton->setObjectName(QStringLiteral("listedSizeButton"));
    m_listedSizeButton->setToolTip(tr("Back to the size in which the item is listed"));
    connect(m_fixedSizeCheck, &QCheckBox::toggled, this, &CatalogPage::applyStock);
    connect(m_listedSizeButton, &QPushButton::clicked, this, &CatalogPage::restoreSize);
    m_sizeLabel = new QLabel;
    m_sizeLabel->setObjectName(QStringLiteral("catalogSizeLabel"));
    auto* row = new QWidget;
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_fixedSizeCheck);
    layout->addStretch(1);
    layout->addWidget(m_sizeLabel);
    layout->addStretch(1);
    layout->addWidget(m_listedSizeButton);
    return row;
}

void CatalogPage::connectPanel()
{
    connect(m_panel, &QuickPrintWidget::resizeSignal, this, &CatalogPage::resizeItem);
    connect(m_panel, &QuickPrintWidget::widgetPrintSignal, this, &CatalogPage::showPendingSize);
    connect(m_panel, &QuickPrintWidget::openModuleSignal, this,
            [this] { Q_EMIT editorRequested(m_design.currentItem(), m_design.sizeMm()); });
    connect(m_canvas, &PreviewCanvas::fitChanged, this, &CatalogPage::showPreview);
}

void CatalogPage::setCurrentItem(int index)
{
    if (index >= 0 && index < m_items->count()) {
        m_items->setCurrentRow(index);
    }
}

void CatalogPage::selectItem(int index)
{
    if (index < 0) {
        m_panel->disableAllButtons();
        return;
    }
    m_design.setCurrentIndex(index);
    m_panel->updateCurrentRangeIndex(index);
    // The number was chosen for the previous item.
    m_panel->setNumberOfCopies(1);
    if (!m_controller->isPrinting()) {
        m_panel->enableAllButtons();
    }
    showItem();
}

void CatalogPage::applyStock(bool fixedSize)
{
    m_panel->setModule(fixedSize ? JxModuleInfo::QuickPrint : JxModuleInfo::JxCatalog);
    m_listedSizeButton->setEnabled(!fixedSize);
    restoreSize();
}

void CatalogPage::restoreSize()
{
    m_panel->setCanvasSize(
        LengthUnit::fromMm(m_design.currentItem().sizeMm, m_settings.isMetric()));
    m_panel->resizeSlot();
}

void CatalogPage::resizeItem(const QSizeF& canvasSize)
{
    const bool metric = m_settings.isMetric();
    const QString problem = CatalogSize::problem(canvasSize, metric);
    if (problem.isEmpty()) {
        // The fields show rounded values; unchanged ones stand for the exact size.
        if (!looksEqual(canvasSize, shownSize())) {
            m_design.setSizeMm(LengthUnit::toMm(canvasSize, metric));
        }
        showItem();
        return;
    }
    // The fields keep the text, so that the user can correct it.
    setMessage(problem);
    Q_EMIT sizeRefused(problem);
}

void CatalogPage::showPreview()
{
    PrintRequest request;
    m_design.complete(request);
    const ScreenFit& fit = m_canvas->fit();
    m_panel->updateQuickPrint(fit.picture(renderFirstSheet(m_design, request, fit.room())));
}

void CatalogPage::showItem()
{
    showPreview();
    m_view->setSheet(m_design.sizeMm(), [item = m_design.currentItem(), size = m_design.sizeMm()](
                                            QPainter& painter, const QRectF& paper) {
        paintCatalogItem(painter, paper, item, size);
    });
    showSize();
}

void CatalogPage::showSize()
{
    m_panel->setCanvasSize(shownSize());
    m_sizeLabel->setText(CatalogSize::text(shownSize(), m_settings.isMetric()));
    setMessage(QString());
}

void CatalogPage::showPrinter()
{
    m_panel->setCurrentPrinterName(m_settings.printer());
}

void CatalogPage::showPendingSize()
{
    if (!looksEqual(m_panel->getCanvasSize(), shownSize())) {
        setMessage(tr("Printed as shown, %1. Press Resize to use the size in the fields.")
                       .arg(CatalogSize::text(shownSize(), m_settings.isMetric())));
    }
}

void CatalogPage::setMessage(const QString& message)
{
    const bool cleared = message.isEmpty() && !m_message->text().isEmpty();
    m_message->setText(message);
    if (cleared) {
        Q_EMIT messageCleared();
    }
}

QString CatalogPage::message() const
{
    return m_message->text();
}

QSizeF CatalogPage::shownSize() const
{
    return LengthUnit::fromMm(m_design.sizeMm(), m_settings.isMetric());
}

PageControls CatalogPage::controls() const
{
    PageControls controls;
    controls.print = m_panel->findChild<QAbstractButton*>(QStringLiteral("printButton"));
    return controls;
}

} // namespace SampleHost
