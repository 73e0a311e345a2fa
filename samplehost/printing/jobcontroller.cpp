// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/printing/jobcontroller.h"

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

JobController::JobController(QObject* parent) : QObject(parent) {}

JobController::~JobController() = default;

void JobController::startJob(std::unique_ptr<PrintJob> job, const QString& problem)
{
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
    m_job->deleteLater();
    m_job = nullptr;
    showPrinting(false);
    Q_EMIT jobEnded(outcome, text);
}

} // namespace SampleHost
