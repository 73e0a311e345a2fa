// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PDFOUTPUT_H
#define PDFOUTPUT_H

#include "samplehost/print/printjob.h"

#include <QtCore/QRectF>
#include <QtCore/QStringList>
#include <QtGui/QImage>

/** Runs print jobs and looks at the files that come out. */
namespace PdfOutput {

/** How a job ended. */
struct End
{
    /** Whether it ended at all. */
    bool ended = false;
    SampleHost::PrintJob::Outcome outcome = SampleHost::PrintJob::Outcome::Failed;
    QString message;
};

/** Starts a job and waits for its end. */
End run(SampleHost::PrintJob& job);

/** Whether a job completes. */
bool completes(SampleHost::PrintJob& job);

/** The text of every page, as words with single blanks; empty when the file cannot be opened. */
QStringList texts(const QString& path);

/** The size of a page in points; empty when there is none. */
QSizeF pageSize(const QString& path, int page0 = 0);

/** A page with a pixel for each quarter of a point, on white; null when there is none. */
QImage picture(const QString& path, int page0 = 0);

/** The place of everything that is not white on a page, in points from its top left corner. */
QRectF ink(const QString& path, int page0 = 0);

/** Whether two rectangles agree to within a point. */
bool agree(const QRectF& a, const QRectF& b);

/** The numbers in points, for the message of a test that fails. */
QByteArray described(const QRectF& rect);

} // namespace PdfOutput

#endif
