// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/printing/jobcontroller.h"

#include "samplehost/printing/hostsettings.h"

#include <QtCore/QFileInfo>

#include <utility>

namespace SampleHost {

namespace {

QString outcomeText(const PrintJob& job, PrintJob::Outcome outcome, const QString& message)
{
    const QString target = job.targetDescription();
    const qint64 pages = job.pageCount();
    switch (outcome) {
    case PrintJob::Outcome::Completed:
        return pages == 1 ? JobController::tr("Printed 1 page to %1").arg(target)
                          : JobController::tr("Printed %1 pages to %2")
                                .arg(QString::number(pages), target);
    case PrintJob::Outcome::Cancelled:
        return (JobController::tr("Printing was cancelled.") + QLatin1Char(' ') + message)
            .trimmed();
    case PrintJob::Outcome::Failed:
        break;
    }
    return message;
}

} // namespace

JobController::JobController(const HostSettings& settings, QObject* parent)
    : QObject(parent), m_settings(settings)
{
}

JobController::~JobController() = default;

void JobController::startFileJob(const MakeFileJob& makeJob)
{
    const QString path = m_settings.outputPath();
    const bool agreed = std::exchange(m_replaceable, QString()) == path;
    const ReplacePolicy policy = agreed ? ReplacePolicy::Replace : m_settings.replacePolicy();
    const QString problem = m_settings.overwriteProblem(path);
    if (!problem.isEmpty()) {
        startJob(nullptr, problem);
    } else if (policy == ReplacePolicy::Replace) {
        startJob(makeJob(path, ExistingFile::Replaced), problem);
    } else if (!QFileInfo(path).isFile()) {
        startJob(makeJob(path, ExistingFile::Kept), problem);
    } else if (policy == ReplacePolicy::Refuse) {
        startJob(nullptr, HostSettings::refusal(path));
    } else {
        m_makeJob = makeJob;
        Q_EMIT replaceRequested(path);
    }
}

void JobController::printToFile(const QString& path)
{
    if (const MakeFileJob makeJob = std::exchange(m_makeJob, nullptr)) {
        const QString problem = m_settings.overwriteProblem(path);
        startJob(problem.isEmpty() ? makeJob(path, ExistingFile::Replaced) : nullptr, problem);
    }
}

void JobController::dismissRequest()
{
    m_makeJob = nullptr;
}

void JobController::startJob(std::unique_ptr<PrintJob> job, const QString& problem)
{
    m_replaceable.clear();
    if (!job) {
        Q_EMIT jobEnded(PrintJob::Outcome::Failed, problem);
        return;
    }
    job->setParent(this);
    m_job = job.release();
    connect(m_job, &PrintJob::finished, this, &JobController::endJob);
    showPrinting(true);
    Q_EMIT jobStarted(m_job);
    m_job->start();
}

void JobController::endJob(PrintJob::Outcome outcome, const QString& message)
{
    const QString text = outcomeText(*m_job, outcome, message);
    const QString file = outcome == PrintJob::Outcome::Completed ? m_job->file() : QString();
    m_job->deleteLater();
    m_job = nullptr;
    showPrinting(false);
    Q_EMIT jobEnded(outcome, text);
    if (!file.isEmpty()) {
        Q_EMIT fileCompleted(file);
    }
}

} // namespace SampleHost
