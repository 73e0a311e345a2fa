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

/** Whether something of this size stands upright; a square does. */
bool isPortrait(const QSizeF& size);

/**
 * A request as it has to be for a sheet in the given orientation, from one that is not turned yet.
 * Paper is turned under its labels; a sheet without paper is turned with them, rows and columns
 * exchanged.
 */
PrintRequest oriented(const LabelDesign& design, const PrintRequest& request, bool portrait);

/**
 * The first sheet of a request as a picture that fits into room (pixels). What cannot be painted is
 * explained in the picture, and in problem unless that is null. Null only for a room without
 * pixels.
 */
QImage renderFirstSheet(const LabelDesign& design, const PrintRequest& request, const QSize& room,
                        QString* problem = nullptr);

} // namespace SampleHost

#endif
