// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "preview/accessiblepreview.h"

#include "preview/previewview.h"

namespace PrintPanels {

AccessiblePreview::AccessiblePreview(PreviewView* view)
    : QAccessibleWidget(view, QAccessible::Graphic)
{
}

// A name or a description that a host sets goes first.
QString AccessiblePreview::text(QAccessible::Text type) const
{
    const QString text = QAccessibleWidget::text(type);
    if (!text.isEmpty())
        return text;
    if (type == QAccessible::Name)
        return tr("Preview", "Name of the picture of a label or page for screen readers.");
    return type == QAccessible::Description ? description() : QString();
}

QString AccessiblePreview::description() const
{
    // Null while the widget is destroyed, when a screen reader may still ask.
    const auto* view = dynamic_cast<PreviewView*>(object());
    const QSize size = view != nullptr ? view->imageSize() : QSize();
    if (size.isEmpty())
        return tr("No picture", "Description of an empty preview for screen readers.");
    return tr("%1 x %2 pixels, shown at %3%",
              "Description of the preview for screen readers: width, height and scale.")
        .arg(QString::number(size.width()), QString::number(size.height()),
             QString::number(view->zoom() * 100, 'f', 0));
}

} // namespace PrintPanels
