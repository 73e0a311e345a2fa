// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef TESTS_CUPS_PAGEPICTURES_H
#define TESTS_CUPS_PAGEPICTURES_H

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtGui/QImage>

/**
 * What the pages of a PDF file look like. On its way through a printing system a text may turn into
 * shapes, which nothing can read any more but eyes.
 */
namespace PagePictures {

/** All pages of a file, in shades of grey; none when it cannot be read. */
QList<QImage> of(const QString& path);

/** The mean difference of two pictures' points, 0 to 255; 255 when their sizes differ by
 * more than a point. */
double difference(const QImage& a, const QImage& b);

/**
 * Which of the models each page is: indexes from 0, with blanks between. "?" stands for a page that
 * looks like none of them, or about as much like another one.
 */
QString recognised(const QList<QImage>& pages, const QList<QImage>& models);

} // namespace PagePictures

#endif
