// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/support/hostprogram.h"

#include <QtCore/QOperatingSystemVersion>
#include <QtCore/QProcess>
#include <QtGui/QGuiApplication>

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
    const QString platform = QStringLiteral("QT_QPA_PLATFORM");
    for (const QString& name :
         {QStringLiteral("DISPLAY"), QStringLiteral("WAYLAND_DISPLAY"), platform}) {
        environment.remove(name);
    }
    if (QOperatingSystemVersion::currentType() == QOperatingSystemVersion::Windows) {
        // There the program does not choose one, so it gets that of the test.
        environment.insert(platform, QGuiApplication::platformName());
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
