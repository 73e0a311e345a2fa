// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SIZEDVIEW_H
#define SIZEDVIEW_H

#include "preview/previewview.h"
#include "referencecanvas.h"

/** A view of this size, not yet fitted to its image. */
class SizedView : public PrintPanels::PreviewView
{
public:
    explicit SizedView(const QSize& size, const QImage& image = targetImage())
        : PreviewView(image, QSize())
    {
        resize(size);
    }
};

/** A view of this size that shows its whole image. */
class FittedView : public SizedView
{
public:
    explicit FittedView(const QSize& size, const QImage& image = targetImage())
        : SizedView(size, image)
    {
        fitToView();
    }
};

#endif
