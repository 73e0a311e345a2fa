// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

// A library that brings the panels with it when it is loaded, and takes them away.
#include <printpanels/printpreviewdialog.h>

#include <QtCore/QSizeF>
#include <QtCore/QString>
#include <QtGui/QAccessible>
#include <QtGui/QImage>

/** The role of the preview in a popup that lives only for this question. */
extern "C" Q_DECL_EXPORT int previewRole()
{
    const PrintPreviewDialog popup(nullptr, Qt::FramelessWindowHint, QImage(), QSizeF(), QSizeF(),
                                   true, true, true, 1, 1, QString());
    auto* view = popup.findChild<QWidget*>(QStringLiteral("PreviewView"));
    return QAccessible::queryAccessibleInterface(view)->role();
}
