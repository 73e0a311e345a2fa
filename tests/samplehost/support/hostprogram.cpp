// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/support/hostprogram.h"

#include <QtCore/QOperatingSystemVersion>
#include <QtCore/QProcess>

namespace {

/** A text that the program wrote. Windows ends lines with two characters. */
QString decoded(const QByteArray& text)
{
    return QString::fromLocal8Bit(text).replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

} // namespace

HostProgram::HostProgram(const QString& folder)
    : environment(QProcessEnvironment::systemEnvironment()), m_folder(folder)
{
    // Windows always has a display; the platform of the tests is used there.
    if (QOperatingSystemVersion::currentType() != QOperatingSystemVersion::Windows) {
        for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
            environment.remove(QString::fromLatin1(name));
        }
    }
    environment.insert(QStringLiteral("HOME"), folder);
}

int HostProgram::run(const QStringList& arguments)
{
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(m_folder);
    process.start(QStringLiteral(SAMPLEHOST_PROGRAM), arguments);
    const bool ended = process.waitForFinished(60000);
    out = decoded(process.readAllStandardOutput());
    error = decoded(process.readAllStandardError());
    if (!ended) {
        process.kill();
        process.waitForFinished();
        return -1;
    }
    return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
}

QStringList HostProgram::split(const QString& arguments)
{
    QStringList list = arguments.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    return list.replaceInStrings(QStringLiteral("_"), QStringLiteral(" "));
}
