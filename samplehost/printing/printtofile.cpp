// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/printing/printtofile.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>

namespace SampleHost {

namespace {

constexpr int lastNumber = 999;

QString explain(const char* text, const QString& path)
{
    return QCoreApplication::translate("SampleHost::PrintToFile", text)
        .arg(QDir::toNativeSeparators(path));
}

} // namespace

QString nextPrintTestFile(const QString& outputFolder, QString& problem)
{
    const QDir folder(QDir(outputFolder).filePath(QStringLiteral("guest/logs")));
    if (!folder.mkpath(QStringLiteral("."))) {
        problem = explain(
            QT_TRANSLATE_NOOP("SampleHost::PrintToFile",
                              "The folder \"%1\" cannot be made. Choose another output folder."),
            folder.path());
        return {};
    }
    for (int number = 1; number <= lastNumber; ++number) {
        const QString name =
            QStringLiteral("printTest_%1.prn").arg(number, 3, 10, QLatin1Char('0'));
        if (!folder.exists(name)) {
            return folder.filePath(name);
        }
    }
    problem = explain(QT_TRANSLATE_NOOP("SampleHost::PrintToFile",
                                        "The folder \"%1\" is full of test prints; remove some."),
                      folder.path());
    return {};
}

} // namespace SampleHost
