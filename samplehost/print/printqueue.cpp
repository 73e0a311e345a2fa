// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/print/printqueue.h"

#include <QtCore/QProcess>
#include <QtCore/QStandardPaths>

namespace SampleHost {

namespace {

// A question that everybody waits for, and the way of a long job to a server far away.
constexpr int answerMilliseconds = 5000;
constexpr int submitMilliseconds = 60000;

QString submitCommand()
{
    return QStandardPaths::findExecutable(QStringLiteral("lp"));
}

QString statusCommand()
{
    return QStandardPaths::findExecutable(QStringLiteral("lpstat"));
}

/** Runs a command to its end; false when it did not end in time. */
bool finish(QProcess& process, int milliseconds)
{
    if (process.waitForFinished(milliseconds)) {
        return true;
    }
    process.kill();
    process.waitForFinished();
    return false;
}

/** What a command complained about, without its name in front. */
QString complaint(QProcess& process)
{
    const QString text = QString::fromLocal8Bit(process.readAllStandardError()).simplified();
    const QString name = QStringLiteral("lp: ");
    return text.startsWith(name) ? text.mid(name.size()) : text;
}

} // namespace

PrintQueue::PrintQueue(const QString& printerName) : m_printerName(printerName) {}

bool PrintQueue::isSupported()
{
    return !submitCommand().isEmpty() && !statusCommand().isEmpty();
}

bool PrintQueue::refusesJobs() const
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    // The answer is read by a program.
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C"));
    process.setProcessEnvironment(environment);
    // An instance has its own settings but not its own queue.
    const QString queue = m_printerName.section(QLatin1Char('/'), 0, 0);
    process.start(statusCommand(), {QStringLiteral("-a"), queue});
    return finish(process, answerMilliseconds) &&
           process.readAllStandardOutput().contains(" not accepting requests ");
}

bool PrintQueue::submit(const QString& file, const QString& title, const QString& paper,
                        QString& problem) const
{
    QStringList arguments{QStringLiteral("-d"), m_printerName};
    if (!title.isEmpty()) {
        arguments += {QStringLiteral("-t"), title};
    }
    if (!paper.isEmpty()) {
        arguments += {QStringLiteral("-o"), QStringLiteral("media=") + paper};
    }
    QProcess process;
    process.start(submitCommand(), arguments + QStringList{file});
    if (!finish(process, submitMilliseconds)) {
        problem = tr("The printer \"%1\" does not answer.").arg(m_printerName);
        return false;
    }
    if (process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0) {
        return true;
    }
    problem =
        tr("The printer \"%1\" did not take the job: %2").arg(m_printerName, complaint(process));
    return false;
}

} // namespace SampleHost
