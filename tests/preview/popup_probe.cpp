// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

// A library that brings the panels with it when it is loaded.
#include <containertitlebar.h>
#include <printpanels/printpreviewdialog.h>

#include <QtCore/QSizeF>
#include <QtCore/QString>
#include <QtGui/QImage>

extern "C" Q_DECL_EXPORT void orientationTip(QString* tip)
{
    *tip = PrintPreviewDialog::ORIENTATION_TIP;
}

/** The title of a popup for a design of 4 by 2 that is printed as 3 by 1. */
extern "C" Q_DECL_EXPORT void popupTitle(bool printedSizeOnly, bool metric, QString* title)
{
    const PrintPreviewDialog popup(nullptr, Qt::FramelessWindowHint, QImage(), QSizeF(4, 2),
                                   QSizeF(3, 1), printedSizeOnly, true, metric, 1, 1, QString());
    *title = popup.findChild<ContainerTitleBar*>()->title();
}
