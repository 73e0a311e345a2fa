// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include <printpanels/multipageprintdialog.h>

#include "foundation/hostkit.h"
#include "foundation/panelparts.h"
#include "foundation/stylesheets.h"
#include "preview/previewview.h"

#include <printpanels/sharedconstants.h>

#include <QtWidgets/QFrame>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QVBoxLayout>

using PrintPanels::PreviewView;

namespace {

QImage createPlaceholder()
{
    QImage page(60, 40, QImage::Format_ARGB32_Premultiplied);
    page.fill(SharedConstants::whiteRgb);
    return page;
}

} // namespace

MultiPagePrintDialog::MultiPagePrintDialog(QWidget* settingsPanel, QWidget* parent,
                                           Qt::WindowFlags flags)
    : QDialog(parent, flags), panel(settingsPanel)
{
    setObjectName(QStringLiteral("MultiPagePrintDialog"));
    setWindowTitle(tr("Preview and Print", "Window title"));
    setFixedSize(1010, 540);
    hide();
    // The owner keeps the dialog and may show it again.
    setAttribute(Qt::WA_DeleteOnClose, false);
    setAttribute(Qt::WA_QuitOnClose, false);
    setStyleSheet(StyleSheets::multiPageDialogFrame());

    titleBar = new ContainerTitleBar(nullptr, QString(), QString(), 14);
    placeholder = createPlaceholder();
    createDialogLayout();

    connect(titleBar, SIGNAL(closeButtonClicked()), this, SLOT(close()));
    connect(titleBar, SIGNAL(signalMove(int, int)), this, SLOT(mouseMoveSlot(int, int)));
}

// The settings panel loses the focus before its own end comes.
MultiPagePrintDialog::~MultiPagePrintDialog()
{
    blockSignals(true);
    if (panel && isAncestorOf(panel))
        panel->blockSignals(true);
}

QFrame* MultiPagePrintDialog::createPreviewFrame()
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

void MultiPagePrintDialog::createDialogLayout()
{
    QFrame* previewFrame = createPreviewFrame();
    auto* row = new QHBoxLayout;
    row->setContentsMargins(10, 10, 10, 0);
    if (panel)
        row->addWidget(panel);
    row->addWidget(previewFrame);

    auto* column = new QVBoxLayout(this);
    column->setSpacing(10);
    column->addWidget(titleBar);
    column->addLayout(row);
}

void MultiPagePrintDialog::setPreviewImage(const QImage& image)
{
    preview->setImage(image.isNull() ? placeholder : image);
}

void MultiPagePrintDialog::setTitle(const QString& title)
{
    titleBar->setTitle(title);
}

void MultiPagePrintDialog::mouseMoveSlot(int x, int y)
{
    PrintPanels::moveWindow(this, x, y);
}
