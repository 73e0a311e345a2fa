// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include <printpanels/printpreviewdialog.h>

#include "foundation/widgets/windowposition.h"
#include "preview/previewview.h"
#include "preview/printpreviewdialog_p.h"

#include <printpanels/sharedconstants.h>

#include <QtWidgets/QPushButton>

// The shared text is initialised first, because its header stands above.
const QString PrintPreviewDialog::ORIENTATION_TIP = SharedConstants::orientationToolTip;

PrintPreviewDialog::PrintPreviewDialog(QWidget* parent, Qt::WindowFlags flags, const QImage& image,
                                       const QSizeF& designSize, const QSizeF& printedSize,
                                       bool printedSizeOnly, bool portrait, bool metric,
                                       int sequenceStart, int sequenceEnd,
                                       const QString& recordList)
    : QWidget(parent, flags), d(std::make_unique<PrintPanels::PrintPreviewDialogPrivate>(this))
{
    d->setRange(sequenceStart, sequenceEnd, recordList);
    setObjectName(QStringLiteral("PrintPreviewDialog"));
    hide();
    d->createTitleBar();
    setUpTitleBar(designSize, printedSize, printedSizeOnly, metric);
    d->createContents(image, portrait);
}

// Children emit while they are destroyed. A handler would then call a popup that is partly
// destroyed.
PrintPreviewDialog::~PrintPreviewDialog()
{
    blockSignals(true);
}

void PrintPreviewDialog::updatePreview(const QImage& image, const QSizeF& designSize,
                                       const QSizeF& printedSize, bool printedSizeOnly,
                                       bool portrait, bool metric, int sequenceStart,
                                       int sequenceEnd, const QString& recordList)
{
    d->preview->setImage(image);
    d->setPortrait(portrait);
    d->setRange(sequenceStart, sequenceEnd, recordList);
    setUpTitleBar(designSize, printedSize, printedSizeOnly, metric);
}

void PrintPreviewDialog::setUpTitleBar(const QSizeF& designSize, const QSizeF& printedSize,
                                       bool printedSizeOnly, bool metric)
{
    d->setTitle(designSize, printedSize, printedSizeOnly, metric);
}

void PrintPreviewDialog::enablePrintButton(bool state)
{
    d->printButton->setEnabled(state);
}

void PrintPreviewDialog::print()
{
    // A copy: a handler may set a new range or delete the popup while the signal is delivered.
    const QString records = d->recordList;
    Q_EMIT previewPrintSignal(d->sequenceStart, d->sequenceEnd, records);
}

void PrintPreviewDialog::zoomIn()
{
    d->preview->zoomIn();
}

void PrintPreviewDialog::zoomOut()
{
    d->preview->zoomOut();
}

void PrintPreviewDialog::zoomFit()
{
    d->preview->resetZoom();
}

void PrintPreviewDialog::mouseMoveSlot(int x, int y)
{
    PrintPanels::moveWindow(this, x, y);
}
