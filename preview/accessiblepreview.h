// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_ACCESSIBLEPREVIEW_H
#define PRINTPANELS_ACCESSIBLEPREVIEW_H

#include <QtCore/QCoreApplication>
#include <QtWidgets/QAccessibleWidget>

namespace PrintPanels {

class PreviewView;

/** The accessible interface of a canvas: a picture with its size and scale. */
class AccessiblePreview : public QAccessibleWidget
{
    Q_DECLARE_TR_FUNCTIONS(PreviewView)

public:
    explicit AccessiblePreview(PreviewView* view);

    QString text(QAccessible::Text type) const override;

private:
    QString description() const;
};

} // namespace PrintPanels

#endif
