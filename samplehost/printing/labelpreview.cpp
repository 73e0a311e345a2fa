// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/printing/labelpreview.h"

#include "samplehost/designs/labeldesign.h"
#include "samplehost/designs/lengthunit.h"
#include "samplehost/designs/requestsheet.h"
#include "samplehost/printing/hostsettings.h"
#include "samplehost/printing/previewcanvas.h"
#include "samplehost/printing/printcontroller.h"
#include "samplehost/printing/windowscroller.h"

#include <previewinput.h>
#include <printpanels/printpreviewdialog.h>

#include <QtGui/QShortcut>
#include <QtWidgets/QApplication>

namespace SampleHost {

namespace {

// The value of the popup's orientation signal for portrait.
constexpr int portraitOrientation = 1;

// Where the preview is in the popup.
constexpr QRect previewPlace(14, 53, 832, 381);

} // namespace

LabelPreview::LabelPreview(PrintController& controller, const LabelDesign& design,
                           const HostSettings& settings, QWidget& page)
    : QObject(&page), m_controller(controller), m_design(design), m_settings(settings), m_page(page)
{
    connect(&controller, &PrintController::previewRequested, this, &LabelPreview::open);
    connect(&controller, &PrintController::readinessChanged, this, &LabelPreview::showReadiness);
    connect(&settings, &HostSettings::changed, this, &LabelPreview::showUnit);
}

PrintPreviewDialog* LabelPreview::popup() const
{
    return m_popup;
}

void LabelPreview::dismiss()
{
    if (m_popup != nullptr && m_popup->isVisible()) {
        m_popup->close();
        restoreFocus();
    }
}

void LabelPreview::open(const PrintRequest& request)
{
    m_requested = request;
    m_portrait = isPortrait(sheetOf(m_design, request).sheetSizeMm());
    m_shown = request;
    if (m_popup == nullptr) {
        createPopup();
    }
    showRequest();
    showReadiness();
    if (!m_popup->isVisible()) {
        m_focusBefore = QApplication::focusWidget();
    }
    m_scroller->open();
}

void LabelPreview::createPopup()
{
    m_popup = new PrintPreviewDialog(
        m_page.window(), Qt::Dialog | Qt::FramelessWindowHint, QImage(), designSize(),
        printedSize(), !m_design.hasDesignSize(), m_portrait, m_settings.isMetric(),
        m_shown.sequenceStart, m_shown.sequenceEnd, m_shown.customRecordsList);
    m_canvas = new PreviewCanvas(*m_popup, previewPlace);
    m_popup->setWindowTitle(tr("Print Preview"));
    m_scroller = new WindowScroller(
        *m_popup, m_page, [popup = m_popup.data()](int x, int y) { popup->mouseMoveSlot(x, y); });
    addShortcuts();
    connectPopup();
    Q_EMIT popupCreated(m_popup);
}

void LabelPreview::addShortcuts()
{
    using Popup = PrintPreviewDialog;
    Popup* popup = m_popup;
    new PreviewInput(popup);
    m_printShortcut = new QShortcut(QKeySequence::Print, popup, popup, &Popup::print);
    // The popup emits its signal only if one of its own controls closes it.
    new QShortcut(QKeySequence(Qt::Key_Escape), popup, this, &LabelPreview::dismiss);
}

void LabelPreview::connectPopup()
{
    using Popup = PrintPreviewDialog;
    connect(m_popup, &Popup::previewPrintSignal, this, &LabelPreview::print);
    connect(m_popup, &Popup::orientationChangedSignal, this, &LabelPreview::turn);
    connect(m_popup, &Popup::popupHideSignal, this, &LabelPreview::restoreFocus);
    connect(m_canvas, &PreviewCanvas::fitChanged, this, &LabelPreview::showRequest);
}

void LabelPreview::showRequest()
{
    const ScreenFit& fit = m_canvas->fit();
    m_popup->updatePreview(fit.picture(renderFirstSheet(m_design, m_shown, fit.room())),
                           designSize(), printedSize(), !m_design.hasDesignSize(), m_portrait,
                           m_settings.isMetric(), m_shown.sequenceStart, m_shown.sequenceEnd,
                           m_shown.customRecordsList);
}

void LabelPreview::showUnit()
{
    // Only the title, so that the view keeps its zoom and position.
    if (m_popup != nullptr) {
        m_popup->setUpTitleBar(designSize(), printedSize(), !m_design.hasDesignSize(),
                               m_settings.isMetric());
    }
}

void LabelPreview::showReadiness()
{
    if (m_popup != nullptr) {
        const bool ready = m_controller.isReady();
        m_popup->enablePrintButton(ready);
        m_printShortcut->setEnabled(ready);
    }
}

void LabelPreview::turn(int orientation)
{
    m_portrait = orientation == portraitOrientation;
    m_shown = oriented(m_design, m_requested, m_portrait);
    showRequest();
}

void LabelPreview::print(int sequenceStart, int sequenceEnd, const QString& customRecordsList)
{
    PrintRequest request = m_shown;
    request.sequenceStart = sequenceStart;
    request.sequenceEnd = sequenceEnd;
    request.customRecordsList = customRecordsList;
    m_controller.printAgain(request);
}

void LabelPreview::restoreFocus()
{
    m_page.window()->activateWindow();
    QWidget* widget = m_focusBefore != nullptr ? m_focusBefore.data() : &m_page;
    widget->setFocus(Qt::PopupFocusReason);
}

QSizeF LabelPreview::designSize() const
{
    return LengthUnit::fromMm(m_design.labelSizeMm(m_requested), m_settings.isMetric());
}

QSizeF LabelPreview::printedSize() const
{
    return LengthUnit::fromMm(sheetOf(m_design, m_shown).sheetSizeMm(), m_settings.isMetric());
}

} // namespace SampleHost
