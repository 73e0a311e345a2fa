// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_MULTIPAGEPRINTDIALOG_P_H
#define PRINTPANELS_MULTIPAGEPRINTDIALOG_P_H

#include <printpanels/multipageprintdialog.h>

#include <QtCore/QPointer>
#include <QtGui/QImage>

class ContainerTitleBar;
class QFrame;

namespace PrintPanels {

class PreviewView;

/** What a MultiPagePrintDialog consists of. */
class MultiPagePrintDialogPrivate
{
    Q_DISABLE_COPY_MOVE(MultiPagePrintDialogPrivate)

public:
    MultiPagePrintDialogPrivate(MultiPagePrintDialog* dialog, QWidget* settingsPanel);

    void createDialogLayout();

    ContainerTitleBar* titleBar = nullptr;
    QPointer<QWidget> panel;
    PreviewView* preview = nullptr;
    /** Shown while there is no page. */
    QImage placeholder;

private:
    QFrame* createPreviewFrame();

    MultiPagePrintDialog* const q;
};

} // namespace PrintPanels

#endif
