// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef GALLERY_SAMPLEPICTURES_H
#define GALLERY_SAMPLEPICTURES_H

#include <QtGui/QImage>

namespace Gallery {

/// Renderings as a host makes them, without text, so that they are the same with every font.
/// @{
QImage sampleLabel(const QSize& size);
QImage samplePage();
/// @}

} // namespace Gallery

#endif
