// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/printing/pdfpreview.h"

#include "samplehost/pdf/pdfdocument.h"
#include "samplehost/pdf/pdfprinting.h"
#include "samplehost/printing/hostsettings.h"
#include "samplehost/printing/previewcanvas.h"
#include "samplehost/printing/printerdirectory.h"
#include "samplehost/printing/windowscroller.h"

#include <previewinput.h>
#include <printpanels-hostkit/jxmoduleinfo.h>
#include <printpanels/multipageprintdialog.h>
#include <printpanels/multipageprintwidget.h>

#include <QtCore/QFileInfo>
#include <QtGui/QShortcut>

#include <functional>
#include <utility>

namespace SampleHost {

namespace {

constexpr bool fitAtStart = true;
// Where the preview is in the window.
constexpr QRect previewPlace(304, 73, 682, 453);

} // namespace

PdfPreview::PdfPreview(HostSettings& settings, const PrinterDirectory& printers, QWidget* parent)
    : QObject(parent), m_settings(settings), m_printers(printers)
{
    m_options.fitToPage = fitAtStart;
    m_panel = new MultiPagePrintWidget(fitAtStart, false, nullptr);
    m_panel->setModule(JxModuleInfo::PDFViewer);
    m_dialog = new MultiPagePrintDialog(m_panel, parent, Qt::FramelessWindowHint | Qt::Dialog);
    m_canvas = new PreviewCanvas(*m_dialog, previewPlace);
    connect(m_canvas, &PreviewCanvas::fitChanged, this, &PdfPreview::updateImage);
    m_scroller = new WindowScroller(*m_dialog, *parent,
                                    [this](int x, int y) { m_dialog->mouseMoveSlot(x, y); });
    connectPanel();
    connectOptions();
    addShortcuts();
    connect(&settings, &HostSettings::changed, this, &PdfPreview::updateImage);
    fillPrinters();
    setDocument(nullptr);
}

void PdfPreview::connectPanel()
{
    using Panel = MultiPagePrintWidget;
    connect(m_panel, &Panel::startPageChangedSignal, this, &PdfPreview::showPage);
    connect(m_panel, &Panel::openPreferencesSignal, this, &PdfPreview::preferencesRequested);
    connect(m_panel, &Panel::currentPrinterSelectionChanged, this, &PdfPreview::choosePrinter);
    connect(&m_settings, &HostSettings::printerChanged, m_panel, &Panel::setSelectedPrinter);
    connect(m_panel, &Panel::focusLost, this, &PdfPreview::normalizeCopies);
    // The available printers may have changed while the window was hidden.
    connect(m_panel, &Panel::printWidgetShowSignal, this, &PdfPreview::fillPrinters);
}

void PdfPreview::connectOptions()
{
    using Panel = MultiPagePrintWidget;
    const auto follow = [this](void (Panel::*changed)(int), bool PdfPrintRequest::*option) {
        connect(m_panel, changed, this, [this, option](int state) {
            m_options.*option = state == Qt::Checked;
            updateImage();
        });
    };
    follow(&Panel::fitToPageChangedSignal, &PdfPrintRequest::fitToPage);
    follow(&Panel::orientationChangedSignal, &PdfPrintRequest::rotated180);
    follow(&Panel::printFormFillChangedSignal, &PdfPrintRequest::formFillOnly);
}

void PdfPreview::addShortcuts()
{
    new PreviewInput(m_dialog, [this] { updateImage(); });
    const auto add = [this](const QKeySequence& keys, const std::function<void()>& act) {
        connect(new QShortcut(keys, m_dialog), &QShortcut::activated, this, act);
    };
    add(Qt::Key_PageUp, [this] { turnTo(m_shownPage - 1); });
    add(Qt::Key_PageDown, [this] { turnTo(m_shownPage + 1); });
    add(Qt::CTRL | Qt::Key_Home, [this] { turnTo(1); });
    add(Qt::CTRL | Qt::Key_End, [this] { turnTo(m_document ? m_document->pageCount() : 1); });
    add(Qt::ALT | Qt::Key_Plus, [this] { m_panel->increaseCopyCount(); });
    add(Qt::ALT | Qt::Key_Minus, [this] { m_panel->decreaseCopyCount(); });
    add(QKeySequence::Print, [this] {
        if (canPrint()) {
            m_panel->printSlot();
        }
    });
}

void PdfPreview::setDocument(std::shared_ptr<const PdfDocument> document)
{
    m_document = std::move(document);
    const bool any = m_document != nullptr;
    m_options.rotated180 = false;
    m_options.formFillOnly = false;
    m_panel->set180OrientationCheck(false);
    m_panel->set180OrientationVisible(any);
    m_panel->setFormFillOption(any && m_document->hasFormFields(), false);
    m_panel->setNumberOfCopies(1);
    if (any) {
        m_panel->enableAllButtons();
        m_panel->setPageInfo(1, m_document->pageCount(), true);
        // Enables the list, which is disabled without a document.
        m_panel->recordsRadioChangedSlot();
    } else {
        m_panel->disableAllButtons();
        m_panel->setPageInfo(1, 1, false);
        m_dialog->hide();
    }
}

PdfPrintRequest PdfPreview::request() const
{
    PdfPrintRequest request = m_options;
    request.paperMm = paperSizeMm(m_settings.paper());
    request.copies = m_panel->getNumberOfCopies();
    return request;
}

void PdfPreview::setPageIndex(int index)
{
    m_panel->updateCurrentRangeIndex(index);
}

void PdfPreview::setPrinting(bool printing)
{
    m_printing = printing;
    updateButtons();
}

void PdfPreview::show()
{
    if (!m_document) {
        return;
    }
    const bool opens = !m_dialog->isVisible();
    m_scroller->open();
    if (opens) {
        // The host may show another page by now.
        m_panel->checkRangeUpdate(true);
    }
}

// The current page follows. A choice of other pages stays as it is, so the page is only looked at.
void PdfPreview::turnTo(int page)
{
    if (!m_document || m_shownPage < 1 || page < 1 || page > m_document->pageCount()) {
        return;
    }
    m_panel->updateCurrentRangeIndex(page - 1);
    if (m_shownPage != page) {
        showPage(page);
    }
}

void PdfPreview::showPage(int page)
{
    m_shownPage = page;
    updateImage();
    updateTitle();
    updateButtons();
    if (m_document && page > 0) {
        Q_EMIT pageRequested(page - 1);
    }
}

void PdfPreview::updateImage()
{
    // Rendering while the window is hidden would only slow the host down.
    if (m_dialog->isVisible()) {
        const ScreenFit& fit = m_canvas->fit();
        const bool any = m_document && m_shownPage > 0;
        m_dialog->setPreviewImage(
            any ? fit.picture(previewPdfSheet(*m_document, request(), m_shownPage - 1, fit.room()))
                : QImage());
    }
}

QString PdfPreview::problem() const
{
    if (!m_document) {
        return tr("no document is open");
    }
    if (!m_document->allowsPrinting()) {
        return tr("the author of the document does not allow it");
    }
    return m_shownPage > 0 ? QString()
                           : tr("the list names none of the %1 pages").arg(m_document->pageCount());
}

void PdfPreview::updateTitle()
{
    if (!m_document) {
        m_dialog->setTitle(QString());
        return;
    }
    const QString name = QFileInfo(m_document->path()).fileName();
    if (problem().isEmpty()) {
        m_dialog->setTitle(
            tr("%1 - page %2 of %3")
                .arg(name, QString::number(m_shownPage), QString::number(m_document->pageCount())));
        Q_EMIT problemSolved();
    } else {
        m_dialog->setTitle(tr("%1 - cannot be printed: %2").arg(name, problem()));
        Q_EMIT problemFound(tr("%1 cannot be printed: %2.").arg(name, problem()));
    }
}

bool PdfPreview::canPrint() const
{
    return problem().isEmpty() && !m_printing;
}

void PdfPreview::updateButtons()
{
    if (canPrint()) {
        m_panel->enablePrintButtons();
    } else {
        m_panel->disablePrintButtons();
    }
}

void PdfPreview::fillPrinters()
{
    const QStringList names = m_printers.names();
    m_panel->updateListOfPrinters(names, 0);
    if (names.contains(m_settings.printer())) {
        m_panel->setSelectedPrinter(m_settings.printer());
    } else if (!m_settings.printer().isEmpty()) {
        // The selected printer is gone, so all pages use the first one.
        m_panel->currentPrinterSelectionChangedSlot(0);
    }
}

void PdfPreview::choosePrinter(const QString& name)
{
    m_settings.setPrinter(name);
    const PrinterState state = m_printers.state(name);
    const QString place =
        state.location.isEmpty() ? name : name + QStringLiteral(": ") + state.location;
    Q_EMIT statusChanged(state.unavailable ? tr("%1 (unavailable)").arg(place) : place);
}

void PdfPreview::normalizeCopies()
{
    // Shows the number that an invalid text stands for.
    m_panel->setNumberOfCopies(m_panel->getNumberOfCopies());
}

} // namespace SampleHost
