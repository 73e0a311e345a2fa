// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/support/hostprogram.h"

#include <QtCore/QProcess>

int HostProgram::run(const QStringList& arguments)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
        environment.remove(QString::fromLatin1(name));
    }
    environment.insert(QStringLiteral("HOME"), m_folder);
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(m_folder);
    process.start(QStringLiteral(SAMPLEHOST_PROGRAM), arguments);
    const bool ended = process.waitForFinished(60000);
    out = QString::fromLocal8Bit(process.readAllStandardOutput());
    error = QString::fromLocal8Bit(process.readAllStandardError());
    if (!ended) {
        process.kill();
        process.waitForFinished();
        return -1;
    }
    return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
}

int HostProgram::run(const QString& arguments)
{
    QStringList list = arguments.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    list.replaceInStrings(QStringLiteral("_"), QStringLiteral(" "));
    return run(list);
}
