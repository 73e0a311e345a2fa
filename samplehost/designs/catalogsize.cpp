// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/designs/catalogsize.h"

#include "samplehost/designs/lengthunit.h"

#include <QtCore/QCoreApplication>

#include <cmath>

namespace SampleHost::CatalogSize {

namespace {

struct Side
{
    const char* unreadable;
    const char* tooShort;
    const char* tooLong;
    double maximumMm;
};

constexpr Side length{
    QT_TRANSLATE_NOOP("SampleHost::CatalogSize", "The length has to be a number greater than 0."),
    QT_TRANSLATE_NOOP("SampleHost::CatalogSize",
                      "A length of %1 is too short to be printed; the least is %2."),
    QT_TRANSLATE_NOOP("SampleHost::CatalogSize",
                      "A length of %1 is too long to be printed; the greatest is %2."),
    maximumLengthMm};
constexpr Side width{
    QT_TRANSLATE_NOOP("SampleHost::CatalogSize", "The width has to be a number greater than 0."),
    QT_TRANSLATE_NOOP("SampleHost::CatalogSize",
                      "A width of %1 is too narrow to be printed; the least is %2."),
    QT_TRANSLATE_NOOP("SampleHost::CatalogSize",
                      "A width of %1 is too wide to be printed; the greatest is %2."),
    maximumWidthMm};

// Rounding to the two decimals that are shown must not make a valid size invalid.
constexpr double tolerance = 0.005;

QString tr(const char* text)
{
    return QCoreApplication::translate("SampleHost::CatalogSize", text);
}

QString unit(bool metric)
{
    return metric ? QStringLiteral(" mm") : QStringLiteral(" in");
}

double inUnit(double mm, bool metric)
{
    return LengthUnit::fromMm(QSizeF(mm, mm), metric).width();
}

QString sideProblem(const Side& side, double value, bool metric)
{
    if (!std::isfinite(value) || value <= 0) {
        return tr(side.unreadable);
    }
    const double least = inUnit(minimumMm, metric);
    const double greatest = inUnit(side.maximumMm, metric);
    const auto written = [metric](double number) {
        return QString::number(number, 'g', 6) + unit(metric);
    };
    if (value < least - tolerance) {
        return tr(side.tooShort).arg(written(value), QString::number(least, 'f', 2) + unit(metric));
    }
    if (value > greatest + tolerance) {
        return tr(side.tooLong)
            .arg(written(value), QString::number(greatest, 'f', 2) + unit(metric));
    }
    return {};
}

} // namespace

QString problem(const QSizeF& size, bool metric)
{
    const QString lengthProblem = sideProblem(length, size.width(), metric);
    return lengthProblem.isEmpty() ? sideProblem(width, size.height(), metric) : lengthProblem;
}

QString text(const QSizeF& size, bool metric)
{
    return QStringLiteral("%1 x %2%3")
        .arg(QString::number(size.width(), 'f', 2), QString::number(size.height(), 'f', 2),
             unit(metric));
}

} // namespace SampleHost::CatalogSize
