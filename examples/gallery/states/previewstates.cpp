// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "panelstate.h"
#include "samplepictures.h"

#include <printpanels/printpreviewdialog.h>

#include <QtCore/QCoreApplication>
#include <QtGui/QMouseEvent>

namespace Gallery {

namespace {

constexpr QSize landscape(600, 300);
constexpr QSizeF inches(4.0, 2.0);
constexpr QSizeF printedInches(3.75, 1.875);
constexpr QSizeF millimetres(101.6, 50.8);

PrintPreviewDialog* createPopup(const QImage& image, const QSizeF& size, const QSizeF& printed,
                                bool portrait, bool metric)
{
    const bool printedSizeOnly = size == printed;
    return new PrintPreviewDialog(nullptr, Qt::FramelessWindowHint, image, size, printed,
                                  printedSizeOnly, portrait, metric, 1, -1, QString());
}

PrintPreviewDialog* createLandscapePopup()
{
    return createPopup(sampleLabel(landscape), inches, printedInches, false, false);
}

QWidget* createLandscape()
{
    return createLandscapePopup();
}

QWidget* createPortrait()
{
    return createPopup(sampleLabel(landscape.transposed()), inches.transposed(),
                       printedInches.transposed(), true, false);
}

QWidget* createMetric()
{
    return createPopup(sampleLabel(landscape), millimetres, millimetres * 0.9, false, true);
}

QWidget* createPrintedSizeOnly()
{
    return createPopup(sampleLabel(landscape), inches, inches, false, false);
}

QWidget* createPrintDisabled()
{
    PrintPreviewDialog* popup = createLandscapePopup();
    popup->enablePrintButton(false);
    return popup;
}

QWidget* createNoImage()
{
    return createPopup(QImage(), inches, printedInches, false, false);
}

void zoomIn(QWidget& popup)
{
    for (int i = 0; i < 4; ++i)
        click(popup, "zoomInButton");
}

void zoomOut(QWidget& popup)
{
    click(popup, "zoomOutButton");
}

void sendMouse(QWidget* view, QEvent::Type type, const QPointF& position)
{
    const bool moves = type == QEvent::MouseMove;
    const bool released = type == QEvent::MouseButtonRelease;
    QMouseEvent event(type, position, view->mapToGlobal(position),
                      moves ? Qt::NoButton : Qt::LeftButton,
                      released ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(view, &event);
}

void drag(QWidget& popup)
{
    zoomIn(popup);
    auto* view = popup.findChild<QWidget*>(QStringLiteral("PreviewView"));
    if (view == nullptr)
        return;
    const QPointF start(view->rect().center());
    const QPointF end = start + QPointF(120, 60);
    sendMouse(view, QEvent::MouseButtonPress, start);
    sendMouse(view, QEvent::MouseMove, end);
    sendMouse(view, QEvent::MouseButtonRelease, end);
}

void tabToPrint(QWidget& popup)
{
    tabTo(popup, "printButton");
}

constexpr char panelClass[] = "PrintPreviewDialog";

} // namespace

QList<PanelState> previewStates()
{
    return {
        {panelClass, "preview-landscape", "Landscape",
         "The sizes of the label as designed and as printed, in inches with two decimals.",
         createLandscape},
        {panelClass, "preview-portrait", "Portrait",
         "The host rendered the label again and called updatePreview().", createPortrait},
        {panelClass, "preview-metric", "Millimetres", "Sizes in millimetres have no decimals.",
         createMetric},
        {panelClass, "preview-printed-size", "Printed size only",
         "The title leaves the design size out.", createPrintedSizeOnly},
        {panelClass, "preview-print-disabled", "Print disabled", "enablePrintButton(false).",
         createPrintDisabled},
        {panelClass, "preview-zoomed", "Zoomed in", "Four steps of a tenth each.", createLandscape,
         zoomIn},
        {panelClass, "preview-zoomed-out", "Zoomed out", "One step below the fit, and no further.",
         createLandscape, zoomOut},
        {panelClass, "preview-panned", "Dragged", "The user dragged the enlarged label.",
         createLandscape, drag},
        {panelClass, "preview-no-image", "No image", "A null image shows nothing.", createNoImage},
        {panelClass, "preview-focus", "Keyboard focus", "The Tab key has reached Print.",
         createLandscape, tabToPrint},
    };
}

} // namespace Gallery
