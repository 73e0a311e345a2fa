// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

// Takes the shapes from SVG files for a host that is built without Qt Svg:
//   svgshapes <folder of the answers> <file>...

#include "svgshapes.h"

#include <QtCore/QDir>
#include <QtCore/QSaveFile>
#include <QtGui/QGuiApplication>

#include <cstdio>

namespace {

bool convert(const QString& source, const QString& target)
{
    QFile svg(source);
    QSaveFile answer(target);
    if (!svg.open(QIODevice::ReadOnly) || !answer.open(QIODevice::WriteOnly)) {
        return false;
    }
    const QByteArray shapes = SampleHost::shapesOf(svg.readAll());
    return !shapes.isEmpty() && answer.write(shapes) == shapes.size() && answer.commit();
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 3) {
        return 1;
    }
    for (qsizetype i = 2; i < arguments.size(); ++i) {
        const QString& source = arguments.at(i);
        if (!convert(source, QDir(arguments.at(1)).filePath(QFileInfo(source).fileName()))) {
            std::fprintf(stderr, "%s cannot be converted.\n", qPrintable(source));
            return 1;
        }
    }
    return 0;
}
