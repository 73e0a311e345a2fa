// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/support/pdfoutput.h"

#include <QtGui/QPainter>
#include <QtPdf/QPdfDocument>
#include <QtPdf/QPdfSelection>
#include <QtTest/QSignalSpy>

namespace PdfOutput {

using SampleHost::PrintJob;

namespace {

constexpr int pixelsInPoint = 4;

bool isInk(QRgb pixel)
{
    return qGray(pixel) < 200;
}

} // namespace

End run(PrintJob& job)
{
    QSignalSpy finished(&job, &PrintJob::finished);
    job.start();
    End end;
    end.ended = finished.wait(60000);
    if (end.ended) {
        end.outcome = finished.at(0).at(0).value<PrintJob::Outcome>();
        end.message = finished.at(0).at(1).toString();
    }
    return end;
}

bool completes(PrintJob& job)
{
    const End end = run(job);
    return end.ended && end.outcome == PrintJob::Outcome::Completed && end.message.isEmpty();
}

QStringList texts(const QString& path)
{
    QPdfDocument document;
    QStringList texts;
    if (document.load(path) == QPdfDocument::Error::None) {
        for (int page = 0; page < document.pageCount(); ++page) {
            texts.append(document.getAllText(page).text().simplified());
        }
    }
    return texts;
}

QSizeF pageSize(const QString& path, int page0)
{
    QPdfDocument document;
    const bool loaded = document.load(path) == QPdfDocument::Error::None;
    return loaded ? document.pagePointSize(page0) : QSizeF();
}

QImage picture(const QString& path, int page0)
{
    QPdfDocument document;
    if (document.load(path) != QPdfDocument::Error::None || page0 >= document.pageCount()) {
        return QImage();
    }
    const QSize size = (document.pagePointSize(page0) * pixelsInPoint).toSize();
    const QImage drawn = document.render(page0, size);
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter(&image).drawImage(0, 0, drawn);
    return image;
}

QRectF ink(const QString& path, int page0)
{
    const QImage image = picture(path, page0);
    QRect bounds;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (isInk(image.pixel(x, y))) {
                bounds |= QRect(x, y, 1, 1);
            }
        }
    }
    return QRectF(QPointF(bounds.topLeft()) / pixelsInPoint, QSizeF(bounds.size()) / pixelsInPoint);
}

bool agree(const QRectF& a, const QRectF& b)
{
    return qAbs(a.left() - b.left()) < 1 && qAbs(a.top() - b.top()) < 1 &&
           qAbs(a.right() - b.right()) < 1 && qAbs(a.bottom() - b.bottom()) < 1;
}

QByteArray described(const QRectF& rect)
{
    return QByteArray::number(rect.left()) + ", " + QByteArray::number(rect.top()) + " to " +
           QByteArray::number(rect.right()) + ", " + QByteArray::number(rect.bottom());
}

} // namespace PdfOutput
