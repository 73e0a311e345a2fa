// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/pages/pdfpage.h"

#include "samplehost/pages/labelview.h"
#include "samplehost/pages/recordnavigator.h"
#include "samplehost/pdf/units.h"
#include "samplehost/printing/hostsettings.h"
#include "samplehost/printing/pdfpreview.h"

#include <printpanels/multipageprintwidget.h>

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QMimeData>
#include <QtCore/QSignalBlocker>
#include <QtGui/QDragEnterEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QStackedWidget>
#include <QtWidgets/QVBoxLayout>

#include <utility>

namespace SampleHost {

namespace {

/** The dragged file; empty if there are several. */
QString draggedFile(const QMimeData& data)
{
    const QList<QUrl> urls = data.urls();
    return urls.size() == 1 ? urls.constFirst().toLocalFile() : QString();
}

} // namespace

PdfPage::PdfPage(HostSettings& settings, const PrinterDirectory& printers, QWidget* parent)
    : HostPage(parent), m_settings(settings)
{
    setObjectName(QStringLiteral("pdfPage"));
    setAcceptDrops(true);
    createContents();
    m_preview = new PdfPreview(settings, printers, this);
    m_controller = new PdfPrintController(*m_preview, settings, this);
    connect(m_preview, &PdfPreview::pageRequested, m_navigator, &RecordNavigator::setCurrentIndex);
    connect(m_navigator, &RecordNavigator::currentIndexChanged, this, &PdfPage::showPage);
    setDocument(nullptr);
}

QWidget* PdfPage::createBar()
{
    auto* openButton = new QPushButton(tr("Open..."));
    openButton->setObjectName(QStringLiteral("openDocumentButton"));
    m_nameLabel = new QLabel;
    m_nameLabel->setObjectName(QStringLiteral("documentNameLabel"));
    m_nameLabel->setTextFormat(Qt::PlainText);
    m_nameLabel->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_printButton = new QPushButton(tr("Preview and Print..."));
    m_printButton->setObjectName(QStringLiteral("documentPrintButton"));
    auto* bar = new QWidget;
    auto* row = new QHBoxLayout(bar);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(openButton);
    row->addSpacing(6);
    row->addWidget(m_nameLabel, 1);
    row->addWidget(m_printButton);
    connect(openButton, &QPushButton::clicked, this, &PdfPage::chooseFile);
    connect(m_printButton, &QPushButton::clicked, this, &PdfPage::showPrintWindow);
    return bar;
}

void PdfPage::createContents()
{
    auto* column = new QVBoxLayout(this);
    column->addWidget(createBar());
    auto* placeholder = new QLabel(tr("Open a PDF document, or drop one here."));
    placeholder->setAlignment(Qt::AlignCenter);
    placeholder->setEnabled(false);
    m_view = new LabelView;
    m_view->setObjectName(QStringLiteral("documentView"));
    m_view->setAccessibleName(tr("Page of the document"));
    m_stack = new QStackedWidget;
    m_stack->addWidget(placeholder);
    m_stack->addWidget(m_view);
    column->addWidget(m_stack, 1);
    m_navigator = new RecordNavigator(RecordNavigator::Items::Pages);
    m_navigator->setObjectName(QStringLiteral("documentNavigator"));
    column->addWidget(m_navigator);
}

void PdfPage::addActions(QMenu& menu)
{
    menu.addAction(tr("&Open Document..."), QKeySequence::Open, this, &PdfPage::chooseFile);
    QAction* recent = menu.addAction(QString());
    recent->setObjectName(QStringLiteral("recentDocumentAction"));
    connect(recent, &QAction::triggered, this, [this] { open(m_settings.recentDocument()); });
    connect(&menu, &QMenu::aboutToShow, this, [this, recent] { showRecentDocument(*recent); });
    showRecentDocument(*recent);
}

void PdfPage::showRecentDocument(QAction& action)
{
    const QString path = m_settings.recentDocument();
    // Ampersands in the name do not mark a shortcut.
    const QString name = QFileInfo(path).fileName().replace(QLatin1Char('&'), QLatin1String("&&"));
    action.setText(path.isEmpty() ? tr("Open &Recent Document") : tr("Open &Recent: %1").arg(name));
    action.setEnabled(!path.isEmpty());
}

bool PdfPage::open(const QString& path)
{
    m_problem.clear();
    auto document = std::make_shared<PdfDocument>();
    if (!document->open(path, m_problem)) {
        Q_EMIT openFailed(m_problem);
        return false;
    }
    m_settings.setRecentDocument(path);
    setDocument(std::move(document));
    Q_EMIT opened(path);
    return true;
}

void PdfPage::setDocument(std::shared_ptr<PdfDocument> document)
{
    m_document = std::move(document);
    m_imageIndex = -1;
    const bool any = m_document != nullptr;
    m_settings.setOpenDocument(any ? m_document->path() : QString());
    m_nameLabel->setText(any ? QFileInfo(m_document->path()).fileName() : QString());
    m_nameLabel->setToolTip(any ? QDir::toNativeSeparators(m_document->path()) : QString());
    m_printButton->setEnabled(any);
    m_stack->setCurrentIndex(any ? 1 : 0);
    m_controller->setDocument(m_document);
    {
        const QSignalBlocker blocker(m_navigator);
        m_navigator->setCurrentIndex(0);
        m_navigator->setCount(any ? m_document->pageCount() : 0);
    }
    // A list in the panel may start at another page than the first.
    m_preview->setDocument(m_document);
    showPage(m_navigator->currentIndex());
}

void PdfPage::showPage(int index)
{
    if (!m_document) {
        return;
    }
    m_view->setSheet(m_document->pageSize(index) / pointsPerMm,
                     [this](QPainter& painter, const QRectF& paper) { paintPage(painter, paper); });
    m_preview->setPageIndex(index);
}

void PdfPage::paintPage(QPainter& painter, const QRectF& paper)
{
    const int index = m_navigator->currentIndex();
    const QSize pixels = (paper.size() * painter.device()->devicePixelRatioF()).toSize();
    if (index != m_imageIndex || pixels != m_image.size()) {
        m_image = m_document->render(index, pixels);
        m_imageIndex = index;
    }
    painter.drawImage(paper, m_image);
}

void PdfPage::chooseFile()
{
    const QFileInfo recent(m_settings.recentDocument());
    const bool known = recent.isAbsolute() && recent.absoluteDir().exists();
    auto* dialog =
        new QFileDialog(this, tr("Open Document"), known ? recent.absolutePath() : QDir::homePath(),
                        tr("PDF documents (*.pdf);;All files (*)"));
    dialog->setObjectName(QStringLiteral("openDocumentDialog"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::ExistingFile);
    connect(dialog, &QFileDialog::fileSelected, this, &PdfPage::open);
    dialog->open();
}

PageControls PdfPage::controls() const
{
    const MultiPagePrintWidget& panel = m_preview->panel();
    PageControls controls;
    controls.print = m_printButton;
    controls.preview = m_printButton;
    controls.current = panel.findChild<QAbstractButton*>(QStringLiteral("currentPageRadio"));
    controls.all = panel.findChild<QAbstractButton*>(QStringLiteral("allPagesRadio"));
    controls.list = panel.findChild<QAbstractButton*>(QStringLiteral("selectionRadio"));
    controls.listEdit = panel.findChild<QLineEdit*>(QStringLiteral("pageListEdit"));
    controls.printers = panel.findChild<QComboBox*>(QStringLiteral("PrinterListCombo"));
    return controls;
}

void PdfPage::showPrintWindow()
{
    m_preview->show();
}

void PdfPage::dragEnterEvent(QDragEnterEvent* event)
{
    if (!draggedFile(*event->mimeData()).isEmpty()) {
        event->acceptProposedAction();
    }
}

void PdfPage::dropEvent(QDropEvent* event)
{
    const QString path = draggedFile(*event->mimeData());
    if (!path.isEmpty()) {
        event->acceptProposedAction();
        open(path);
    }
}

} // namespace SampleHost
