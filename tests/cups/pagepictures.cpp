// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "cups/pagepictures.h"

#include <QtCore/QStringList>
#include <QtGui/QPainter>
#include <QtPdf/QPdfDocument>

#include <cstdlib>

namespace PagePictures {

namespace {

// The same shapes, drawn from another program's PDF file, differ at their edges, by less than 2
// even on a small page that was painted dot by dot. What looks least like another page is still six
// times nearer to its own model.
constexpr double same = 2;
constexpr double nearer = 4;

QImage picture(QPdfDocument& document, int page)
{
    const QSize size = document.pagePointSize(page).toSize();
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter(&image).drawImage(0, 0, document.render(page, size));
    return image.convertToFormat(QImage::Format_Grayscale8);
}

} // namespace

QList<QImage> of(const QString& path)
{
    QPdfDocument document;
    QList<QImage> pictures;
    if (document.load(path) == QPdfDocument::Error::None) {
        for (int page = 0; page < document.pageCount(); ++page) {
            pictures.append(picture(document, page));
        }
    }
    return pictures;
}

double difference(const QImage& a, const QImage& b)
{
    // A paper's size may be rounded to the next point on the way.
    const QSize misfit = a.size() - b.size();
    if (a.isNull() || b.isNull() || qAbs(misfit.width()) > 1 || qAbs(misfit.height()) > 1) {
        return 255;
    }
    const QSize common = a.size().boundedTo(b.size());
    qint64 sum = 0;
    for (int y = 0; y < common.height(); ++y) {
        const uchar* lineA = a.constScanLine(y);
        const uchar* lineB = b.constScanLine(y);
        for (int x = 0; x < common.width(); ++x) {
            sum += std::abs(int(lineA[x]) - int(lineB[x]));
        }
    }
    return double(sum) / (double(common.width()) * common.height());
}

QString recognised(const QList<QImage>& pages, const QList<QImage>& models)
{
    QStringList found;
    for (const QImage& page : pages) {
        qsizetype best = -1;
        double bestDifference = 255;
        double nextDifference = 255;
        for (qsizetype i = 0; i < models.size(); ++i) {
            const double now = difference(page, models.at(i));
            if (now < bestDifference) {
                nextDifference = bestDifference;
                bestDifference = now;
                best = i;
            } else if (now < nextDifference) {
                nextDifference = now;
            }
        }
        const bool clear = bestDifference < same && nextDifference > nearer * bestDifference;
        found.append(clear ? QString::number(best) : QStringLiteral("?"));
    }
    return found.join(QLatin1Char(' '));
}

} // namespace PagePictures
