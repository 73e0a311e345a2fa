// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PNGFILE_H
#define PNGFILE_H

#include <QtGui/QImage>

/**
 * Saves an opaque picture and its texts as PNG, in a file a quarter smaller than QImage::save()
 * makes: few colours get a table, and lines are not filtered, which does not suit text. Creates the
 * folder.
 */
bool savePng(const QImage& picture, const QString& file);

#endif
