// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/support/hostprogram.h"

#include <QtCore/QDeadlineTimer>
#include <QtCore/QDir>
#include <QtCore/QOperatingSystemVersion>
#include <QtCore/QProcess>
#include <QtCore/QThread>
#include <QtGui/QGuiApplication>

#ifdef Q_OS_WIN
#include <QtCore/qt_windows.h>
#endif

namespace {

/** A text that the program wrote. Windows ends lines with two characters. */
QString decoded(const QByteArray& text)
{
    return QString::fromLocal8Bit(text).replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

#ifdef Q_OS_WIN

bool canBeDeleted(const QString& folder)
{
    const HANDLE handle = CreateFileW(qUtf16Printable(QDir::toNativeSeparators(folder)), DELETE,
                                      FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                      nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    return handle != INVALID_HANDLE_VALUE && CloseHandle(handle);
}

#else

bool canBeDeleted(const QString&)
{
    return true;
}

#endif

/** Windows keeps the working directory of a process for a moment after its end. */
void waitUntilReleased(const QString& folder)
{
    const QDeadlineTimer timeout(5000);
    while (!canBeDeleted(folder) && !timeout.hasExpired()) {
        QThread::msleep(10);
    }
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
    waitUntilReleased(m_folder);
    return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
}

QStringList HostProgram::split(const QString& arguments)
{
    QStringList list = arguments.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    return list.replaceInStrings(QStringLiteral("_"), QStringLiteral(" "));
}
