// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include <printpanels/multipageprintdialog.h>

#include "foundation/hostkit.h"
#include "foundation/stylesheets.h"
#include "foundation/widgets/focusring.h"
#include "foundation/widgets/lightpalette.h"
#include "foundation/widgets/windowposition.h"
#include "multipage/multipageprintdialog_p.h"
#include "preview/previewview.h"

#include <printpanels/sharedconstants.h>

#include <QtWidgets/QFrame>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QVBoxLayout>

namespace PrintPanels {

namespace {

QImage createPlaceholder()
{
    QImage page(60, 40, QImage::Format_ARGB32_Premultiplied);
    page.fill(SharedConstants::whiteRgb);
    return page;
}

} // namespace

MultiPagePrintDialogPrivate::MultiPagePrintDialogPrivate(MultiPagePrintDialog* dialog,
                                                         QWidget* settingsPanel)
    : panel(settingsPanel), q(dialog)
{
}

void MultiPagePrintDialogPrivate::createDialogLayout()
{
    titleBar = new ContainerTitleBar(nullptr, QString(), QString(), 14);
    placeholder = createPlaceholder();
    QFrame* previewFrame = createPreviewFrame();
    auto* row = new QHBoxLayout;
    row->setContentsMargins(10, 10, 10, 0);
    if (panel)
        row->addWidget(panel);
    row->addWidget(previewFrame);

    auto* column = new QVBoxLayout(q);
    column->setSpacing(10);
    column->addWidget(titleBar);
    column->addLayout(row);
    new FocusRing(q); // for a panel that has none of its own

    QObject::connect(titleBar, SIGNAL(closeButtonClicked()), q, SLOT(close()));
    QObject::connect(titleBar, SIGNAL(signalMove(int, int)), q, SLOT(mouseMoveSlot(int, int)));
}

QFrame* MultiPagePrintDialogPrivate::createPreviewFrame()
{
    auto* frame = new QFrame;
    frame->setObjectName(QStringLiteral("previewFrame"));
    frame->setStyleSheet(StyleSheets::previewFrame());
    preview = new PreviewView(placeholder, QSize(750, 450));
    auto* layout = new QVBoxLayout(frame);
    layout->setSpacing(0);
    layout->setContentsMargins(1, 1, 1, 1);
    layout->addWidget(preview);
    return frame;
}

} // namespace PrintPanels

MultiPagePrintDialog::MultiPagePrintDialog(QWidget* panel, QWidget* parent, Qt::WindowFlags flags)
    : QDialog(parent, flags),
      d(std::make_unique<PrintPanels::MultiPagePrintDialogPrivate>(this, panel))
{
    setObjectName(QStringLiteral("MultiPagePrintDialog"));
    setWindowTitle(tr("Preview and Print", "Window title"));
    setFixedSize(1010, 540);
    hide();
    // The owner keeps the dialog and may show it again.
    setAttribute(Qt::WA_DeleteOnClose, false);
    setAttribute(Qt::WA_QuitOnClose, false);
    setStyleSheet(StyleSheets::multiPageDialogFrame());
    PrintPanels::setLightPalette(this);
    d->createDialogLayout();
}

// The settings panel is destroyed after the dialog's own part, and loses the focus before that.
MultiPagePrintDialog::~MultiPagePrintDialog()
{
    blockSignals(true);
    if (d->panel && isAncestorOf(d->panel))
        d->panel->blockSignals(true);
}

void MultiPagePrintDialog::setPreviewImage(const QImage& image)
{
    d->preview->setImage(image.isNull() ? d->placeholder : image);
}

void MultiPagePrintDialog::setTitle(const QString& title)
{
    d->titleBar->setTitle(title);
}

void MultiPagePrintDialog::mouseMoveSlot(int x, int y)
{
    PrintPanels::moveWindow(this, x, y);
}
