// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_REQUESTSHEET_H
#define SAMPLEHOST_REQUESTSHEET_H

#include "samplehost/print/printrequest.h"
#include "samplehost/print/sheetgeometry.h"

#include <QtGui/QImage>

namespace SampleHost {

class LabelDesign;

/** The sheet that the labels of a request are printed on. */
SheetGeometry sheetOf(const LabelDesign& design, const PrintRequest& request);

/** Whether a size is higher than wide, or a square. */
bool isPortrait(const QSizeF& size);

/**
 * An unturned request, changed for a sheet in the given orientation. Paper is turned without its
 * labels; a sheet as large as its labels is turned with them, and rows and columns are exchanged.
 */
PrintRequest oriented(const LabelDesign& design, const PrintRequest& request, bool portrait);

/**
 * The first sheet of a request as an image that fits into maximumSize (pixels). If it cannot be
 * painted, the image and problem, unless null, say why. Null only if maximumSize is empty.
 */
QImage renderFirstSheet(const LabelDesign& design, const PrintRequest& request,
                        const QSize& maximumSize, QString* problem = nullptr);

} // namespace SampleHost

#endif
